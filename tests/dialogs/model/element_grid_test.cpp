#include <gtest/gtest.h>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/model/element_grid.h"

using namespace elementgrid;

namespace {

// Records with ids 1, 2, ... and the given labels.
template <class T>
std::vector<T> Labelled(const std::vector<std::string>& labels) {
  std::vector<T> records;
  for (const std::string& label : labels) records.emplace_back(static_cast<int32_t>(records.size() + 1)).label = label;
  return records;
}

// Ten nodes, two materials, three sections, two thicknesses.
struct Lists {
  Lists() {
    for (uint32_t id = 1; id <= 10; ++id) nodes.push_back({id, 0, 0, 0, 0});
    materials = Labelled<fmMat>({"Steel", "Concrete"});
    sections = Labelled<fmSect>({"W14X90", "W24X68", "W12X26"});
    thicknesses = Labelled<fmThick>({"Slab8in", "Wall12in"});
  }
  ElementLists Get() const { return {nodes, materials, sections, thicknesses}; }
  std::vector<fmNd> nodes;
  std::vector<fmMat> materials; std::vector<fmSect> sections; std::vector<fmThick> thicknesses;
};

constexpr uint32_t kSel = fmElementBase::kSelected, kFro = fmElementBase::kFrozen, kIna = fmElementBase::kInactive,
                   kNoSw = fmElementBase::kNoSelfWeight;

const std::vector<fmBm> kMembersSample = {
    {{1, 0, 1}, {1, 2}, 2, 33.333333333333, fmNonlinear::Linear},
    {{2, kSel | kNoSw, 2}, {2, 3}, 1, -90, fmNonlinear::TensionOnly},
    {{5, kFro | kIna, 1}, {3, 4}, 3, 0, fmNonlinear::CompressionOnly},
};
const std::vector<fmShell4> kShellsSample = {{{1, 0, 2}, {1, 2, 3, 4}, 1, 45}, {{2, kSel, 1}, {2, 3, 4, 5}, 2, 0}};

template <class Record>
grid::Sheet Filled(const std::vector<Record>& rows, const Lists& lists) {
  grid::Sheet sheet;
  Fill(sheet, std::span<const Record>(rows), lists.Get(), 0xF0F5FF, false);
  return sheet;
}

template <class Record>
ReadResult<Record> ReadBack(const grid::Sheet& sheet, const std::vector<Record>& filled, const Lists& lists) {
  return Read(sheet, std::span<const Record>(filled), lists.Get());
}

}  // namespace

TEST(ElementGrid, FillWritesIdsNodesReferencesAndChoices) {
  const Lists lists;
  const grid::Sheet sheet = Filled(kMembersSample, lists);
  ASSERT_EQ(sheet.MaxRows(), 3);
  const std::vector<std::vector<std::string>> expected = {
      {"1", "1", "2", "1: Steel", "2: W24X68", "33.3333", "Linear", "Active", "Include", "Normal"},
      {"2", "2", "3", "2: Concrete", "1: W14X90", "-90", "Tension only", "Active", "Exclude", "Selected"},
      {"5", "3", "4", "1: Steel", "3: W12X26", "0", "Compression Only", "Inactive", "Include", "Frozen"},
  };
  for (int row = 1; row <= 3; ++row)
    for (int col = 1; col <= 10; ++col)
      EXPECT_EQ(sheet.GetData(col, row), expected[row - 1][col - 1]) << "row " << row << " col " << col;
  EXPECT_EQ(sheet.GetCellType(4, 1).items, (std::vector<std::string>{"1: Steel", "2: Concrete"}));
  EXPECT_EQ(Filled(kShellsSample, lists).GetData(7, 1), "1: Slab8in");
}

TEST(ElementGrid, EditedChoicesBecomeReferencesAndFlags) {
  const Lists lists;
  grid::Sheet sheet = Filled(kMembersSample, lists);
  // Case is ignored; an unknown status ("something else") sets neither bit, but an unknown
  // nonlinearity has no reading and is refused.
  for (const auto& [col, row, text] : {std::tuple(3, 1, " 7 "), {4, 1, "2: concrete"}, {5, 1, "3: W12X26"},
                                       {6, 1, "12.5"}, {7, 1, "tension ONLY"}, {8, 1, "inactive"}, {9, 1, "EXCLUDE"},
                                       {10, 1, "frozen"}, {10, 2, "Normal"}, {10, 3, "something else"}})
    sheet.SetData(col, row, text);
  const auto result = ReadBack(sheet, kMembersSample, lists);
  ASSERT_FALSE(result.failure) << result.failure->message;
  EXPECT_EQ(result.elements[0], (fmBm{{1, kIna | kNoSw | kFro, 2}, {1, 7}, 3, 12.5, fmNonlinear::TensionOnly}));
  EXPECT_EQ(result.elements[1].flags, kNoSw);
  EXPECT_EQ(result.elements[2].flags, kIna);
  sheet.SetData(7, 3, "Bogus");
  const auto refused = ReadBack(sheet, kMembersSample, lists);
  ASSERT_TRUE(refused.failure);
  EXPECT_EQ(refused.failure->message,
            "Invalid input for member 5.\n\"Bogus\" is not one of Linear, Tension only, Compression Only.");
  EXPECT_EQ(refused.failure->cell, (grid::CellRef{7, 3}));
}

TEST(ElementGrid, AReferenceOutsideTheListIsNamedByTheLookUp) {
  Lists lists;
  std::vector<fmBm> members = kMembersSample;
  members[1].mat = 9;  // a stale reference: shown empty, left so, named on OK
  grid::Sheet sheet = Filled(members, lists);
  EXPECT_EQ(sheet.GetData(4, 2), "");
  auto result = ReadBack(sheet, members, lists);
  ASSERT_TRUE(result.failure);
  EXPECT_EQ(result.failure->message, "Invalid input for member 2.\nMaterial 9 does not exist: the list holds 2 materials.");
  EXPECT_EQ(result.failure->cell, (grid::CellRef{4, 2}));

  sheet.SetData(4, 2, "1: Steel");  // choosing one mends it
  result = ReadBack(sheet, members, lists);
  ASSERT_FALSE(result.failure) << result.failure->message;
  EXPECT_EQ(result.elements[1].mat, 1);

  lists.sections.clear();  // a list emptied since: nothing can be chosen
  result = ReadBack(Filled(members, lists), members, lists);
  ASSERT_TRUE(result.failure);
  EXPECT_EQ(result.failure->message, "Invalid input for member 1.\nNo section can be chosen: the model has no sections.");
}
