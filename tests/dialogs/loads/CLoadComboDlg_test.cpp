#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>
#include <functional>

#include "dialogs/loads/CLoadComboDlg.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

// The list dialog with its editor and code dialog driven by the test instead of a modal loop.
class ScriptedComboDlg : public CLoadComboDlg {
 public:
  std::function<int(CDialog&)> child;
  int childRuns = 0;

 protected:
  int RunChildDialog(CDialog& dlg) override {
    ++childRuns;
    if (!child) {
      ADD_FAILURE() << "unexpected child dialog";
      return IDCANCEL;
    }
    return child(dlg);
  }
};

class ComboDialogTest : public DialogTest {
 protected:
  void Open() {
    dlg.m_pLoadCases = &cases;
    dlg.m_pLoadCombs = &combs;
    dlg.InitDialogForTest();
  }
  QTreeWidget* List() { return dlg.Item<QTreeWidget>(kCtlComboList); }
  std::vector<std::string> Row(int row) {
    std::vector<std::string> cells;
    for (int col = 0; col < List()->columnCount(); ++col) cells.push_back(List()->topLevelItem(row)->text(col).toStdString());
    return cells;
  }
  int SelectedRow() { return List()->indexOfTopLevelItem(List()->currentItem()); }
  void Select(std::initializer_list<int> rows) {
    List()->clearSelection();
    for (int r : rows) List()->topLevelItem(r)->setSelected(true);
    List()->setCurrentItem(List()->topLevelItem(*rows.begin()), 0, QItemSelectionModel::NoUpdate);
  }
  std::vector<std::string> Labels() {
    std::vector<std::string> labels;
    for (const auto& c : combs) labels.push_back(c.name);
    return labels;
  }
  // The editor: set the label (when given) and a factor per case row, then OK.
  std::function<int(CDialog&)> Editor(std::string label, std::vector<std::string> factors, bool concrete = false) {
    return [=, this](CDialog& d) {
      auto& item = static_cast<CLoadComboItemDlg&>(d);
      item.InitDialogForTest();
      seenLabel = item.Item<QLineEdit>(kCtlItemLabel)->text().toStdString();
      seenIndex = item.m_nIndex;
      if (!label.empty()) item.Item<QLineEdit>(kCtlItemLabel)->setText(QString::fromStdString(label));
      item.Item<QCheckBox>(kCtlItemConcreteDesign)->setChecked(concrete);
      for (size_t r = 0; r < factors.size(); ++r) item.Spread().sheet().SetData(2, static_cast<int>(r + 1), factors[r]);
      item.PressButton(IDOK);
      return item.ModalResult();
    };
  }
  // The code dialog: choose the code, check the rows, OK.
  std::function<int(CDialog&)> Codes(int code, std::vector<int> rows, bool pdelta = false) {
    return [=](CDialog& d) {
      auto& codes = static_cast<CStdLoadCombinationDlg&>(d);
      codes.InitDialogForTest();
      codes.ChooseItem(kCtlStdCode, code);
      auto* list = codes.Item<QListWidget>(kCtlStdList);
      for (int r : rows) list->item(r)->setCheckState(Qt::Checked);
      codes.Item<QCheckBox>(kCtlStdPDelta)->setChecked(pdelta);
      codes.PressButton(IDOK);
      return codes.ModalResult();
    };
  }

  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L"),
                                   fmLoadCase(3, "Wind X", "Wind-W")};
  std::vector<fmLoadComb> combs;
  ScriptedComboDlg dlg;
  std::string seenLabel;
  int seenIndex = -2;
};

fmLoadComb Comb(const char* label, std::vector<fmLoadCombItem> items = {}) {
  fmLoadComb c(label);
  c.items = std::move(items);
  return c;
}

}  // namespace

TEST_F(ComboDialogTest, ListsEveryCombinationWithItsFlagsAndSelectsTheLast) {
  combs = {Comb("Default"), Comb("Service")};
  combs[1].pdelta = 1;
  combs[1].concreteDesign = 1;
  combs[1].liveDeflection = 1;
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Load Combinations");
  QStringList headings;
  for (int col = 0; col < List()->columnCount(); ++col) headings << List()->headerItem()->text(col);
  EXPECT_EQ(headings.join('|').toStdString(),
            "Combinations|P-Delta|Steel Design|Concrete Design|Total Load Defl.|Live Load Defl.");
  ASSERT_EQ(List()->topLevelItemCount(), 2);
  EXPECT_EQ(Row(0), (std::vector<std::string>{"Default", "No", "No", "No", "No", "No"}));
  EXPECT_EQ(Row(1), (std::vector<std::string>{"Service", "Yes", "No", "Yes", "No", "Yes"}));
  EXPECT_EQ(SelectedRow(), 1);
  EXPECT_TRUE(Messages().empty());

  dlg.resize(1000, 400);
  dlg.show();
  QApplication::processEvents();
  const int width = List()->viewport()->width();
  EXPECT_NEAR(List()->columnWidth(0), 0.3 * width, 1.0);
  for (int col = 1; col <= 5; ++col) EXPECT_NEAR(List()->columnWidth(col), 0.14 * width, 1.0);
}

TEST_F(ComboDialogTest, EmptyListGetsTheDefaultCombination) {
  Open();
  ASSERT_EQ(combs.size(), 1u);
  EXPECT_EQ(combs[0].name, "Default");
  EXPECT_EQ(combs[0].items, (std::vector<fmLoadCombItem>{{"Dead", 1.0}}));
  EXPECT_EQ(List()->topLevelItemCount(), 1);
}

TEST_F(ComboDialogTest, AddProposesTheNextFreeLabelAndAppendsOnOk) {
  combs = {Comb("Combination_1"), Comb("combination_2")};
  Open();
  dlg.child = Editor("", {"1.2", "abc", "-0.5"});
  ASSERT_TRUE(dlg.PressButton(kCtlComboAdd));
  EXPECT_EQ(seenLabel, "Combination_3");
  EXPECT_EQ(seenIndex, -1);
  ASSERT_EQ(combs.size(), 3u);
  EXPECT_EQ(combs[2].name, "Combination_3");
  EXPECT_EQ(combs[2].items, (std::vector<fmLoadCombItem>{{"Dead", 1.2}, {"Wind X", -0.5}}));
  EXPECT_EQ(SelectedRow(), 2);
  EXPECT_TRUE(Messages().empty());

  dlg.child = [](CDialog&) { return IDCANCEL; };
  dlg.PressButton(kCtlComboAdd);
  EXPECT_EQ(combs.size(), 3u);
}

TEST_F(ComboDialogTest, SustainedReminderOnlyWhenExactlyOneConcreteCombination) {
  combs = {Comb("Default")};
  Open();
  dlg.child = Editor("Ultimate", {"1.4"}, /*concrete=*/true);
  dlg.PressButton(kCtlComboAdd);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "You should create a unit load combination that contains only sustained (usually 1.0 x "
                            "DEAD) loads.\nThis load combination is needed to calculate Beta-d in the design for "
                            "concrete columns."});
  prompter.Clear();
  dlg.child = Editor("Ultimate 2", {"1.2", "1.6"}, /*concrete=*/true);
  dlg.PressButton(kCtlComboAdd);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(combs.size(), 3u);
}

TEST_F(ComboDialogTest, ModifyAndDoubleClickEditTheSelectedCombination) {
  combs = {Comb("Default"), Comb("Service", {{"Dead", 1}, {"Gone", 2}})};
  Open();
  Select({1});
  dlg.child = Editor("Service SLS", {"1", "1"});
  dlg.PressButton(kCtlComboModify);
  EXPECT_EQ(seenLabel, "Service");
  EXPECT_EQ(seenIndex, 1);
  ASSERT_EQ(combs.size(), 2u);
  EXPECT_EQ(combs[1].name, "Service SLS");
  EXPECT_EQ(combs[1].items, (std::vector<fmLoadCombItem>{{"Dead", 1}, {"Live", 1}}));  // "Gone" dropped
  EXPECT_EQ(Row(1)[0], "Service SLS");

  Select({0});
  dlg.child = Editor("Default", {"2"});
  emit List()->itemDoubleClicked(List()->topLevelItem(0), 0);
  EXPECT_EQ(combs[0].items, (std::vector<fmLoadCombItem>{{"Dead", 2}}));
  EXPECT_EQ(dlg.childRuns, 2);
}

TEST_F(ComboDialogTest, CopyAppendsOnceThenRefuses) {
  combs = {Comb("Default"), Comb("Service", {{"Dead", 1}})};
  Open();
  Select({1});
  dlg.PressButton(kCtlComboCopy);
  EXPECT_EQ(Labels(), (std::vector<std::string>{"Default", "Service", "Service_Copy"}));
  EXPECT_EQ(combs[2].items, combs[1].items);
  EXPECT_EQ(SelectedRow(), 2);
  Select({1});
  dlg.PressButton(kCtlComboCopy);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Load combination label already used."});
  EXPECT_EQ(combs.size(), 3u);
}

TEST_F(ComboDialogTest, DeleteKeepsTheFirstAndDeletesTheOthers) {
  combs = {Comb("A"), Comb("B"), Comb("C"), Comb("D")};
  Open();
  Select({2, 3});
  dlg.PressButton(kCtlComboDelete);
  EXPECT_EQ(Labels(), (std::vector<std::string>{"A", "B"}));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(SelectedRow(), 0);
  Select({0, 1});
  dlg.PressButton(kCtlComboDelete);
  EXPECT_EQ(Messages(), std::vector<std::string>{"The first load combination may not be deleted."});
  EXPECT_EQ(Labels(), std::vector<std::string>{"A"});
  EXPECT_EQ(List()->topLevelItemCount(), 1);
}

TEST_F(ComboDialogTest, UnitCasesTwiceAddsNothingTheSecondTime) {
  combs = {Comb("Default")};
  Open();
  dlg.PressButton(kCtlComboUnitCases);
  EXPECT_EQ(Labels(), (std::vector<std::string>{"Default", "Comb_Dead", "Comb_Live", "Comb_Wind X"}));
  EXPECT_EQ(SelectedRow(), 3);
  dlg.PressButton(kCtlComboUnitCases);
  EXPECT_EQ(combs.size(), 4u);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ComboDialogTest, GenerateStandardAppendsRefusesASecondRunAndAllowsTheOtherVariant) {
  combs = {Comb("Default")};
  Open();
  dlg.child = Codes(0, {0, 13}, /*pdelta=*/true);
  dlg.PressButton(kCtlComboGenerateStd);
  EXPECT_EQ(Labels(), (std::vector<std::string>{"Default", "IBC-2015_Eq16-1", "IBC-2015_Eq16-3g"}));
  EXPECT_EQ(combs[2].items, (std::vector<fmLoadCombItem>{{"Dead", 1.2}, {"Wind X", -0.5}}));
  EXPECT_EQ(combs[2].pdelta, 1);
  EXPECT_EQ(Row(2), (std::vector<std::string>{"IBC-2015_Eq16-3g", "Yes", "No", "No", "No", "No"}));
  EXPECT_EQ(SelectedRow(), 2);
  EXPECT_TRUE(Messages().empty());

  dlg.child = Codes(0, {1});
  dlg.PressButton(kCtlComboGenerateStd);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "Please rename or delete the existing standard load combinations before running this "
                            "command."});
  EXPECT_EQ(combs.size(), 3u);

  prompter.Clear();
  dlg.child = Codes(6, {0});
  dlg.PressButton(kCtlComboGenerateStd);
  EXPECT_TRUE(Messages().empty());
  ASSERT_EQ(combs.size(), 4u);
  EXPECT_EQ(combs[3].name, "AISC-LRFD93_A4-1");
  EXPECT_EQ(Row(3), (std::vector<std::string>{"AISC-LRFD93_A4-1", "No", "Yes", "No", "No", "No"}));

  dlg.child = Codes(1, {});
  dlg.PressButton(kCtlComboGenerateStd);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(combs.size(), 4u);
  EXPECT_EQ(SelectedRow(), 3);
}
