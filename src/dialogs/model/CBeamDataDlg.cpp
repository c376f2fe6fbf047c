#include "dialogs/model/CBeamDataDlg.h"

#include "resources/model_ids.h"

CBeamDataDlg::CBeamDataDlg(QWidget* pParent) : CElementDataDlg(res::kIddBeamData, elementgrid::kMembers, pParent) {}

elementgrid::ElementLists CBeamDataDlg::Lists() const {
  elementgrid::ElementLists lists = CElementDataDlg::Lists();
  lists.sections = ListOf(m_pSections);
  return lists;
}
