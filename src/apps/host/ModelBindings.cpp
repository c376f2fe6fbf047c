#include "apps/host/DialogBindings.h"
#include "dialogs/model/CNodeDataDlg.h"

namespace {

// Every data grid gets the same units, flags and colour from the host.
void PrepareGrid(CDataGridDlg& dlg, HostModel& m) {
  dlg.m_pUnits = &m.doc.units;
  dlg.m_bShowSelectedOnly = m.doc.display.showSelectedOnly;
  dlg.m_bModelLocked = m.doc.display.modelLocked;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

// Grid dialogs write into the host's vectors themselves on OK.
bool WroteThrough(CDialog&, HostModel&) { return true; }

}  // namespace

void RegisterModelBindings() {
  RegisterDialogBinding({"CNodeDataDlg",
                         [](CDialog& d, HostModel& m) {
                           auto& dlg = static_cast<CNodeDataDlg&>(d);
                           PrepareGrid(dlg, m);
                           dlg.m_pNodes = &m.doc.nodes;
                         },
                         WroteThrough});
}
