#include "dialogs/loads/member_path_grid.h"

#include <algorithm>

#include "dialogs/grid/grid_ops.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace pathgrid {

std::vector<uint32_t> SelectedMembers(const std::vector<fmBm>& members) {
  std::vector<uint32_t> ids;
  for (const fmBm& m : members)
    if (m.IsSelected()) ids.push_back(m.id);
  return ids;
}

void Fill(grid::Sheet& sheet, const std::vector<uint32_t>& ids, grid::Color alternateRowColor, bool lockAll) {
  const int rows = static_cast<int>(ids.size());
  grid::InitializeGrid(sheet, alternateRowColor, rows, 1, {"Member Id"}, {12}, lockAll);
  sheet.SetColAlign(1, grid::Align::Right);
  for (int row = 1; row <= rows; ++row) sheet.SetNumber(1, row, tools::FormatInt(ids[static_cast<size_t>(row - 1)]));
}

PathRead Read(const grid::Sheet& sheet, const std::string& entity) {
  PathRead result;
  const int used = sheet.LastUsedRow(1, 1);
  result.ids.reserve(static_cast<size_t>(used));
  for (int row = 1; row <= used; ++row) {
    const std::string& text = sheet.GetData(1, row);
    const std::string_view trimmed = tools::Trim(text);
    if (trimmed.empty()) {
      result.failure = grid::GridFailure{tools::Format("Invalid empty input for %s %d", entity.c_str(), row), {1, row}};
      break;
    }
    const auto id = tools::ParseInt(trimmed);
    if (!id) {
      result.failure = grid::GridFailure{
          tools::Format("Invalid member id \"%s\" in row %d.", std::string(trimmed).c_str(), row), {1, row}};
      break;
    }
    result.ids.push_back(*id);
  }
  if (result.failure) result.ids.clear();
  return result;
}

void DeleteRows(grid::Sheet& sheet, int row1, int row2) {
  row1 = std::max(row1, 1);
  if (grid::RemoveRows(sheet, row1, row2) == 0) return;
  sheet.SetActiveCell(1, std::min(row1, std::max(sheet.MaxRows(), 1)));
}

}  // namespace pathgrid
