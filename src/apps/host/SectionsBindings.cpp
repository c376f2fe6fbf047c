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

template <class Dlg>
void PrepareBrowser(Dlg& dlg, HostModel& m) {
  dlg.m_pUnits = &m.doc.units;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

}  // namespace

void RegisterSectionsBindings() {
  // The property tables list every row, whatever is selected.
  BindTable<CSectionDlg>([](CSectionDlg& dlg, model::ModelDocument& doc) { dlg.m_pSections = &doc.sections; }, false);
  BindTable<CThickDlg>([](CThickDlg& dlg, model::ModelDocument& doc) { dlg.m_pThicknesses = &doc.thicknesses; }, false);
  const auto materials = [](auto& dlg, model::ModelDocument& doc) { dlg.m_pMaterials = &doc.materials; };
  BindTable<CMaterialDlg>(materials, false);
  BindTable<CMaterialRcDlg>(materials, false);
  BindTable<CMaterialSteelDlg>(materials, false);
  // The calculators and browsers change nothing in the model by themselves.
  BindDialog<CRegularSectionDlg>([](CRegularSectionDlg& dlg, HostModel& m) { dlg.m_pUnits = &m.doc.units; }, nullptr);
  BindDialog<CStandardMaterialDlg>([](CStandardMaterialDlg& dlg, HostModel& m) { dlg.m_pUnits = &m.doc.units; },
                                   nullptr);
  BindDialog<CAiscDataDlg>(PrepareBrowser<CAiscDataDlg>, nullptr);
  BindDialog<CNdsDataDlg>(PrepareBrowser<CNdsDataDlg>, nullptr);
}
