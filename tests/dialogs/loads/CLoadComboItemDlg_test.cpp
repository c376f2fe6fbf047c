#include <QCheckBox>
#include <QLineEdit>
#include <tuple>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

class ComboEditorTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    combs[1].items = {{"Wind X", -0.5}, {"Deleted case", 2.0}, {"dead", 1.2}};
    combs[1].concreteDesign = 1, combs[1].sustainedFactor = 1.2;
    original = combs;
    dlg.m_nIndex = 1, dlg.m_pLoadCases = &cases, dlg.m_pLoadCombs = &combs, dlg.m_comb = combs[1];
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  void SetText(int id, const std::string& text) { dlg.Item<QLineEdit>(id)->setText(QString::fromStdString(text)); }

  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "D"), fmLoadCase(2, "Live", "L"), fmLoadCase(3, "Wind X", "W")};
  std::vector<fmLoadComb> combs = {fmLoadComb("Default"), fmLoadComb("Ultimate")};
  std::vector<fmLoadComb> original;
  CLoadComboItemDlg dlg;
};

}  // namespace

TEST_F(ComboEditorTest, ShowsOneGridRowPerCaseAndOkStoresTheNonZeroRows) {
  EXPECT_EQ(dlg.GetDlgItemText(frame::IdOf(&CLoadComboItemDlg::m_strLabel)), "Ultimate");
  EXPECT_TRUE(dlg.Item<QCheckBox>(frame::IdOf(&CLoadComboItemDlg::m_bConcreteDesign))->isChecked());
  EXPECT_FALSE(dlg.Item<QCheckBox>(frame::IdOf(&CLoadComboItemDlg::m_bPDelta))->isChecked());
  EXPECT_EQ(dlg.GetDlgItemText(frame::IdOf(&CLoadComboItemDlg::m_dSustainedFactor)), "1.2");
  std::vector<std::string> rows;
  for (int r = 1; r <= sheet().MaxRows(); ++r) rows.push_back(sheet().GetData(1, r) + " " + sheet().GetData(2, r));
  EXPECT_EQ(rows, (std::vector<std::string>{"Dead 1.2", "Live 0", "Wind X -0.5"}));
  EXPECT_TRUE(sheet().IsLocked(1, 2));
  EXPECT_FALSE(sheet().IsLocked(2, 2));
  SetText(frame::IdOf(&CLoadComboItemDlg::m_strLabel), "ULS");
  EXPECT_EQ(dlg.PrintTitle(), "Load Comb - ULS Table");
  dlg.Item<QCheckBox>(frame::IdOf(&CLoadComboItemDlg::m_bPDelta))->setChecked(true);
  dlg.Item<QCheckBox>(frame::IdOf(&CLoadComboItemDlg::m_bConcreteDesign))->setChecked(false);
  SetText(frame::IdOf(&CLoadComboItemDlg::m_dSustainedFactor), "0");
  SetText(frame::IdOf(&CLoadComboItemDlg::m_dSpectrumFactor), "-1");
  sheet().SetData(2, 1, "abc");  // reads as 0: Dead leaves the combination
  sheet().SetData(2, 2, " 1.6 ");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  const fmLoadComb& c = dlg.m_comb;
  EXPECT_EQ(std::tuple(c.name, c.pdelta, c.concreteDesign, c.sustainedFactor, c.spectrumFactor),
            std::tuple("ULS", 1, 0, 0.0, -1.0));
  EXPECT_EQ(dlg.m_comb.items, (std::vector<fmLoadCombItem>{{"Live", 1.6}, {"Wind X", -0.5}}));
  EXPECT_EQ(combs, original);  // the editor only reads the host's lists
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ComboEditorTest, RefusalKeepsTheDialogOpenAndTheCombinationCancelToo) {
  SetText(frame::IdOf(&CLoadComboItemDlg::m_strLabel), "DEFAULT");
  sheet().SetData(2, 2, "3");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Load combination label already used."});
  EXPECT_EQ(dlg.m_comb, original[1]);
  EXPECT_EQ(dlg.GetDlgItemText(frame::IdOf(&CLoadComboItemDlg::m_strLabel)), "DEFAULT");

  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(dlg.m_comb, original[1]);
  EXPECT_EQ(combs, original);
}
