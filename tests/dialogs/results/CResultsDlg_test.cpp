#include <QCheckBox>
#include <QComboBox>
#include <tuple>

#include "dialogs/results/CResultsDlg.h"
#include "dialogs/results/sample_struct.h"
#include "resources/grid_ids.h"
#include "resources/results_ids.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"
#include "support/files.h"

namespace {

class ResultsDialogTest : public DialogTest {
 protected:
  static void Open(CResultsDlg& d, CfmStruct& s, int kind, int query = 0) {
    d.m_nReportType = kind;
    d.m_pStruct = &s;
    d.m_nQueryId = query;
    d.InitDialogForTest();
  }
  void Open(int kind, int query = 0) { Open(dlg, model, kind, query); }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  std::string Title() const { return dlg.windowTitle().toStdString(); }
  std::string ComboText(int i) const { return dlg.Item<QComboBox>(res::kCtlResultsCombo)->itemText(i).toStdString(); }

  CfmStruct model = SampleStruct();
  CResultsDlg dlg;
};

}  // namespace

TEST_F(ResultsDialogTest, SupportReactionsOfTheChosenCaseSavedUnderTheWindowTitle) {
  Open(1);
  EXPECT_EQ(Title(), "Support Reactions - [Dead]");
  EXPECT_EQ(ComboText(2), "3: D+W");
  EXPECT_EQ(sheet().GetData(3, 3), "30.000");  // the sum of the dead load's reactions

  ASSERT_TRUE(dlg.ChooseItem(res::kCtlResultsCombo, 1));
  EXPECT_EQ(Title(), "Support Reactions - [Wind X]");
  EXPECT_EQ(sheet().GetData(2, 1), "-1.500");
  EXPECT_EQ(dlg.m_nCombination, 1);

  TempDir dir;
  prompter.QueuePath(dir / "reactions.htm");
  ASSERT_TRUE(dlg.PressButton(res::kCtlSave));
  const std::string html = ReadFileText(dir / "reactions.htm");
  EXPECT_NE(html.find("<caption>Support Reactions - [Wind X]</caption>"), std::string::npos) << html;
  EXPECT_EQ(dlg.ModalResult(), 0);  // the dialog stays open
}

TEST_F(ResultsDialogTest, KindsWithoutAReportKeepTheCaptionAndAnEmptyGrid) {
  for (int kind : {-1, 9, 80}) {
    CResultsDlg one;
    Open(one, model, kind, 1);
    EXPECT_EQ(one.windowTitle().toStdString(), "Results") << kind;
    EXPECT_EQ(one.Spread().sheet().MaxRows(), 0) << kind;
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ResultsDialogTest, ControlsHiddenPerKind) {
  const std::tuple<int, bool, bool, bool> cases[] = {  // kind, label shown, combo shown, check box shown
      {0, true, true, true},   {20, false, false, false}, {34, false, false, false}, {41, false, false, true},
      {52, false, false, true}, {24, false, false, true}, {29, false, false, false}, {55, true, true, true},
      {51, true, true, true}};
  for (const auto& [kind, label, combo, check] : cases) {
    CResultsDlg one;
    Open(one, model, kind);
    auto shown = [&](int id) { return !one.GetDlgItem(id)->isHidden(); };
    EXPECT_EQ(std::tuple(shown(res::kCtlResultsComboLabel), shown(res::kCtlResultsCombo),
                         shown(res::kCtlResultsShowSelected)),
              std::tuple(label, combo, check))
        << kind;
  }
}

TEST_F(ResultsDialogTest, ModeShapesListEveryModeWithItsPeriod) {
  model.m_Solution.eigenModes.push_back({4.0, {{4, {0, 0, 0, 0, 0.5, 0}}}});
  Open(21);
  EXPECT_EQ(ComboText(2), "Mode-3: (Period=3.142 sec)");
  EXPECT_EQ(dlg.GetDlgItemText(res::kCtlResultsComboLabel), "Mode Shape:");
  ASSERT_TRUE(dlg.ChooseItem(res::kCtlResultsCombo, 2));
  EXPECT_EQ(Title(), "Eigenvectors - [Mode-3]");
  EXPECT_EQ(sheet().GetData(1, 1), "4");
  EXPECT_EQ(sheet().GetData(6, 1), "0.500");
}

TEST_F(ResultsDialogTest, ShowSelectedWritesTheModelsFlagForTheNextReport) {
  model.m_Nodes[1].flags = fmNd::kSelected;
  Open(1);
  EXPECT_FALSE(dlg.Item<QCheckBox>(res::kCtlResultsShowSelected)->isChecked());
  ASSERT_TRUE(dlg.PressButton(res::kCtlResultsShowSelected));
  EXPECT_EQ(model.m_nShowSelected, 1);
  EXPECT_EQ(sheet().MaxRows(), 2);  // the selected support and the sum

  CResultsDlg next;
  Open(next, model, 0);
  EXPECT_TRUE(next.Item<QCheckBox>(res::kCtlResultsShowSelected)->isChecked());
  EXPECT_EQ(next.Spread().sheet().MaxRows(), 1);

  ASSERT_TRUE(dlg.PressButton(res::kCtlResultsShowSelected));
  EXPECT_EQ(model.m_nShowSelected, 0);
  EXPECT_EQ(sheet().MaxRows(), 3);
}

TEST_F(ResultsDialogTest, AModelLibraryErrorIsShownAndClosesTheDialog) {
  model.m_Solution.results.resize(1);  // the wind case has no results
  Open(0);
  EXPECT_EQ(dlg.ModalResult(), 0);
  ASSERT_TRUE(dlg.ChooseItem(res::kCtlResultsCombo, 1));
  EXPECT_EQ(Messages(), (std::vector<std::string>{"The results of load case 2 [Wind X] are not available."}));
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(sheet().MaxRows(), 0);
}

TEST_F(ResultsDialogTest, AnInformationSheetNeedsNoLoadCases) {
  model.m_Solution.cases.clear();
  model.m_Solution.results.clear();
  Open(29, 3);
  EXPECT_EQ(Title(), "Nodal Info");
  EXPECT_EQ(sheet().GetData(1, 2), "  x = 0.000;  y = 12.000;  z = 0.000 (ft)");
}
