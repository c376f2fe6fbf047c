#include "dialogs/design/thickness_grid.h"

#include "dialogs/grid/grid_ops.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace thickgrid {

std::vector<std::string> Headers(const fmUnit& units) {
  return {"Thickness Id", "Label", units.Heading("Thickness", fmUnit::Length)};
}

void Fill(grid::Sheet& sheet, const std::vector<fmThick>& thicknesses, const fmUnit& units,
          grid::Color alternateRowColor, bool lockAll) {
  const int rows = static_cast<int>(thicknesses.size());
  grid::InitializeGrid(sheet, alternateRowColor, rows, kColumnCount, Headers(units), {10, 20, 10}, lockAll);
  sheet.SetColumnLock(kId, true);
  sheet.SetColAlign(kLabel, grid::Align::Left);
  sheet.AddFillColumn(kThickness);
  for (int row = 1; row <= rows; ++row) {
    const fmThick& t = thicknesses[static_cast<size_t>(row - 1)];
    sheet.SetNumber(kId, row, tools::Format("%d", row));
    sheet.SetData(kLabel, row, t.label);
    sheet.SetNumberG(kThickness, row, t.thickness);
  }
}

ReadResult Read(const grid::Sheet& sheet, std::span<const fmThick> filled) {
  ReadResult result;
  const int used = sheet.LastUsedRow(kLabel, kThickness);
  if ((result.failure = grid::CheckEmptyCells(sheet, used, kLabel, kThickness, "Thickness"))) return result;
  if ((result.failure = grid::CheckDuplicateLabels(sheet, used, kLabel))) return result;
  for (int row = 1; row <= used; ++row) {
    const std::string label(tools::Trim(sheet.GetData(kLabel, row)));
    const auto fail = [&](std::string message) {
      result.failure = grid::GridFailure{std::move(message), {1, row}};
      result.thicknesses.clear();
      return result;
    };
    if (const std::string rule = tools::IsValidLabel(label); !rule.empty())
      return fail("Thickness label can only " + rule);
    const std::string& text = sheet.GetData(kThickness, row);
    const std::optional<double> value = grid::ReadReal(
        text, row <= static_cast<int>(filled.size()) ? &filled[static_cast<size_t>(row - 1)].thickness : nullptr);
    if (!value || !(*value > 0))
      return fail(
          tools::Format("Invalid input for thickness %d.", static_cast<int>(sheet.GetInt(kId, row).value_or(row))));
    fmThick t(row);
    t.SetLabel(label);
    t.thickness = *value;
    result.thicknesses.push_back(std::move(t));
  }
  return result;
}

}  // namespace thickgrid
