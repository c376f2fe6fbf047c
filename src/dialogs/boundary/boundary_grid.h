#pragma once
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_boundary.h"
#include "model/fm_element.h"
#include "model/fm_node.h"
#include "model/fm_support.h"
#include "tools/fm_unit.h"

// The boundary and connection tables (supports, nodal, line and surface springs, coupled
// springs, member end releases, constraints, diaphragms, the drift stack) as grids, without
// any widget. One engine serves them all. Column 1 is the record's key: the node, member or
// shell id the user types (one record per object), or a locked record number for
// constraints and diaphragms. Reading checks the rows in one order and refuses in one style:
// the empty-cell check, emptied rows of existing records, then row by row the key (a number,
// an object of the model, not twice), then the values, each refusal at its cell.
namespace boundarygrid {

// A drift stack entry is only its node.
struct DriftNode {
  uint32_t node = 0;
  bool operator==(const DriftNode&) const = default;
};

enum class Kind { Supports, NodalSprings, LineSprings, SurfaceSprings, CoupledSprings, Releases, Constraints,
                  Diaphragms, DriftNodes };

// What messages and printouts call a table's records.
struct KindTexts {
  const char* entity;      // "support at node": "Invalid input for support at node 5.\n..."
  const char* plural;      // "supports": "Invalid input for existing supports (3 - 5)."
  const char* duplicate;   // "already has a support": "Node 5 already has a support in row 2."
  const char* printTitle;  // "Support Table"
  const char* exportName;  // the table's name for norvane-cli grid export
};
const KindTexts& TextsOf(Kind kind);

// The model's objects a table checks its keys and node columns against.
struct Objects {
  std::span<const fmNd> nodes;
  std::span<const fmBm> members;
  std::span<const fmShell4> shells;
};

// Drop-down items.
const std::vector<std::string>& RestraintItems();  // "Free", "Fixed"
const std::vector<std::string>& ReleaseItems();    // "Fixed", "Released"
const std::vector<std::string>& DofItems();        // "X", "Y", "Z", "OX", "OY", "OZ"

// What every table does alike. A table remembers the record each filled row came from (its
// origin), so that a number left as shown keeps the record's full precision and the rows of
// existing records are known after rows were deleted.
class TableBase {
 public:
  virtual ~TableBase() = default;
  Kind GetKind() const { return kind_; }
  const KindTexts& Texts() const { return TextsOf(kind_); }
  // Record numbers locked in column 1 (constraints, diaphragms) rather than typed keys.
  bool NumberedKeys() const;
  virtual std::vector<std::string> Headers(const fmUnit& units) const = 0;

  // New rows firstRow..lastRow: the defaults of every column; a typed key column is left
  // empty and open (the grid's "New Rows" numbers column 1 for the numbered tables only).
  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow);
  // Deletes rows row1..row2 (within the grid); the records of deleted rows go with them.
  void DeleteRows(grid::Sheet& sheet, int row1, int row2);
  const std::vector<int64_t>& RowOrigins() const { return origins_; }
  void SetRowOrigins(std::vector<int64_t> origins) { origins_ = std::move(origins); }

 protected:
  explicit TableBase(Kind kind) : kind_(kind) {}
  // Column types, widths, headings and fill columns; the caller sizes the rows.
  void SetUp(grid::Sheet& sheet, const fmUnit& units, int rows, grid::Color alternateRowColor, bool lockAll) const;

  Kind kind_;
  std::vector<int64_t> origins_;  // per row: the filled record's index, -1 for a new row
};

template <class Record>
struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<Record> records;  // in row order, when there is no failure
};

template <class Record>
class Table : public TableBase {
 public:
  Table();
  std::vector<std::string> Headers(const fmUnit& units) const override;
  // Sets the grid up and fills one row per record (only those of selected objects when
  // selectedOnly); returns the rows.
  int Fill(grid::Sheet& sheet, std::span<const Record> records, const Objects& objects, const fmUnit& units,
           grid::Color alternateRowColor, bool lockAll, bool selectedOnly);
  ReadResult<Record> Read(const grid::Sheet& sheet, const Objects& objects) const;

 private:
  std::vector<Record> filled_;
};

// One table per record kind.
using SupportTable = Table<fmSupport>;
using NodalSpringTable = Table<fmNodalSpring>;
using LineSpringTable = Table<fmLineSpring>;
using SurfaceSpringTable = Table<fmSurfaceSpring>;
using CoupledSpringTable = Table<fmCoupledSpring>;
using ReleaseTable = Table<fmMemberRelease>;
using ConstraintTable = Table<fmConstraint>;
using DiaphragmTable = Table<fmDiaphragm>;
using DriftNodeTable = Table<DriftNode>;

std::vector<DriftNode> DriftNodesOf(std::span<const uint32_t> ids);
std::vector<uint32_t> DriftNodeIds(std::span<const DriftNode> nodes);

// A diaphragm's node set as the grid shows it: ids and runs "1-5, 9, 12-14", in the set's order.
std::string NodeListText(std::span<const uint32_t> ids);
// The same read back: ids and runs separated by commas or blanks; nothing for a text that is
// not such a list (the refusal's reason then in `why`).
std::optional<std::vector<uint32_t>> ParseNodeList(const std::string& text, std::string& why);

}  // namespace boundarygrid
