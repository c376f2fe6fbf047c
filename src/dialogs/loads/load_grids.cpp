#include "dialogs/loads/load_grids.h"

#include <algorithm>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/loads/load_cases.h"
#include "tools/format.h"

namespace loadgrid {

std::vector<std::string> CaseTypeItems() {
  std::vector<std::string> items;
  for (const LoadType& t : LoadTypes()) items.emplace_back(t.combined);
  return items;
}

void FillCases(grid::Sheet& sheet, const std::vector<fmLoadCase>& cases, grid::Color alternateRowColor,
               bool lockAll) {
  const int rows = static_cast<int>(cases.size());
  grid::InitializeGrid(sheet, alternateRowColor, rows, kCaseColumnCount, {"Case No", "Label", "Type"}, {8, 30, 16},
                       lockAll);
  sheet.SetColumnLock(kCaseNo, true);
  sheet.SetColAlign(kCaseLabel, grid::Align::Left);
  sheet.SetColAlign(kCaseType, grid::Align::Left);
  grid::CellType type;
  type.kind = grid::CellType::Combo;
  type.items = CaseTypeItems();
  sheet.SetColumnType(kCaseType, type);
  sheet.AddFillColumn(kCaseType);
  for (int row = 1; row <= rows; ++row) {
    const fmLoadCase& lc = cases[static_cast<size_t>(row - 1)];
    sheet.SetNumber(kCaseNo, row, tools::Format("%d", row));
    sheet.SetData(kCaseLabel, row, lc.name);
    sheet.SetComboIndex(kCaseType, row, GetLoadCaseTypeIndex(lc.type));
  }
  // The first case's label cannot be changed.
  if (rows > 0) sheet.SetLock(kCaseLabel, 1, true);
}

void PrepareNewCaseRows(grid::Sheet& sheet, int firstNewRow) {
  for (int row = std::max(firstNewRow, 1); row <= sheet.MaxRows(); ++row)
    if (sheet.GetData(kCaseType, row).empty()) sheet.SetComboIndex(kCaseType, row, kLoadTypeOther);
}

CaseReadResult ReadCases(const grid::Sheet& sheet, int filledRows) {
  CaseReadResult result;
  const int used = std::max(sheet.LastUsedRow(kCaseLabel, kCaseLabel), std::min(filledRows, sheet.MaxRows()));
  std::vector<loads::LoadCaseRow> rows;
  rows.reserve(static_cast<size_t>(used));
  for (int row = 1; row <= used; ++row)
    rows.push_back({sheet.GetData(kCaseLabel, row), sheet.GetData(kCaseType, row)});
  const loads::LoadCaseCheck check = loads::BuildLoadCases(rows, result.cases);
  if (!check.ok()) result.failure = grid::GridFailure{check.message, {kCaseLabel, check.row + 1}};
  return result;
}

std::optional<grid::GridFailure> DeleteCaseRows(grid::Sheet& sheet, int row1, int row2) {
  row1 = std::max(row1, 1);
  row2 = std::min(row2, sheet.MaxRows());
  if (row2 < row1) return std::nullopt;
  std::vector<int> rows;
  for (int row = row1; row <= row2; ++row) rows.push_back(row - 1);
  if (const std::string refusal = loads::CheckDeleteLoadCases(rows); !refusal.empty())
    return grid::GridFailure{refusal, {kCaseLabel, 1}};
  grid::RemoveRows(sheet, row1, row2);
  for (int row = 1; row <= sheet.MaxRows(); ++row) sheet.SetData(kCaseNo, row, tools::Format("%d", row));
  sheet.SetActiveCell(kCaseLabel, std::min(row1, std::max(sheet.MaxRows(), 1)));
  return std::nullopt;
}

void FillFactors(grid::Sheet& sheet, const std::vector<loads::CombinationEdit::Row>& rows,
                 grid::Color alternateRowColor, bool lockAll) {
  const int count = static_cast<int>(rows.size());
  grid::InitializeGrid(sheet, alternateRowColor, count, kFactorColumnCount, {"Case", "Factor"}, {30, 12}, lockAll);
  sheet.SetColumnLock(kFactorCase, true);
  sheet.AddFillColumn(kFactorValue);
  for (int row = 1; row <= count; ++row) {
    sheet.SetData(kFactorCase, row, rows[static_cast<size_t>(row - 1)].caseLabel);
    sheet.SetNumber(kFactorValue, row, rows[static_cast<size_t>(row - 1)].factorText);
  }
}

std::vector<loads::CombinationEdit::Row> ReadFactors(const grid::Sheet& sheet) {
  std::vector<loads::CombinationEdit::Row> rows;
  rows.reserve(static_cast<size_t>(sheet.MaxRows()));
  for (int row = 1; row <= sheet.MaxRows(); ++row)
    rows.push_back({sheet.GetData(kFactorCase, row), sheet.GetData(kFactorValue, row)});
  return rows;
}

std::string FactorTableTitle(const std::string& label) { return "Load Comb - " + label + " Table"; }

}  // namespace loadgrid
