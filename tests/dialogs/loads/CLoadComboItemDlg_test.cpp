#include <QCheckBox>
#include <QLineEdit>

#include "dialogs/loads/CLoadComboItemDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

class ComboEditorTest : public DialogTest {
 protected:
  void Open(int index) {
    dlg.m_nIndex = index;
    dlg.m_pLoadCases = &cases;
    dlg.m_pLoadCombs = &combs;
    dlg.m_comb = index >= 0 ? combs[static_cast<size_t>(index)] : fmLoadComb("Combination_1");
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  void SetText(int id, const std::string& text) { dlg.Item<QLineEdit>(id)->setText(QString::fromStdString(text)); }

  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "D"), fmLoadCase(2, "Live", "L"), fmLoadCase(3, "Wind X", "W")};
  std::vector<fmLoadComb> combs = [] {
    std::vector<fmLoadComb> c = {fmLoadComb("Default"), fmLoadComb("Ultimate")};
    c[1].items = {{"Wind X", -0.5}, {"Deleted case", 2.0}, {"dead", 1.2}};
    c[1].concreteDesign = 1;
    c[1].sustainedFactor = 1.2;
    c[1].spectrumFactor = 0;
    return c;
  }();
  const std::vector<fmLoadComb> original = combs;
  CLoadComboItemDlg dlg;
};

}  // namespace

TEST_F(ComboEditorTest, ShowsTheCombinationAndOneGridRowPerCase) {
  Open(1);
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Load Combination");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlItemLabel), "Ultimate");
  EXPECT_TRUE(dlg.Item<QCheckBox>(kCtlItemConcreteDesign)->isChecked());
  EXPECT_FALSE(dlg.Item<QCheckBox>(kCtlItemPDelta)->isChecked());
  EXPECT_EQ(dlg.GetDlgItemText(kCtlItemSustained), "1.2");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlItemSpectrum), "0");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlItemSteelDesign), "Perform Steel Design using this Load Combination");
  ASSERT_EQ(sheet().MaxRows(), 3);
  EXPECT_EQ(sheet().GetData(1, 0), "Case");
  EXPECT_EQ(sheet().GetData(2, 0), "Factor");
  const char* expected[3][2] = {{"Dead", "1.2"}, {"Live", "0"}, {"Wind X", "-0.5"}};
  for (int r = 0; r < 3; ++r) {
    EXPECT_EQ(sheet().GetData(1, r + 1), expected[r][0]);
    EXPECT_EQ(sheet().GetData(2, r + 1), expected[r][1]);
    EXPECT_TRUE(sheet().IsLocked(1, r + 1));
    EXPECT_FALSE(sheet().IsLocked(2, r + 1));
  }
  EXPECT_EQ(dlg.PrintTitle(), "Load Comb - Ultimate Table");
  SetText(kCtlItemLabel, "ULS 1");
  EXPECT_EQ(dlg.PrintTitle(), "Load Comb - ULS 1 Table");
}

TEST_F(ComboEditorTest, OkStoresLabelFlagsFactorsAndTheNonZeroRows) {
  Open(1);
  SetText(kCtlItemLabel, std::string(200, 'U'));
  dlg.Item<QCheckBox>(kCtlItemPDelta)->setChecked(true);
  dlg.Item<QCheckBox>(kCtlItemConcreteDesign)->setChecked(false);
  SetText(kCtlItemSustained, "0");
  SetText(kCtlItemSpectrum, "-1");
  sheet().SetData(2, 1, "abc");  // reads as 0: Dead leaves the combination
  sheet().SetData(2, 2, " 1.6 ");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_comb.name, std::string(127, 'U'));
  EXPECT_EQ(dlg.m_comb.pdelta, 1);
  EXPECT_EQ(dlg.m_comb.concreteDesign, 0);
  EXPECT_EQ(dlg.m_comb.sustainedFactor, 0.0);
  EXPECT_EQ(dlg.m_comb.spectrumFactor, -1.0);
  EXPECT_EQ(dlg.m_comb.items, (std::vector<fmLoadCombItem>{{"Live", 1.6}, {"Wind X", -0.5}}));
  EXPECT_EQ(combs, original);  // the editor only reads the host's lists
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ComboEditorTest, RefusalsKeepTheDialogOpenAndTheCombination) {
  struct Case {
    const char* name;
    int index;
    std::string label;
    const char* sustained;
    std::string message;
  };
  const std::string allowed = "contain letters, digits, blanks between words and the characters _ - . ( ) + /";
  const Case cases_[] = {
      {"empty label", 1, "  ", "0", "Load combination label can only " + allowed + ", and may not be empty."},
      {"bad label", 1, "ULS;1", "-1", "Load combination label can only " + allowed +
                                         "; the character \";\" at position 4 is not allowed."},
      {"label of another", 1, "DEFAULT", "0", "Load combination label already used."},
      {"new with a used label", -1, "ultimate", "0", "Load combination label already used."},
      {"negative sustained", 1, "Ultimate", "-0.1", "Sustained load factor must not be less than 0.0"},
      {"sustained not a number", 1, "Ultimate", "x", "Please enter a number."},
  };
  for (const Case& c : cases_) {
    SCOPED_TRACE(c.name);
    CLoadComboItemDlg fresh;
    fresh.m_nIndex = c.index;
    fresh.m_pLoadCases = &cases;
    fresh.m_pLoadCombs = &combs;
    fresh.m_comb = c.index >= 0 ? combs[static_cast<size_t>(c.index)] : fmLoadComb("Combination_1");
    const fmLoadComb before = fresh.m_comb;
    fresh.InitDialogForTest();
    fresh.Item<QLineEdit>(kCtlItemLabel)->setText(QString::fromStdString(c.label));
    fresh.Item<QLineEdit>(kCtlItemSustained)->setText(c.sustained);
    prompter.Clear();
    fresh.PressButton(IDOK);
    EXPECT_EQ(fresh.ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(fresh.m_comb, before);
    EXPECT_EQ(fresh.GetDlgItemText(kCtlItemLabel), c.label);
  }
  EXPECT_EQ(combs, original);
}
