#include "dialogs/model/CElementDataDlg.h"

#include "resources/grid_ids.h"

CElementDataDlg::CElementDataDlg(int templateId, const elementgrid::Kind& kind, QWidget* pParent)
    : CDataGridDlg(templateId, pParent), kind_(kind) {
  OnCommand(res::kCtlNewRows, [this] { OnNewElementRows(); });
}

elementgrid::ElementLists CElementDataDlg::Lists() const {
  elementgrid::ElementLists lists;
  lists.nodes = ListOf(m_pNodes);
  lists.materials = ListOf(m_pMaterials);
  return lists;
}

void CElementDataDlg::OnNewElementRows() {
  const int before = m_Spread.sheet().MaxRows();
  OnNewRows();
  const int after = m_Spread.sheet().MaxRows();
  if (after == before) return;
  TSpread::RedrawGuard guard(m_Spread);
  elementgrid::SetNewRowDefaults(m_Spread.sheet(), kind_, before + 1, after);
}
