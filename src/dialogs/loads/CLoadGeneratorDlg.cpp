#include "dialogs/loads/CLoadGeneratorDlg.h"

#include "dialogs/grid/grid_ops.h"
#include "dialogs/loads/member_path_grid.h"
#include "resources/grid_ids.h"

CLoadGeneratorDlg::CLoadGeneratorDlg(const frame::FormBase& form, const char* entity, QWidget* pParent)
    : CDataGridDlg(form, pParent), entity_(entity) {
  // The path's rows are member ids the user types, not numbered records.
  OnCommand(res::kCtlNewRows, [this] { OnBnClickedGenerateMore(); });
  OnCommand(res::kCtlGridEditAction, [this] { OnBnClickedDeleteRows(); });
  OnCommand(res::kCtlPrint, [this] { OnBnClickedPrint(); });
  OnCommand(res::kCtlSave, [this] { OnBnClickedSave(); });
}

std::vector<std::string> CLoadGeneratorDlg::CaseItems(const CLoadGeneratorDlg& dlg) {
  return dlg.m_pLoadCases ? model::CaseChoices(*dlg.m_pLoadCases) : std::vector<std::string>{};
}

void CLoadGeneratorDlg::Refresh() {
  TSpread::RedrawGuard guard(m_Spread);
  pathgrid::Fill(m_Spread.sheet(), m_pMembers ? pathgrid::SelectedMembers(*m_pMembers) : std::vector<uint32_t>{},
                 m_crAlternateRowColor, IsReadOnly());
}

void CLoadGeneratorDlg::OnBnClickedGenerateMore() {
  if (IsReadOnly() || !UpdateData(1)) return;
  m_Spread.AddRows(static_cast<int>(m_nNewRows), false);
}

void CLoadGeneratorDlg::OnBnClickedDeleteRows() {
  if (IsReadOnly()) return;
  const std::optional<grid::Block> rows = grid::RowsToDelete(m_Spread.sheet());
  if (!rows) return;
  const grid::Block block = *rows;
  m_Spread.SetSelectBlock({1, block.row1, 1, block.row2});
  m_Spread.CopySelection();
  m_Spread.ChangeRows("Cut Selected Rows", block.row1, [&](grid::Sheet& rows) {
    pathgrid::DeleteRows(rows, block.row1, block.row2);
    rows.SetSelectBlock({});
  });
  m_Spread.SetSelectBlock({});
}

void CLoadGeneratorDlg::Prepare(model::LoadGenerator& generator) const {
  generator.m_pMembers = m_pMembers;
  generator.m_pNodes = m_pNodes;
  generator.m_pLoadCases = m_pLoadCases;
  generator.m_pCaseLoads = m_pCaseLoads;
  generator.m_pLoadCombs = m_pLoadCombs;
  generator.m_nCase = m_nCase;
}

void CLoadGeneratorDlg::ShowRefusals(const model::LoadGenerator& generator) {
  for (const std::string& refusal : generator.Refusals()) MessageBox(refusal);
}

void CLoadGeneratorDlg::OnBnClickedOk() {
  if (IsReadOnly() || !UpdateData(1) || !CheckValues()) return;
  pathgrid::PathRead path = pathgrid::Read(m_Spread.sheet(), entity_);
  if (!m_Spread.ShowFailure(path.failure)) return;
  model::LoadGenerator check;
  Prepare(check);
  size_t at = 0;
  if (const std::string refusal = check.CheckPath(path.ids, &at); !refusal.empty()) {
    m_Spread.ShowFailure(grid::GridFailure{refusal, {1, static_cast<int>(at) + 1}});
    return;
  }
  if (Generate(path.ids)) EndDialog(IDOK);
}
