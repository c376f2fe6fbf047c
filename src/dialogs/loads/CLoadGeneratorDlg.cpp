#include "dialogs/loads/CLoadGeneratorDlg.h"

#include "dialogs/frame/DataExchange.h"
#include "dialogs/loads/member_path_grid.h"
#include "resources/case_loads_ids.h"
#include "resources/grid_ids.h"

CLoadGeneratorDlg::CLoadGeneratorDlg(int templateId, const char* entity, QWidget* pParent)
    : CDataGridDlg(templateId, pParent), entity_(entity) {
  // The path's rows are member ids the user types, not numbered records.
  OnCommand(res::kCtlNewRows, [this] { OnBnClickedGenerateMore(); });
  OnCommand(res::kCtlGenCutRows, [this] { OnBnClickedDeleteRows(); });
  OnCommand(res::kCtlPrint, [this] { OnBnClickedPrint(); });
  OnCommand(res::kCtlSave, [this] { OnBnClickedSave(); });
}

BOOL CLoadGeneratorDlg::OnInitDialog() {
  SetComboItems(res::kCtlGenCase, m_pLoadCases ? model::CaseChoices(*m_pLoadCases) : std::vector<std::string>{});
  return CDataGridDlg::OnInitDialog();
}

GridEditLock CLoadGeneratorDlg::EditLock() const {
  GridEditLock how;
  how.disable.push_back(res::kCtlGenCutRows);
  return how;
}

void CLoadGeneratorDlg::DoDataExchange(CDataExchange* pDX) {
  CDataGridDlg::DoDataExchange(pDX);
  DDX_CBIndex(pDX, res::kCtlGenCase, m_nCase);
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
  grid::Block block = m_Spread.sheet().SelectBlock();
  if (block.IsEmpty()) {
    const grid::CellRef active = m_Spread.sheet().ActiveCell();
    if (active.row < 1 || active.row > m_Spread.sheet().MaxRows()) return;
    block = {1, active.row, 1, active.row};
  }
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
