#include <QLineEdit>

#include "dialogs/loads/CLoadCaseDlg.h"
#include "resources/grid_ids.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

using Texts = std::vector<std::string>;

class LoadCaseDialogTest : public DialogTest {
 protected:
  void Open(bool locked = false) {
    dlg.m_pUnits = &units, dlg.m_pLoadCases = &cases, dlg.m_bModelLocked = locked;
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  Texts Column(int col) {
    Texts texts;
    for (int row = 1; row <= sheet().MaxRows(); ++row) texts.push_back(sheet().GetData(col, row));
    return texts;
  }

  fmUnit units;
  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "l"),
                                   fmLoadCase(3, "Wind X", "WIND"), fmLoadCase(4, "Temperature", "Thermal")};
  const std::vector<fmLoadCase> original = cases;
  CLoadCaseDlg dlg;
};

}  // namespace

TEST_F(LoadCaseDialogTest, FilledThenNewAndDeletedRowsThenOkRebuildsTheCases) {
  Open();
  EXPECT_EQ(Column(3), (Texts{"Dead-D", "Live-L", "Wind-W", "Other"}));
  EXPECT_EQ(sheet().GetCellType(3, 1).items,
            (Texts{"Dead-D", "Live-L", "RoofLive-Lr", "Snow-S", "Wind-W", "Earthquake-E", "Rain-R", "Other"}));
  EXPECT_TRUE(sheet().IsLocked(2, 1));  // the first case's label
  EXPECT_FALSE(sheet().IsLocked(2, 2));
  dlg.Spread().SetSelectBlock({2, 1, 2, 2});
  dlg.PressButton(kCtlCaseDeleteRows);
  EXPECT_EQ(Messages(), Texts{"You may not delete the first load case"});
  EXPECT_EQ(Column(2), (Texts{"Dead", "Live", "Wind X", "Temperature"}));
  prompter.Clear();
  dlg.Spread().SetSelectBlock({2, 2, 2, 3});
  dlg.PressButton(kCtlCaseDeleteRows);
  EXPECT_EQ(Column(2), (Texts{"Dead", "Temperature"}));

  sheet().SetData(3, 2, "Snow-S");
  dlg.Item<QLineEdit>(kCtlNewRowCount)->setText("2");
  dlg.PressButton(kCtlNewRows);
  EXPECT_EQ(Column(1), (Texts{"1", "2", "3", "4"}));
  EXPECT_EQ(sheet().GetData(3, 3), "Other");
  sheet().SetData(2, 3, std::string(200, 'E'));
  sheet().SetData(3, 3, "Earthquake-E");  // row 4 stays without a label and is dropped
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(cases, (std::vector<fmLoadCase>{fmLoadCase(-1, "Dead", "Dead-D"), fmLoadCase(-1, "Temperature", "Snow-S"),
                                            fmLoadCase(-1, std::string(127, 'E'), "Earthquake-E")}));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(LoadCaseDialogTest, RefusalNamesTheRowAndCancelLeavesTheCases) {
  Open();
  sheet().SetData(2, 3, "LIVE");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), Texts{"Duplicate label [LIVE] can not be used."});
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{2, 3}));
  EXPECT_EQ(cases, original);
  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(cases, original);
}

TEST_F(LoadCaseDialogTest, LockedModelIsReadOnlyAndOkReadsClose) {
  Open(/*locked=*/true);
  EXPECT_EQ(Messages(), Texts{"The Model is locked.\nYou can not modify data in the spreadsheet."});
  EXPECT_TRUE(sheet().IsLocked(3, 2));
  EXPECT_EQ(dlg.GetDlgItemText(IDOK), "Close");
  EXPECT_FALSE(dlg.GetDlgItem(kCtlNewRows)->isEnabled());
  EXPECT_FALSE(dlg.GetDlgItem(kCtlCaseDeleteRows)->isEnabled());
  sheet().SetData(2, 2, "Changed");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(cases, original);
}

TEST_F(LoadCaseDialogTest, TheCasesLoadsFollowTheirCasesThroughDeletedAndNewRows) {
  std::vector<fmCaseLoad> loads(4);
  for (size_t i = 0; i < loads.size(); ++i) loads[i].nodal = {{static_cast<uint32_t>(i + 1), 1, -1.0 * (i + 1)}};
  const std::vector<fmCaseLoad> before = loads;
  dlg.m_pCaseLoads = &loads;
  Open();
  dlg.Spread().SetSelectBlock({2, 2, 2, 2});
  ASSERT_TRUE(dlg.PressButton(kCtlCaseDeleteRows));  // Live goes, and its loads with it
  dlg.Spread().Undo();
  dlg.Spread().Redo();
  dlg.Spread().SetSelectBlock({2, 3, 2, 3});
  ASSERT_TRUE(dlg.PressButton(kCtlCaseDeleteRows));  // then Temperature
  dlg.Item<QLineEdit>(kCtlNewRowCount)->setText("1");
  ASSERT_TRUE(dlg.PressButton(kCtlNewRows));
  sheet().SetData(2, 3, "Snow");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Column(2), (Texts{"Dead", "Wind X", "Snow"}));
  ASSERT_EQ(loads.size(), 3u);
  EXPECT_EQ(loads[0], before[0]);
  EXPECT_EQ(loads[1], before[2]);
  EXPECT_TRUE(loads[2].IsEmpty()) << "a new case starts without loads";
}
