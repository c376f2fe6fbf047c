#include <QLineEdit>

#include <memory>

#include "dialogs/model/CBeamDataDlg.h"
#include "dialogs/model/CBrickDataDlg.h"
#include "dialogs/model/CShell4DataDlg.h"
#include "resources/grid_ids.h"
#include "support/DialogTest.h"

namespace {

constexpr uint32_t kSel = fmElementBase::kSelected, kIna = fmElementBase::kInactive,
                   kNoSw = fmElementBase::kNoSelfWeight;

// Records with ids 1, 2, ... and the given labels.
template <class T>
std::vector<T> Labelled(const std::vector<std::string>& labels) {
  std::vector<T> records;
  for (const std::string& label : labels) records.emplace_back(static_cast<int32_t>(records.size() + 1)).label = label;
  return records;
}

struct HostModel {
  HostModel() {
    for (uint32_t id = 1; id <= 12; ++id) nodes.push_back({id, 0, double(id), 0, 0});
    materials = Labelled<fmMat>({"Steel", "Concrete"});
    sections = Labelled<fmSect>({"W14X90", "W24X68"});
    thicknesses = Labelled<fmThick>({"Slab8in"});
    members = {{{1, 0, 1}, {1, 2}, 1, 0.1234567, fmNonlinear::Linear},
               {{2, kSel, 1}, {2, 3}, 2, 90, fmNonlinear::Linear},
               {{4, 0, 1}, {3, 4}, 2, 0, fmNonlinear::TensionOnly}};
    shells = {{{1, kSel, 2}, {1, 2, 3, 4}, 1, 0}, {{2, 0, 2}, {2, 3, 4, 5}, 1, 30}};
    bricks = {{{1, 0, 2}, {1, 2, 3, 4, 5, 6, 7, 8}}, {{3, kSel, 2}, {5, 6, 7, 8, 9, 10, 11, 12}}};
  }
  std::vector<fmNd> nodes;
  std::vector<fmMat> materials; std::vector<fmSect> sections; std::vector<fmThick> thicknesses;
  std::vector<fmBm> members; std::vector<fmShell4> shells; std::vector<fmBrick> bricks;
  bool operator==(const HostModel&) const = default;
};

enum Kind { kMembers, kShells, kBricks };

class ElementDialogTest : public DialogTest {
 protected:
  CElementDataDlg& Open(Kind kind, bool locked = false, bool selectedOnly = false) {
    CElementDataDlg* dlg = nullptr;
    if (kind == kMembers) {
      dlg = (beams = std::make_unique<CBeamDataDlg>()).get();
      beams->m_pSections = &host.sections;
      beams->m_pBeams = &host.members;
    } else if (kind == kShells) {
      dlg = (shells = std::make_unique<CShell4DataDlg>()).get();
      shells->m_pThicknesses = &host.thicknesses;
      shells->m_pShells = &host.shells;
    } else {
      dlg = (bricks = std::make_unique<CBrickDataDlg>()).get();
      bricks->m_pBricks = &host.bricks;
    }
    dlg->m_pUnits = &units, dlg->m_pNodes = &host.nodes, dlg->m_pMaterials = &host.materials;
    dlg->m_bModelLocked = locked, dlg->m_bShowSelectedOnly = selectedOnly;
    dlg->InitDialogForTest();
    return *dlg;
  }
  static void AddNewRows(CDataGridDlg& dlg, const char* count) {
    dlg.Item<QLineEdit>(res::kCtlNewRowCount)->setText(count);
    ASSERT_TRUE(dlg.PressButton(res::kCtlNewRows));
  }
  using Cells = std::vector<std::tuple<int, int, std::string>>;  // (col, row, text)
  static void Edit(CElementDataDlg& dlg, const Cells& cells) {
    for (const auto& [col, row, text] : cells) dlg.Spread().sheet().SetData(col, row, text);
  }

  fmUnit units;
  HostModel host;
  const HostModel original;
  std::unique_ptr<CBeamDataDlg> beams;
  std::unique_ptr<CShell4DataDlg> shells;
  std::unique_ptr<CBrickDataDlg> bricks;
};

TEST_F(ElementDialogTest, EachGridFillsFromTheHostAndOkWithoutEditsKeepsItExactly) {
  const struct { Kind kind; const char *caption, *title; int rows; std::vector<std::string> row1; } cases[] = {
      {kMembers, "Member Data", "Member Table", 3,
       {"1", "1", "2", "1: Steel", "1: W14X90", "0.123457", "Linear", "Active", "Include", "Normal"}},
      {kShells, "Shell4 Data", "Shell4 Table", 2,
       {"1", "1", "2", "3", "4", "2: Concrete", "1: Slab8in", "0", "Active", "Include", "Selected"}},
      {kBricks, "Brick Data", "Brick Table", 2,
       {"1", "1", "2", "3", "4", "5", "6", "7", "8", "2: Concrete", "Active", "Include", "Normal"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.caption);
    CElementDataDlg& dlg = Open(c.kind);
    const grid::Sheet& sheet = dlg.Spread().sheet();
    EXPECT_EQ(dlg.windowTitle().toStdString(), c.caption);
    EXPECT_EQ(dlg.PrintTitle(), c.title);
    ASSERT_EQ(sheet.MaxRows(), c.rows);
    ASSERT_EQ(sheet.MaxCols(), static_cast<int>(c.row1.size()));
    for (int col = 1; col <= sheet.MaxCols(); ++col) EXPECT_EQ(sheet.GetData(col, 1), c.row1[col - 1]) << col;
    EXPECT_TRUE(sheet.IsLocked(1, 1));
    ASSERT_TRUE(dlg.PressButton(IDOK));
    EXPECT_EQ(dlg.ModalResult(), IDOK);
  }
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(host, original);  // 0.1234567 survives the "0.123457" shown
}

TEST_F(ElementDialogTest, NewRowsContinueTheIdsAndEditsAreWrittenBack) {
  CElementDataDlg& dlg = Open(kMembers);
  grid::Sheet& sheet = dlg.Spread().sheet();
  AddNewRows(dlg, "3");
  ASSERT_EQ(sheet.MaxRows(), 6);
  EXPECT_EQ(sheet.GetData(1, 6), "7");
  EXPECT_TRUE(sheet.IsLocked(1, 5));
  EXPECT_EQ(sheet.ActiveCell(), (grid::CellRef{1, 4}));
  EXPECT_EQ(sheet.GetData(7, 4), "Linear");
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
  EXPECT_EQ(host.members[3], (fmBm{{5, kSel | kIna | kNoSw, 2}, {5, 6}, 2, -45, fmNonlinear::CompressionOnly}));

  Edit(Open(kShells), {{5, 2, "12"}, {8, 2, "15.5"}, {6, 2, "1: Steel"}, {11, 1, "Normal"}});
  ASSERT_TRUE(shells->PressButton(IDOK));
  EXPECT_EQ(host.shells[1], (fmShell4{{2, 0, 1}, {2, 3, 4, 12}, 1, 15.5}));
  EXPECT_EQ(host.shells[0].flags, 0u);

  Edit(Open(kBricks), {{10, 2, "1: Steel"}, {12, 2, "Exclude"}});
  ASSERT_TRUE(bricks->PressButton(IDOK));
  EXPECT_EQ(host.bricks[1].mat, 1);
  EXPECT_EQ(host.bricks[1].flags, kSel | kNoSw);
}

TEST_F(ElementDialogTest, RefusalsShowTheirTextKeepTheDialogOpenAndTheModelUnchangedAsCancelDoes) {
  const auto emptied = [](int row, int lastNodeCol) {
    Cells cells;
    for (int col = 2; col <= lastNodeCol; ++col) cells.emplace_back(col, row, "");
    return cells;
  };
  const auto deleted = [](const std::string& what, const std::string& ids) {
    return "Invalid input for existing " + what + " (" + ids + " - " + ids + ").\nIf you intend to delete these " +
           what + ", cancel this dialog box.\nThen select these " + what + " and go to menu Edit | Delete...";
  };
  struct Case { Kind kind; const char* newRows; Cells cells; std::string message; grid::CellRef active; };
  const Case cases[] = {
      {kShells, nullptr, {{3, 1, "-1"}},
       "Invalid input for shell4 1.\nNode-2 must be a node id, a whole number from 0 to 2147483647, not \"-1\".", {3, 1}},
      {kMembers, nullptr, {{3, 3, "17"}}, "Invalid input for member 4.\nNode 17 does not exist.", {3, 3}},
      {kBricks, nullptr, {{10, 1, "5: Timber"}},
       "Invalid input for brick 1.\n\"5: Timber\" is not in the list of materials.", {10, 1}},
      {kShells, nullptr, {{7, 1, "Slab"}},
       "Invalid input for shell4 1.\n\"Slab\" is not in the list of thicknesses.", {7, 1}},
      {kMembers, "2", {{2, 4, "1"}, {3, 4, "2"}, {4, 4, "1: Steel"}},
       "Invalid input for member 5.\nNo section is chosen.", {5, 4}},
      {kBricks, "1", {{2, 3, "1"}, {3, 3, "2"}, {4, 3, "3"}, {5, 3, "4"}, {6, 3, "5"}, {7, 3, "6"}, {8, 3, "7"},
                      {9, 3, "8"}}, "Invalid input for brick 4.\nNo material is chosen.", {10, 3}},
      {kMembers, nullptr, {{3, 1, ""}}, "Invalid empty input for Member 1", {1, 1}},
      {kMembers, nullptr, {{3, 1, "1"}}, "Member 1 has duplicate nodal IDs.", {2, 1}},
      // Empty new rows after an emptied existing one do not excuse it.
      {kMembers, "2", emptied(3, 3), deleted("members", "4"), {1, 3}},
      {kBricks, "2", emptied(2, 9), deleted("bricks", "3"), {1, 2}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    CElementDataDlg& dlg = Open(c.kind);
    if (c.newRows) AddNewRows(dlg, c.newRows);
    Edit(dlg, c.cells);
    prompter.Clear();
    dlg.PressButton(IDOK);
    EXPECT_EQ(dlg.ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg.Spread().GetActiveCell(), c.active);
    EXPECT_EQ(host, original);
  }
  CElementDataDlg& dlg = Open(kShells);
  Edit(dlg, {{2, 1, "9"}});
  AddNewRows(dlg, "1");
  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(host, original);
}

TEST_F(ElementDialogTest, SelectedOnlyShowsTheSelectedElementsReadOnly) {
  for (const auto& [kind, id] : {std::pair(kMembers, "2"), std::pair(kBricks, "3")}) {
    CElementDataDlg& dlg = Open(kind, false, /*selectedOnly=*/true);
    const grid::Sheet& sheet = dlg.Spread().sheet();
    ASSERT_EQ(sheet.MaxRows(), 1);
    EXPECT_EQ(sheet.GetData(1, 1), id);
    EXPECT_EQ(sheet.GetData(sheet.MaxCols(), 1), "Selected");
    EXPECT_TRUE(sheet.IsLockedAll());
    EXPECT_FALSE(dlg.GetDlgItem(IDOK)->isEnabled());
    EXPECT_FALSE(dlg.GetDlgItem(res::kCtlNewRows)->isEnabled());
    dlg.PressButton(IDOK);
    EXPECT_EQ(dlg.ModalResult(), 0);
  }
  EXPECT_EQ(Messages().size(), 2u);  // one notice per dialog
  EXPECT_EQ(host, original);
}

}  // namespace
