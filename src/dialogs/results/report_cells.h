#pragma once
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/results/display_format.h"
#include "dialogs/results/report_context.h"

// What the report builders share: how a quantity is shown, how cells are written and how a
// report's grid is set up.
namespace results {

// One quantity as a report shows it: the factor into the display unit and the format index.
struct Shown {
  double factor;
  int format;
};

inline Shown ShownAs(const CfmStruct& model, fmUnit::Quantity q) {
  return {model.ResultFactor(q), model.DisplayFormat(q)};
}

// Writes cells without building a string per number: millions of cells go through here.
class CellWriter {
 public:
  explicit CellWriter(grid::Sheet& sheet) : sheet_(sheet) {}

  void Text(int col, int row, std::string_view text) { sheet_.SetData(col, row, text); }
  void Id(int col, int row, int64_t value) {
    const auto [end, ec] = std::to_chars(buffer_, buffer_ + sizeof buffer_, value);
    sheet_.SetNumber(col, row, std::string_view(buffer_, static_cast<size_t>(end - buffer_)));
  }
  // The value already in display units; a workbook gets it before it was formatted.
  void Value(int col, int row, double value, int format) {
    sheet_.SetNumber(col, row, value, std::string_view(buffer_, FormatDisplayTo(buffer_, value, format)));
  }
  void Value(int col, int row, double value, const Shown& s) { Value(col, row, value * s.factor, s.format); }
  // A number printed by a fixed printf format ("%.3f").
  void Fixed3(int col, int row, double value);

 private:
  grid::Sheet& sheet_;
  char buffer_[kDisplayBufferSize];
};

// Each report starts from a new grid: nothing of an earlier report (a red sum) stays.
void SetUpGrid(const ReportContext& ctx, int rows, const std::vector<std::string>& headers, double width);

inline bool ShowSelected(const ReportContext& ctx) { return ctx.model.m_nShowSelected != 0; }

}  // namespace results
