#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_node.h"
#include "tools/fm_unit.h"

// The node table as a grid: the columns "Node Id", "X", "Y", "Z" (with the length unit) and
// "Status"; shared by the node dialog, the CLI's export and the benchmarks.
namespace nodegrid {

enum Column { kId = 1, kX, kY, kZ, kStatus, kColumnCount = kStatus };

// The heading of the printed and exported table.
inline constexpr const char* kTableTitle = "Node Table";

std::vector<std::string> Headers(const fmUnit& units);

// Fills the grid from the nodes (only the selected ones when asked) and returns the number
// of rows filled. The grid is locked whole when lockAll is set.
int Fill(grid::Sheet& sheet, std::span<const fmNd> nodes, const fmUnit& units, bool selectedOnly,
         grid::Color alternateRowColor, bool lockAll);

struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<fmNd> nodes;  // in row order, when there is no failure
};
// Reads the edited grid back: the used rows, the empty-cell check, the refusal to delete
// existing nodes, then one node per row. `filled` are the nodes the rows were filled from,
// in row order.
ReadResult Read(const grid::Sheet& sheet, std::span<const fmNd> filled);

// Rounds every coordinate cell to the decimals that epsilon implies (1e-3 keeps three
// decimals; epsilon of 1 or more rounds to whole numbers). Cells that do not hold a number
// are left alone. Returns the number of cells changed.
int RoundOffCoordinates(grid::Sheet& sheet, double epsilon);

}  // namespace nodegrid
