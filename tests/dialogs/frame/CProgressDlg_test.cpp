#include <QApplication>
#include <QProgressBar>

#include "dialogs/frame/CProgressDlg.h"
#include "support/DialogTest.h"

// A solver posts these numbers; they must not move.
static_assert(CProgressDlg::WM_PROGRESS_UPDATE == 0x464);
static_assert(CProgressDlg::WM_PROGRESS_SHOW == 0x465);
static_assert(CProgressDlg::WM_PROGRESS_HIDE == 0x466);

namespace {

class ProgressTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    dlg.Create(nullptr);
  }
  int Bar() const { return dlg.Item<QProgressBar>(1325)->value(); }
  std::string Caption() const { return dlg.windowTitle().toStdString(); }

  CProgressDlg dlg;
};

}  // namespace

TEST_F(ProgressTest, MessagesUpdateShowAndHide) {
  EXPECT_EQ(Bar(), 0);
  EXPECT_EQ(Caption(), "Sparse Matrix Factorization...");
  EXPECT_FALSE(dlg.isModal());
  struct Step { UINT message; WPARAM percent; int bar; const char* caption; bool visible; };
  const Step steps[] = {
      {CProgressDlg::WM_PROGRESS_SHOW, 0, 0, "Sparse Matrix Factorization...", true},
      {CProgressDlg::WM_PROGRESS_UPDATE, 100, 100, "Sparse Matrix Factorization (100%)", true},
      {CProgressDlg::WM_PROGRESS_HIDE, 0, 0, "Sparse Matrix Factorization (100%)", false},
      // Shown again, the bar starts from 0.
      {CProgressDlg::WM_PROGRESS_SHOW, 0, 0, "Sparse Matrix Factorization (100%)", true},
      {CProgressDlg::WM_PROGRESS_UPDATE, 37, 37, "Sparse Matrix Factorization (37%)", true},
  };
  for (const Step& s : steps) {
    SCOPED_TRACE(s.caption);
    EXPECT_EQ(dlg.SendMessage(s.message, s.percent), 1);
    EXPECT_EQ(Bar(), s.bar);
    EXPECT_EQ(dlg.Position(), s.bar);
    EXPECT_EQ(Caption(), s.caption);
    EXPECT_EQ(dlg.isVisible(), s.visible);
  }
  EXPECT_EQ(dlg.SendMessage(0x467), 0) << "other messages are not handled";
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(ProgressTest, PostedMessagesArriveOnTheWindowsThread) {
  dlg.PostMessage(CProgressDlg::WM_PROGRESS_UPDATE, 64);
  EXPECT_EQ(Bar(), 0) << "not before the event loop runs";
  QApplication::processEvents();
  EXPECT_EQ(Bar(), 64);
  EXPECT_EQ(Caption(), "Sparse Matrix Factorization (64%)");
}
