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
void PrepareBrowser(CDialog& d, HostModel& m) {
  auto& dlg = static_cast<Dlg&>(d);
  dlg.m_pUnits = &m.doc.units;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

}  // namespace

void RegisterSectionsBindings() {
  RegisterDialogBinding({"CSectionDlg",
                         [](CDialog& d, HostModel& m) {
                           auto& dlg = static_cast<CSectionDlg&>(d);
                           PrepareGrid(dlg, m);
                           dlg.m_pSections = &m.doc.sections;
                         },
                         WroteThrough});
  RegisterDialogBinding({"CThickDlg",
                         [](CDialog& d, HostModel& m) {
                           auto& dlg = static_cast<CThickDlg&>(d);
                           PrepareGrid(dlg, m);
                           dlg.m_pThicknesses = &m.doc.thicknesses;
                         },
                         WroteThrough});
  RegisterDialogBinding({"CMaterialDlg",
                         [](CDialog& d, HostModel& m) {
                           auto& dlg = static_cast<CMaterialDlg&>(d);
                           PrepareGrid(dlg, m);
                           dlg.m_pMaterials = &m.doc.materials;
                         },
                         WroteThrough});
  for (const char* name : {"CMaterialRcDlg", "CMaterialSteelDlg"})
    RegisterDialogBinding({name,
                           [](CDialog& d, HostModel& m) {
                             auto& dlg = static_cast<CMaterialStrengthDlg&>(d);
                             PrepareGrid(dlg, m);
                             dlg.m_pMaterials = &m.doc.materials;
                           },
                           WroteThrough});
  // The calculators and browsers change nothing in the model by themselves.
  RegisterDialogBinding({"CRegularSectionDlg",
                         [](CDialog& d, HostModel& m) { static_cast<CRegularSectionDlg&>(d).m_pUnits = &m.doc.units; },
                         nullptr});
  RegisterDialogBinding(
      {"CStandardMaterialDlg",
       [](CDialog& d, HostModel& m) { static_cast<CStandardMaterialDlg&>(d).m_pUnits = &m.doc.units; }, nullptr});
  RegisterDialogBinding({"CAiscDataDlg", PrepareBrowser<CAiscDataDlg>, nullptr});
  RegisterDialogBinding({"CNdsDataDlg", PrepareBrowser<CNdsDataDlg>, nullptr});
}
