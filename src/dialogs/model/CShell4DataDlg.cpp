#include "dialogs/model/CShell4DataDlg.h"

#include "resources/model_ids.h"

CShell4DataDlg::CShell4DataDlg(QWidget* pParent) : CElementDataDlg(res::kIddShell4Data, elementgrid::kShells, pParent) {}

elementgrid::ElementLists CShell4DataDlg::Lists() const {
  elementgrid::ElementLists lists = CElementDataDlg::Lists();
  lists.thicknesses = ListOf(m_pThicknesses);
  return lists;
}
