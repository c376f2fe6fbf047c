#include "dialogs/model/CNodeDataDlg.h"

#include "dialogs/model/node_grid.h"
#include "resources/model_ids.h"
#include "resources/resources.h"
#include "tools/format.h"

const frame::Form<CNodeDataDlg>& CNodeDataDlg::Description() {
  using F = frame::Field<CNodeDataDlg>;
  using namespace res;
  static const frame::Form<CNodeDataDlg> form = TableForm<CNodeDataDlg>(
      {.templateId = kIddNodeData, .caption = "Node Data", .captionStringId = kStrNodeDataCaption, .minWidth = 640,
       .minHeight = 420, .okDefault = false},
      {
          F::Button("Round-off Coordinates").Id(kCtlRoundOff, kStrRoundOff),
          F::Static("").Id(kCtlEpsilon).At(frame::kSideBar, 1),  // after the button: the epsilon it uses
      });
  return form;
}

CNodeDataDlg::CNodeDataDlg(QWidget* pParent) : CDataGridDlg(Description(), pParent) {
  OnCommand(res::kCtlRoundOff, [this] { OnRoundOff(); });
}

BOOL CNodeDataDlg::OnInitDialog() {
  CDataGridDlg::OnInitDialog();
  SetDlgItemText(res::kCtlEpsilon, tools::Format("Epsilon = %g", m_dEpsilon));
  if (QWidget* button = GetDlgItem(res::kCtlRoundOff)) {
    button->setToolTip(QString::fromStdString(res::LoadStringOr(res::kStrRoundOffTip, "")));
    button->setEnabled(!IsReadOnly());
  }
  return 1;
}

std::string CNodeDataDlg::PrintTitle() const { return nodegrid::kTableTitle; }

void CNodeDataDlg::Refresh() {
  filled_.clear();
  for (const fmNd& nd : *m_pNodes)
    if (!m_bShowSelectedOnly || nd.IsSelected()) filled_.push_back(nd);
  TSpread::RedrawGuard guard(m_Spread);
  nodegrid::Fill(m_Spread.sheet(), *m_pNodes, *m_pUnits, m_bShowSelectedOnly, m_crAlternateRowColor, IsReadOnly());
}

bool CNodeDataDlg::Save() {
  nodegrid::ReadResult result = nodegrid::Read(m_Spread.sheet(), filled_);
  if (!m_Spread.ShowFailure(result.failure)) return false;
  *m_pNodes = std::move(result.nodes);
  return true;
}

void CNodeDataDlg::OnRoundOff() {
  if (IsReadOnly()) return;
  m_Spread.ChangeCells("Round-off Coordinates", {nodegrid::kX, 1, nodegrid::kZ, m_Spread.sheet().MaxRows()},
                       [&](grid::Sheet& sheet) { nodegrid::RoundOffCoordinates(sheet, m_dEpsilon); });
}
