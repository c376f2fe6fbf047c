#include "dialogs/design/section_grid.h"

#include <cmath>

#include "dialogs/grid/grid_ops.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace sectiongrid {
namespace {

struct ValueColumn {
  int col;
  const char* name;
  const char* power;  // appended after the length label
  double fmSect::*field;
  bool positive;  // > 0 for an ordinary section, else >= 0
};

constexpr ValueColumn kValues[] = {{kIz, "Iz", "^4", &fmSect::Iz, true},  {kIy, "Iy", "^4", &fmSect::Iy, true},
                                   {kJ, "J", "^4", &fmSect::J, true},     {kA, "A", "^2", &fmSect::A, true},
                                   {kAy, "Ay", "^2", &fmSect::Ay, false}, {kAz, "Az", "^2", &fmSect::Az, false},
                                   {kB, "b", "", &fmSect::b, false},      {kD, "d", "", &fmSect::d, false},
                                   {kTf, "tf", "", &fmSect::tf, false},   {kTw, "tw", "", &fmSect::tw, false}};

// b, d, tf and tw may be left empty: they read as 0.
bool MayBeEmpty(int col) { return col >= kB; }

}  // namespace

std::vector<std::string> Headers(const fmUnit& units) {
  std::vector<std::string> headers = {"Section Id", "Label"};
  for (const auto& v : kValues)
    headers.push_back(std::string(v.name) + " [" + units.Label(fmUnit::Length) + v.power + "]");
  return headers;
}

std::vector<double> Widths() { return {8, 15, 8, 8, 8, 8, 8, 8, 6, 6, 6, 6}; }

fmSect RigidLinkSection() {
  fmSect s(-1);
  s.label = kRigidLinkLabel;
  return s;
}

void FillOneRow(grid::Sheet& sheet, const fmSect& section, int row) {
  sheet.SetData(kLabel, row, section.label);
  for (const auto& v : kValues) sheet.SetNumberG(v.col, row, section.*v.field);
}

std::vector<fmSect> Fill(grid::Sheet& sheet, const std::vector<fmSect>& sections, const fmUnit& units,
                         grid::Color alternateRowColor, bool lockAll) {
  const int rows = static_cast<int>(sections.size());
  grid::InitializeGrid(sheet, alternateRowColor, rows, kColumnCount, Headers(units), Widths(), lockAll);
  sheet.SetColumnLock(kId, true);
  sheet.SetColAlign(kLabel, grid::Align::Left);
  for (int col = kIz; col <= kTw; ++col) sheet.AddFillColumn(col);
  std::vector<fmSect> shown;
  shown.reserve(sections.size());
  for (int row = 1; row <= rows; ++row) {
    fmSect s = sections[static_cast<size_t>(row - 1)];
    if (s.IsRigidLink()) {
      const std::string label = s.label;
      s = RigidLinkSection();
      s.label = label;
    }
    sheet.SetNumber(kId, row, tools::Format("%d", row));
    FillOneRow(sheet, s, row);
    shown.push_back(std::move(s));
  }
  return shown;
}

int FindRigidLinkRow(const grid::Sheet& sheet) {
  const int last = sheet.LastUsedRow(kLabel, kTw);
  for (int row = 1; row <= last; ++row)
    if (IsRigidLinkLabel(tools::Trim(sheet.GetData(kLabel, row)))) return row;
  return 0;
}

const char* OutOfRangeProperty(const fmSect& s) {
  for (const auto& v : kValues) {
    const double value = s.*v.field;
    if (!std::isfinite(value) || (v.positive ? !(value > 0) : !(value >= 0))) return v.name;
  }
  return nullptr;
}

ReadResult Read(const grid::Sheet& sheet, std::span<const fmSect> filled) {
  ReadResult result;
  const int used = sheet.LastUsedRow(kLabel, kAz);
  if ((result.failure = grid::CheckEmptyCells(sheet, used, kLabel, kAz, "section"))) return result;

  const auto rowId = [&](int row) { return static_cast<int>(sheet.GetInt(kId, row).value_or(row)); };
  const auto fail = [&](int row, std::string message) {
    result.failure = grid::GridFailure{std::move(message), {1, row}};
    result.sections.clear();
    return result;
  };
  int rigidLinks = 0;
  for (int row = 1; row <= used; ++row) {
    const std::string label(tools::Trim(sheet.GetData(kLabel, row)));
    if (const std::string rule = tools::IsValidLabel(label); !rule.empty())
      return fail(row, "Section label can only " + rule);
    fmSect s(row);
    s.SetLabel(label);
    const fmSect* original = row <= static_cast<int>(filled.size()) ? &filled[static_cast<size_t>(row - 1)] : nullptr;
    const bool rigid = IsRigidLinkLabel(label);
    for (const auto& v : kValues) {
      const std::string& text = sheet.GetData(v.col, row);
      std::optional<double> value;
      if (MayBeEmpty(v.col) && tools::Trim(text).empty())
        value = 0.0;
      else
        value = grid::ReadReal(text, original ? &((*original).*v.field) : nullptr);
      if (rigid) {
        if (!value || *value != 0)
          return fail(row, tools::Format("%s section must have zero for every section property.", kRigidLinkLabel));
      } else if (!value || (v.positive ? !(*value > 0) : !(*value >= 0))) {
        return fail(row, tools::Format("Invalid input for section %d.", rowId(row)));
      }
      s.*v.field = *value;
    }
    rigidLinks += rigid;
    result.sections.push_back(std::move(s));
  }
  if (rigidLinks > 1) {
    int second = 0;
    for (int row = 1, seen = 0; row <= used && !second; ++row)
      if (IsRigidLinkLabel(tools::Trim(sheet.GetData(kLabel, row))) && ++seen == 2) second = row;
    return fail(second, "There can only be one section named RIGID_LINK.");
  }
  return result;
}

}  // namespace sectiongrid
