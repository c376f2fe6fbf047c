#include <gtest/gtest.h>

#include "dialogs/boundary/boundary_grid.h"
#include "dialogs/grid/grid_ops.h"

using namespace boundarygrid;

namespace {

using Texts = std::vector<std::string>;

// Nodes 1 to 6 (1 to 3 on the ground, 4 to 6 at Y = 12), members 1 and 2, shell 1; the
// building example's units (ft, kip, displacements in in).
struct Model {
  Model() {
    for (uint32_t id = 1; id <= 6; ++id) nodes.push_back({id, 0, 10.0 * (id - 1) - (id > 3 ? 30 : 0), id > 3 ? 12.0 : 0, 0});
    members = {fmBm{}, fmBm{}};
    members[0].id = 1, members[0].nodes = {1, 4};
    members[1].id = 2, members[1].nodes = {2, 5};
    shells = {fmShell4{}};
    shells[0].id = 1, shells[0].nodes = {1, 2, 5, 4};
    units.unit = {1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88};
  }
  Objects objects() const { return {nodes, members, shells}; }
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  fmUnit units;
};

Texts Row(const grid::Sheet& sheet, int row) {
  Texts texts;
  for (int col = 1; col <= sheet.MaxCols(); ++col) texts.push_back(sheet.GetData(col, row));
  return texts;
}

// Fills, lets `edit` change the sheet, reads back; the refusal's text, or "read".
template <class Record>
std::string RefusalAfter(const Model& m, const std::vector<Record>& records, auto edit,
                         std::type_identity_t<std::vector<Record>>* out = nullptr, grid::CellRef* cell = nullptr) {
  Table<Record> table;
  grid::Sheet sheet;
  table.Fill(sheet, records, m.objects(), m.units, 0xF0F5FF, false, false);
  edit(table, sheet);
  const ReadResult<Record> result = table.Read(sheet, m.objects());
  if (result.failure) {
    if (cell) *cell = result.failure->cell;
    return result.failure->message;
  }
  if (out) *out = result.records;
  return "read";
}

// Appends one new row with its defaults and writes the texts from column 1 on.
void NewRow(TableBase& table, grid::Sheet& sheet, const Texts& texts) {
  const int row = grid::AddRows(sheet, 1, table.NumberedKeys());
  table.PrepareNewRows(sheet, row, row);
  for (size_t i = 0; i < texts.size(); ++i)
    if (!texts[i].empty() || !table.NumberedKeys() || i > 0) sheet.SetData(static_cast<int>(i) + 1, row, texts[i]);
}

}  // namespace

TEST(BoundaryGrid, ColumnsCarryTheirUnitsAndNewRowsTheirDefaults) {
  const Model m;
  EXPECT_EQ(SupportTable().Headers(m.units),
            (Texts{"Node Id", "X", "Y", "Z", "OX", "OY", "OZ", "Dx [in]", "Dy [in]", "Dz [in]", "Dox [rad]", "Doy [rad]",
                   "Doz [rad]"}));
  EXPECT_EQ(NodalSpringTable().Headers(m.units),
            (Texts{"Node Id", "Kx [kip/in]", "Ky [kip/in]", "Kz [kip/in]", "Kox [kip-ft/rad]", "Koy [kip-ft/rad]",
                   "Koz [kip-ft/rad]"}));
  EXPECT_EQ(LineSpringTable().Headers(m.units)[1], "Kx [kip/ft^2]");
  EXPECT_EQ(SurfaceSpringTable().Headers(m.units)[0], "Shell4 Id");
  EXPECT_EQ(SurfaceSpringTable().Headers(m.units)[3], "Kz [kip/ft^3]");
  const Texts coupled = CoupledSpringTable().Headers(m.units);
  ASSERT_EQ(coupled.size(), 22u);
  EXPECT_EQ(coupled[1], "Kx_Kx [kip/in]");
  EXPECT_EQ(coupled[4], "Kx_Kox [kip/rad]");
  EXPECT_EQ(coupled[21], "Koz_Koz [kip-ft/rad]");
  EXPECT_EQ(ConstraintTable().Headers(m.units), (Texts{"Constraint Id", "Node-1", "DOF-1", "Node-2", "DOF-2"}));
  EXPECT_EQ(DiaphragmTable().Headers(m.units), (Texts{"Diaphragm Id", "Master Node", "Level [ft]", "Nodes"}));

  ReleaseTable releases;
  grid::Sheet sheet;
  releases.Fill(sheet, std::vector<fmMemberRelease>{}, m.objects(), m.units, 0xF0F5FF, false, false);
  NewRow(releases, sheet, {});
  // A new release row pins both ends.
  EXPECT_EQ(Row(sheet, 1), (Texts{"", "Fixed", "Fixed", "Fixed", "Fixed", "Released", "Released", "Fixed", "Fixed",
                                  "Fixed", "Fixed", "Released", "Released"}));
  EXPECT_FALSE(sheet.IsLocked(1, 1)) << "the member id is typed";
  ConstraintTable constraints;
  constraints.Fill(sheet, std::vector<fmConstraint>{{4, {1, 4}, {0, 0}}}, m.objects(), m.units, 0xF0F5FF, false, false);
  NewRow(constraints, sheet, {});
  EXPECT_EQ(Row(sheet, 2), (Texts{"5", "", "X", "", "X"})) << "numbered on from the last id";
  EXPECT_TRUE(sheet.IsLocked(1, 2));
}

// Every kind reads back what it was filled with, to the last digit, and new rows typed into
// the grid become records.
TEST(BoundaryGrid, EveryKindReadsBackItsRecordsAndTypedRows) {
  const Model m;
  fmSupport settled = fmSupport::Fixed(2);
  settled.displacement[1] = -0.123456789;
  std::vector<fmSupport> supports;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmSupport>{settled}, [](TableBase& t, grid::Sheet& s) {
              NewRow(t, s, {"3", "Fixed", "Fixed", "Fixed", "free", "Free", "Free", "0", "-0.5"});
            }, &supports), "read");
  ASSERT_EQ(supports.size(), 2u);
  EXPECT_EQ(supports[0], settled);
  EXPECT_TRUE(supports[1].IsPinned());
  EXPECT_EQ(supports[1].displacement[1], -0.5);

  std::vector<fmNodalSpring> springs;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{{1, {1.0 / 3, 0, 0, 0, 0, 0}}},
                         [](TableBase& t, grid::Sheet& s) { NewRow(t, s, {"4", "0", "25"}); }, &springs),
            "read");
  EXPECT_EQ(springs, (std::vector<fmNodalSpring>{{1, {1.0 / 3, 0, 0, 0, 0, 0}}, {4, {0, 25, 0, 0, 0, 0}}}));

  std::vector<fmLineSpring> lines;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmLineSpring>{}, [](TableBase& t, grid::Sheet& s) {
              NewRow(t, s, {"2", "0", "0", "12.5"});
            }, &lines), "read");
  EXPECT_EQ(lines, (std::vector<fmLineSpring>{{2, {0, 0, 12.5}}}));

  fmCoupledSpring coupled;
  coupled.node = 5;
  for (int t = 0; t < 21; ++t) coupled.k[static_cast<size_t>(t)] = t + 1.0 / 7;
  std::vector<fmCoupledSpring> coupledBack;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmCoupledSpring>{coupled}, [](TableBase&, grid::Sheet&) {}, &coupledBack),
            "read");
  EXPECT_EQ(coupledBack, std::vector<fmCoupledSpring>{coupled});

  std::vector<fmMemberRelease> releases;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmMemberRelease>{}, [](TableBase& t, grid::Sheet& s) { NewRow(t, s, {"2"}); },
                         &releases),
            "read");
  ASSERT_EQ(releases.size(), 1u);
  EXPECT_EQ(releases[0].Text(), "000011000011");

  std::vector<fmConstraint> constraints;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmConstraint>{}, [](TableBase& t, grid::Sheet& s) {
              NewRow(t, s, {"", "4", "Y", "5", "oy"});
            }, &constraints), "read");
  EXPECT_EQ(constraints, (std::vector<fmConstraint>{{1, {4, 5}, {1, 4}}}));

  std::vector<fmDiaphragm> diaphragms;
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, [](TableBase& t, grid::Sheet& s) {
              NewRow(t, s, {"", "4", "12", ""});
              NewRow(t, s, {"", "1", "", "1 2, 3"});
            }, &diaphragms), "read");
  ASSERT_EQ(diaphragms.size(), 2u);
  EXPECT_TRUE(diaphragms[0].byLevel);
  EXPECT_EQ(diaphragms[0].level, 12);
  EXPECT_EQ(diaphragms[1].nodes, (std::vector<uint32_t>{1, 2, 3}));
  EXPECT_EQ(diaphragms[1].id, 2u);

  std::vector<DriftNode> drift;
  EXPECT_EQ(RefusalAfter(m, DriftNodesOf(std::vector<uint32_t>{2}), [](TableBase& t, grid::Sheet& s) {
              NewRow(t, s, {"5"});
            }, &drift), "read");
  EXPECT_EQ(DriftNodeIds(drift), (std::vector<uint32_t>{2, 5}));
}

// Each table refuses a key that names nothing in the model and a second record of one
// object, in one style: "Invalid input for <record> <id>." and the reason, at the cell.
TEST(BoundaryGrid, EachTableRefusesUnknownObjectsAndSecondRecords) {
  const Model m;
  grid::CellRef cell;
  const auto typed = [](Texts first, Texts second) {
    return [first, second](TableBase& t, grid::Sheet& s) {
      NewRow(t, s, first);
      if (!second.empty()) NewRow(t, s, second);
    };
  };
  EXPECT_EQ(RefusalAfter(m, std::vector<fmSupport>{}, typed({"9"}, {}), nullptr, &cell),
            "Invalid input for support at node 9.\nNode 9 does not exist.");
  EXPECT_EQ(cell, (grid::CellRef{1, 1}));
  EXPECT_EQ(RefusalAfter(m, std::vector<fmSupport>{fmSupport::Fixed(2)}, typed({"2"}, {}), nullptr, &cell),
            "Invalid input for support at node 2.\nNode 2 already has a support in row 1.");
  EXPECT_EQ(cell, (grid::CellRef{1, 2}));
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{}, typed({"7", "1"}, {}), nullptr),
            "Invalid input for spring at node 7.\nNode 7 does not exist.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{}, typed({"3", "1"}, {"3", "2"}), nullptr),
            "Invalid input for spring at node 3.\nNode 3 already has a spring in row 1.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmLineSpring>{}, typed({"3", "1"}, {}), nullptr),
            "Invalid input for line spring on member 3.\nMember 3 does not exist.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmSurfaceSpring>{}, typed({"1", "1"}, {"1", "1"}), nullptr),
            "Invalid input for surface spring on shell 1.\nShell 1 already has a surface spring in row 1.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmCoupledSpring>{}, typed({"8", "1"}, {}), nullptr),
            "Invalid input for coupled spring at node 8.\nNode 8 does not exist.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmCoupledSpring>{}, typed({"1", "1"}, {"1", "1"}), nullptr),
            "Invalid input for coupled spring at node 1.\nNode 1 already has a coupled spring in row 1.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmMemberRelease>{}, typed({"5"}, {}), nullptr),
            "Invalid input for releases of member 5.\nMember 5 does not exist.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmMemberRelease>{}, typed({"1"}, {"1"}), nullptr),
            "Invalid input for releases of member 1.\nMember 1 already has releases in row 1.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmConstraint>{}, typed({"", "4", "X", "77", "X"}, {}), nullptr, &cell),
            "Invalid input for constraint 1.\nNode 77 does not exist.");
  EXPECT_EQ(cell, (grid::CellRef{4, 1}));
  EXPECT_EQ(RefusalAfter(m, std::vector<fmConstraint>{}, typed({"", "4", "X", "5", "X"}, {"", "5", "X", "4", "X"}),
                         nullptr),
            "Invalid input for constraint 2.\nIt ties the same degrees of freedom as constraint 1.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, typed({"", "4", "", "4-6, 70"}, {}), nullptr, &cell),
            "Invalid input for diaphragm 1.\nNode 70 does not exist.");
  EXPECT_EQ(cell, (grid::CellRef{4, 1}));
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, typed({"", "4", "12", ""}, {"", "1", "", "1, 5"}), nullptr),
            "Invalid input for diaphragm 2.\nNode 5 is already in diaphragm 1.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, typed({"", "40", "12", ""}, {}), nullptr),
            "Invalid input for diaphragm 1.\nNode 40 does not exist.");
  EXPECT_EQ(RefusalAfter(m, DriftNodesOf(std::vector<uint32_t>{}), typed({"0"}, {}), nullptr),
            "Invalid input for drift node 0.\nNode 0 does not exist.");
  EXPECT_EQ(RefusalAfter(m, DriftNodesOf(std::vector<uint32_t>{4}), typed({"4"}, {}), nullptr),
            "Invalid input for drift node 4.\nNode 4 is already in the drift stack in row 1.");
}

TEST(BoundaryGrid, ValuesThatMakeNoSenseAreRefusedAtTheirCell) {
  const Model m;
  grid::CellRef cell;
  const auto typed = [](Texts texts) { return [texts](TableBase& t, grid::Sheet& s) { NewRow(t, s, texts); }; };
  const std::vector<fmSupport> noSupports;
  EXPECT_EQ(RefusalAfter(m, noSupports, typed({"1", "Free", "Free", "Free", "Free", "Free", "Free"}), nullptr, &cell),
            "Invalid input for support at node 1.\nA support must restrain at least one of X, Y, Z, OX, OY, OZ.");
  EXPECT_EQ(RefusalAfter(m, noSupports, typed({"1", "Fixed", "Free", "Fixed", "Fixed", "Fixed", "Fixed", "0", "0.5"}),
                         nullptr, &cell),
            "Invalid input for support at node 1.\nDy can be prescribed only where the support is Fixed: Y is Free.");
  EXPECT_EQ(cell, (grid::CellRef{9, 1}));
  EXPECT_EQ(RefusalAfter(m, noSupports, typed({"1", "Held"}), nullptr, &cell),
            "Invalid input for support at node 1.\n\"Held\" is not one of Free, Fixed.");
  EXPECT_EQ(RefusalAfter(m, noSupports, typed({"1", "Fixed", "Fixed", "Fixed", "Fixed", "Fixed", "Fixed", "1,5"}),
                         nullptr),
            "Invalid input for support at node 1.\nDx must be a number, not \"1,5\".");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{}, typed({"1", "-5"}), nullptr),
            "Invalid input for spring at node 1.\nKx can not be negative.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{}, typed({"1"}), nullptr),
            "Invalid input for spring at node 1.\nA spring needs at least one stiffness that is not 0.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmMemberRelease>{},
                         typed({"1", "Released", "Fixed", "Fixed", "Fixed", "Fixed", "Fixed", "Released"}), nullptr),
            "Invalid input for releases of member 1.\nFx can not be released at both ends: the member would be free to "
            "slide along its axis.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmConstraint>{}, typed({"", "4", "OZ", "4", "OZ"}), nullptr),
            "Invalid input for constraint 1.\nA degree of freedom can not be constrained to itself.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, typed({"", "1", "12", ""}), nullptr, &cell),
            "Invalid input for diaphragm 1.\nThe master node 1 is not at the level 12.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, typed({"", "4", "12", "4-6"}), nullptr),
            "Invalid input for diaphragm 1.\nA diaphragm takes either a level or a list of nodes, one of the two.");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmDiaphragm>{}, typed({"", "4", "", "4-x"}), nullptr),
            "Invalid input for diaphragm 1.\n\"4-x\" is not a node id or a run of node ids such as 5-9.");
  // An empty cell of a typed row, and a row with values but no node.
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{{1, {1, 0, 0, 0, 0, 0}}},
                         [](TableBase&, grid::Sheet& s) { s.SetData(3, 1, ""); }, nullptr),
            "Invalid empty input for spring at node 1");
  EXPECT_EQ(RefusalAfter(m, std::vector<fmNodalSpring>{}, [](TableBase& t, grid::Sheet& s) {
              NewRow(t, s, {"", "5"});
              NewRow(t, s, {"2", "5"});
            }, nullptr, &cell),
            "Invalid empty input for Node Id in row 1");
  EXPECT_EQ(cell, (grid::CellRef{1, 1}));
}

// Deleting rows removes their records; the rows of existing records that stay still may not
// be emptied; new rows left without a key are dropped.
TEST(BoundaryGrid, DeletedRowsTakeTheirRecordsAndEmptiedRowsAreStillRefused) {
  const Model m;
  const std::vector<fmSupport> three = {fmSupport::Fixed(1), fmSupport::Pinned(2), fmSupport::Fixed(3)};
  std::vector<fmSupport> out;
  EXPECT_EQ(RefusalAfter(m, three, [](TableBase& t, grid::Sheet& s) {
              t.DeleteRows(s, 2, 2);
              NewRow(t, s, {});  // left empty: dropped
            }, &out), "read");
  EXPECT_EQ(out, (std::vector<fmSupport>{three[0], three[2]}));

  EXPECT_EQ(RefusalAfter(m, three, [](TableBase& t, grid::Sheet& s) {
              t.DeleteRows(s, 1, 1);
              for (int col = 1; col <= s.MaxCols(); ++col) s.SetData(col, 2, "");
            }, &out),
            "Invalid input for existing supports (3 - 3).\nIf you intend to delete these supports, cancel this dialog "
            "box.\nThen select these supports and go to menu Edit | Delete...");
}

TEST(BoundaryGrid, ASelectedOnlyGridShowsTheRecordsOfSelectedObjects) {
  Model m;
  m.nodes[2].flags |= fmNd::kSelected;
  SupportTable table;
  grid::Sheet sheet;
  EXPECT_EQ(table.Fill(sheet, std::vector<fmSupport>{fmSupport::Fixed(1), fmSupport::Fixed(3)}, m.objects(), m.units,
                       0xF0F5FF, true, true),
            1);
  EXPECT_EQ(sheet.GetData(1, 1), "3");
  EXPECT_TRUE(sheet.IsLockedAll());
}

TEST(BoundaryGrid, NodeListsReadAndWriteRuns) {
  EXPECT_EQ(NodeListText(std::vector<uint32_t>{1, 2, 3, 4, 9, 11, 12, 7}), "1-4, 9, 11, 12, 7");
  std::string why;
  EXPECT_EQ(ParseNodeList("1-4, 9 11,12  7", why), (std::vector<uint32_t>{1, 2, 3, 4, 9, 11, 12, 7}));
  EXPECT_FALSE(ParseNodeList("5-3", why));
  EXPECT_EQ(why, "\"5-3\" is not a node id or a run of node ids such as 5-9.");
  EXPECT_FALSE(ParseNodeList(" , ", why));
  EXPECT_EQ(why, "The list of nodes is empty.");
  EXPECT_FALSE(ParseNodeList("1-2000000", why));
  EXPECT_EQ(why, "The run \"1-2000000\" is longer than 1000000 nodes.");
}
