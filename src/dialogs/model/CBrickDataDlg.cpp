#include "dialogs/model/CBrickDataDlg.h"

#include "resources/model_ids.h"

const frame::Form<CBrickDataDlg>& CBrickDataDlg::Description() {
  static const frame::Form<CBrickDataDlg> form = TableForm<CBrickDataDlg>(
      {.templateId = res::kIddBrickData, .caption = "Brick Data", .minWidth = 1020, .minHeight = 460, .okDefault = false});
  return form;
}

CBrickDataDlg::CBrickDataDlg(QWidget* pParent) : CElementDataDlg(Description(), elementgrid::kBricks, pParent) {}
