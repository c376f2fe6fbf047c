#pragma once
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/grid/sheet.h"

// The grid operations every table dialog shares that need no widget.
namespace grid {

// Set-up of a grid: size, headings in row 0, column widths, column 1 left-aligned and the
// others edit cells of at most 1024 characters, alternate row colour, lock-all.
void InitializeGrid(Sheet& sheet, Color alternateRowColor, int rows, int cols,
                    const std::vector<std::string>& headers, const std::vector<double>& widths, bool lockAll);

// Appends rows and returns the first new row. With numberIds, column 1 of the new rows gets
// ids continuing from the last existing row's id (1 for an empty grid), locked; ids are
// never renumbered, even when lower ones are free. Row 1 column 1 of the new block is made
// active.
int AddRows(Sheet& sheet, int count, bool numberIds);

// First empty cell of rows 1..rowCount, columns firstCol..lastCol, scanned row by row:
// "Invalid empty input for %s %d" with the entity and the row's id, at column 1 of the row.
std::optional<GridFailure> CheckEmptyCells(const Sheet& sheet, int rowCount, int firstCol, int lastCol,
                                           const std::string& entity);
// The same scan with the value's name: "Invalid empty input for %s on %s %d".
std::optional<GridFailure> CheckEmptyCellsNamed(const Sheet& sheet, int rowCount, int firstCol, int lastCol,
                                                const std::string& valueName, const std::string& entity);
// Two rows of one column holding the same label (case ignored, also for non-ASCII letters):
// "Duplicate label [%s] can not be used." at the second of them.
std::optional<GridFailure> CheckDuplicateLabels(const Sheet& sheet, int rowCount, int col);

// Rows of existing records may not be emptied: when the used rows end before the rows the
// grid was filled with, "Invalid input for existing %s (%s - %s)." and the two sentences
// that say how to delete them, with the ids of the first and last emptied row.
std::optional<GridFailure> CheckDeletedRows(const Sheet& sheet, int usedRows, int filledRows,
                                            const std::string& pluralEntity);

// The rows "Delete Rows" acts on, as a block of column 1: the selected rows, or the active
// cell's row when nothing is selected, cut to the grid; nothing when none is in the grid.
std::optional<Block> RowsToDelete(const Sheet& sheet);
// Moves the rows below row2 up over rows row1..row2 (every column's text, number mark and
// lock) and shortens the grid. Returns the rows removed, 0 when none was in the grid.
int RemoveRows(Sheet& sheet, int row1, int row2);

// Right-click fill of the cells selected in the clicked column.
enum class FillMode { Copy, Series };
// Whether the fill is offered for that cell: an unlocked grid, a fill column, a cell inside
// the grid whose trimmed text is not empty.
bool CanFill(const Sheet& sheet, int col, int row);
// Copy writes the clicked cell's text into every selected, unlocked cell of the column.
// Series writes value + k * step going down from the clicked cell: the step is the
// difference between the clicked cell and the next selected cell below it when both read
// as numbers and that one is not empty, else 1. Returns the number of cells written.
int FillSelection(Sheet& sheet, int col, int row, FillMode mode);

// A number read back from a cell. A cell still showing what was filled into it (the "%g"
// text of `original`, six significant digits) keeps the original's full precision; anything
// else is parsed. Empty or unreadable text gives nullopt, as does a non-finite original
// that the user left in place ("inf" is no value to keep).
std::optional<double> ReadReal(std::string_view text, const double* original);
// The same with several candidates, the first whose text matches wins.
std::optional<double> ReadReal(std::string_view text, std::initializer_list<const double*> originals);

// Block copy and paste as tab-separated text, the form spreadsheet programs exchange.
std::string CopyBlock(const Sheet& sheet, const Block& block);
// Parses tab-separated text into rows of cells (quoted cells may hold tabs and newlines).
std::vector<std::vector<std::string>> ParseTabSeparated(const std::string& text);

}  // namespace grid
