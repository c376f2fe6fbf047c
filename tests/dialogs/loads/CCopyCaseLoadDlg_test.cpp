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
  void Open() {
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
  dlg.m_strCaption = "Copy Nodal Loads";
  dlg.m_nTo = 2;
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Copy Nodal Loads");
  auto* to = dlg.Item<QComboBox>(kCtlCopyTo);
  ASSERT_EQ(to->count(), 3);
  EXPECT_EQ(to->itemText(2).toStdString(), "3: Wind X");
  EXPECT_EQ(to->currentIndex(), 2);
  EXPECT_EQ(dlg.Item<QComboBox>(kCtlCopyFrom)->currentIndex(), 0);
  EXPECT_EQ(dlg.Item<QLineEdit>(kCtlCopyFactor)->text().toStdString(), "1");
}

TEST_F(CopyLoadsTest, RefusalsInOrderLeaveTheMembers) {
  struct Case {
    int from, to;
    const char* factor;
    const char* message;
  };
  const Case cases_[] = {
      {1, 1, "0", "Can not copy loads from the same load case."},
      {1, 1, "2", "Can not copy loads from the same load case."},
      {0, 1, "0", "Multiplication factor can not be 0."},
      {0, 1, "abc", "Please enter a number."},
  };
  Open();
  for (const Case& c : cases_) {
    prompter.Clear();
    Choose(c.from, c.to, c.factor);
    dlg.PressButton(IDOK);
    EXPECT_EQ(dlg.ModalResult(), 0) << c.message;
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg.m_nFrom, 0);
    EXPECT_EQ(dlg.m_nTo, 0);
    EXPECT_EQ(dlg.m_dFactor, 1.0);
  }
}

TEST_F(CopyLoadsTest, AcceptedChoiceIsReadBack) {
  Open();
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
