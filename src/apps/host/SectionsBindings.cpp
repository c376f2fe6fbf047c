#include "apps/host/DialogBindings.h"
#include "dialogs/design/CAiscDataDlg.h"
#include "dialogs/design/CMaterialDlg.h"
#include "dialogs/design/CMaterialStrengthDlg.h"
#include "dialogs/design/CNdsDataDlg.h"
#include "dialogs/design/CRegularSectionDlg.h"
#include "dialogs/design/CSectionDlg.h"
#include "dialogs/design/CStandardMaterialDlg.h"
#include "dialogs/design/CThickDlg.h"

namespace {

void PrepareGrid(CDataGridDlg& dlg, HostModel& m) {
  dlg.m_pUnits = &m.doc.units;
  dlg.m_bModelLocked = m.doc.display.modelLocked;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

// The grids write into the host's vectors themselves on OK.
bool WroteThrough(CDialog&, HostModel&) { return true; }

template <class Dlg>
void PrepareBrowser(Dlg& dlg, HostModel& m) {
  dlg.m_pUnits = &m.doc.units;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

}  // namespace

void RegisterSectionsBindings() {
  BindDialog<CSectionDlg>(
      [](CSectionDlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m);
        dlg.m_pSections = &m.doc.sections;
      },
      WroteThrough);
  BindDialog<CThickDlg>(
      [](CThickDlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m);
        dlg.m_pThicknesses = &m.doc.thicknesses;
      },
      WroteThrough);
  BindDialog<CMaterialDlg>(
      [](CMaterialDlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m);
        dlg.m_pMaterials = &m.doc.materials;
      },
      WroteThrough);
  const auto strengths = [](CMaterialStrengthDlg& dlg, HostModel& m) {
    PrepareGrid(dlg, m);
    dlg.m_pMaterials = &m.doc.materials;
  };
  BindDialog<CMaterialRcDlg>(strengths, WroteThrough);
  BindDialog<CMaterialSteelDlg>(strengths, WroteThrough);
  // The calculators and browsers change nothing in the model by themselves.
  BindDialog<CRegularSectionDlg>([](CRegularSectionDlg& dlg, HostModel& m) { dlg.m_pUnits = &m.doc.units; }, nullptr);
  BindDialog<CStandardMaterialDlg>([](CStandardMaterialDlg& dlg, HostModel& m) { dlg.m_pUnits = &m.doc.units; },
                                   nullptr);
  BindDialog<CAiscDataDlg>(PrepareBrowser<CAiscDataDlg>, nullptr);
  BindDialog<CNdsDataDlg>(PrepareBrowser<CNdsDataDlg>, nullptr);
}
