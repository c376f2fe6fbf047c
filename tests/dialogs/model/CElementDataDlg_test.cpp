#include <QLineEdit>

#include "dialogs/model/CBeamDataDlg.h"
#include "dialogs/model/CBrickDataDlg.h"
#include "dialogs/model/CShell4DataDlg.h"
#include "resources/grid_ids.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"
#include "support/files.h"

namespace {

constexpr uint32_t kSel = fmElementBase::kSelected;

// The host's model: twelve nodes, two materials, two sections, one thickness and a few
// elements of each kind.
struct HostModel {
  HostModel() {
    for (uint32_t id = 1; id <= 12; ++id) nodes.push_back({id, 0, double(id), 0, 0});
    materials = {fmMat(1), fmMat(2)};
    materials[0].label = "Steel";
    materials[1].label = "Concrete";
    sections = {fmSect(1), fmSect(2)};
    sections[0].label = "W14X90";
    sections[1].label = "W24X68";
    thicknesses = {fmThick(1)};
    thicknesses[0].label = "Slab8in";
    members = {{{1, 0, 1}, {1, 2}, 1, 0.1234567, fmNonlinear::Linear},
               {{2, kSel, 1}, {2, 3}, 2, 90, fmNonlinear::Linear},
               {{4, 0, 1}, {3, 4}, 2, 0, fmNonlinear::TensionOnly}};
    shells = {{{1, kSel, 2}, {1, 2, 3, 4}, 1, 0}, {{2, 0, 2}, {2, 3, 4, 5}, 1, 30}};
    bricks = {{{1, 0, 2}, {1, 2, 3, 4, 5, 6, 7, 8}}, {{3, kSel, 2}, {5, 6, 7, 8, 9, 10, 11, 12}}};
  }
  std::vector<fmNd> nodes;
  std::vector<fmMat> materials;
  std::vector<fmSect> sections;
  std::vector<fmThick> thicknesses;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  std::vector<fmBrick> bricks;
  bool operator==(const HostModel&) const = default;
};

class ElementDialogTest : public DialogTest {
 protected:
  template <class Dlg>
  void Open(Dlg& dlg, bool locked = false, bool selectedOnly = false) {
    dlg.m_pUnits = &units;
    dlg.m_pNodes = &host.nodes;
    dlg.m_pMaterials = &host.materials;
    if constexpr (std::is_same_v<Dlg, CBeamDataDlg>) {
      dlg.m_pSections = &host.sections;
      dlg.m_pBeams = &host.members;
    } else if constexpr (std::is_same_v<Dlg, CShell4DataDlg>) {
      dlg.m_pThicknesses = &host.thicknesses;
      dlg.m_pShells = &host.shells;
    } else {
      dlg.m_pBricks = &host.bricks;
    }
    dlg.m_bModelLocked = locked;
    dlg.m_bShowSelectedOnly = selectedOnly;
    dlg.InitDialogForTest();
  }
  // Opens the dialog of one kind: 0 members, 1 shells, 2 bricks.
  CElementDataDlg* OpenKind(int kind, CBeamDataDlg& beams, CShell4DataDlg& shells, CBrickDataDlg& bricks) {
    if (kind == 0) {
      Open(beams);
      return &beams;
    }
    if (kind == 1) {
      Open(shells);
      return &shells;
    }
    Open(bricks);
    return &bricks;
  }
  static void AddNewRows(CDataGridDlg& dlg, const char* count) {
    dlg.Item<QLineEdit>(res::kCtlNewRowCount)->setText(count);
    ASSERT_TRUE(dlg.PressButton(res::kCtlNewRows));
  }

  fmUnit units;
  HostModel host;
  const HostModel original;
};

TEST_F(ElementDialogTest, EachGridOpensWithItsCaptionColumnsAndRows) {
  CBeamDataDlg beams;
  CShell4DataDlg shells;
  CBrickDataDlg bricks;
  Open(beams);
  Open(shells);
  Open(bricks);
  const struct {
    CElementDataDlg& dlg;
    const char* caption;
    const char* title;
    int rows, cols;
    const char* lastHeading;
    std::vector<std::string> row1;
  } cases[] = {
      {beams, "Member Data", "Member Table", 3, 10, "Status",
       {"1", "1", "2", "1: Steel", "1: W14X90", "0.123457", "Linear", "Active", "Include", "Normal"}},
      {shells, "Shell4 Data", "Shell4 Table", 2, 11, "Status",
       {"1", "1", "2", "3", "4", "2: Concrete", "1: Slab8in", "0", "Active", "Include", "Selected"}},
      {bricks, "Brick Data", "Brick Table", 2, 13, "Status",
       {"1", "1", "2", "3", "4", "5", "6", "7", "8", "2: Concrete", "Active", "Include", "Normal"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.caption);
    const grid::Sheet& sheet = c.dlg.Spread().sheet();
    EXPECT_EQ(c.dlg.windowTitle().toStdString(), c.caption);
    EXPECT_EQ(c.dlg.PrintTitle(), c.title);
    ASSERT_EQ(sheet.MaxRows(), c.rows);
    ASSERT_EQ(sheet.MaxCols(), c.cols);
    EXPECT_EQ(sheet.GetData(c.cols, 0), c.lastHeading);
    for (int col = 1; col <= c.cols; ++col) EXPECT_EQ(sheet.GetData(col, 1), c.row1[col - 1]) << "col " << col;
    EXPECT_TRUE(sheet.IsLocked(1, 1));
    EXPECT_TRUE(c.dlg.GetDlgItem(IDOK)->isEnabled());
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ElementDialogTest, OkWithoutEditsKeepsTheModelExactly) {
  CBeamDataDlg beams;
  CShell4DataDlg shells;
  CBrickDataDlg bricks;
  Open(beams);
  Open(shells);
  Open(bricks);
  for (CDataGridDlg* dlg : std::initializer_list<CDataGridDlg*>{&beams, &shells, &bricks}) {
    ASSERT_TRUE(dlg->PressButton(IDOK));
    EXPECT_EQ(dlg->ModalResult(), IDOK);
  }
  EXPECT_EQ(host, original);  // 0.1234567 survives the "0.123457" shown
}

TEST_F(ElementDialogTest, NewRowsContinueTheIdsWithPlainChoicesAndAreWrittenBack) {
  CBeamDataDlg dlg;
  Open(dlg);
  grid::Sheet& sheet = dlg.Spread().sheet();
  AddNewRows(dlg, "3");
  ASSERT_EQ(sheet.MaxRows(), 6);
  EXPECT_EQ(sheet.GetData(1, 4), "5");
  EXPECT_EQ(sheet.GetData(1, 6), "7");
  EXPECT_TRUE(sheet.IsLocked(1, 5));
  EXPECT_EQ(sheet.ActiveCell(), (grid::CellRef{1, 4}));
  EXPECT_EQ(sheet.GetData(7, 4), "Linear");
  EXPECT_EQ(sheet.GetData(10, 6), "Normal");
  EXPECT_EQ(sheet.GetData(4, 4), "");  // the material is the user's choice

  const char* row4[] = {"5", "6", "2: Concrete", "2: W24X68", "-45", "Compression Only", "Inactive", "Exclude", "Selected"};
  for (int col = 2; col <= 10; ++col) sheet.SetData(col, 4, row4[col - 2]);
  sheet.SetData(10, 1, "Frozen");
  sheet.SetData(5, 2, "1: W14X90");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  ASSERT_EQ(host.members.size(), 4u);  // rows 5 and 6 stayed empty and are dropped
  EXPECT_TRUE(host.members[0].IsFrozen());
  EXPECT_EQ(host.members[1].sect, 1);
  EXPECT_EQ(host.members[3],
            (fmBm{{5, kSel | fmElementBase::kInactive | fmElementBase::kNoSelfWeight, 2},
                  {5, 6},
                  2,
                  -45,
                  fmNonlinear::CompressionOnly}));
}

TEST_F(ElementDialogTest, ShellAndBrickEditsAreWrittenBack) {
  CShell4DataDlg shells;
  Open(shells);
  shells.Spread().sheet().SetData(5, 2, "12");
  shells.Spread().sheet().SetData(8, 2, "15.5");
  shells.Spread().sheet().SetData(11, 1, "Normal");
  ASSERT_TRUE(shells.PressButton(IDOK));
  EXPECT_EQ(host.shells[1].nodes, (std::array<uint32_t, 4>{2, 3, 4, 12}));
  EXPECT_EQ(host.shells[1].angle, 15.5);
  EXPECT_EQ(host.shells[0].flags, 0u);

  CBrickDataDlg bricks;
  Open(bricks);
  bricks.Spread().sheet().SetData(10, 2, "1: Steel");
  bricks.Spread().sheet().SetData(12, 2, "Exclude");
  ASSERT_TRUE(bricks.PressButton(IDOK));
  EXPECT_EQ(host.bricks[1].mat, 1);
  EXPECT_EQ(host.bricks[1].flags, kSel | fmElementBase::kNoSelfWeight);
  EXPECT_EQ(host.members, original.members);
}

TEST_F(ElementDialogTest, RefusalsShowTheirTextKeepTheDialogOpenAndTheModelUnchanged) {
  struct Case {
    const char* name;
    int kind;  // 0 members, 1 shells, 2 bricks
    int col, row;
    const char* text;
    std::string message;
    grid::CellRef active;
  };
  const Case cases[] = {
      {"member node as text", 0, 2, 2, "two",
       "Invalid input for member 2.\nNode-1 must be a node id, a whole number from 0 to 4294967295, not \"two\".",
       {2, 2}},
      {"negative shell node", 1, 3, 1, "-1",
       "Invalid input for shell4 1.\nNode-2 must be a node id, a whole number from 0 to 4294967295, not \"-1\".",
       {3, 1}},
      {"brick node beyond 32 bits", 2, 2, 2, "99999999999",
       "Invalid input for brick 3.\nNode-1 must be a node id, a whole number from 0 to 4294967295, not "
       "\"99999999999\".",
       {2, 2}},
      {"missing node", 0, 3, 3, "17", "Invalid input for member 4.\nNode 17 does not exist.", {3, 3}},
      {"material outside the list", 2, 10, 1, "5: Timber",
       "Invalid input for brick 1.\n\"5: Timber\" is not in the list of materials.", {10, 1}},
      {"empty member node", 0, 3, 1, "", "Invalid empty input for Member 1", {1, 1}},
      {"empty shell node", 1, 5, 1, "", "Invalid empty input for shell4 1", {1, 1}},
      {"member with one node twice", 0, 3, 1, "1", "Member 1 has duplicate nodal IDs.", {2, 1}},
      {"shell with one node twice", 1, 4, 2, "2", "shell4 2 has duplicate nodal IDs.", {2, 2}},
      {"brick with one node twice", 2, 9, 2, "5", "brick 3 has duplicate nodal IDs.", {2, 2}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    CBeamDataDlg beams;
    CShell4DataDlg shells;
    CBrickDataDlg bricks;
    CElementDataDlg* dlg = OpenKind(c.kind, beams, shells, bricks);
    dlg->Spread().sheet().SetData(c.col, c.row, c.text);
    prompter.Clear();
    dlg->PressButton(IDOK);
    EXPECT_EQ(dlg->ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg->Spread().GetActiveCell(), c.active);
    EXPECT_EQ(host, original);
  }
}

TEST_F(ElementDialogTest, EmptiedExistingRowsAreRefusedWithEachKindsWords) {
  const struct {
    int kind;
    int lastNodeCol;
    int rows;
    std::string message;
  } cases[] = {
      {0, 3, 3,
       "Invalid input for existing members (4 - 4).\nIf you intend to delete these members, cancel this dialog box.\n"
       "Then select these members and go to menu Edit | Delete..."},
      {1, 5, 2,
       "Invalid input for existing shell4s (2 - 2).\nIf you intend to delete these shell4s, cancel this dialog box.\n"
       "Then select these shell4s and go to menu Edit | Delete..."},
      {2, 9, 2,
       "Invalid input for existing bricks (3 - 3).\nIf you intend to delete these bricks, cancel this dialog box.\n"
       "Then select these bricks and go to menu Edit | Delete..."},
  };
  for (const auto& c : cases) {
    CBeamDataDlg beams;
    CShell4DataDlg shells;
    CBrickDataDlg bricks;
    CElementDataDlg* dlg = OpenKind(c.kind, beams, shells, bricks);
    AddNewRows(*dlg, "2");  // empty new rows after the emptied one do not excuse it
    for (int col = 2; col <= c.lastNodeCol; ++col) dlg->Spread().sheet().SetData(col, c.rows, "");
    prompter.Clear();
    dlg->PressButton(IDOK);
    EXPECT_EQ(dlg->ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg->Spread().GetActiveCell(), (grid::CellRef{1, c.rows}));
  }
  EXPECT_EQ(host, original);
}

TEST_F(ElementDialogTest, SaveWritesEachTableUnderItsTitle) {
  TempDir dir;
  const struct {
    int kind;
    const char* title;
    const char* cell;
  } cases[] = {
      {0, "Member Table", "<td>Tension only</td>"},
      {1, "Shell4 Table", "<td>1: Slab8in</td>"},
      {2, "Brick Table", "<td>2: Concrete</td>"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.title);
    CBeamDataDlg beams;
    CShell4DataDlg shells;
    CBrickDataDlg bricks;
    CElementDataDlg* dlg = OpenKind(c.kind, beams, shells, bricks);
    const std::string path = dir / (std::to_string(c.kind) + ".htm");
    prompter.QueuePath(path);
    ASSERT_TRUE(dlg->PressButton(res::kCtlSave));
    const std::string html = ReadFileText(path);
    EXPECT_NE(html.find(std::string("<caption>") + c.title + "</caption>"), std::string::npos) << html;
    EXPECT_NE(html.find(c.cell), std::string::npos) << html;
  }
  EXPECT_EQ(host, original);
}

TEST_F(ElementDialogTest, CancelLeavesTheModelAsItWas) {
  CShell4DataDlg dlg;
  Open(dlg);
  dlg.Spread().sheet().SetData(2, 1, "9");
  AddNewRows(dlg, "1");
  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(host, original);
}

TEST_F(ElementDialogTest, SelectedOnlyShowsTheSelectedElementsReadOnly) {
  CBeamDataDlg beams;
  CBrickDataDlg bricks;
  Open(beams, false, /*selectedOnly=*/true);
  Open(bricks, false, /*selectedOnly=*/true);
  for (CElementDataDlg* dlg : std::initializer_list<CElementDataDlg*>{&beams, &bricks}) {
    const grid::Sheet& sheet = dlg->Spread().sheet();
    ASSERT_EQ(sheet.MaxRows(), 1);
    EXPECT_EQ(sheet.GetData(sheet.MaxCols(), 1), "Selected");
    EXPECT_TRUE(sheet.IsLockedAll());
    EXPECT_FALSE(dlg->GetDlgItem(IDOK)->isEnabled());
    EXPECT_FALSE(dlg->GetDlgItem(res::kCtlNewRows)->isEnabled());
    EXPECT_EQ(dlg->GetDlgItemText(IDCANCEL), "Close");
  }
  EXPECT_EQ(beams.Spread().sheet().GetData(1, 1), "2");
  EXPECT_EQ(bricks.Spread().sheet().GetData(1, 1), "3");
  EXPECT_EQ(Messages().size(), 2u);  // one selected-only notice per dialog
}

TEST_F(ElementDialogTest, LockedModelIsReadOnlyAndOkDoesNothing) {
  CShell4DataDlg dlg;
  Open(dlg, /*locked=*/true);
  EXPECT_EQ(dlg.Spread().sheet().MaxRows(), 2);
  EXPECT_TRUE(dlg.Spread().sheet().IsLocked(6, 2));
  EXPECT_FALSE(dlg.GetDlgItem(IDOK)->isEnabled());
  EXPECT_EQ(dlg.GetDlgItemText(IDCANCEL), "Close");
  EXPECT_EQ(Messages().size(), 1u);
  dlg.Spread().sheet().SetData(2, 1, "9");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(host, original);
}

}  // namespace
