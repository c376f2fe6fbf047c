#include "dialogs/grid/grid_ops.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace grid {

void InitializeGrid(Sheet& sheet, Color alternateRowColor, int rows, int cols,
                    const std::vector<std::string>& headers, const std::vector<double>& widths, bool lockAll) {
  sheet.SetMaxCols(cols);
  sheet.SetMaxRows(rows);
  sheet.SetOddEvenRowColor(0xFFFFFF, alternateRowColor);
  sheet.SetActiveCell(-1, -1);
  for (int col = 1; col <= cols; ++col) {
    CellType edit;
    edit.maxLength = kMaxEditLength;
    sheet.SetColumnType(col, edit);
    sheet.SetColAlign(col, col == 1 ? Align::Left : Align::Right);
    if (static_cast<size_t>(col - 1) < headers.size()) sheet.SetData(col, 0, headers[col - 1]);
    if (static_cast<size_t>(col - 1) < widths.size()) sheet.SetColWidth(col, widths[col - 1]);
  }
  sheet.SetColWidth(0, 6);
  sheet.SetLockAll(lockAll);
}

int AddRows(Sheet& sheet, int count, bool numberIds) {
  const int oldRows = sheet.MaxRows();
  if (count <= 0) return oldRows + 1;
  int64_t nextId = 1;
  if (numberIds && oldRows > 0) nextId = sheet.GetInt(1, oldRows).value_or(0) + 1;
  sheet.SetMaxRows(oldRows + count);
  if (numberIds) {
    for (int r = 1; r <= count; ++r) {
      sheet.SetNumber(1, oldRows + r, tools::FormatInt(nextId + r - 1));
      sheet.SetLock(1, oldRows + r, true);
    }
  }
  sheet.SetActiveCell(1, oldRows + 1);
  return oldRows + 1;
}

std::optional<Block> RowsToDelete(const Sheet& sheet) {
  Block block = sheet.SelectBlock();
  if (block.IsEmpty()) {
    const CellRef active = sheet.ActiveCell();
    block = {1, active.row, 1, active.row};
  }
  const int row1 = std::max(block.row1, 1), row2 = std::min(block.row2, sheet.MaxRows());
  if (row1 > row2) return std::nullopt;
  return Block{1, row1, 1, row2};
}

int RemoveRows(Sheet& sheet, int row1, int row2) {
  const int rows = sheet.MaxRows();
  row1 = std::max(row1, 1);
  row2 = std::min(row2, rows);
  if (row1 > row2) return 0;
  const int count = row2 - row1 + 1;
  for (int row = row1; row + count <= rows; ++row)
    for (int col = 1; col <= sheet.MaxCols(); ++col) {
      const int from = row + count;
      if (sheet.IsNumber(col, from))
        sheet.SetNumber(col, row, sheet.GetData(col, from));
      else
        sheet.SetData(col, row, sheet.GetData(col, from));
      sheet.SetLock(col, row, sheet.IsCellLocked(col, from));
    }
  sheet.SetMaxRows(rows - count);
  return count;
}

namespace {

bool IsEmptyCell(const Sheet& sheet, int col, int row) { return tools::Trim(sheet.GetData(col, row)).empty(); }

template <class MakeMessage>
std::optional<GridFailure> FirstEmptyCell(const Sheet& sheet, int rowCount, int firstCol, int lastCol,
                                          MakeMessage message) {
  const int rows = std::min(rowCount, sheet.MaxRows());
  for (int row = 1; row <= rows; ++row)
    for (int col = firstCol; col <= lastCol; ++col)
      if (IsEmptyCell(sheet, col, row)) return GridFailure{message(col, row), {1, row}};
  return std::nullopt;
}

int RowId(const Sheet& sheet, int row) { return static_cast<int>(sheet.GetInt(1, row).value_or(0)); }

}  // namespace

std::optional<GridFailure> CheckEmptyCells(const Sheet& sheet, int rowCount, int firstCol, int lastCol,
                                           const std::string& entity) {
  return FirstEmptyCell(sheet, rowCount, firstCol, lastCol, [&](int, int row) {
    return tools::Format("Invalid empty input for %s %d", entity.c_str(), RowId(sheet, row));
  });
}

std::optional<GridFailure> CheckEmptyCellsNamed(const Sheet& sheet, int rowCount, int firstCol, int lastCol,
                                                const std::string& valueName, const std::string& entity) {
  return FirstEmptyCell(sheet, rowCount, firstCol, lastCol, [&](int, int row) {
    return tools::Format("Invalid empty input for %s on %s %d", valueName.c_str(), entity.c_str(), RowId(sheet, row));
  });
}

std::optional<GridFailure> CheckDuplicateLabels(const Sheet& sheet, int rowCount, int col) {
  const int rows = std::min(rowCount, sheet.MaxRows());
  std::unordered_map<std::string, int> seen;
  for (int row = 1; row <= rows; ++row) {
    const std::string label(tools::Trim(sheet.GetData(col, row)));
    if (label.empty()) continue;
    if (!seen.emplace(tools::FoldCase(label), row).second)
      return GridFailure{tools::Format("Duplicate label [%s] can not be used.", label.c_str()), {col, row}};
  }
  return std::nullopt;
}

std::optional<GridFailure> CheckDeletedRows(const Sheet& sheet, int usedRows, int filledRows,
                                            const std::string& pluralEntity) {
  if (usedRows >= filledRows) return std::nullopt;
  const std::string first = sheet.GetData(1, usedRows + 1);
  const std::string last = sheet.GetData(1, filledRows);
  std::string message = tools::Format("Invalid input for existing %s (%s - %s).", pluralEntity.c_str(), first.c_str(),
                                      last.c_str());
  message += tools::Format("\nIf you intend to delete these %s, cancel this dialog box.", pluralEntity.c_str());
  message += tools::Format("\nThen select these %s and go to menu Edit | Delete...", pluralEntity.c_str());
  return GridFailure{message, {1, usedRows + 1}};
}

bool CanFill(const Sheet& sheet, int col, int row) {
  if (sheet.IsLockedAll()) return false;
  if (row < 1 || col < 1 || row > sheet.MaxRows() || col > sheet.MaxCols()) return false;
  if (!sheet.FillColumns().count(col)) return false;
  return !IsEmptyCell(sheet, col, row);
}

int FillSelection(Sheet& sheet, int col, int row, FillMode mode) {
  if (!CanFill(sheet, col, row)) return 0;
  const Block& block = sheet.SelectBlock();
  if (block.IsEmpty() || col < block.col1 || col > block.col2) return 0;
  const std::string value(tools::Trim(sheet.GetData(col, row)));
  const int firstRow = std::max(block.row1, 1), lastRow = std::min(block.row2, sheet.MaxRows());

  std::optional<double> start, step;
  if (mode == FillMode::Series) {
    start = tools::ParseDouble(value);
    if (!start) return 0;  // a series needs a number to start from
    step = 1.0;
    if (row + 1 <= lastRow && row + 1 >= firstRow)
      if (auto next = tools::ParseDouble(sheet.GetData(col, row + 1)); next) step = *next - *start;
  }
  int written = 0;
  for (int r = firstRow; r <= lastRow; ++r) {
    if (r == row || sheet.IsLocked(col, r)) continue;
    if (mode == FillMode::Copy) {
      if (sheet.IsNumber(col, row)) sheet.SetNumber(col, r, value);
      else sheet.SetData(col, r, value);
    } else {
      const double v = *start + (r - row) * *step;
      sheet.SetNumber(col, r, tools::Format("%g", std::abs(v) < 1e-12 * std::max(1.0, std::abs(*step)) ? 0.0 : v));
    }
    ++written;
  }
  return written;
}

std::string CopyBlock(const Sheet& sheet, const Block& block) {
  std::string out;
  if (block.IsEmpty()) return out;
  for (int row = block.row1; row <= block.row2; ++row) {
    for (int col = block.col1; col <= block.col2; ++col) {
      if (col > block.col1) out += '\t';
      const std::string& text = sheet.GetData(col, row);
      if (text.find_first_of("\t\n\r\"") == std::string::npos) {
        out += text;
      } else {
        out += '"';
        for (char c : text) {
          if (c == '"') out += '"';
          out += c;
        }
        out += '"';
      }
    }
    out += "\r\n";
  }
  return out;
}

std::vector<std::vector<std::string>> ParseTabSeparated(const std::string& text) {
  std::vector<std::vector<std::string>> rows;
  std::vector<std::string> row;
  std::string cell;
  bool quoted = false, cellStarted = false;
  auto endCell = [&] {
    row.push_back(std::move(cell));
    cell.clear();
    cellStarted = false;
  };
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted) {
      if (c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
        cell += '"';
        ++i;
      } else if (c == '"') {
        quoted = false;
      } else {
        cell += c;
      }
    } else if (c == '"' && !cellStarted) {
      quoted = true;
      cellStarted = true;
    } else if (c == '\t') {
      endCell();
    } else if (c == '\r' || c == '\n') {
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      endCell();
      rows.push_back(std::move(row));
      row.clear();
    } else {
      cell += c;
      cellStarted = true;
    }
  }
  if (cellStarted || !cell.empty() || !row.empty()) {
    endCell();
    rows.push_back(std::move(row));
  }
  return rows;
}

std::optional<double> ReadReal(std::string_view text, const double* original) {
  return ReadReal(text, {original});
}

std::optional<double> ReadReal(std::string_view text, std::initializer_list<const double*> originals) {
  for (const double* original : originals)
    if (original && std::isfinite(*original) && text == tools::FormatG(*original)) return *original;
  return tools::ParseDouble(text);
}

}  // namespace grid
