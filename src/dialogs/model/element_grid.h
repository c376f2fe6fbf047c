#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_element.h"
#include "model/fm_material.h"
#include "model/fm_node.h"
#include "model/fm_section.h"

// The member, shell and brick tables as grids: one engine for the three, told apart by
// their Kind. Shared by the element dialogs, the CLI's export and the benchmarks.
namespace elementgrid {

// What differs between the member, four-node shell and brick tables.
struct Kind {
  const char* idHeading;        // "Member Id"
  int nodeCount;                // node columns "Node-1" ... after the id
  const char* propertyHeading;  // "Section", "Thick"; nullptr when the element has none
  bool hasAngle;                // "Local Angle (deg)"
  bool hasNonlinear;            // "Nonlinear"
  const char* emptyWord;        // "Invalid empty input for %s %d"
  const char* plural;           // "Invalid input for existing %s (%s - %s)."
  const char* inputWord;        // "Invalid input for %s %d.\n%s"
  const char* duplicateWord;    // "%s %d has duplicate nodal IDs."
  const char* printTitle;       // heading of the printed table
};

extern const Kind kMembers;
extern const Kind kShells;
extern const Kind kBricks;

// Column numbers of one kind; 0 for a column the kind does not have.
struct Columns {
  int id = 1;
  int firstNode = 2;
  int lastNode = 0;
  int material = 0;
  int property = 0;
  int angle = 0;
  int nonlinear = 0;
  int activation = 0;
  int selfWeight = 0;
  int status = 0;
  int count = 0;
};
Columns ColumnsOf(const Kind& kind);
std::vector<std::string> Headers(const Kind& kind);

template <class Record>
const Kind& KindOf();
template <>
inline const Kind& KindOf<fmBm>() { return kMembers; }
template <>
inline const Kind& KindOf<fmShell4>() { return kShells; }
template <>
inline const Kind& KindOf<fmBrick>() { return kBricks; }

// The model's lists the drop-downs show and the look-ups check; a kind reads the ones it
// uses (members the sections, shells the thicknesses).
struct ElementLists {
  std::span<const fmNd> nodes;
  std::span<const fmMat> materials;
  std::span<const fmSect> sections;
  std::span<const fmThick> thicknesses;
};

// Drop-down items of a material, section or thickness column: "%d: %s" (id, label) per
// record, in vector order, so that the item's position + 1 is the reference.
template <class Record>
std::vector<std::string> ReferenceItems(std::span<const Record> records);

// The elements that get a row: all of them, or only the selected ones.
template <class Record>
std::vector<Record> RowsToShow(const std::vector<Record>& elements, bool selectedOnly) {
  if (!selectedOnly) return elements;
  std::vector<Record> rows;
  for (const Record& r : elements)
    if (r.IsSelected()) rows.push_back(r);
  return rows;
}

// Sets the grid up for the kind and fills one row per element, in the order given. The
// grid is locked whole when lockAll is set. Returns the number of rows.
template <class Record>
int Fill(grid::Sheet& sheet, std::span<const Record> rows, const ElementLists& lists, grid::Color alternateRowColor,
         bool lockAll);

// Gives new rows firstRow..lastRow the plain choices: "Linear", "Active", "Include", "Normal".
void SetNewRowDefaults(grid::Sheet& sheet, const Kind& kind, int firstRow, int lastRow);

template <class Record>
struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<Record> elements;  // in row order, when there is no failure
};

// Reads the edited grid back: the used rows (by the node columns), the empty-cell check,
// the refusal to delete existing elements, then row by row the look-up of every node,
// material and section or thickness, the duplicate-node check, and one record per row.
// `filled` are the elements the rows were filled from, in row order: a cell left as filled
// keeps the record's exact value.
template <class Record>
ReadResult<Record> Read(const grid::Sheet& sheet, std::span<const Record> filled, const ElementLists& lists);

}  // namespace elementgrid
