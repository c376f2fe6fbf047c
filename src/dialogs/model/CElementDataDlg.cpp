#include "dialogs/model/CElementDataDlg.h"


CElementDataDlg::CElementDataDlg(const frame::FormBase& form, const elementgrid::Kind& kind, QWidget* pParent)
    : CDataGridDlg(form, pParent), kind_(kind) {}

elementgrid::ElementLists CElementDataDlg::Lists() const {
  elementgrid::ElementLists lists;
  lists.nodes = ListOf(m_pNodes);
  lists.materials = ListOf(m_pMaterials);
  return lists;
}

void CElementDataDlg::PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) {
  elementgrid::SetNewRowDefaults(sheet, kind_, firstRow, lastRow);
}
