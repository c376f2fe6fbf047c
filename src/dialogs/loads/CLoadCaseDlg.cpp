#include "dialogs/loads/CLoadCaseDlg.h"

#include "dialogs/grid/grid_ops.h"
#include "dialogs/loads/load_grids.h"
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/loads_ids.h"
#include "resources/resources.h"

using namespace res;

// The grid with the data-grid buttons on the right and the note on load types below it.
const frame::Form<CLoadCaseDlg>& CLoadCaseDlg::Description() {
  using F = frame::Field<CLoadCaseDlg>;
  static const frame::Form<CLoadCaseDlg> form = TableForm<CLoadCaseDlg>(
      {.templateId = kIddLoadCase, .caption = "Load Cases", .minWidth = 560, .minHeight = 380},
      {
          F::Static("The optional load types are used in forming standard load combinations").Span(1),
          F::Button("Delete Rows").Id(kCtlCaseDeleteRows),
      });
  return form;
}

CLoadCaseDlg::CLoadCaseDlg(QWidget* pParent) : CDataGridDlg(Description(), pParent) {
  OnCommand(kCtlCaseDeleteRows, [this] { OnDeleteRows(); });
}

GridEditLock CLoadCaseDlg::EditLock() const {
  // OK itself reads "Close" here, and Cancel goes.
  GridEditLock how;
  how.disable = {kCtlNewRowCount, kCtlNewRows, kCtlCaseDeleteRows};
  how.closeButton = IDOK;
  how.hideCancel = true;
  how.message = kModelLockedShort;
  return how;
}

void CLoadCaseDlg::Refresh() {
  filledRows_ = static_cast<int>(m_pLoadCases->size());
  origins_.resize(m_pLoadCases->size());
  for (size_t i = 0; i < origins_.size(); ++i) origins_[i] = static_cast<int>(i);
  TSpread::RedrawGuard guard(m_Spread);
  loadgrid::FillCases(m_Spread.sheet(), *m_pLoadCases, m_crAlternateRowColor, IsReadOnly());
}

void CLoadCaseDlg::OnOK() {
  if (IsReadOnly()) {
    EndDialog(IDCANCEL);
    return;
  }
  CDataGridDlg::OnOK();
}

bool CLoadCaseDlg::Save() {
  loadgrid::CaseReadResult result = loadgrid::ReadCases(m_Spread.sheet(), filledRows_);
  if (!m_Spread.ShowFailure(result.failure)) return false;
  if (m_pCaseLoads) {
    std::vector<int> origin(result.cases.size(), -1);
    for (size_t i = 0; i < origin.size() && i < origins_.size(); ++i) origin[i] = origins_[i];
    ReorderCaseLoads(*m_pCaseLoads, origin);
  }
  *m_pLoadCases = std::move(result.cases);
  return true;
}

void CLoadCaseDlg::PrepareNewRows(grid::Sheet& sheet, int firstRow, int) {
  loadgrid::PrepareNewCaseRows(sheet, firstRow);
}

void CLoadCaseDlg::OnDeleteRows() {
  if (IsReadOnly()) return;
  grid::Sheet& sheet = m_Spread.sheet();
  const std::optional<grid::Block> rows = grid::RowsToDelete(sheet);
  if (!rows) return;
  const grid::Block block = *rows;
  std::optional<grid::GridFailure> refusal;
  const int filledBefore = filledRows_;
  const int filledAfter = filledRows_ - std::max(0, std::min(block.row2, filledRows_) - block.row1 + 1);
  // The cases the remaining rows came from, so their loads follow them on OK.
  const std::vector<int> originsBefore = origins_;
  std::vector<int> originsAfter = origins_;
  const size_t from = static_cast<size_t>(std::max(block.row1, 1) - 1);
  if (from < originsAfter.size())
    originsAfter.erase(originsAfter.begin() + static_cast<std::ptrdiff_t>(from),
                       originsAfter.begin() + static_cast<std::ptrdiff_t>(
                                                  std::min(originsAfter.size(), static_cast<size_t>(block.row2))));
  m_Spread.ChangeRows(
      "Delete Rows", block.row1,
      [&](grid::Sheet& rows) {
        refusal = loadgrid::DeleteCaseRows(rows, block.row1, block.row2);
        if (!refusal) rows.SetSelectBlock({});
      },
      [this, filledBefore, filledAfter, originsBefore, originsAfter](bool undone) {
        filledRows_ = undone ? filledBefore : filledAfter;
        origins_ = undone ? originsBefore : originsAfter;
      });
  if (refusal) {
    m_Spread.ShowFailure(refusal);
    return;
  }
  filledRows_ = filledAfter;
  origins_ = std::move(originsAfter);
  m_Spread.SetSelectBlock({});
}
