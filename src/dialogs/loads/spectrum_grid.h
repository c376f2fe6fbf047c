#pragma once
#include <optional>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/response_spectrum.h"

// The points of one response spectrum in a grid: period and acceleration, one row each.
namespace spectrumgrid {

inline constexpr int kPeriodCol = 1;
inline constexpr int kAccelerationCol = 2;

// Cells show "%g"; ReadPoints gives back the exact value of a cell that still shows what
// FillPoints wrote for that row, so OK without an edit returns the very same curve.
void FillPoints(grid::Sheet& sheet, const std::vector<fmSpectrumPoint>& points, grid::Color alternateRowColor,
                bool lockAll);

struct PointsReadResult {
  std::vector<fmSpectrumPoint> points;
  std::optional<grid::GridFailure> failure;  // the first bad cell; points is then incomplete
};
// Rows left blank are skipped; every other row needs two numbers and a period above the
// row before.
PointsReadResult ReadPoints(const grid::Sheet& sheet, const std::vector<fmSpectrumPoint>& filled = {});
// The points that read so far, for drawing while the user types: stops at the first bad row.
std::vector<fmSpectrumPoint> PointsForPlot(const grid::Sheet& sheet);
// Removes rows row1 to row2 (from 1) and moves the rows below up.
void DeleteRows(grid::Sheet& sheet, int row1, int row2);

}  // namespace spectrumgrid
