#include "dialogs/boundary/CBoundaryDataDlg.h"
#include "dialogs/frame/DialogRegistry.h"

void RegisterBoundaryDialogs() {
  const char* family = "Boundary and connection grids";
  RegisterDialog<CSuptDataDlg>("CSuptDataDlg", family);
  RegisterDialog<CSpringDataDlg>("CSpringDataDlg", family);
  RegisterDialog<CCoupledSpringDataDlg>("CCoupledSpringDataDlg", family);
  RegisterDialog<CMomentReleasesDataDlg>("CMomentReleasesDataDlg", family);
  RegisterDialog<CMultiDofConstraintDataDlg>("CMultiDofConstraintDataDlg", family);
  RegisterDialog<CDiaphragmDataDlg>("CDiaphragmDataDlg", family);
  RegisterDialog<CDriftNodeDataDlg>("CDriftNodeDataDlg", family);
}
