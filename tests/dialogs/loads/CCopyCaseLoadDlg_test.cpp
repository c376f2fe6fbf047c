#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <tuple>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CCopyCaseLoadDlg.h"
#include "support/DialogTest.h"

namespace {

class CopyLoadsTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    dlg.m_strCaption = "Copy Nodal Loads", dlg.m_nTo = 2, dlg.m_pLoadCases = &cases;
    dlg.InitDialogForTest();
  }
  void Choose(int from, int to, const char* factor) {
    dlg.ChooseItem(frame::IdOf(&CCopyCaseLoadDlg::m_nFrom), from);
    dlg.ChooseItem(frame::IdOf(&CCopyCaseLoadDlg::m_nTo), to);
    dlg.Item<QLineEdit>(frame::IdOf(&CCopyCaseLoadDlg::m_dFactor))->setText(factor);
  }
  std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "D"), fmLoadCase(2, "Live", "L"), fmLoadCase(3, "Wind X", "W")};
  CCopyCaseLoadDlg dlg;
};

}  // namespace

TEST_F(CopyLoadsTest, RefusalLeavesTheMembersThenOkReadsTheChoiceBack) {
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Copy Nodal Loads");
  EXPECT_EQ(dlg.Item<QComboBox>(frame::IdOf(&CCopyCaseLoadDlg::m_nTo))->currentText().toStdString(), "3: Wind X");
  Choose(1, 1, "0");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Can not copy loads from the same load case."});
  EXPECT_EQ(std::tuple(dlg.m_nFrom, dlg.m_nTo, dlg.m_dFactor), std::tuple(0, 2, 1.0));

  prompter.Clear();
  Choose(2, 0, "-0.5");
  dlg.Item<QCheckBox>(frame::IdOf(&CCopyCaseLoadDlg::m_bDeleteExisting))->setChecked(true);
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(std::tuple(dlg.m_nFrom, dlg.m_nTo, dlg.m_dFactor, dlg.m_bDeleteExisting), std::tuple(2, 0, -0.5, 1));
  EXPECT_TRUE(Messages().empty());
}
