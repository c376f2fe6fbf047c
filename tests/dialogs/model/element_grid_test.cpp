#include <gtest/gtest.h>

#include <functional>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/model/element_grid.h"

using namespace elementgrid;

namespace {

// Ten nodes, two materials, three sections, two thicknesses.
struct Lists {
  Lists() {
    for (uint32_t id = 1; id <= 10; ++id) nodes.push_back({id, 0, 0, 0, 0});
    materials = {fmMat(1), fmMat(2)};
    materials[0].label = "Steel";
    materials[1].label = "Concrete";
    sections = {fmSect(1), fmSect(2), fmSect(3)};
    sections[0].label = "W14X90";
    sections[1].label = "W24X68";
    sections[2].label = "W12X26";
    thicknesses = {fmThick(1), fmThick(2)};
    thicknesses[0].label = "Slab8in";
    thicknesses[1].label = "Wall12in";
  }
  ElementLists Get() const { return {nodes, materials, sections, thicknesses}; }
  std::vector<fmNd> nodes;
  std::vector<fmMat> materials;
  std::vector<fmSect> sections;
  std::vector<fmThick> thicknesses;
};

constexpr uint32_t kSel = fmElementBase::kSelected, kFro = fmElementBase::kFrozen, kIna = fmElementBase::kInactive,
                   kNoSw = fmElementBase::kNoSelfWeight;

const std::vector<fmBm> kMembersSample = {
    {{1, 0, 1}, {1, 2}, 2, 33.333333333333, fmNonlinear::Linear},
    {{2, kSel | kNoSw, 2}, {2, 3}, 1, -90, fmNonlinear::TensionOnly},
    {{5, kFro | kIna, 1}, {3, 4}, 3, 0, fmNonlinear::CompressionOnly},
};
const std::vector<fmShell4> kShellsSample = {
    {{1, 0, 2}, {1, 2, 3, 4}, 1, 45},
    {{2, kSel, 1}, {2, 3, 4, 5}, 2, 0},
};
const std::vector<fmBrick> kBricksSample = {
    {{1, 0, 1}, {1, 2, 3, 4, 5, 6, 7, 8}},
    {{2, kIna | kSel, 2}, {3, 4, 5, 6, 7, 8, 9, 10}},
};

template <class Record>
grid::Sheet Filled(const std::vector<Record>& rows, const Lists& lists, bool lockAll = false) {
  grid::Sheet sheet;
  Fill(sheet, std::span<const Record>(rows), lists.Get(), 0xF0F5FF, lockAll);
  return sheet;
}

template <class Record>
ReadResult<Record> ReadBack(const grid::Sheet& sheet, const std::vector<Record>& filled, const Lists& lists) {
  return Read(sheet, std::span<const Record>(filled), lists.Get());
}

}  // namespace

TEST(ElementGrid, EachKindHasItsColumnsInOrder) {
  const struct {
    const Kind& kind;
    std::vector<std::string> headers;
  } cases[] = {
      {kMembers,
       {"Member Id", "Node-1", "Node-2", "Material", "Section", "Local Angle (deg)", "Nonlinear", "Activation",
        "Self Weight", "Status"}},
      {kShells,
       {"Shell4 Id", "Node-1", "Node-2", "Node-3", "Node-4", "Material", "Thick", "Local Angle (deg)", "Activation",
        "Self Weight", "Status"}},
      {kBricks,
       {"Brick Id", "Node-1", "Node-2", "Node-3", "Node-4", "Node-5", "Node-6", "Node-7", "Node-8", "Material",
        "Activation", "Self Weight", "Status"}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Headers(c.kind), c.headers);
    EXPECT_EQ(ColumnsOf(c.kind).count, static_cast<int>(c.headers.size()));
  }
  EXPECT_STREQ(kMembers.printTitle, "Member Table");
  EXPECT_STREQ(kShells.printTitle, "Shell4 Table");
  EXPECT_STREQ(kBricks.printTitle, "Brick Table");
}

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

  const std::vector<std::string> materialItems = {"1: Steel", "2: Concrete"};
  EXPECT_EQ(sheet.GetCellType(4, 1).kind, grid::CellType::Combo);
  EXPECT_EQ(sheet.GetCellType(4, 1).items, materialItems);
  EXPECT_EQ(sheet.GetCellType(5, 1).items, (std::vector<std::string>{"1: W14X90", "2: W24X68", "3: W12X26"}));
  EXPECT_EQ(sheet.GetCellType(7, 1).items, (std::vector<std::string>{"Linear", "Tension only", "Compression Only"}));
  EXPECT_EQ(sheet.GetCellType(8, 1).items, (std::vector<std::string>{"Active", "Inactive"}));
  EXPECT_EQ(sheet.GetCellType(9, 1).items, (std::vector<std::string>{"Include", "Exclude"}));
  EXPECT_EQ(sheet.GetCellType(10, 1).items, (std::vector<std::string>{"Normal", "Selected", "Frozen"}));
  EXPECT_EQ(sheet.GetCellType(2, 1).kind, grid::CellType::Edit);
  EXPECT_TRUE(sheet.IsLocked(1, 2));
  EXPECT_FALSE(sheet.IsLocked(2, 2));
  EXPECT_FALSE(sheet.IsLockedAll());
  EXPECT_TRUE(Filled(kMembersSample, lists, true).IsLockedAll());

  const grid::Sheet shells = Filled(kShellsSample, lists);
  EXPECT_EQ(shells.GetData(7, 1), "1: Slab8in");
  EXPECT_EQ(shells.GetData(8, 1), "45");
  const grid::Sheet bricks = Filled(kBricksSample, lists);
  EXPECT_EQ(bricks.GetData(9, 2), "10");
  EXPECT_EQ(bricks.GetData(11, 2), "Inactive");
  EXPECT_EQ(bricks.GetData(13, 2), "Selected");
}

TEST(ElementGrid, OnlySelectedElementsGetRows) {
  EXPECT_EQ(RowsToShow(kMembersSample, true), std::vector<fmBm>{kMembersSample[1]});
  EXPECT_EQ(RowsToShow(kBricksSample, false), kBricksSample);
  EXPECT_TRUE(RowsToShow(kShellsSample, true).size() == 1 && RowsToShow(kShellsSample, true)[0].id == 2);
}

TEST(ElementGrid, UntouchedGridReadsBackEveryRecordExactly) {
  const Lists lists;
  auto members = ReadBack(Filled(kMembersSample, lists), kMembersSample, lists);
  ASSERT_FALSE(members.failure) << members.failure->message;
  EXPECT_EQ(members.elements, kMembersSample);  // 33.333333333333 survives the "33.3333" shown
  auto shells = ReadBack(Filled(kShellsSample, lists), kShellsSample, lists);
  ASSERT_FALSE(shells.failure) << shells.failure->message;
  EXPECT_EQ(shells.elements, kShellsSample);
  auto bricks = ReadBack(Filled(kBricksSample, lists), kBricksSample, lists);
  ASSERT_FALSE(bricks.failure) << bricks.failure->message;
  EXPECT_EQ(bricks.elements, kBricksSample);
}

TEST(ElementGrid, EditedChoicesBecomeReferencesAndFlags) {
  const Lists lists;
  grid::Sheet sheet = Filled(kMembersSample, lists);
  sheet.SetData(3, 1, " 7 ");
  sheet.SetData(4, 1, "2: concrete");  // case is ignored
  sheet.SetData(5, 1, "3: W12X26");
  sheet.SetData(6, 1, "12.5");
  sheet.SetData(7, 1, "tension ONLY");
  sheet.SetData(8, 1, "inactive");
  sheet.SetData(9, 1, "EXCLUDE");
  sheet.SetData(10, 1, "frozen");
  sheet.SetData(10, 2, "Normal");
  sheet.SetData(7, 3, "something else");  // an unknown choice reads as the first
  const auto result = ReadBack(sheet, kMembersSample, lists);
  ASSERT_FALSE(result.failure) << result.failure->message;
  EXPECT_EQ(result.elements[0], (fmBm{{1, kIna | kNoSw | kFro, 2}, {1, 7}, 3, 12.5, fmNonlinear::TensionOnly}));
  EXPECT_EQ(result.elements[1].flags, kNoSw);
  EXPECT_EQ(result.elements[2].nonlinear, fmNonlinear::Linear);
}

TEST(ElementGrid, NewRowsAreReadAndTrailingEmptyOnesDropped) {
  const Lists lists;
  grid::Sheet sheet = Filled(kShellsSample, lists);
  const int first = grid::AddRows(sheet, 3, true);
  SetNewRowDefaults(sheet, kShells, first, sheet.MaxRows());
  EXPECT_EQ(sheet.GetData(1, 3), "3");
  EXPECT_EQ(sheet.GetData(9, 3), "Active");
  EXPECT_EQ(sheet.GetData(10, 4), "Include");
  EXPECT_EQ(sheet.GetData(11, 5), "Normal");
  for (int k = 0; k < 4; ++k) sheet.SetData(2 + k, 3, std::to_string(6 + k));
  sheet.SetData(6, 3, "1: Steel");
  sheet.SetData(7, 3, "2: Wall12in");  // the angle stays empty and reads as 0
  const auto result = ReadBack(sheet, kShellsSample, lists);
  ASSERT_FALSE(result.failure) << result.failure->message;
  ASSERT_EQ(result.elements.size(), 3u);
  EXPECT_EQ(result.elements[2], (fmShell4{{3, 0, 1}, {6, 7, 8, 9}, 2, 0}));
}

// The node, material, empty-row and duplicate refusals of each kind are also shown end to end
// by the dialog tests; these are the rest.
TEST(ElementGrid, EachRefusalHasItsTextAndCell) {
  struct Case {
    const char* name;
    int kind;  // 0 members, 1 shells, 2 bricks
    std::function<void(grid::Sheet&)> edit;
    std::string message;
    grid::CellRef cell;
  };
  const auto set = [](int col, int row, const char* text) {
    return [=](grid::Sheet& s) { s.SetData(col, row, text); };
  };
  const auto newRow = [](std::vector<std::pair<int, const char*>> cells) {
    return [=](grid::Sheet& s) {
      const int row = grid::AddRows(s, 2, true);
      for (const auto& [col, text] : cells) s.SetData(col, row, text);
    };
  };
  const auto emptyRow = [](int row, int lastNode) {
    return [=](grid::Sheet& s) {
      for (int col = 2; col <= lastNode; ++col) s.SetData(col, row, "");
    };
  };
  const Case cases[] = {
      {"empty brick node", 2, set(9, 1, ""), "Invalid empty input for Brick 1", {1, 1}},
      {"emptied last members", 0, [&](grid::Sheet& s) {
         emptyRow(2, 3)(s);
         emptyRow(3, 3)(s);
       },
       "Invalid input for existing members (2 - 5).\nIf you intend to delete these members, cancel this dialog box.\n"
       "Then select these members and go to menu Edit | Delete...",
       {1, 2}},
      {"missing brick node", 2, set(6, 1, "11"), "Invalid input for brick 1.\nNode 11 does not exist.", {6, 1}},
      {"thickness not in the list", 1, set(7, 1, "Slab"),
       "Invalid input for shell4 1.\n\"Slab\" is not in the list of thicknesses.", {7, 1}},
      {"no material chosen", 2, newRow({{2, "1"}, {3, "2"}, {4, "3"}, {5, "4"}, {6, "5"}, {7, "6"}, {8, "7"}, {9, "8"}}),
       "Invalid input for brick 3.\nNo material is chosen.", {10, 3}},
      {"no section chosen", 0, newRow({{2, "1"}, {3, "2"}, {4, "1: Steel"}}),
       "Invalid input for member 6.\nNo section is chosen.", {5, 4}},
      {"angle as text", 0, set(6, 3, "ninety"),
       "Invalid input for member 5.\nLocal Angle (deg) must be a number, not \"ninety\".", {6, 3}},
      {"angle with a comma", 1, set(8, 1, "1,5"),
       "Invalid input for shell4 1.\nLocal Angle (deg) must be a number, not \"1,5\".", {8, 1}},
  };
  const Lists lists;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::optional<grid::GridFailure> failure;
    size_t rowsRead = 0;
    auto run = [&](const auto& sample) {
      grid::Sheet sheet = Filled(sample, lists);
      c.edit(sheet);
      const auto result = ReadBack(sheet, sample, lists);
      failure = result.failure;
      rowsRead = result.elements.size();
    };
    if (c.kind == 0) run(kMembersSample);
    if (c.kind == 1) run(kShellsSample);
    if (c.kind == 2) run(kBricksSample);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->message, c.message);
    EXPECT_EQ(failure->cell, c.cell);
    EXPECT_EQ(rowsRead, 0u);
  }
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
