#include "apps/host/DialogBindings.h"
#include "dialogs/loads/CCaseLoadDataDlg.h"
#include "dialogs/loads/CMovingLoadDlg.h"
#include "dialogs/loads/CPatternLoadDataDlg.h"

namespace {

// What every load table and generator takes from the host: units, the lock, the grid's colour
// and the cases with one entry of loads each.
template <class Dlg>
void PrepareLoads(Dlg& dlg, HostModel& m) {
  PrepareGrid(dlg, m, false);
  m.doc.caseLoads.resize(m.doc.loadCases.size());
  dlg.m_pLoadCases = &m.doc.loadCases;
  dlg.m_pCaseLoads = &m.doc.caseLoads;
  dlg.m_pNodes = &m.doc.nodes;
  dlg.m_pMembers = &m.doc.members;
}

// The tables check rows against every kind of element and write the loads back on OK. The
// generators are no tables of the model: showing only selected entities leaves them editable.
template <class Dlg>
void BindLoadTable() {
  BindDialog<Dlg>(
      [](Dlg& dlg, HostModel& m) {
        PrepareLoads(dlg, m);
        dlg.m_bShowSelectedOnly = m.doc.display.showSelectedOnly;
        dlg.m_pShells = &m.doc.shells;
        dlg.m_pBricks = &m.doc.bricks;
      },
      [](Dlg&, HostModel&) { return true; });
}

// The generators append to the host's cases, case loads and combinations themselves.
template <class Dlg>
void BindGenerator() {
  BindDialog<Dlg>(
      [](Dlg& dlg, HostModel& m) {
        PrepareLoads(dlg, m);
        dlg.m_pLoadCombs = &m.doc.loadCombs;
      },
      [](Dlg&, HostModel&) { return true; });
}

}  // namespace

void RegisterCaseLoadsBindings() {
  BindGenerator<CMovingLoadDlg>();
  BindGenerator<CPatternLoadDataDlg>();
  BindLoadTable<CNodalLoadDataDlg>();
  BindLoadTable<CPointLoadDataDlg>();
  BindLoadTable<CLineLoadDataDlg>();
  BindLoadTable<CShellLoadDataDlg>();
  BindLoadTable<CAreaLoadDataDlg>();
  BindLoadTable<CMemberThermalLoadDataDlg>();
  BindLoadTable<CShell4ThermalLoadDataDlg>();
  BindLoadTable<CBrickThermalLoadDataDlg>();
  BindLoadTable<CNodalMassDataDlg>();
  BindLoadTable<CCombMassDataDlg>();
}
