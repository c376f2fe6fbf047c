#include "apps/host/DialogBindings.h"
#include "dialogs/units/CUnitsDlg.h"
#include "model/convert_units.h"

void RegisterUnitsBindings() {
  RegisterDialogBinding({"CUnitsDlg",
                         [](CDialog& d, HostModel& m) {
                           auto& dlg = static_cast<CUnitsDlg&>(d);
                           dlg.m_Units = m.doc.units;
                           dlg.m_bModelLocked = m.doc.display.modelLocked;
                         },
                         [](CDialog& d, HostModel& m) {
                           const fmUnit before = m.doc.units;
                           model::ChangeDocumentUnits(m.doc, static_cast<CUnitsDlg&>(d).m_Units);
                           return !(m.doc.units == before);
                         }});
}
