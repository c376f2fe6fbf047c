#include <memory>

#include "dialogs/loads/CCaseLoadDataDlg.h"
#include "resources/grid_ids.h"
#include "support/GridHands.h"

namespace {

struct Host {
  Host() {
    cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L")};
    for (uint32_t id = 1; id <= 4; ++id) nodes.push_back({id, 0, 10.0 * id, 0, 0});
    for (uint32_t id = 1; id <= 3; ++id) {
      fmBm m;
      m.id = id;
      m.nodes = {id, id + 1};
      members.push_back(m);
    }
    caseLoads.resize(2);
    caseLoads[0].point = {{1, 0.5, 1, false, -2.123456789}, {2, 0.25, 1, false, -3}};
    caseLoads[0].nodal = {{4, 0, 1.5}};
    caseLoads[1].point = {{3, 0.75, 1, false, -1}};
  }
  std::vector<fmLoadCase> cases;
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  std::vector<fmBrick> bricks;
  std::vector<fmCaseLoad> caseLoads;
  bool operator==(const Host&) const = default;
};

class CaseLoadDialogTest : public GridDialogTest {
 protected:
  template <class Dlg = CPointLoadDataDlg>
  Dlg& Open(bool locked = false) {
    auto dlg = std::make_unique<Dlg>();
    Dlg& d = *dlg;
    d.m_pUnits = &units, d.m_bModelLocked = locked;
    d.m_pLoadCases = &host.cases, d.m_pCaseLoads = &host.caseLoads, d.m_pNodes = &host.nodes;
    d.m_pMembers = &host.members, d.m_pShells = &host.shells, d.m_pBricks = &host.bricks;
    d.InitDialogForTest();
    dialog = std::move(dlg);
    spread = &d.Spread();
    return d;
  }
  void Show() { GridDialogTest::Show(*dialog); }
  void AddNewRows(const char* count) { GridDialogTest::AddNewRows(*dialog, count); }

  fmUnit units;
  Host host;
  const Host original;
  std::unique_ptr<CCaseLoadDataDlg> dialog;
};

using Texts = std::vector<std::string>;

TEST_F(CaseLoadDialogTest, EveryLoadTableOpensWithItsCaptionAndOkWithoutEditsKeepsTheModelExactly) {
  ExpectOpensAndCloses(Open<CNodalLoadDataDlg>(), "Nodal Loads", "Nodal Load Table");
  ExpectOpensAndCloses(Open<CPointLoadDataDlg>(), "Member Point Loads", "Point Load Table");
  ExpectOpensAndCloses(Open<CLineLoadDataDlg>(), "Member Line Loads", "Line Load Table");
  ExpectOpensAndCloses(Open<CShellLoadDataDlg>(), "Shell Surface Loads", "Surface Load Table");
  ExpectOpensAndCloses(Open<CAreaLoadDataDlg>(), "Area Loads", "Area Load Table");
  ExpectOpensAndCloses(Open<CMemberThermalLoadDataDlg>(), "Member Thermal Loads", "Member Thermal Load Table");
  ExpectOpensAndCloses(Open<CShell4ThermalLoadDataDlg>(), "Shell4 Thermal Loads", "Shell4 Thermal Load Table");
  ExpectOpensAndCloses(Open<CBrickThermalLoadDataDlg>(), "Brick Thermal Loads", "Brick Thermal Load Table");
  ExpectOpensAndCloses(Open<CNodalMassDataDlg>(), "Additional Nodal Masses", "Nodal Mass Table");
  ExpectOpensAndCloses(Open<CCombMassDataDlg>(), "Combination Masses", "Combination Mass Table");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(host, original) << "-2.123456789 survives the \"-2.12346\" shown";
}

TEST_F(CaseLoadDialogTest, ALoadTypedIntoNewRowsIsAddedToItsCaseSortedByMember) {
  Open();
  Show();
  AddNewRows("2");
  ASSERT_EQ(sheet().MaxRows(), 5);
  EXPECT_EQ(Row(4), (Texts{"4", "2: Live", "", "", "X", "Global", ""})) << "the case of the row above";
  Click(2, 4);
  Type("1");  // a drop-down cell picks its item by the first letters typed
  Press(Qt::Key_Tab);
  Type("3");
  Press(Qt::Key_Tab);
  Type("0.6");
  Press(Qt::Key_Tab);
  Type("Z");
  Press(Qt::Key_Tab);
  Type("l");
  Press(Qt::Key_Tab);
  Type("-7.5");
  Press(Qt::Key_Return);
  EXPECT_EQ(Row(4), (Texts{"4", "1: Dead", "3", "0.6", "Z", "Local", "-7.5"}));
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(dialog->ModalResult(), IDOK);
  EXPECT_TRUE(Messages().empty());
  ASSERT_EQ(host.caseLoads[0].point.size(), 3u) << "row 5 was left untyped and is dropped";
  EXPECT_EQ(host.caseLoads[0].point[2], (fmPtLoad{3, 0.6, 2, true, -7.5}));
  EXPECT_EQ(host.caseLoads[0].point[0], original.caseLoads[0].point[0]);
  EXPECT_EQ(host.caseLoads[0].nodal, original.caseLoads[0].nodal);
  EXPECT_EQ(host.caseLoads[1], original.caseLoads[1]);
}

TEST_F(CaseLoadDialogTest, APastedBlockOfLoadsIsReadAndAWrongDirectionIsRefusedBeforeItReachesTheGrid) {
  Open();
  Show();
  AddNewRows("2");
  Click(2, 4);
  Paste("2: Live\t1\t0.1\tY\tGlobal\t-4\n2: Live\t2\t0.9\tY\tGlobal\t-5\n");
  EXPECT_EQ(Row(5), (Texts{"5", "2: Live", "2", "0.9", "Y", "Global", "-5"}));

  Click(5, 1);
  Paste("Down");
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0], "\"Down\" is not one of X, Y, Z, OX, OY, OZ.");
  EXPECT_EQ(sheet().GetData(5, 1), "Y");

  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(host.caseLoads[1].point,
            (std::vector<fmPtLoad>{{1, 0.1, 1, false, -4}, {2, 0.9, 1, false, -5}, {3, 0.75, 1, false, -1}}));
}

TEST_F(CaseLoadDialogTest, DeleteRowsRemovesTheSelectedLoadsAndUndoBringsThemBackWithTheirPrecision) {
  Open();
  Show();
  Click(3, 2);
  Click(3, 3, Qt::ShiftModifier);
  ASSERT_TRUE(dialog->PressButton(res::kCtlGridEditAction));
  ASSERT_EQ(sheet().MaxRows(), 1);
  EXPECT_EQ(sheet().GetData(7, 1), "-2.12346");
  view()->setFocus();
  Press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_EQ(sheet().MaxRows(), 3);
  EXPECT_EQ(Row(3), (Texts{"3", "2: Live", "3", "0.75", "Y", "Global", "-1"}));
  Press(Qt::Key_Y, Qt::ControlModifier);
  ASSERT_EQ(sheet().MaxRows(), 1);
  Press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(host, original) << "the restored rows keep the loads they came from";

  Open();
  Click(1, 1);
  ASSERT_TRUE(dialog->PressButton(res::kCtlGridEditAction));  // the active cell's row
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(host.caseLoads[0].point, (std::vector<fmPtLoad>{original.caseLoads[0].point[1]}));
  EXPECT_EQ(host.caseLoads[0].nodal, original.caseLoads[0].nodal);
}

TEST_F(CaseLoadDialogTest, ARefusalIsOneMessageAtTheCellAndLeavesTheModelUntouched) {
  Open();
  Show();
  sheet().SetData(3, 2, "9");
  sheet().SetData(4, 3, "2");
  ASSERT_TRUE(dialog->PressButton(IDOK));
  EXPECT_EQ(Messages(), (Texts{"Invalid input for point load 2.\nMember 9 does not exist."}));
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{3, 2}));
  EXPECT_EQ(QApplication::focusWidget(), view());
  EXPECT_EQ(dialog->ModalResult(), 0);
  EXPECT_EQ(host, original);
}

TEST_F(CaseLoadDialogTest, ALockedModelShowsTheLoadsReadOnly) {
  ExpectLocked(Open<CNodalLoadDataDlg>(true));
  EXPECT_EQ(sheet().MaxRows(), 1);
  EXPECT_EQ(host, original);
}

}  // namespace
