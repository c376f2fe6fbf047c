#include "dialogs/loads/spectrum_grid.h"

#include <algorithm>

#include "dialogs/grid/grid_ops.h"
#include "model/response_spectrum.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace spectrumgrid {

void FillPoints(grid::Sheet& sheet, const std::vector<fmSpectrumPoint>& points, grid::Color alternateRowColor,
                bool lockAll) {
  const int rows = static_cast<int>(points.size());
  grid::InitializeGrid(sheet, alternateRowColor, rows, 2, {"Period [sec]", "Acceleration [g]"}, {16, 18}, lockAll);
  sheet.SetColAlign(kPeriodCol, grid::Align::Right);
  for (int row = 1; row <= rows; ++row) {
    const fmSpectrumPoint& p = points[static_cast<size_t>(row - 1)];
    sheet.SetData(kPeriodCol, row, tools::FormatG(p.period));
    sheet.SetData(kAccelerationCol, row, tools::FormatG(p.acceleration));
  }
}

namespace {

// The value of a cell: the filled value when the cell still shows it, else what it reads.
std::optional<double> CellValue(const std::string& text, int row, const std::vector<fmSpectrumPoint>& filled,
                                double fmSpectrumPoint::*member) {
  if (row >= 1 && row <= static_cast<int>(filled.size())) {
    const double original = filled[static_cast<size_t>(row - 1)].*member;
    if (text == tools::FormatG(original)) return original;
  }
  return tools::ParseDouble(text);
}

}  // namespace

PointsReadResult ReadPoints(const grid::Sheet& sheet, const std::vector<fmSpectrumPoint>& filled) {
  PointsReadResult r;
  const int used = sheet.LastUsedRow(kPeriodCol, kAccelerationCol);
  for (int row = 1; row <= used; ++row) {
    const std::string& t = sheet.GetData(kPeriodCol, row);
    const std::string& a = sheet.GetData(kAccelerationCol, row);
    if (tools::Trim(t).empty() && tools::Trim(a).empty()) continue;
    const auto period = CellValue(t, row, filled, &fmSpectrumPoint::period);
    if (!period) {
      r.failure = grid::GridFailure{"Period must be a number.", {kPeriodCol, row}};
      return r;
    }
    if (*period < 0) {
      r.failure = grid::GridFailure{"Period must not be negative.", {kPeriodCol, row}};
      return r;
    }
    if (!r.points.empty() && !(*period > r.points.back().period)) {
      r.failure = grid::GridFailure{"Periods must increase from row to row.", {kPeriodCol, row}};
      return r;
    }
    const auto acceleration = CellValue(a, row, filled, &fmSpectrumPoint::acceleration);
    if (!acceleration) {
      r.failure = grid::GridFailure{"Acceleration must be a number.", {kAccelerationCol, row}};
      return r;
    }
    if (*acceleration < 0) {
      r.failure = grid::GridFailure{"Acceleration must not be negative.", {kAccelerationCol, row}};
      return r;
    }
    r.points.push_back({*period, *acceleration});
  }
  if (r.points.empty()) r.failure = grid::GridFailure{"A response spectrum needs at least one point.", {kPeriodCol, 1}};
  return r;
}

std::vector<fmSpectrumPoint> PointsForPlot(const grid::Sheet& sheet) {
  PointsReadResult r = ReadPoints(sheet);
  return std::move(r.points);
}

void DeleteRows(grid::Sheet& sheet, int row1, int row2) {
  row1 = std::max(row1, 1);
  if (grid::RemoveRows(sheet, row1, row2) == 0) return;
  sheet.SetSelectBlock({});
  sheet.SetActiveCell(kPeriodCol, std::min(row1, std::max(sheet.MaxRows(), 1)));
}

}  // namespace spectrumgrid
