#include <QApplication>
#include <QChart>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "dialogs/design/CComputeKDlg.h"
#include "dialogs/design/KFactorChart.h"
#include "resources/design_ids.h"
#include "support/DialogTest.h"

using namespace res;
using design::FrameKind;

namespace {

class ComputeKTest : public DialogTest {
 protected:
  void Open() { ASSERT_TRUE(dlg.InitDialogForTest()); }
  void Type(int id, const char* text) { dlg.Item<QLineEdit>(id)->setText(text); }
  std::string Text(int id) const { return dlg.GetDlgItemText(id); }
  void PressEnter() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&dlg, &press);
  }

  CComputeKDlg dlg;
};

TEST_F(ComputeKTest, ShouldHaveDefaultValuesAndTexts) {
  EXPECT_EQ(dlg.m_dBracedK, 1.0);
  EXPECT_EQ(dlg.m_dUnbracedK, 1.0);
  EXPECT_EQ(dlg.m_dGA, 0.47);
  EXPECT_EQ(dlg.m_dGB, 0.47);
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Compute Effective Length Factor K");
  const std::pair<int, const char*> texts[] = {
      {kCtlGA, "0.47"},
      {kCtlGB, "0.47"},
      {kCtlBracedK, "1.00"},
      {kCtlUnbracedK, "1.00"},
      {kCtlColumnTopLabel, "@ Column Top:"},
      {kCtlColumnBottomLabel, "@ Column Bottom:"},
      {kCtlBracedKLabel, "Braced K:"},
      {kCtlUnbracedKLabel, "Unbraced K:"},
      {kCtlStiffnessGroup, "Relative stiffness ratios at the top and bottom joints of the column"},
      {kCtlCompute, "Compute"},
      {IDCANCEL, "Close"},
  };
  for (const auto& [id, text] : texts) EXPECT_EQ(Text(id), text) << id;
  EXPECT_TRUE(dlg.Item<QLineEdit>(kCtlBracedK)->isReadOnly());
  EXPECT_TRUE(dlg.Item<QLineEdit>(kCtlUnbracedK)->isReadOnly());
  EXPECT_EQ(dlg.GetDlgItem(IDOK), nullptr);
  // The curves are drawn at once; roots only once computed.
  ASSERT_NE(dlg.Chart(), nullptr);
  EXPECT_GT(dlg.Chart()->CurvePointCount(FrameKind::Braced), 100);
  EXPECT_FALSE(dlg.Chart()->RootMarker(FrameKind::Braced));
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(ComputeKTest, ComputesBothFactorsAndMarksTheRoots) {
  const struct {
    const char* ga;
    const char* gb;
    const char* braced;
    const char* unbraced;
    const char* message;  // empty: none
  } cases[] = {
      {"0.47", "0.47", "0.68", "1.15", ""},
      {"1", "1", "0.77", "1.32", ""},
      {"10", "0", "0.69", "1.67", ""},
      {"100", "100", "No root", "9.11", "Braced K: Root must be bracketed for bisection in rtbis"},
      {"1000", "1000", "No root", "No root",
       "Braced K: Root must be bracketed for bisection in rtbis\n"
       "Unbraced K: Root must be bracketed for bisection in rtbis"},
      {"0", "0", "No root", "No root",
       "Braced K: Root must be bracketed for bisection in rtbis\n"
       "Unbraced K: Root must be bracketed for bisection in rtbis"},
  };
  Open();
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.ga) + ", " + c.gb);
    prompter.Clear();
    Type(kCtlGA, c.ga);
    Type(kCtlGB, c.gb);
    ASSERT_TRUE(dlg.PressButton(kCtlCompute));
    EXPECT_EQ(Text(kCtlBracedK), c.braced);
    EXPECT_EQ(Text(kCtlUnbracedK), c.unbraced);
    const std::vector<std::string> expected = *c.message ? std::vector<std::string>{c.message}
                                                         : std::vector<std::string>{};
    EXPECT_EQ(Messages(), expected);
    // A failed K is back at 1.0, never NaN and never a stale result.
    if (std::string(c.braced) == "No root") {
      EXPECT_EQ(dlg.m_dBracedK, 1.0);
    }
    if (std::string(c.unbraced) == "No root") {
      EXPECT_EQ(dlg.m_dUnbracedK, 1.0);
    }
    const auto marker = dlg.Chart()->RootMarker(FrameKind::Unbraced);
    EXPECT_EQ(marker.has_value(), std::string(c.unbraced) != "No root");
    if (marker) {
      EXPECT_DOUBLE_EQ(marker->x(), dlg.m_dUnbracedK);
    }
  }
  const std::string undefined = dlg.Chart()->Chart(FrameKind::Unbraced)->title().toStdString();
  EXPECT_EQ(undefined, "Unbraced frame: f(K) is not defined when GA + GB = 0");
  EXPECT_EQ(dlg.Chart()->Chart(FrameKind::Braced)->title().toStdString(),
            "Braced frame: no root between 0.51 and 0.99");
}

TEST_F(ComputeKTest, EnterBeforeComputeIsRefused) {
  Open();
  PressEnter();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid Ks"});
  EXPECT_EQ(dlg.ModalResult(), 0);

  prompter.Clear();
  ASSERT_TRUE(dlg.PressButton(kCtlCompute));
  PressEnter();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_NEAR(dlg.m_dBracedK, 0.6788, 1e-4);
  EXPECT_NEAR(dlg.m_dUnbracedK, 1.1544, 1e-4);
}

TEST_F(ComputeKTest, EditingARatioClearsTheResults) {
  Open();
  ASSERT_TRUE(dlg.PressButton(kCtlCompute));
  Type(kCtlGA, "0.470");  // the same number: still computed
  EXPECT_EQ(Text(kCtlBracedK), "0.68");
  EXPECT_TRUE(dlg.Chart()->RootMarker(FrameKind::Braced));
  Type(kCtlGA, "2");
  EXPECT_EQ(Text(kCtlBracedK), "1.00");
  EXPECT_EQ(dlg.m_dBracedK, 1.0);
  EXPECT_FALSE(dlg.Chart()->RootMarker(FrameKind::Braced));
  PressEnter();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid Ks"});
  EXPECT_EQ(dlg.ModalResult(), 0);
}

TEST_F(ComputeKTest, BadRatiosAreRefusedAndChangeNothing) {
  const struct {
    const char* ga;
    const char* gb;
    const char* message;
  } cases[] = {
      {"1000.5", "1", "Please enter a number between 0 and 1000."},
      {"-0.1", "1", "Please enter a number between 0 and 1000."},
      {"1", "abc", "Please enter a number."},
      {"1e999", "1", "Please enter a number."},
      {"", "1", "Please enter a number."},
  };
  Open();
  ASSERT_TRUE(dlg.PressButton(kCtlCompute));
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.ga) + ", " + c.gb);
    prompter.Clear();
    Type(kCtlGA, c.ga);
    Type(kCtlGB, c.gb);
    ASSERT_TRUE(dlg.PressButton(kCtlCompute));
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg.m_dBracedK, 1.0);  // cleared by the edit, not computed
    EXPECT_EQ(Text(kCtlBracedK), "1.00");
  }
}

TEST_F(ComputeKTest, AFailedBracedKCannotBeTakenBack) {
  Open();
  ASSERT_TRUE(dlg.PressButton(kCtlCompute));  // a good result first: the failure must replace it
  Type(kCtlGA, "100");
  Type(kCtlGB, "100");
  ASSERT_TRUE(dlg.PressButton(kCtlCompute));
  prompter.Clear();
  PressEnter();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid Ks"});
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(dlg.m_dBracedK, 1.0);
  EXPECT_NEAR(dlg.m_dUnbracedK, 9.11, 0.005);

  // Back to ratios with roots: the dialog closes with both.
  Type(kCtlGA, "1");
  Type(kCtlGB, "1");
  ASSERT_TRUE(dlg.PressButton(kCtlCompute));
  prompter.Clear();
  PressEnter();
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_NEAR(dlg.m_dBracedK, 0.7744, 1e-3);
  EXPECT_NEAR(dlg.m_dUnbracedK, 1.3164, 1e-3);
}

TEST_F(ComputeKTest, CloseCancels) {
  Open();
  ASSERT_TRUE(dlg.PressButton(IDCANCEL));
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
}

TEST_F(ComputeKTest, EnterOnTheComputeButtonComputes) {
  Open();
  dlg.show();
  dlg.Item<QPushButton>(kCtlCompute)->setFocus();
  QApplication::processEvents();
  if (dlg.focusWidget() != dlg.GetDlgItem(kCtlCompute)) GTEST_SKIP() << "no keyboard focus offscreen";
  PressEnter();
  EXPECT_EQ(Text(kCtlBracedK), "0.68");
  EXPECT_EQ(dlg.ModalResult(), 0);
}

}  // namespace
