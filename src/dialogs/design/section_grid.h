#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_section.h"
#include "tools/fm_unit.h"

// The member-section table as a grid: id, label, then Iz, Iy, J, A, Ay, Az, b, d, tf, tw in
// the length unit and its powers (inertias first, although the record stores the area first).
namespace sectiongrid {

enum Column { kId = 1, kLabel, kIz, kIy, kJ, kA, kAy, kAz, kB, kD, kTf, kTw, kColumnCount = kTw };

// "Iz [in^4]", "A [in^2]", "b [in]" ...
std::vector<std::string> Headers(const fmUnit& units);
std::vector<double> Widths();

// Sets up the grid and fills one row per section, numbered 1, 2, 3 in vector order; a
// rigid link shows zeros whatever the record holds. Returns the records as the rows show them.
std::vector<fmSect> Fill(grid::Sheet& sheet, const std::vector<fmSect>& sections, const fmUnit& units,
                         grid::Color alternateRowColor, bool lockAll);
// Writes a section's label and numbers into a row (its id cell is left as it is).
void FillOneRow(grid::Sheet& sheet, const fmSect& section, int row);
// The rigid-link section: every property zero.
fmSect RigidLinkSection();
// The first row labelled RIGID_LINK (any case) among rows 1..lastRow, or 0.
int FindRigidLinkRow(const grid::Sheet& sheet);

// The name of the first property OK would refuse in an ordinary section ("J"), or null.
const char* OutOfRangeProperty(const fmSect& section);

struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<fmSect> sections;  // ids = row numbers, when there is no failure
};
// OK's checks in order and the records the rows make. `filled` are the records the rows were
// filled from: a cell left as it was keeps the record's full precision.
ReadResult Read(const grid::Sheet& sheet, std::span<const fmSect> filled);

}  // namespace sectiongrid
