#include "dialogs/model/node_grid.h"

#include <algorithm>
#include <cmath>

#include "dialogs/grid/grid_ops.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace nodegrid {
namespace {
const std::vector<std::string> kStatusItems = {"Normal", "Selected", "Frozen"};
constexpr const char* kAxisNames[] = {"X", "Y", "Z"};
}  // namespace

std::vector<std::string> Headers(const fmUnit& units) {
  return {"Node Id", units.Heading("X", fmUnit::Length), units.Heading("Y", fmUnit::Length),
          units.Heading("Z", fmUnit::Length), "Status"};
}

int Fill(grid::Sheet& sheet, std::span<const fmNd> nodes, const fmUnit& units, bool selectedOnly,
         grid::Color alternateRowColor, bool lockAll) {
  int rows = 0;
  if (selectedOnly) {
    for (const fmNd& nd : nodes)
      if (nd.IsSelected()) ++rows;
  } else {
    rows = static_cast<int>(nodes.size());
  }
  grid::InitializeGrid(sheet, alternateRowColor, rows, kColumnCount, Headers(units), {8, 14, 14, 14, 10}, lockAll);
  sheet.SetColumnLock(kId, true);
  grid::CellType status;
  status.kind = grid::CellType::Combo;
  status.items = kStatusItems;
  sheet.SetColumnType(kStatus, status);
  sheet.SetColAlign(kStatus, grid::Align::Left);
  for (int col = kX; col <= kZ; ++col) sheet.AddFillColumn(col);
  sheet.AddFillColumn(kStatus);

  int row = 0;
  for (const fmNd& nd : nodes) {
    if (selectedOnly && !nd.IsSelected()) continue;
    ++row;
    sheet.SetNumber(kId, row, tools::FormatInt(nd.id));
    sheet.SetNumberG(kX, row, nd.x);
    sheet.SetNumberG(kY, row, nd.y);
    sheet.SetNumberG(kZ, row, nd.z);
    sheet.SetData(kStatus, row, kStatusItems[nd.IsFrozen() ? 2 : nd.IsSelected() ? 1 : 0]);
  }
  return rows;
}

ReadResult Read(const grid::Sheet& sheet, std::span<const fmNd> filled) {
  ReadResult result;
  const int filledRows = static_cast<int>(filled.size());
  const int used = sheet.LastUsedRow(kX, kZ);
  if ((result.failure = grid::CheckEmptyCells(sheet, used, kX, kZ, "Node"))) return result;
  if ((result.failure = grid::CheckDeletedRows(sheet, used, filledRows, "nodes"))) return result;

  std::vector<fmNd> nodes;
  nodes.reserve(static_cast<size_t>(used));
  for (int row = 1; row <= used; ++row) {
    fmNd nd;
    const auto id = tools::ParseUInt32(sheet.GetData(kId, row));
    if (!id) {
      result.failure = grid::GridFailure{
          tools::Format("Invalid node id \"%s\" in row %d.", sheet.GetData(kId, row).c_str(), row), {kId, row}};
      return result;
    }
    if (*id > kMaxId) {
      result.failure = grid::GridFailure{
          tools::Format("Invalid node id %u in row %d: the highest id is %u.", *id, row, kMaxId), {kId, row}};
      return result;
    }
    nd.id = *id;
    double* coords[] = {&nd.x, &nd.y, &nd.z};
    for (int axis = 0; axis < 3; ++axis) {
      const std::string& text = sheet.GetData(kX + axis, row);
      const fmNd* before = row <= filledRows ? &filled[row - 1] : nullptr;
      const auto v = grid::ReadReal(text, before ? (axis == 0 ? &before->x : axis == 1 ? &before->y : &before->z) : nullptr);
      if (!v) {
        result.failure = grid::GridFailure{
            tools::Format("Invalid input for node %u.\n%s must be a number, not \"%s\".", nd.id, kAxisNames[axis],
                          std::string(tools::Trim(sheet.GetData(kX + axis, row))).c_str()),
            {kX + axis, row}};
        return result;
      }
      *coords[axis] = *v;
    }
    const std::string_view status = tools::Trim(sheet.GetData(kStatus, row));
    if (tools::EqualsNoCase(status, "Frozen"))
      nd.flags |= fmNd::kFrozen;
    else if (tools::EqualsNoCase(status, "Selected"))
      nd.flags |= fmNd::kSelected;
    nodes.push_back(nd);
  }
  result.nodes = std::move(nodes);
  return result;
}

int RoundOffCoordinates(grid::Sheet& sheet, double epsilon) {
  if (!(epsilon > 0) || !std::isfinite(epsilon)) return 0;
  const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(epsilon) - 1e-9)), 0, 15);
  int changed = 0;
  for (int row = 1; row <= sheet.MaxRows(); ++row)
    for (int col = kX; col <= kZ; ++col) {
      if (sheet.IsLocked(col, row)) continue;
      const auto v = tools::ParseDouble(sheet.GetData(col, row));
      if (!v) continue;
      // Through the decimal text, so the result is the double nearest the rounded decimal.
      const double rounded = tools::ParseDouble(tools::Format("%.*f", decimals, *v)).value_or(*v);
      const std::string text = tools::FormatG(rounded == 0 ? 0.0 : rounded);
      if (text != sheet.GetData(col, row)) {
        sheet.SetData(col, row, text);
        ++changed;
      }
    }
  return changed;
}

}  // namespace nodegrid
