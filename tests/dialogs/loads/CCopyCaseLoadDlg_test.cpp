#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "dialogs/loads/CCopyCaseLoadDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

class CopyLoadsTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    dlg.m_strCaption = "Copy Nodal Loads";
    dlg.m_nTo = 2;
    dlg.m_pLoadCases = &cases;
    dlg.InitDialogForTest();
  }
  void Choose(int from, int to, const char* factor) {
    dlg.ChooseItem(kCtlCopyFrom, from);
    dlg.ChooseItem(kCtlCopyTo, to);
    dlg.Item<QLineEdit>(kCtlCopyFactor)->setText(factor);
  }
  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "D"), fmLoadCase(2, "Live", "L"), fmLoadCase(3, "Wind X", "W")};
  CCopyCaseLoadDlg dlg;
};

}  // namespace

TEST_F(CopyLoadsTest, ListsTheCasesByNumberAndLabelUnderTheHostsCaption) {
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Copy Nodal Loads");
  auto* to = dlg.Item<QComboBox>(kCtlCopyTo);
  ASSERT_EQ(to->count(), 3);
  EXPECT_EQ(to->itemText(2).toStdString(), "3: Wind X");
  EXPECT_EQ(to->currentIndex(), 2);
  EXPECT_EQ(dlg.GetDlgItemText(kCtlCopyFactor), "1");
}

TEST_F(CopyLoadsTest, RefusalsLeaveTheMembersThenOkReadsTheChoiceBack) {
  Choose(1, 1, "0");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Can not copy loads from the same load case."});
  EXPECT_EQ(dlg.m_nFrom, 0);
  EXPECT_EQ(dlg.m_nTo, 2);
  EXPECT_EQ(dlg.m_dFactor, 1.0);

  prompter.Clear();
  Choose(2, 0, "-0.5");
  dlg.Item<QCheckBox>(kCtlCopyDeleteExisting)->setChecked(true);
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_nFrom, 2);
  EXPECT_EQ(dlg.m_nTo, 0);
  EXPECT_EQ(dlg.m_dFactor, -0.5);
  EXPECT_EQ(dlg.m_bDeleteExisting, 1);
  EXPECT_TRUE(Messages().empty());
}
