#include "apps/host/DialogBindings.h"
#include "dialogs/boundary/CBoundaryDataDlg.h"

namespace {

// The boundary tables check their rows against the model's nodes, members and shells.
template <class Dlg>
void BindBoundaryGrid(std::function<void(Dlg&, model::ModelDocument&)> hand) {
  BindTable<Dlg>([hand](Dlg& dlg, model::ModelDocument& doc) {
    dlg.m_pNodes = &doc.nodes;
    dlg.m_pMembers = &doc.members;
    dlg.m_pShells = &doc.shells;
    hand(dlg, doc);
  });
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
