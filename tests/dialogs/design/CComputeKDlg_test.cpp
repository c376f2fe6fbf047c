#include "dialogs/design/CComputeKDlg.h"

#include <QApplication>
#include <QChart>
#include <QKeyEvent>
#include <QLineEdit>

#include "dialogs/design/KFactorChart.h"
#include "dialogs/frame/Form.h"
#include "resources/design_ids.h"
#include "support/DialogTest.h"

using namespace res;
using design::FrameKind;

namespace {

class ComputeKTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    ASSERT_TRUE(dlg.InitDialogForTest());
  }
  void Compute(const char* ga, const char* gb) {
    prompter.Clear();
    dlg.Item<QLineEdit>(frame::IdOf(&CComputeKDlg::m_dGA))->setText(ga);
    dlg.Item<QLineEdit>(frame::IdOf(&CComputeKDlg::m_dGB))->setText(gb);
    ASSERT_TRUE(dlg.PressButton(kCtlCompute));
  }
  std::string Text(int id) const { return dlg.GetDlgItemText(id); }
  void PressEnter() {
    prompter.Clear();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&dlg, &press);
  }

  CComputeKDlg dlg;
};

TEST_F(ComputeKTest, ComputesBothFactorsAndMarksTheRoots) {
  const char* both =
      "Braced K: Root must be bracketed for bisection in rtbis\n"
      "Unbraced K: Root must be bracketed for bisection in rtbis";
  const struct {
    const char *ga, *gb, *braced, *unbraced, *message;  // message empty: none
  } cases[] = {
      {"0.47", "0.47", "0.68", "1.15", ""},
      {"1", "1", "0.77", "1.32", ""},
      {"10", "0", "0.69", "1.67", ""},
      {"100", "100", "No root", "9.11", "Braced K: Root must be bracketed for bisection in rtbis"},
      {"1000", "1000", "No root", "No root", both},
      {"0", "0", "No root", "No root", both},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.ga) + ", " + c.gb);
    Compute(c.ga, c.gb);
    EXPECT_EQ(Text(kCtlBracedK), c.braced);
    EXPECT_EQ(Text(kCtlUnbracedK), c.unbraced);
    EXPECT_EQ(Messages(), *c.message ? std::vector<std::string>{c.message} : std::vector<std::string>{});
    // A failed K is back at 1.0 (no root found is ever exactly 1), never NaN and never a stale result.
    EXPECT_EQ(std::string(c.braced) == "No root", dlg.m_dBracedK == 1.0);
    EXPECT_EQ(std::string(c.unbraced) == "No root", dlg.m_dUnbracedK == 1.0);
    const auto marker = dlg.Chart()->RootMarker(FrameKind::Unbraced);
    ASSERT_EQ(marker.has_value(), std::string(c.unbraced) != "No root");
    EXPECT_DOUBLE_EQ(marker ? marker->x() : 1.0, dlg.m_dUnbracedK);
  }
  EXPECT_EQ(dlg.Chart()->Chart(FrameKind::Unbraced)->title().toStdString(),
            "Unbraced frame: f(K) is not defined when GA + GB = 0");
}

TEST_F(ComputeKTest, EnterNeedsComputedKsAndAFailedBracedKCannotBeTakenBack) {
  PressEnter();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid Ks"});
  EXPECT_EQ(dlg.ModalResult(), 0);

  Compute("0.47", "0.47");  // a good result first: the failure must replace it
  Compute("100", "100");
  PressEnter();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid Ks"});
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(dlg.m_dBracedK, 1.0);
  EXPECT_NEAR(dlg.m_dUnbracedK, 9.11, 0.005);

  Compute("1", "1");
  PressEnter();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_NEAR(dlg.m_dBracedK, 0.7744, 1e-3);
  EXPECT_NEAR(dlg.m_dUnbracedK, 1.3164, 1e-3);
}

TEST_F(ComputeKTest, EditingClearsTheResultsAndBadRatiosAreRefused) {
  const struct {
    const char *ga, *gb, *message;
  } refused[] = {
      {"1000.5", "1", "Please enter a number between 0 and 1000."},
      {"1", "abc", "Please enter a number."},
      {"", "1", "Please enter a number."},
  };
  Compute("0.47", "0.47");
  dlg.Item<QLineEdit>(frame::IdOf(&CComputeKDlg::m_dGA))->setText("0.470");  // the same number: still computed
  EXPECT_EQ(Text(kCtlBracedK), "0.68");
  EXPECT_TRUE(dlg.Chart()->RootMarker(FrameKind::Braced));
  dlg.Item<QLineEdit>(frame::IdOf(&CComputeKDlg::m_dGA))->setText("2");
  EXPECT_EQ(Text(kCtlBracedK), "1.00");
  EXPECT_FALSE(dlg.Chart()->RootMarker(FrameKind::Braced));
  for (const auto& c : refused) {
    SCOPED_TRACE(std::string(c.ga) + ", " + c.gb);
    Compute(c.ga, c.gb);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg.m_dBracedK, 1.0);  // cleared by the edit, not computed
    EXPECT_EQ(Text(kCtlBracedK), "1.00");
  }
}

}  // namespace
