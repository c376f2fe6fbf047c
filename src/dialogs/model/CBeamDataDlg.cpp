#include "dialogs/model/CBeamDataDlg.h"

#include "resources/model_ids.h"

const frame::Form<CBeamDataDlg>& CBeamDataDlg::Description() {
  static const frame::Form<CBeamDataDlg> form = TableForm<CBeamDataDlg>(
      {.templateId = res::kIddBeamData, .caption = "Member Data", .minWidth = 1020, .minHeight = 460, .okDefault = false});
  return form;
}

CBeamDataDlg::CBeamDataDlg(QWidget* pParent) : CElementDataDlg(Description(), elementgrid::kMembers, pParent) {}

elementgrid::ElementLists CBeamDataDlg::Lists() const {
  elementgrid::ElementLists lists = CElementDataDlg::Lists();
  lists.sections = ListOf(m_pSections);
  return lists;
}
