#include "dialogs/grid/sheet.h"

#include <cmath>

#include "tools/format.h"
#include "tools/parse.h"
#include "tools/labels.h"
#include "tools/parallel.h"

namespace grid {
namespace {
const std::string kEmpty;
const CellType kEditType;
}  // namespace

void Sheet::SetMaxCols(int cols) {
  if (cols < 0) cols = 0;
  ++layout_;
  const size_t old = columns_.size();
  columns_.resize(static_cast<size_t>(cols) + 1);
  for (size_t c = old; c < columns_.size(); ++c) {
    columns_[c].cells.resize(static_cast<size_t>(rows_) + 1);
    columns_[c].align = c == 1 ? Align::Left : Align::Right;
  }
}

void Sheet::SetMaxRows(int rows) {
  if (rows < 0) rows = 0;
  rows_ = rows;
  // The cells of a report of a million rows take most of a gigabyte: the columns are set up
  // on all cores then.
  constexpr int kRowsWorthSharing = 262144;
  const size_t columnsPerRange = rows >= kRowsWorthSharing ? 1 : columns_.size();
  tools::ParallelRanges(columns_.size(), columnsPerRange, [&](size_t begin, size_t end) {
    for (size_t i = begin; i < end; ++i) {
      Column& c = columns_[i];
      c.cells.resize(static_cast<size_t>(rows) + 1);
      if (!c.locks.empty()) c.locks.resize(static_cast<size_t>(rows) + 1, 0);
      if (!c.numbers.empty()) c.numbers.resize(static_cast<size_t>(rows) + 1, 0);
      if (!c.values.empty()) c.values.resize(static_cast<size_t>(rows) + 1, 0.0);
    }
  });
}

const std::string& Sheet::GetData(int col, int row) const {
  if (!InGrid(col, row)) return kEmpty;
  return columns_[col].cells[row];
}

void Sheet::SetData(int col, int row, std::string_view text) {
  if (!InGrid(col, row)) return;
  const CellType& type = GetCellType(col, row);
  const bool mayBeTooLong = row > 0 && type.kind == CellType::Edit && type.maxLength > 0 &&
                            text.size() > static_cast<size_t>(type.maxLength);
  Column& c = columns_[col];
  if (mayBeTooLong)
    c.cells[row] = tools::CutLabel(text, static_cast<size_t>(type.maxLength));
  else
    c.cells[row].assign(text);
  if (!c.numbers.empty()) c.numbers[row] = 0;
}

void Sheet::SetNumber(int col, int row, std::string_view text) {
  if (!InGrid(col, row)) return;
  SetData(col, row, text);
  Column& c = columns_[col];
  if (c.numbers.empty()) c.numbers.assign(c.cells.size(), 0);
  c.numbers[row] = kFromText;
}

void Sheet::SetNumber(int col, int row, double value, std::string_view text) {
  if (!InGrid(col, row)) return;
  SetNumber(col, row, text);
  if (!std::isfinite(value)) return;
  Column& c = columns_[col];
  if (c.values.empty()) c.values.assign(c.cells.size(), 0.0);
  c.values[row] = value;
  c.numbers[row] = kFromValue;
}

bool Sheet::IsNumber(int col, int row) const {
  if (!InGrid(col, row)) return false;
  const Column& c = columns_[col];
  return static_cast<size_t>(row) < c.numbers.size() && c.numbers[row];
}

void Sheet::SetNumberG(int col, int row, double value) {
  if (!InGrid(col, row)) return;
  std::array<char, 32> buffer;
  SetNumber(col, row, value, tools::FormatG(value, buffer));
}

std::optional<double> Sheet::GetNumber(int col, int row) const {
  if (!IsNumber(col, row)) return std::nullopt;
  const Column& c = columns_[col];
  if (c.numbers[row] == kFromValue) return c.values[row];
  return tools::ParseDouble(c.cells[row]);
}

void Sheet::SetTypedData(int col, int row, std::string_view text) {
  if (IsNumber(col, row) && tools::ParseDouble(text))
    SetNumber(col, row, text);
  else
    SetData(col, row, text);
}

std::optional<int64_t> Sheet::GetInt(int col, int row) const { return tools::ParseInt(GetData(col, row)); }

bool Sheet::IsLocked(int col, int row) const {
  if (lockAll_) return true;
  if (col < 0 || col > MaxCols()) return false;
  const Column& c = columns_[col];
  if (c.locked) return true;
  return row >= 0 && static_cast<size_t>(row) < c.locks.size() && c.locks[row];
}

bool Sheet::IsCellLocked(int col, int row) const {
  if (col < 0 || col > MaxCols()) return false;
  const Column& c = columns_[col];
  return row >= 0 && static_cast<size_t>(row) < c.locks.size() && c.locks[row];
}

void Sheet::SetLock(int col, int row, bool locked) {
  if (!InGrid(col, row)) return;
  Column& c = columns_[col];
  if (c.locks.empty()) {
    if (!locked) return;
    c.locks.assign(c.cells.size(), 0);
  }
  c.locks[row] = locked ? 1 : 0;
}

void Sheet::SetColumnLock(int col, bool locked) {
  if (col >= 0 && col <= MaxCols()) columns_[col].locked = locked;
}

void Sheet::SetLockAll(bool locked) { lockAll_ = locked; }

const CellType& Sheet::GetCellType(int col, int row) const {
  if (col < 0 || col > MaxCols()) return kEditType;
  if (!cellTypes_.empty()) {
    const auto it = cellTypes_.find(Key(col, row));
    if (it != cellTypes_.end()) return it->second;
  }
  return columns_[col].type;
}

void Sheet::SetColumnType(int col, CellType type) {
  if (col >= 0 && col <= MaxCols()) columns_[col].type = std::move(type);
}

void Sheet::SetCellType(int col, int row, CellType type) {
  if (InGrid(col, row)) cellTypes_[Key(col, row)] = std::move(type);
}

int Sheet::GetComboIndex(int col, int row) const {
  const CellType& type = GetCellType(col, row);
  const std::string_view text = tools::Trim(GetData(col, row));
  for (size_t i = 0; i < type.items.size(); ++i)
    if (tools::EqualsNoCase(type.items[i], text)) return static_cast<int>(i);
  return -1;
}

void Sheet::SetComboIndex(int col, int row, int index) {
  const CellType& type = GetCellType(col, row);
  if (index >= 0 && static_cast<size_t>(index) < type.items.size())
    SetData(col, row, type.items[index]);
  else
    SetData(col, row, {});
}

Color Sheet::GetForeColor(int col, int row) const {
  if (colors_.empty()) return kNoColor;
  const auto it = colors_.find(Key(col, row));
  return it == colors_.end() ? kNoColor : it->second.fore;
}

Color Sheet::GetBackColor(int col, int row) const {
  if (colors_.empty()) return kNoColor;
  const auto it = colors_.find(Key(col, row));
  return it == colors_.end() ? kNoColor : it->second.back;
}

void Sheet::SetColor(int col, int row, Color back, Color fore) {
  if (!InGrid(col, row)) return;
  if (back == kNoColor && fore == kNoColor)
    colors_.erase(Key(col, row));
  else
    colors_[Key(col, row)] = {back, fore};
}

double Sheet::GetColWidth(int col) const { return col >= 0 && col <= MaxCols() ? columns_[col].width : 0; }

void Sheet::SetColWidth(int col, double width) {
  if (col >= 0 && col <= MaxCols()) columns_[col].width = width;
}

Align Sheet::GetColAlign(int col) const { return col >= 0 && col <= MaxCols() ? columns_[col].align : Align::Left; }

void Sheet::SetColAlign(int col, Align align) {
  if (col >= 0 && col <= MaxCols()) columns_[col].align = align;
}

int Sheet::LastUsedRow(int firstCol, int lastCol) const {
  firstCol = std::max(firstCol, 1);
  lastCol = std::min(lastCol, MaxCols());
  for (int row = rows_; row >= 1; --row)
    for (int col = firstCol; col <= lastCol; ++col)
      if (!tools::Trim(columns_[col].cells[row]).empty()) return row;
  return 0;
}

}  // namespace grid
