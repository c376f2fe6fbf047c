#include <QLineEdit>

#include "dialogs/loads/CLoadCaseDlg.h"
#include "resources/grid_ids.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

class LoadCaseDialogTest : public DialogTest {
 protected:
  void Open(bool locked = false) {
    dlg.m_pUnits = &units;
    dlg.m_pLoadCases = &cases;
    dlg.m_bModelLocked = locked;
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  std::vector<std::string> Column(int col) {
    std::vector<std::string> texts;
    for (int row = 1; row <= sheet().MaxRows(); ++row) texts.push_back(sheet().GetData(col, row));
    return texts;
  }
  void NewRows(const char* count) {
    dlg.Item<QLineEdit>(kCtlNewRowCount)->setText(count);
    dlg.PressButton(kCtlNewRows);
  }
  void DeleteRows(int row1, int row2) {
    dlg.Spread().SetSelectBlock({2, row1, 2, row2});
    dlg.PressButton(kCtlCaseDeleteRows);
  }

  fmUnit units;
  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "l"),
                                   fmLoadCase(3, "Wind X", "WIND"), fmLoadCase(4, "Temperature", "Thermal")};
  const std::vector<fmLoadCase> original = cases;
  CLoadCaseDlg dlg;
};

}  // namespace

TEST_F(LoadCaseDialogTest, FillsNumberLabelAndTypeDropDown) {
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Load Cases");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlCaseNote),
            "The optional load types are used in forming standard load combinations");
  EXPECT_EQ(sheet().GetData(1, 0), "Case No");
  EXPECT_EQ(sheet().GetData(2, 0), "Label");
  EXPECT_EQ(sheet().GetData(3, 0), "Type");
  EXPECT_EQ(Column(1), (std::vector<std::string>{"1", "2", "3", "4"}));
  EXPECT_EQ(Column(2), (std::vector<std::string>{"Dead", "Live", "Wind X", "Temperature"}));
  EXPECT_EQ(Column(3), (std::vector<std::string>{"Dead-D", "Live-L", "Wind-W", "Other"}));
  const grid::CellType& type = sheet().GetCellType(3, 1);
  EXPECT_EQ(type.kind, grid::CellType::Combo);
  EXPECT_EQ(type.items, (std::vector<std::string>{"Dead-D", "Live-L", "RoofLive-Lr", "Snow-S", "Wind-W",
                                                  "Earthquake-E", "Rain-R", "Other"}));
  EXPECT_TRUE(sheet().IsLocked(1, 3));
  EXPECT_TRUE(sheet().IsLocked(2, 1));  // the first case's label
  EXPECT_FALSE(sheet().IsLocked(2, 2));
  EXPECT_FALSE(sheet().IsLocked(3, 1));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(LoadCaseDialogTest, OkRebuildsTheCasesRowByRow) {
  Open();
  sheet().SetData(2, 2, "Office live");
  sheet().SetData(3, 4, "Snow-S");
  NewRows("2");
  EXPECT_EQ(Column(1), (std::vector<std::string>{"1", "2", "3", "4", "5", "6"}));
  EXPECT_EQ(sheet().GetData(3, 5), "Other");
  sheet().SetData(2, 5, std::string(200, 'E'));
  sheet().SetData(3, 5, "Earthquake-E");  // row 6 stays without a label and is dropped
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  ASSERT_EQ(cases.size(), 5u);
  EXPECT_EQ(cases[0], fmLoadCase(-1, "Dead", "Dead-D"));
  EXPECT_EQ(cases[1], fmLoadCase(-1, "Office live", "Live-L"));
  EXPECT_EQ(cases[3], fmLoadCase(-1, "Temperature", "Snow-S"));
  EXPECT_EQ(cases[4].name, std::string(127, 'E'));
  EXPECT_EQ(cases[4].type, "Earthquake-E");
}

TEST_F(LoadCaseDialogTest, RefusalsNameTheRowAndLeaveTheCases) {
  const std::string allowed = "contain letters, digits, blanks between words and the characters _ - . ( ) + /";
  struct Case {
    const char* name;
    int row;
    std::string label;
    std::string message;
  };
  const Case cases_[] = {
      {"bad character", 3, "Wind #3", "Load case label can only " + allowed +
                                          "; the character \"#\" at position 6 is not allowed."},
      {"emptied existing label", 4, "", "Load case label can only " + allowed + ", and may not be empty."},
      {"duplicate", 3, "LIVE", "Duplicate label [LIVE] can not be used."},
  };
  for (const Case& c : cases_) {
    SCOPED_TRACE(c.name);
    CLoadCaseDlg fresh;
    fresh.m_pUnits = &units;
    fresh.m_pLoadCases = &cases;
    fresh.InitDialogForTest();
    fresh.Spread().sheet().SetData(2, c.row, c.label);
    prompter.Clear();
    fresh.PressButton(IDOK);
    EXPECT_EQ(fresh.ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(fresh.Spread().sheet().ActiveCell(), (grid::CellRef{2, c.row}));
    EXPECT_EQ(cases, original);
  }
}

TEST_F(LoadCaseDialogTest, DeleteRowsNeverTheFirst) {
  Open();
  DeleteRows(1, 2);
  EXPECT_EQ(Messages(), std::vector<std::string>{"You may not delete the first load case"});
  EXPECT_EQ(Column(2), (std::vector<std::string>{"Dead", "Live", "Wind X", "Temperature"}));
  prompter.Clear();
  DeleteRows(2, 3);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Column(1), (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(Column(2), (std::vector<std::string>{"Dead", "Temperature"}));
  EXPECT_EQ(Column(3), (std::vector<std::string>{"Dead-D", "Other"}));
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(cases, (std::vector<fmLoadCase>{fmLoadCase(-1, "Dead", "Dead-D"), fmLoadCase(-1, "Temperature", "Other")}));
}

TEST_F(LoadCaseDialogTest, CancelLeavesTheCases) {
  Open();
  sheet().SetData(2, 2, "Changed");
  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(cases, original);
}

TEST_F(LoadCaseDialogTest, LockedModelIsReadOnlyAndOkReadsClose) {
  Open(/*locked=*/true);
  EXPECT_EQ(Messages(), std::vector<std::string>{"The Model is locked.\nYou can not modify data in the spreadsheet."});
  EXPECT_EQ(sheet().MaxRows(), 4);
  EXPECT_TRUE(sheet().IsLocked(2, 2));
  EXPECT_TRUE(sheet().IsLocked(3, 2));
  EXPECT_EQ(dlg.GetDlgItemText(IDOK), "Close");
  EXPECT_FALSE(dlg.GetDlgItem(kCtlNewRows)->isEnabled());
  EXPECT_FALSE(dlg.GetDlgItem(kCtlCaseDeleteRows)->isEnabled());
  sheet().SetData(2, 2, "Changed");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(cases, original);
}
