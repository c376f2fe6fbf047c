#include "dialogs/model/CShell4DataDlg.h"

#include "resources/model_ids.h"

const frame::Form<CShell4DataDlg>& CShell4DataDlg::Description() {
  static const frame::Form<CShell4DataDlg> form = TableForm<CShell4DataDlg>(
      {.templateId = res::kIddShell4Data, .caption = "Shell4 Data", .minWidth = 1020, .minHeight = 460, .okDefault = false});
  return form;
}

CShell4DataDlg::CShell4DataDlg(QWidget* pParent) : CElementDataDlg(Description(), elementgrid::kShells, pParent) {}

elementgrid::ElementLists CShell4DataDlg::Lists() const {
  elementgrid::ElementLists lists = CElementDataDlg::Lists();
  lists.thicknesses = ListOf(m_pThicknesses);
  return lists;
}
