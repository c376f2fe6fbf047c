#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>
#include <functional>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CLoadComboDlg.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

// The editor and code dialog are driven by the test instead of a modal loop.
class ScriptedComboDlg : public CLoadComboDlg {
 public:
  ScriptedComboDlg() : previous(SetModalLoopHook([this](CDialog& d) { return child ? child(d) : IDCANCEL; })) {}
  ~ScriptedComboDlg() override { SetModalLoopHook(previous); }
  std::function<int(CDialog&)> child;

 private:
  ModalLoopHook previous;
};

using Texts = std::vector<std::string>;

class ComboDialogTest : public DialogTest {
 protected:
  void Open(std::vector<std::string> labels) {
    for (const auto& label : labels) combs.emplace_back(label);
    dlg.m_pLoadCases = &cases, dlg.m_pLoadCombs = &combs;
    dlg.InitDialogForTest();
  }
  QTreeWidget* List() { return dlg.Item<QTreeWidget>(kCtlComboList); }
  Texts Row(int row) {
    Texts cells;
    for (int col = 0; col < List()->columnCount(); ++col) cells.push_back(List()->topLevelItem(row)->text(col).toStdString());
    return cells;
  }
  int SelectedRow() { return List()->indexOfTopLevelItem(List()->currentItem()); }
  void Select(std::initializer_list<int> rows) {
    List()->clearSelection();
    for (int r : rows) List()->topLevelItem(r)->setSelected(true);
    List()->setCurrentItem(List()->topLevelItem(*rows.begin()), 0, QItemSelectionModel::NoUpdate);
  }
  Texts Labels() {
    Texts labels;
    for (const auto& c : combs) labels.push_back(c.name);
    return labels;
  }
  // Notes the proposed label, sets label (when given), concrete flag and factors, presses OK.
  std::function<int(CDialog&)> Editor(std::string label, Texts factors, bool concrete = false) {
    return [=, this](CDialog& d) {
      auto& item = static_cast<CLoadComboItemDlg&>(d);
      seenLabel = item.GetDlgItemText(frame::IdOf(&CLoadComboItemDlg::m_strLabel));
      if (!label.empty()) item.Item<QLineEdit>(frame::IdOf(&CLoadComboItemDlg::m_strLabel))->setText(QString::fromStdString(label));
      item.Item<QCheckBox>(frame::IdOf(&CLoadComboItemDlg::m_bConcreteDesign))->setChecked(concrete);
      for (size_t r = 0; r < factors.size(); ++r) item.Spread().sheet().SetData(2, static_cast<int>(r + 1), factors[r]);
      item.PressButton(IDOK);
      return item.ModalResult();
    };
  }
  std::function<int(CDialog&)> Codes(int code, std::vector<int> rows, bool pdelta = false) {
    return [=](CDialog& d) {
      auto& codes = static_cast<CStdLoadCombinationDlg&>(d);
      codes.ChooseItem(frame::IdOf(&CStdLoadCombinationDlg::m_nCode), code);
      for (int r : rows) codes.Item<QListWidget>(kCtlStdList)->item(r)->setCheckState(Qt::Checked);
      codes.Item<QCheckBox>(frame::IdOf(&CStdLoadCombinationDlg::m_bPDelta))->setChecked(pdelta);
      codes.PressButton(IDOK);
      return codes.ModalResult();
    };
  }

  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L"),
                                   fmLoadCase(3, "Wind X", "Wind-W")};
  std::vector<fmLoadComb> combs;
  ScriptedComboDlg dlg;
  std::string seenLabel;
};

}  // namespace

TEST_F(ComboDialogTest, AddProposesTheLabelOkAppendsCancelDoesNot) {
  Open({"Combination_1", "combination_2"});
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Load Combinations");
  EXPECT_EQ(SelectedRow(), 1);
  dlg.child = Editor("", {"1.2", "abc", "-0.5"}, /*concrete=*/true);
  ASSERT_TRUE(dlg.PressButton(kCtlComboAdd));
  EXPECT_EQ(seenLabel, "Combination_3");
  ASSERT_EQ(combs.size(), 3u);
  EXPECT_EQ(combs[2].name, "Combination_3");
  EXPECT_EQ(combs[2].items, (std::vector<fmLoadCombItem>{{"Dead", 1.2}, {"Wind X", -0.5}}));
  EXPECT_EQ(Row(2), (Texts{"Combination_3", "No", "No", "Yes", "No", "No"}));
  EXPECT_EQ(SelectedRow(), 2);
  // The only concrete combination: the reminder follows.
  EXPECT_EQ(Messages(), Texts{"You should create a unit load combination that contains only sustained (usually 1.0 x "
                              "DEAD) loads.\nThis load combination is needed to calculate Beta-d in the design for "
                              "concrete columns."});

  dlg.child = [](CDialog&) { return IDCANCEL; };
  dlg.PressButton(kCtlComboAdd);
  EXPECT_EQ(combs.size(), 3u);
}

TEST_F(ComboDialogTest, ModifyEditsTheSelectedCombinationThenSelectsTheLastRow) {
  Open({"Default", "Service", "Ultimate"});
  combs[1].items = {{"Dead", 1}, {"Gone", 2}};
  Select({1});
  dlg.child = Editor("Service SLS", {"1", "1"});
  dlg.PressButton(kCtlComboModify);
  EXPECT_EQ(seenLabel, "Service");
  EXPECT_EQ(combs[1].name, "Service SLS");
  EXPECT_EQ(combs[1].items, (std::vector<fmLoadCombItem>{{"Dead", 1}, {"Live", 1}}));  // "Gone" dropped
  EXPECT_EQ(SelectedRow(), 2) << "after every change the last row is selected";
}

TEST_F(ComboDialogTest, CopyAndDeleteShowTheirRefusals) {
  Open({"A", "B", "C"});
  combs[1].items = {{"Dead", 1.0}, {"Live", 1.0}};
  Select({1});
  dlg.PressButton(kCtlComboCopy);
  EXPECT_EQ(Labels(), (Texts{"A", "B", "C", "B_Copy"}));
  EXPECT_EQ(combs[3].items, combs[1].items);
  Select({1});
  dlg.PressButton(kCtlComboCopy);
  EXPECT_EQ(Messages(), Texts{"Load combination label already used."});
  EXPECT_EQ(combs.size(), 4u);

  prompter.Clear();
  Select({0, 2, 3});
  dlg.PressButton(kCtlComboDelete);
  EXPECT_EQ(Messages(), Texts{"The first load combination may not be deleted."});
  EXPECT_EQ(Labels(), (Texts{"A", "B"}));
  EXPECT_EQ(List()->topLevelItemCount(), 2);
}

TEST_F(ComboDialogTest, EmptyListGetsDefaultThenUnitCasesAndStandardCodesAddOnlyOnce) {
  Open({});
  EXPECT_EQ(Row(0), (Texts{"Default", "No", "No", "No", "No", "No"}));
  dlg.PressButton(kCtlComboUnitCases);
  dlg.PressButton(kCtlComboUnitCases);
  EXPECT_EQ(Labels(), (Texts{"Default", "Comb_Dead", "Comb_Live", "Comb_Wind X"}));

  dlg.child = Codes(0, {0, 13}, /*pdelta=*/true);
  dlg.PressButton(kCtlComboGenerateStd);
  ASSERT_EQ(combs.size(), 6u);
  EXPECT_EQ(combs[4].name, "IBC-2015_Eq16-1");
  EXPECT_EQ(Row(5), (Texts{"IBC-2015_Eq16-3g", "Yes", "No", "No", "No", "No"}));
  EXPECT_TRUE(Messages().empty());
  dlg.child = Codes(0, {1});
  dlg.PressButton(kCtlComboGenerateStd);
  EXPECT_EQ(Messages(),
            Texts{"Please rename or delete the existing standard load combinations before running this command."});
  EXPECT_EQ(combs.size(), 6u);
}
