#pragma once
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/large_block_allocator.h"

// The cells of one spreadsheet grid, without any widget: every table of the program is
// filled into a Sheet, shown by TSpread, and exported, printed or read back from it.
//
// Cells are addressed (col, row), as the grid's interface always has. Rows and columns are
// numbered from 1; row 0 holds the column headings and column 0 the row headings.
namespace grid {

inline constexpr int kMaxEditLength = 1024;  // characters of an edit cell

// 0xRRGGBB; kNoColor leaves the grid's own colour.
using Color = uint32_t;
inline constexpr Color kNoColor = 0xFFFFFFFFu;
inline constexpr Color kRed = 0xFF0000u;

enum class Align : uint8_t { Left, Right, Center };

struct CellType {
  enum Kind : uint8_t { Edit, Combo } kind = Edit;
  int maxLength = kMaxEditLength;  // Edit
  std::vector<std::string> items;  // Combo
};

struct CellRef {
  int col = -1;
  int row = -1;
  bool operator==(const CellRef&) const = default;
};

// A block of cells, corners included; empty when col1 < 1.
struct Block {
  int col1 = -1, row1 = -1, col2 = -1, row2 = -1;
  bool IsEmpty() const { return col1 < 1 || row1 < 1 || col2 < col1 || row2 < row1; }
  bool operator==(const Block&) const = default;
  bool Contains(int col, int row) const { return !IsEmpty() && col >= col1 && col <= col2 && row >= row1 && row <= row2; }
};

// A refusal found in the grid: the exact message and the cell to make active.
struct GridFailure {
  std::string message;
  CellRef cell;
};

class Sheet {
 public:
  Sheet() = default;

  int MaxCols() const { return static_cast<int>(columns_.size()) - 1; }
  int MaxRows() const { return rows_; }
  // Setting the columns lays the grid out anew: the layout number changes, so what was
  // kept of the old layout (undo steps) is known to be stale.
  void SetMaxCols(int cols);
  uint64_t Layout() const { return layout_; }
  void SetMaxRows(int rows);

  // Text of a cell (row 0: heading, col 0: row heading); empty outside the grid.
  const std::string& GetData(int col, int row) const;
  // Sets a cell's text; cells outside the grid are ignored. Edit cells keep at most their
  // maximum length, cut between characters.
  void SetData(int col, int row, std::string_view text);
  void ClearData(int col, int row) { SetData(col, row, {}); }
  // A cell filled from a number: exported to a workbook as a number. Every other cell is
  // text there, however much it looks like a number ("0012", "1E3", a label).
  void SetNumber(int col, int row, std::string_view text);
  // A cell filled from a value: the grid shows the text, a workbook gets the value itself at
  // full precision. A value that is not finite leaves a number cell read from its text.
  void SetNumber(int col, int row, double value, std::string_view text);
  // The same, shown as "%g" shows it.
  void SetNumberG(int col, int row, double value);
  bool IsNumber(int col, int row) const;
  // A number cell's value: the one it was filled from, else its text read as a number.
  std::optional<double> GetNumber(int col, int row) const;
  // What the user typed or pasted: a number cell stays one when the new text reads as a
  // number; any other cell stays text.
  void SetTypedData(int col, int row, std::string_view text);
  // Integer value of a cell's text, if it reads as one.
  std::optional<int64_t> GetInt(int col, int row) const;

  bool IsLocked(int col, int row) const;
  // The cell's own lock only, not its column's or the grid's.
  bool IsCellLocked(int col, int row) const;
  void SetLock(int col, int row, bool locked);
  void SetColumnLock(int col, bool locked);
  void SetLockAll(bool locked);
  bool IsLockedAll() const { return lockAll_; }

  // Cell types are kept per column, with per-cell exceptions.
  const CellType& GetCellType(int col, int row) const;
  void SetColumnType(int col, CellType type);
  void SetCellType(int col, int row, CellType type);
  // Combo helpers: the item position of the cell's text (case ignored), -1 when none.
  int GetComboIndex(int col, int row) const;
  void SetComboIndex(int col, int row, int index);

  Color GetForeColor(int col, int row) const;
  Color GetBackColor(int col, int row) const;
  void SetColor(int col, int row, Color back, Color fore);
  // Colour of odd (1, 3, ...) and even data rows.
  void SetOddEvenRowColor(Color odd, Color even) {
    oddColor_ = odd;
    evenColor_ = even;
  }
  Color OddRowColor() const { return oddColor_; }
  Color EvenRowColor() const { return evenColor_; }

  double GetColWidth(int col) const;  // in characters
  void SetColWidth(int col, double width);
  Align GetColAlign(int col) const;
  void SetColAlign(int col, Align align);

  CellRef ActiveCell() const { return active_; }
  void SetActiveCell(int col, int row) { active_ = {col, row}; }
  const Block& SelectBlock() const { return selection_; }
  void SetSelectBlock(const Block& block) { selection_ = block; }

  // Columns offered the right-click fill.
  const std::set<int>& FillColumns() const { return fillColumns_; }
  void AddFillColumn(int col) { fillColumns_.insert(col); }

  // The last row holding any text in columns firstCol..lastCol; 0 when none.
  int LastUsedRow(int firstCol, int lastCol) const;

 private:
  struct Column {
    std::vector<std::string, tools::LargeBlockAllocator<std::string>> cells;  // index = row, 0 = heading
    std::vector<uint8_t> locks;      // per row; empty until a cell lock is set
    std::vector<uint8_t> numbers;    // per row; empty until a number is set (kFromText, kFromValue)
    std::vector<double> values;      // per row; empty until a cell is filled from a value
    bool locked = false;
    CellType type;
    double width = 10;
    Align align = Align::Right;
  };
  struct Colors {
    Color back = kNoColor;
    Color fore = kNoColor;
  };
  static constexpr uint8_t kFromText = 1, kFromValue = 2;
  static uint64_t Key(int col, int row) { return (uint64_t(uint32_t(col)) << 32) | uint32_t(row); }
  bool InGrid(int col, int row) const { return col >= 0 && col <= MaxCols() && row >= 0 && row <= rows_; }

  std::vector<Column> columns_ = std::vector<Column>(1);  // column 0: row headings
  int rows_ = 0;
  uint64_t layout_ = 0;
  bool lockAll_ = false;
  std::map<uint64_t, CellType> cellTypes_;
  std::map<uint64_t, Colors> colors_;
  Color oddColor_ = 0xFFFFFF;
  Color evenColor_ = 0xFFFFFF;
  CellRef active_;
  Block selection_;
  std::set<int> fillColumns_;
};

}  // namespace grid
