#include "dialogs/grid/grid_edit.h"

#include <algorithm>

#include "dialogs/grid/grid_ops.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace grid {
namespace {

int ItemPosition(const CellType& type, std::string_view text) {
  const std::string_view trimmed = tools::Trim(text);
  for (size_t i = 0; i < type.items.size(); ++i)
    if (tools::EqualsNoCase(type.items[i], trimmed)) return static_cast<int>(i);
  return -1;
}

Block ClipToGrid(const Sheet& sheet, Block block) {
  block.col1 = std::max(block.col1, 1);
  block.row1 = std::max(block.row1, 1);
  block.col2 = std::min(block.col2, sheet.MaxCols());
  block.row2 = std::min(block.row2, sheet.MaxRows());
  return block;
}

size_t CellCount(const Block& block) {
  if (block.IsEmpty()) return 0;
  return static_cast<size_t>(block.col2 - block.col1 + 1) * static_cast<size_t>(block.row2 - block.row1 + 1);
}

}  // namespace

std::optional<std::string> ComboRefusal(const Sheet& sheet, int col, int row, std::string_view text) {
  const CellType& type = sheet.GetCellType(col, row);
  if (type.kind != CellType::Combo || tools::Trim(text).empty() || ItemPosition(type, text) >= 0) return std::nullopt;
  std::string items;
  for (const std::string& item : type.items) {
    if (!items.empty()) items += ", ";
    items += item;
  }
  return tools::Format("\"%s\" is not one of %s.", std::string(tools::Trim(text)).c_str(), items.c_str());
}

std::string CellTextFor(const Sheet& sheet, int col, int row, std::string_view text) {
  const CellType& type = sheet.GetCellType(col, row);
  if (type.kind != CellType::Combo) return std::string(text);
  const int position = ItemPosition(type, text);
  return position >= 0 ? type.items[static_cast<size_t>(position)] : std::string(tools::Trim(text));
}

PastePlan PlanPaste(const Sheet& sheet, const Block& selection, CellRef active, const std::string& clipboard) {
  PastePlan plan;
  const auto rows = ParseTabSeparated(clipboard);
  if (rows.empty()) return plan;
  int width = 0;
  for (const auto& r : rows) width = std::max(width, static_cast<int>(r.size()));
  const int height = static_cast<int>(rows.size());
  const Block selected = ClipToGrid(sheet, selection);

  if (height == 1 && width == 1 && CellCount(selected) > 1) {
    plan.writes.block = selected;
    plan.writes.texts.assign(CellCount(selected), rows[0][0]);
    return plan;
  }
  const CellRef at = selected.IsEmpty() ? active : CellRef{selected.col1, selected.row1};
  if (at.col < 1 || at.row < 1 || at.col > sheet.MaxCols() || at.row > sheet.MaxRows()) return plan;
  const int lastRow = at.row + height - 1, lastCol = at.col + width - 1;
  if (lastRow > sheet.MaxRows()) {
    plan.refusal = GridFailure{tools::Format("The pasted block has %d rows: from row %d it needs rows up to %d, but the "
                                             "table ends at row %d.",
                                             height, at.row, lastRow, sheet.MaxRows()),
                               at};
    return plan;
  }
  if (lastCol > sheet.MaxCols()) {
    plan.refusal = GridFailure{tools::Format("The pasted block has %d columns: from column %d it needs columns up to "
                                             "%d, but the table ends at column %d.",
                                             width, at.col, lastCol, sheet.MaxCols()),
                               at};
    return plan;
  }
  plan.writes.block = {at.col, at.row, lastCol, lastRow};
  plan.writes.texts.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
  for (const auto& r : rows)
    for (int c = 0; c < width; ++c) plan.writes.texts.push_back(c < static_cast<int>(r.size()) ? r[c] : std::string());
  return plan;
}

std::optional<GridFailure> CheckWrites(const Sheet& sheet, CellWrites& writes) {
  const Block& b = writes.block;
  if (b.IsEmpty()) return std::nullopt;
  size_t i = 0;
  for (int row = b.row1; row <= b.row2; ++row)
    for (int col = b.col1; col <= b.col2; ++col, ++i) {
      if (sheet.IsLocked(col, row) || sheet.GetCellType(col, row).kind != CellType::Combo) continue;
      if (auto refusal = ComboRefusal(sheet, col, row, writes.texts[i])) return GridFailure{*refusal, {col, row}};
      writes.texts[i] = CellTextFor(sheet, col, row, writes.texts[i]);
    }
  return std::nullopt;
}

int ApplyWrites(Sheet& sheet, const CellWrites& writes) {
  const Block& b = writes.block;
  if (b.IsEmpty()) return 0;
  int written = 0;
  size_t i = 0;
  for (int row = b.row1; row <= b.row2; ++row)
    for (int col = b.col1; col <= b.col2; ++col, ++i) {
      if (sheet.IsLocked(col, row)) continue;
      sheet.SetTypedData(col, row, writes.texts[i]);
      ++written;
    }
  return written;
}

SavedBlock SaveBlock(const Sheet& sheet, const Block& block) {
  SavedBlock saved;
  saved.block = ClipToGrid(sheet, block);
  saved.maxRows = sheet.MaxRows();
  if (saved.block.IsEmpty()) return saved;
  saved.texts.reserve(CellCount(saved.block));
  for (int row = saved.block.row1; row <= saved.block.row2; ++row)
    for (int col = saved.block.col1; col <= saved.block.col2; ++col) saved.texts.push_back(sheet.GetData(col, row));
  return saved;
}

SavedBlock SaveRows(const Sheet& sheet, int firstRow) {
  SavedBlock saved = SaveBlock(sheet, {1, std::max(firstRow, 1), sheet.MaxCols(), sheet.MaxRows()});
  saved.wholeRows = true;
  saved.block.row1 = std::max(firstRow, 1);  // kept when no row follows, to know where to cut
  if (saved.block.IsEmpty()) return saved;
  saved.locks.reserve(saved.texts.size());
  for (int row = saved.block.row1; row <= saved.block.row2; ++row)
    for (int col = saved.block.col1; col <= saved.block.col2; ++col)
      saved.locks.push_back(sheet.IsCellLocked(col, row) ? 1 : 0);
  return saved;
}

void RestoreBlock(Sheet& sheet, const SavedBlock& saved) {
  if (saved.wholeRows) sheet.SetMaxRows(saved.maxRows);
  if (saved.block.IsEmpty()) return;
  size_t i = 0;
  for (int row = saved.block.row1; row <= saved.block.row2; ++row)
    for (int col = saved.block.col1; col <= saved.block.col2; ++col, ++i) {
      sheet.SetData(col, row, saved.texts[i]);
      if (saved.wholeRows) sheet.SetLock(col, row, saved.locks[i] != 0);
    }
}

}  // namespace grid
