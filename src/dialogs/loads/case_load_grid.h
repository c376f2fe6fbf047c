#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_case_load.h"
#include "model/fm_element.h"
#include "model/fm_load.h"
#include "model/fm_node.h"
#include "tools/fm_unit.h"

// The ten tables of applied loads (nodal, point, line, surface, area, the three thermal
// kinds, nodal masses and combination masses) as grids, without any widget. One engine serves
// them all: a table is one row per load of its kind, over every load case, with the load
// number locked in column 1 and the load case as a drop-down in column 2; the columns after
// that are the kind's own. Reading the grid back replaces the loads of that kind in every
// case and leaves the other kinds as they were.
namespace caseloadgrid {

enum class LoadKind {
  Nodal, Point, Line, Surface, Area, MemberThermal, Shell4Thermal, BrickThermal, NodalMass, CombMass, Count
};

// What the messages and printouts call a table's loads.
struct KindTexts {
  const char* entity;      // "point load": "Invalid input for point load %d.\n%s"
  const char* printTitle;  // "Point Load Table"
  const char* className;   // "CPointLoadDataDlg"
};
const KindTexts& TextsOf(LoadKind kind);

// The model's lists a table fills from and checks against.
struct LoadLists {
  std::span<const fmLoadCase> cases;
  std::span<const fmNd> nodes;
  std::span<const fmBm> members;
  std::span<const fmShell4> shells;
  std::span<const fmBrick> bricks;
};

enum { kNumberColumn = 1, kCaseColumn = 2 };

// The load case drop-down: "%d: %s" (1-based number, label) per case.
std::vector<std::string> CaseItems(std::span<const fmLoadCase> cases);

struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<fmCaseLoad> caseLoads;  // all of them, this kind replaced; when there is no failure
};

// One table: fills a sheet, prepares new rows, deletes rows and reads the sheet back. It keeps
// the load each filled row came from, so that a number left as shown keeps the load's full
// precision, and drops that record when its row is deleted.
class LoadTable {
 public:
  static std::unique_ptr<LoadTable> Create(LoadKind kind);
  virtual ~LoadTable() = default;

  LoadKind Kind() const { return kind_; }
  const KindTexts& Texts() const { return TextsOf(kind_); }
  std::vector<std::string> Headers(const fmUnit& units) const;
  int ColumnCount() const;

  // Sets the grid up and fills one row per load of the kind, case by case in case order.
  // caseLoads holds one entry per case (missing entries count as empty). Returns the rows.
  virtual int Fill(grid::Sheet& sheet, const std::vector<fmCaseLoad>& caseLoads, const LoadLists& lists,
                   const fmUnit& units, grid::Color alternateRowColor, bool lockAll) = 0;
  // New rows firstRow..lastRow: the load case of the row above them (the first case for the
  // first row) and the first choice of every other drop-down.
  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) const;
  // Deletes rows row1..row2 (within the grid) and numbers the rest again from 1.
  void DeleteRows(grid::Sheet& sheet, int row1, int row2);
  // The record each row was filled from, by row (-1: a new row). Kept by the dialog across
  // undo and redo of a deletion.
  const std::vector<int64_t>& RowOrigins() const { return origins_; }
  void SetRowOrigins(std::vector<int64_t> origins) { origins_ = std::move(origins); }

  // Reads the grid back: the used rows (the last row with text in a column the user types
  // into), the empty-cell check, then row by row the case, the references to the model, the
  // choices and the numbers. The first failure stops the read at its cell.
  virtual ReadResult Read(const grid::Sheet& sheet, const std::vector<fmCaseLoad>& caseLoads,
                          const LoadLists& lists) const = 0;

 protected:
  explicit LoadTable(LoadKind kind) : kind_(kind) {}
  LoadKind kind_;
  std::vector<int64_t> origins_;
};

}  // namespace caseloadgrid
