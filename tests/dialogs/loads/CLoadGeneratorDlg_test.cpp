#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include "dialogs/loads/CMovingLoadDlg.h"
#include "dialogs/loads/CPatternLoadDataDlg.h"
#include "resources/grid_ids.h"
#include "support/GridHands.h"

namespace {

// Three girders of 4 ft along X (members 11, 12, 13 from node 1 to node 4), member 20 off
// to the side; members 11 to 13 selected. Cases Dead and Live, with a point load of Live at
// the middle of member 11; combination C1 = 1.2 Dead + 1.6 Live.
struct Host {
  Host() {
    for (uint32_t id = 1; id <= 4; ++id) nodes.push_back({id, 0, 4.0 * (id - 1), 0, 0});
    nodes.push_back({9, 0, 0, 3, 0});
    for (uint32_t k = 0; k < 3; ++k) {
      fmBm m;
      m.id = 11 + k;
      m.nodes = {k + 1, k + 2};
      m.flags = fmElementBase::kSelected;
      members.push_back(m);
    }
    fmBm off;
    off.id = 20;
    off.nodes = {1, 9};
    members.push_back(off);
    cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L")};
    caseLoads.resize(2);
    caseLoads[1].point = {{11, 0.5, 1, false, -10}};
    caseLoads[1].line = {{12, {0, 1}, {-1, -1}, 1, false}};
    fmLoadComb c1("C1");
    c1.items = {{"Dead", 1.2}, {"Live", 1.6}};
    combs = {c1};
  }
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmLoadCase> cases;
  std::vector<fmCaseLoad> caseLoads;
  std::vector<fmLoadComb> combs;
  bool operator==(const Host&) const = default;
  std::vector<std::string> CaseLabels() const {
    std::vector<std::string> out;
    for (const auto& c : cases) out.push_back(c.name);
    return out;
  }
  std::vector<std::string> CombLabels() const {
    std::vector<std::string> out;
    for (const auto& c : combs) out.push_back(c.name);
    return out;
  }
};

using Texts = std::vector<std::string>;

class GeneratorDialogTest : public GridDialogTest {
 protected:
  template <class Dlg>
  void Open(Dlg& dlg) {
    dlg.m_pUnits = &units;
    dlg.m_pMembers = &host.members, dlg.m_pNodes = &host.nodes, dlg.m_pLoadCases = &host.cases;
    dlg.m_pCaseLoads = &host.caseLoads, dlg.m_pLoadCombs = &host.combs;
    dlg.InitDialogForTest();
  }
  static void SetValue(CPatternLoadDataDlg& dlg, const char* text) {
    dlg.Item<QLineEdit>(frame::IdOf(&CPatternLoadDataDlg::m_dRatio))->setText(text);
  }
  static void SetValue(CMovingLoadDlg& dlg, const char* text) {
    dlg.Item<QLineEdit>(frame::IdOf(&CMovingLoadDlg::m_dStep))->setText(text);
  }
  // The text of the form's first static, its note.
  static std::string Note(const CDialog& dlg, const frame::FormBase& form) {
    for (const frame::FieldLayout& f : form.Layouts())
      if (f.kind == frame::FieldKind::Static) return dlg.GetDlgItemText(f.id);
    return {};
  }
  template <class Dlg>
  static int CaseId() {
    return frame::IdOf<Dlg>(&Dlg::m_nCase);
  }
  static Texts Path(CDataGridDlg& dlg) {
    Texts ids;
    for (int row = 1; row <= dlg.Spread().sheet().MaxRows(); ++row) ids.push_back(dlg.Spread().GetData(1, row));
    return ids;
  }

  fmUnit units;
  Host host;
  const Host original;
};

TEST_F(GeneratorDialogTest, TheMovingDialogOpensOnTheSelectedMembersAndGeneratesOnePositionPerStep) {
  CMovingLoadDlg dlg;
  Open(dlg);
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Moving Load");
  EXPECT_EQ(Note(dlg, CMovingLoadDlg::Description()),
            "Note: Point loads of the moving load case will be moved on the members.  New loads, load cases and load "
            "combinations are generated appropriately.");
  EXPECT_EQ(dlg.GetDlgItemText(frame::FieldOf<CMovingLoadDlg>(&CMovingLoadDlg::m_nCase).labelId), "Moving load case:");
  EXPECT_EQ(dlg.GetDlgItemText(frame::FieldOf(&CMovingLoadDlg::m_dStep).suffixId), "ft");
  EXPECT_EQ(dlg.GetDlgItemText(res::kCtlGridEditAction), "Cut Selected Rows");
  auto* cases = dlg.Item<QComboBox>(CaseId<CMovingLoadDlg>());
  ASSERT_EQ(cases->count(), 2);
  EXPECT_EQ(cases->itemText(1).toStdString(), "2: Live");
  EXPECT_EQ(Path(dlg), (Texts{"11", "12", "13"}));

  dlg.show();
  QApplication::setActiveWindow(&dlg);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), (Texts{"Moving step may be positive or negative, but not zero"}));
  EXPECT_EQ(QApplication::focusWidget(), dlg.GetDlgItem(frame::IdOf(&CMovingLoadDlg::m_dStep)));

  SetValue(dlg, "5");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages().back(), "Invalid moving load case");
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(host, original);

  ASSERT_TRUE(dlg.ChooseItem(CaseId<CMovingLoadDlg>(), 1));
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  // The load starts 2 ft along a 12 ft path: at 7 and 12 ft it is still on it, at 17 ft off.
  EXPECT_EQ(host.CaseLabels(), (Texts{"Dead", "Live", "Moving_Dir1_Live_Step1", "Moving_Dir1_Live_Step2"}));
  ASSERT_EQ(host.caseLoads.size(), 4u);
  EXPECT_EQ(host.caseLoads[2].point, (std::vector<fmPtLoad>{{12, 0.75, 1, false, -10}}));
  EXPECT_EQ(host.caseLoads[3].point, (std::vector<fmPtLoad>{{13, 1.0, 1, false, -10}}));
  EXPECT_EQ(host.caseLoads[3].line, original.caseLoads[1].line) << "other loads stand";
  EXPECT_EQ(host.CombLabels(), (Texts{"C1", "Moving1_C1_Dir1_Step1", "Moving1_C1_Dir1_Step2"}));
  EXPECT_EQ(host.combs[2].items, (std::vector<fmLoadCombItem>{{"Dead", 1.2}, {"Moving_Dir1_Live_Step2", 1.6}}));
}

TEST_F(GeneratorDialogTest, TheMovingPathIsCheckedAtItsCellAndAGapInTheChainIsAskedAbout) {
  CMovingLoadDlg dlg;
  dlg.m_nCase = 1;
  dlg.m_dStep = 3;
  Open(dlg);
  grid::Sheet& sheet = dlg.Spread().sheet();
  sheet.SetData(1, 3, "11");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), (Texts{"Duplicate member id 11 found"}));
  EXPECT_EQ(sheet.ActiveCell(), (grid::CellRef{1, 3}));
  sheet.SetData(1, 3, "77");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages().back(), "Member id 77 not found");
  sheet.SetData(1, 2, "");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages().back(), "Invalid empty input for moving load 2");
  EXPECT_EQ(sheet.ActiveCell(), (grid::CellRef{1, 2}));

  sheet.SetData(1, 2, "13");  // 11 then 13: no shared node
  sheet.SetData(1, 3, "");
  prompter.QueueAnswer(false);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages().back(),
            "The members you have selected are not connected in sequence, moving loads may not be appropriate.\n"
            "Do you want to continue?");
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(host, original);
}

TEST_F(GeneratorDialogTest, BiDirectionalKeepsTheFirstDirectionWhenTheSecondIsRefusedAndASecondRunIsRefused) {
  host.cases.push_back(fmLoadCase(3, "moving_dir2_live_old", "Other"));
  host.caseLoads.resize(3);
  CMovingLoadDlg dlg;
  dlg.m_nCase = 1;
  dlg.m_dStep = -6;
  Open(dlg);
  dlg.Item<QCheckBox>(frame::IdOf(&CMovingLoadDlg::m_bBiDirectional))->setChecked(true);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), (Texts{"Moving load case prefix (Moving_Dir2_Live_) already exists"}));
  EXPECT_EQ(dlg.ModalResult(), IDOK) << "Dir1 generated: the sign of the step is ignored";
  EXPECT_EQ(host.CaseLabels(),
            (Texts{"Dead", "Live", "moving_dir2_live_old", "Moving_Dir1_Live_Step1"}));
  EXPECT_EQ(host.caseLoads[3].point, (std::vector<fmPtLoad>{{12, 1.0, 1, false, -10}})) << "exactly at the end, it stays";

  const Host after = host;
  CMovingLoadDlg again;
  again.m_nCase = 1;
  again.m_dStep = 6;
  Open(again);
  ASSERT_TRUE(again.PressButton(IDOK));
  EXPECT_EQ(Messages().back(), "Moving load case prefix (Moving_Dir1_Live_) already exists");
  EXPECT_EQ(again.ModalResult(), 0);
  EXPECT_EQ(host, after);
}

TEST_F(GeneratorDialogTest, PathRowsAreTypedAddedAndCutThroughTheGrid) {
  CMovingLoadDlg dlg;
  Open(dlg);
  Show(dlg);
  AddNewRows(dlg, "2");
  EXPECT_EQ(Path(dlg), (Texts{"11", "12", "13", "", ""})) << "new rows hold no numbers of their own";
  TypeInto(1, 4, "20");
  EXPECT_EQ(Path(dlg), (Texts{"11", "12", "13", "20", ""}));
  Click(1, 1);
  Click(1, 2, Qt::ShiftModifier);
  ASSERT_TRUE(dlg.PressButton(res::kCtlGridEditAction));
  EXPECT_EQ(Path(dlg), (Texts{"13", "20", ""}));
  EXPECT_EQ(QApplication::clipboard()->text().left(2).toStdString(), "11") << "cut, not only deleted";
  view()->setFocus();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Path(dlg), (Texts{"11", "12", "13", "20", ""}));
}

TEST_F(GeneratorDialogTest, ThePatternDialogOffersTheLiveCaseAndMakesOddEvenAndAdjacentSpanCases) {
  CPatternLoadDataDlg dlg;
  Open(dlg);
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Pattern Load");
  EXPECT_EQ(dlg.PrintTitle(), "Point Load Table");
  EXPECT_EQ(dlg.GetDlgItemText(frame::FieldOf<CPatternLoadDataDlg>(&CPatternLoadDataDlg::m_nCase).labelId),
            "Pattern load case:");
  EXPECT_EQ(dlg.Item<QComboBox>(CaseId<CPatternLoadDataDlg>())->currentIndex(), 1) << "the first Live case";
  EXPECT_EQ(dlg.Item<QLineEdit>(frame::IdOf(&CPatternLoadDataDlg::m_dRatio))->text().toStdString(), "1");
  EXPECT_TRUE(dlg.findChildren<QCheckBox*>().isEmpty()) << "no Bi-Directional";

  dlg.Spread().sheet().SetData(1, 2, "");
  dlg.Spread().sheet().SetData(1, 3, "");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), (Texts{"Number of members must be greater than or equal to 2"}));
  EXPECT_EQ(host, original);

  dlg.Spread().sheet().SetData(1, 2, "12");
  SetValue(dlg, "0.5");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(host.CaseLabels(), (Texts{"Dead", "Live", "Pattern_Live_Odd", "Pattern_Live_Even", "Pattern_Live_S1"}));
  EXPECT_EQ(host.caseLoads[2].point, (std::vector<fmPtLoad>{{11, 0.5, 1, false, -5}}));
  EXPECT_TRUE(host.caseLoads[2].line.empty());
  EXPECT_TRUE(host.caseLoads[3].point.empty());
  EXPECT_EQ(host.caseLoads[3].line, (std::vector<fmLineLoad>{{12, {0, 1}, {-0.5, -0.5}, 1, false}}));
  EXPECT_EQ(host.caseLoads[4].point.size() + host.caseLoads[4].line.size(), 2u);
  EXPECT_EQ(host.CombLabels(), (Texts{"C1", "Pattern1_C1_Odd", "Pattern1_C1_Even", "Pattern1_C1_S1"}));
}

}  // namespace

namespace {

TEST_F(GeneratorDialogTest, ALockedModelGeneratesNothing) {
  CPatternLoadDataDlg dlg;
  dlg.m_bModelLocked = 1;
  Open(dlg);
  ExpectLocked(dlg);
  EXPECT_EQ(host, original);
}

}  // namespace
