#include "apps/host/DialogBindings.h"
#include "dialogs/boundary/CBoundaryDataDlg.h"

namespace {

// The boundary tables check their rows against the model's nodes, members and shells, and
// write their records back themselves on OK.
void PrepareBoundaryGrid(CBoundaryDataDlg& dlg, HostModel& m) {
  dlg.m_pUnits = &m.doc.units;
  dlg.m_bShowSelectedOnly = m.doc.display.showSelectedOnly;
  dlg.m_bModelLocked = m.doc.display.modelLocked;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
  dlg.m_pNodes = &m.doc.nodes;
  dlg.m_pMembers = &m.doc.members;
  dlg.m_pShells = &m.doc.shells;
}

template <class Dlg, class Bind>
void BindBoundaryGrid(Bind bind) {
  BindDialog<Dlg>(
      [bind](Dlg& dlg, HostModel& m) {
        PrepareBoundaryGrid(dlg, m);
        bind(dlg, m.doc);
      },
      [](Dlg&, HostModel&) { return true; });
}

}  // namespace

void RegisterBoundaryBindings() {
  BindBoundaryGrid<CSuptDataDlg>([](CSuptDataDlg& d, model::ModelDocument& doc) { d.m_pSupports = &doc.supports; });
  BindBoundaryGrid<CSpringDataDlg>([](CSpringDataDlg& d, model::ModelDocument& doc) {
    d.m_pNodalSprings = &doc.nodalSprings;
    d.m_pLineSprings = &doc.lineSprings;
    d.m_pSurfaceSprings = &doc.surfaceSprings;
  });
  BindBoundaryGrid<CCoupledSpringDataDlg>(
      [](CCoupledSpringDataDlg& d, model::ModelDocument& doc) { d.m_pCoupledSprings = &doc.coupledSprings; });
  BindBoundaryGrid<CMomentReleasesDataDlg>(
      [](CMomentReleasesDataDlg& d, model::ModelDocument& doc) { d.m_pReleases = &doc.releases; });
  BindBoundaryGrid<CMultiDofConstraintDataDlg>(
      [](CMultiDofConstraintDataDlg& d, model::ModelDocument& doc) { d.m_pConstraints = &doc.constraints; });
  BindBoundaryGrid<CDiaphragmDataDlg>(
      [](CDiaphragmDataDlg& d, model::ModelDocument& doc) { d.m_pDiaphragms = &doc.diaphragms; });
  BindBoundaryGrid<CDriftNodeDataDlg>(
      [](CDriftNodeDataDlg& d, model::ModelDocument& doc) { d.m_pDriftNodes = &doc.driftNodes; });
}
