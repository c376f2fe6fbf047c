#include <QComboBox>

#include <functional>
#include <memory>

#include "dialogs/boundary/CBoundaryDataDlg.h"
#include "resources/grid_ids.h"
#include "support/GridHands.h"

namespace {

// The host's model: nodes 1 to 3 on the ground and 4 to 6 at Y = 12 ft, members 1 and 2,
// shell 1, and one record of every boundary kind.
struct Host {
  Host() {
    for (uint32_t id = 1; id <= 6; ++id) nodes.push_back({id, 0, 10.0 * ((id - 1) % 3), id > 3 ? 12.0 : 0, 0});
    members = {fmBm{}, fmBm{}};
    members[0].id = 1, members[0].nodes = {1, 4};
    members[1].id = 2, members[1].nodes = {2, 5};
    shells = {fmShell4{}};
    shells[0].id = 1, shells[0].nodes = {1, 2, 5, 4};
    fmSupport settled = fmSupport::Fixed(1);
    settled.displacement[1] = -0.123456789;
    supports = {settled, fmSupport::Pinned(2)};
    nodalSprings = {{3, {1.0 / 3, 1.0 / 3, 50, 0, 0, 0}}};
    lineSprings = {{1, {0, 12.5, 0}}};
    fmCoupledSpring c;
    c.node = 3;
    c.k[0] = c.k[6] = c.k[11] = 100;
    coupledSprings = {c};
    fmMemberRelease pinned;
    pinned.member = 2;
    pinned.released[0][5] = pinned.released[1][5] = true;
    releases = {pinned};
    constraints = {{1, {4, 6}, {1, 1}}};
    fmDiaphragm floor;
    floor.id = 1, floor.master = 5, floor.level = 12;
    diaphragms = {floor};
    driftNodes = {5};
    units.unit = {1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88};
  }
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  std::vector<fmSupport> supports;
  std::vector<fmNodalSpring> nodalSprings;
  std::vector<fmLineSpring> lineSprings;
  std::vector<fmSurfaceSpring> surfaceSprings;
  std::vector<fmCoupledSpring> coupledSprings;
  std::vector<fmMemberRelease> releases;
  std::vector<fmConstraint> constraints;
  std::vector<fmDiaphragm> diaphragms;
  std::vector<uint32_t> driftNodes;
  fmUnit units;
  bool operator==(const Host&) const = default;
};

using Texts = std::vector<std::string>;

class BoundaryDialogTest : public GridDialogTest {
 protected:
  template <class Dlg>
  Dlg& Open(bool locked = false) {
    auto dlg = std::make_unique<Dlg>();
    Dlg& d = *dlg;
    d.m_pUnits = &host.units, d.m_bModelLocked = locked;
    d.m_pNodes = &host.nodes, d.m_pMembers = &host.members, d.m_pShells = &host.shells;
    if constexpr (std::is_same_v<Dlg, CSuptDataDlg>) d.m_pSupports = &host.supports;
    if constexpr (std::is_same_v<Dlg, CSpringDataDlg>)
      d.m_pNodalSprings = &host.nodalSprings, d.m_pLineSprings = &host.lineSprings,
      d.m_pSurfaceSprings = &host.surfaceSprings;
    if constexpr (std::is_same_v<Dlg, CCoupledSpringDataDlg>) d.m_pCoupledSprings = &host.coupledSprings;
    if constexpr (std::is_same_v<Dlg, CMomentReleasesDataDlg>) d.m_pReleases = &host.releases;
    if constexpr (std::is_same_v<Dlg, CMultiDofConstraintDataDlg>) d.m_pConstraints = &host.constraints;
    if constexpr (std::is_same_v<Dlg, CDiaphragmDataDlg>) d.m_pDiaphragms = &host.diaphragms;
    if constexpr (std::is_same_v<Dlg, CDriftNodeDataDlg>) d.m_pDriftNodes = &host.driftNodes;
    d.InitDialogForTest();
    dialog = std::move(dlg);
    Show(d);
    return d;
  }
  void AddNewRows(const char* count) { GridDialogTest::AddNewRows(*dialog, count); }

  Host host;
  const Host original;
  std::unique_ptr<CBoundaryDataDlg> dialog;
};

TEST_F(BoundaryDialogTest, EveryGridOpensWithItsCaptionAndOkWithoutEditsKeepsTheModelExactly) {
  const auto check = [](CBoundaryDataDlg& dlg, const char* caption, const char* title, int rows = 1) {
    ExpectOpensAndCloses(dlg, caption, title, rows);
  };
  check(Open<CSuptDataDlg>(), "Supports", "Support Table", 2);
  EXPECT_EQ(Row(2), (Texts{"2", "Fixed", "Fixed", "Fixed", "Free", "Free", "Free", "0", "0", "0", "0", "0", "0"}));
  check(Open<CSpringDataDlg>(), "Springs", "Nodal Spring Table");
  check(Open<CCoupledSpringDataDlg>(), "Coupled Springs", "Nodal Coupled Spring Table");
  check(Open<CMomentReleasesDataDlg>(), "Member End Releases", "Member End Release Table");
  check(Open<CMultiDofConstraintDataDlg>(), "Multi-DOF Constraints", "Multi-DOF Constraint Table");
  check(Open<CDiaphragmDataDlg>(), "Rigid Diaphragms", "Rigid Diaphragm Table");
  check(Open<CDriftNodeDataDlg>(), "Drift Nodes", "Drift Node Table");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(host, original) << "-0.123456789 survives the \"-0.123457\" shown";
}

TEST_F(BoundaryDialogTest, ASupportTypedIntoANewRowIsAddedAndOnlySupportsChange) {
  Open<CSuptDataDlg>();
  AddNewRows("2");
  ASSERT_EQ(sheet().MaxRows(), 4);
  EXPECT_EQ(Row(3), (Texts{"", "Fixed", "Fixed", "Fixed", "Fixed", "Fixed", "Fixed", "0", "0", "0", "0", "0", "0"}));
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 3}));
  Type("3");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Type("f");  // a drop-down cell takes the item its first letters name
  for (int col = 3; col < 10; ++col) Press(Qt::Key_Tab);  // on to Dz
  Type("-0.25");
  Press(Qt::Key_Return);
  EXPECT_EQ(Row(3), (Texts{"3", "Fixed", "Free", "Fixed", "Fixed", "Fixed", "Fixed", "0", "0", "-0.25", "0", "0", "0"}));
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(dialog->ModalResult(), IDOK);
  ASSERT_EQ(host.supports.size(), 3u) << "row 4 was left without a node and is dropped";
  EXPECT_EQ(host.supports[2].RestraintText(), "101111");
  EXPECT_EQ(host.supports[2].displacement[2], -0.25);
  Host rest = host;
  rest.supports = original.supports;
  EXPECT_EQ(rest, original);
}

TEST_F(BoundaryDialogTest, APastedBlockOfSpringsIsReadAndAWordInAChoiceIsRefusedBeforeItReachesTheGrid) {
  Open<CSpringDataDlg>();
  AddNewRows("2");
  Click(1, 2);
  Paste("4\t10\t10\t0\t0\t0\t0\n5\t0\t0\t20\t0\t0\t1500\n");
  EXPECT_EQ(Row(3), (Texts{"5", "0", "0", "20", "0", "0", "1500"}));
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(host.nodalSprings,
            (std::vector<fmNodalSpring>{original.nodalSprings[0], {4, {10, 10, 0, 0, 0, 0}}, {5, {0, 0, 20, 0, 0, 1500}}}));

  Open<CMomentReleasesDataDlg>();
  Click(2, 1);
  Paste("Loose");
  EXPECT_EQ(Messages(), (Texts{"\"Loose\" is not one of Fixed, Released."}));
  EXPECT_EQ(sheet().GetData(2, 1), "Fixed");
}

// The must-show refusals, typed as a user would: each grid refuses a node (member, shell)
// the model does not have and a second record, with its message, stays open and leaves the
// model untouched.
TEST_F(BoundaryDialogTest, EachGridRefusesAnUnknownNodeAndASecondRecordAndLeavesTheModelUntouched) {
  struct Case {
    std::function<CBoundaryDataDlg&()> open;
    int col;            // where the id is typed in the new row
    const char* unknown, *unknownMessage, *duplicate, *duplicateMessage;
    std::function<void()> fill = {};  // the rest of the new row
  };
  const Case cases[] = {
      {[&]() -> CBoundaryDataDlg& { return Open<CSuptDataDlg>(); }, 1, "9",
       "Invalid input for support at node 9.\nNode 9 does not exist.", "2",
       "Invalid input for support at node 2.\nNode 2 already has a support in row 2."},
      {[&]() -> CBoundaryDataDlg& { return Open<CSpringDataDlg>(); }, 1, "9",
       "Invalid input for spring at node 9.\nNode 9 does not exist.", "3",
       "Invalid input for spring at node 3.\nNode 3 already has a spring in row 1.",
       [&] { TypeInto(2, 2, "5"); }},
      {[&]() -> CBoundaryDataDlg& { return Open<CCoupledSpringDataDlg>(); }, 1, "9",
       "Invalid input for coupled spring at node 9.\nNode 9 does not exist.", "3",
       "Invalid input for coupled spring at node 3.\nNode 3 already has a coupled spring in row 1.",
       [&] { TypeInto(2, 2, "5"); }},
      {[&]() -> CBoundaryDataDlg& { return Open<CMomentReleasesDataDlg>(); }, 1, "9",
       "Invalid input for releases of member 9.\nMember 9 does not exist.", "2",
       "Invalid input for releases of member 2.\nMember 2 already has releases in row 1."},
      {[&]() -> CBoundaryDataDlg& { return Open<CMultiDofConstraintDataDlg>(); }, 2, "9",
       "Invalid input for constraint 2.\nNode 9 does not exist.", "6",
       "Invalid input for constraint 2.\nIt ties the same degrees of freedom as constraint 1.",
       [&] {
         TypeInto(4, 2, "4");
         TypeInto(3, 2, "y");
         TypeInto(5, 2, "y");
       }},
      {[&]() -> CBoundaryDataDlg& { return Open<CDiaphragmDataDlg>(); }, 2, "9",
       "Invalid input for diaphragm 2.\nNode 9 does not exist.", "4",
       "Invalid input for diaphragm 2.\nNode 4 is already in diaphragm 1.", [&] { TypeInto(4, 2, "1-4"); }},
      {[&]() -> CBoundaryDataDlg& { return Open<CDriftNodeDataDlg>(); }, 1, "9",
       "Invalid input for drift node 9.\nNode 9 does not exist.", "5",
       "Invalid input for drift node 5.\nNode 5 is already in the drift stack in row 1."},
  };
  for (const Case& c : cases) {
    for (const bool second : {false, true}) {
      CBoundaryDataDlg& dlg = c.open();
      SCOPED_TRACE(dlg.windowTitle().toStdString() + (second ? ": a second record" : ": an unknown id"));
      AddNewRows("1");
      const int row = sheet().MaxRows();
      TypeInto(c.col, row, second ? c.duplicate : c.unknown);
      if (c.fill) c.fill();
      const size_t before = Messages().size();
      ASSERT_TRUE(dlg.PressButton(IDOK));
      ASSERT_EQ(Messages().size(), before + 1);
      EXPECT_EQ(Messages().back(), second ? c.duplicateMessage : c.unknownMessage);
      EXPECT_EQ(dlg.ModalResult(), 0) << "the dialog stays open";
      EXPECT_EQ(sheet().ActiveCell().row, row);
      EXPECT_EQ(host, original);
    }
  }
}

TEST_F(BoundaryDialogTest, DeleteRowsRemovesASupportAndUndoBringsItBackWithItsPrecision) {
  Open<CSuptDataDlg>();
  Click(3, 1);
  ASSERT_TRUE(dialog->PressButton(res::kCtlGridEditAction));
  ASSERT_EQ(sheet().MaxRows(), 1);
  EXPECT_EQ(sheet().GetData(1, 1), "2");
  view()->setFocus();
  Press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_EQ(sheet().MaxRows(), 2);
  EXPECT_EQ(sheet().GetData(9, 1), "-0.123457");
  Press(Qt::Key_Y, Qt::ControlModifier);
  ASSERT_EQ(sheet().MaxRows(), 1);
  Press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(host, original) << "the restored row keeps the support it came from";

  Open<CSuptDataDlg>();
  Click(1, 1);
  ASSERT_TRUE(dialog->PressButton(res::kCtlGridEditAction));
  // The row that stays may not be emptied: the refusal of emptied existing rows still holds.
  Click(1, 1);
  Press(Qt::Key_Delete);
  ASSERT_TRUE(dialog->PressButton(IDOK));
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0].rfind("Invalid input for existing supports (2 - 2).", 0), 0u) << Messages()[0];
  EXPECT_EQ(host, original);
  Press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(host.supports, (std::vector<fmSupport>{original.supports[1]}));
}

TEST_F(BoundaryDialogTest, TheSpringGridShowsOneKindAtATimeAndOkWritesEveryKindEdited) {
  CSpringDataDlg& dlg = Open<CSpringDataDlg>();
  const int springType = frame::IdOf(&CSpringDataDlg::m_nSpringType);
  TypeInto(4, 1, "60");
  ASSERT_TRUE(dlg.ChooseItem(springType, CSpringDataDlg::kLine));
  EXPECT_EQ(sheet().GetData(1, 0), "Member Id");
  EXPECT_EQ(Row(1), (Texts{"1", "0", "12.5", "0"}));
  EXPECT_EQ(sheet().GetData(2, 0), "Kx [kip/ft^2]");
  TypeInto(1, 1, "7");
  // A grid that does not read keeps its kind.
  ASSERT_TRUE(dlg.ChooseItem(springType, CSpringDataDlg::kSurface));
  EXPECT_EQ(Messages(), Texts{"Invalid input for line spring on member 7.\nMember 7 does not exist."});
  EXPECT_EQ(dlg.Item<QComboBox>(springType)->currentIndex(), CSpringDataDlg::kLine);
  TypeInto(1, 1, "2");
  ASSERT_TRUE(dlg.ChooseItem(springType, CSpringDataDlg::kSurface));
  EXPECT_EQ(sheet().GetData(1, 0), "Shell4 Id");
  AddNewRows("1");
  Type("1");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Type("4");
  Press(Qt::Key_Return);
  ASSERT_TRUE(dlg.ChooseItem(springType, CSpringDataDlg::kNodal));
  EXPECT_EQ(sheet().GetData(4, 1), "60") << "the nodal kind's edit was kept";
  EXPECT_EQ(host, original) << "nothing reaches the model before OK";
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(host.nodalSprings[0].k[2], 60);
  EXPECT_EQ(host.nodalSprings[0].k[0], 1.0 / 3);
  EXPECT_EQ(host.lineSprings, (std::vector<fmLineSpring>{{2, {0, 12.5, 0}}}));
  EXPECT_EQ(host.surfaceSprings, (std::vector<fmSurfaceSpring>{{1, {0, 0, 4}}}));
}

TEST_F(BoundaryDialogTest, ALockedModelShowsTheRecordsReadOnly) {
  CBoundaryDataDlg& dlg = Open<CDiaphragmDataDlg>(true);
  EXPECT_EQ(Row(1), (Texts{"1", "5", "12", ""}));
  Click(1, 1);
  ExpectLocked(dlg);
  EXPECT_EQ(sheet().MaxRows(), 1);
  EXPECT_EQ(host, original);
}

}  // namespace
