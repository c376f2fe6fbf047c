#include "dialogs/design/section_grid.h"

#include <gtest/gtest.h>

#include "dialogs/design/thickness_grid.h"
#include "dialogs/grid/grid_ops.h"

namespace {

fmSect Section(const char* label, double A, double Iz, double Iy, double J) {
  fmSect s(7);
  s.label = label;
  s.A = A, s.Ay = A / 2, s.Az = A / 3, s.Iz = Iz, s.Iy = Iy, s.J = J;
  s.b = 4, s.d = 8, s.tf = 0.5, s.tw = 0.25;
  return s;
}

struct Table {
  grid::Sheet sheet;
  std::vector<fmSect> shown;
  explicit Table(const std::vector<fmSect>& sections, fmUnit units = fmUnit()) {
    shown = sectiongrid::Fill(sheet, sections, units, 0xEEEEEE, false);
  }
  void Row(int row, std::vector<const char*> cells) {
    if (row > sheet.MaxRows()) grid::AddRows(sheet, row - sheet.MaxRows(), true);
    for (size_t i = 0; i < cells.size(); ++i) sheet.SetData(static_cast<int>(i) + 2, row, cells[i]);
  }
  sectiongrid::ReadResult Read() const { return sectiongrid::Read(sheet, shown); }
};

}  // namespace

TEST(SectionGrid, OkRulesInOrderWithTheOffendingRowActive) {
  const char* kRigidNonZero = "RIGID_LINK section must have zero for every section property.";
  const struct {
    const char* name;
    std::vector<const char*> row2;
    const char* message;
    int row = 2;  // the row refused
  } cases[] = {
      // clang-format off
      {"empty area", {"S2", "1", "1", "1", "", "0", "0"}, "Invalid empty input for section 2"},
      {"bad label", {"two words!", "1", "1", "1", "1", "0", "0"}, nullptr},
      {"A = 0", {"S2", "1", "1", "1", "0", "0", "0"}, "Invalid input for section 2."},
      {"text for Iz", {"S2", "abc", "1", "1", "1", "0", "0"}, "Invalid input for section 2."},
      {"tw negative", {"S2", "1", "1", "1", "1", "0", "0", "", "", "", "-0.1"}, "Invalid input for section 2."},
      {"rigid link with a property", {"RIGID_LINK", "0", "0", "0", "0", "0", "0", "0", "0.5"}, kRigidNonZero},
      {"a second rigid link in another case", {"rigid_link", "0", "0", "0", "0", "0", "0"},
       "There can only be one section named RIGID_LINK.", 3},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Table t({Section("S1", 1, 1, 1, 1)});
    t.Row(2, c.row2);
    if (c.row == 3) t.Row(3, {"RIGID_LINK", "0", "0", "0", "0", "0", "0"});
    const auto r = t.Read();
    ASSERT_TRUE(r.failure);
    if (c.message)
      EXPECT_EQ(r.failure->message, c.message);
    else
      EXPECT_EQ(r.failure->message.rfind("Section label can only ", 0), 0u) << r.failure->message;
    EXPECT_EQ(r.failure->cell, (grid::CellRef{1, c.row}));
    EXPECT_TRUE(r.sections.empty());
  }
}

TEST(SectionGrid, AcceptsZeroShearAreasEqualLabelsAndEmptyDimensions) {
  Table t({Section("S1", 1, 1, 1, 1)});
  t.Row(2, {"s1", "2", "3", "4", "5", "0", "0"});  // b, d, tf, tw left empty
  t.Row(3, {"RIGID_LINK", "0", "0", "0", "0", "0", "0"});
  const auto r = t.Read();
  ASSERT_FALSE(r.failure) << r.failure->message;
  ASSERT_EQ(r.sections.size(), 3u);
  EXPECT_EQ(r.sections[1].label, "s1");
  EXPECT_EQ(r.sections[1].A, 5);
  EXPECT_EQ(r.sections[1].Ay, 0);
  EXPECT_EQ(r.sections[1].Az, 0);
  EXPECT_EQ(r.sections[1].b, 0);
  EXPECT_EQ(r.sections[1].tw, 0);
  EXPECT_EQ(r.sections[2].id, 3);
}

TEST(SectionGrid, UnchangedCellsKeepFullPrecisionAndTrailingEmptyRowsAreDropped) {
  fmSect s = Section("S1", 1.23456789, 2.3456789123, 3, 4);
  Table t({s});
  grid::AddRows(t.sheet, 2, true);
  const auto r = t.Read();
  ASSERT_FALSE(r.failure);
  ASSERT_EQ(r.sections.size(), 1u);
  EXPECT_EQ(r.sections[0].A, s.A);
  EXPECT_EQ(r.sections[0].Iz, s.Iz);
  EXPECT_EQ(r.sections[0].reserved, fmSect().reserved);
}

TEST(ThicknessGrid, EqualLabelsAreRefusedAndThicknessMustBePositive) {
  const std::vector<fmThick> none;
  const struct {
    const char* name;
    std::vector<std::pair<const char*, const char*>> rows;
    const char* message;
    int row;
  } cases[] = {
      {"duplicate", {{"Slab", "8"}, {"SLAB", "10"}}, "Duplicate label [SLAB] can not be used.", 2},
      {"zero", {{"Slab", "8"}, {"Wall", "0"}}, "Invalid input for thickness 2.", 2},
      {"empty", {{"Slab", ""}, {"Wall", "3"}}, "Invalid empty input for Thickness 1", 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    grid::Sheet sheet;
    thickgrid::Fill(sheet, none, fmUnit(), 0, false);
    grid::AddRows(sheet, static_cast<int>(c.rows.size()), true);
    for (size_t i = 0; i < c.rows.size(); ++i) {
      sheet.SetData(thickgrid::kLabel, static_cast<int>(i) + 1, c.rows[i].first);
      sheet.SetData(thickgrid::kThickness, static_cast<int>(i) + 1, c.rows[i].second);
    }
    const auto r = thickgrid::Read(sheet, none);
    ASSERT_TRUE(r.failure);
    EXPECT_EQ(r.failure->message, c.message);
    EXPECT_EQ(r.failure->cell.row, c.row);
  }
  EXPECT_EQ(thickgrid::Headers(fmUnit())[2], "Thickness [ft]");
}
