#include <QApplication>
#include <QProgressBar>

#include "dialogs/frame/CProgressDlg.h"
#include "support/DialogTest.h"

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

TEST_F(ProgressTest, StartsHiddenAtZeroWithItsCaption) {
  ASSERT_NE(dlg.Item<QProgressBar>(1325), nullptr);
  EXPECT_EQ(dlg.Item<QProgressBar>(1325)->minimum(), 0);
  EXPECT_EQ(dlg.Item<QProgressBar>(1325)->maximum(), 100);
  EXPECT_EQ(Bar(), 0);
  EXPECT_EQ(Caption(), "Sparse Matrix Factorization...");
  EXPECT_FALSE(dlg.isVisible());
  EXPECT_FALSE(dlg.isModal());
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(ProgressTest, MessagesUpdateShowAndHide) {
  struct Step {
    UINT message;
    WPARAM percent;
    int bar;
    const char* caption;
    bool visible;
  };
  const Step steps[] = {
      {CProgressDlg::WM_PROGRESS_SHOW, 0, 0, "Sparse Matrix Factorization...", true},
      {CProgressDlg::WM_PROGRESS_UPDATE, 5, 5, "Sparse Matrix Factorization (5%)", true},
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
  EXPECT_EQ(dlg.SendMessage(WM_USER), 0);
}

TEST_F(ProgressTest, PostedMessagesArriveOnTheWindowsThread) {
  dlg.PostMessage(CProgressDlg::WM_PROGRESS_UPDATE, 64);
  EXPECT_EQ(Bar(), 0) << "not before the event loop runs";
  QApplication::processEvents();
  EXPECT_EQ(Bar(), 64);
  EXPECT_EQ(Caption(), "Sparse Matrix Factorization (64%)");
}

TEST_F(ProgressTest, CarriesRunTimeClassInformation) {
  const CRuntimeClass* rc = dlg.GetRuntimeClass();
  EXPECT_EQ(rc, CProgressDlg::GetThisClass());
  EXPECT_EQ(rc, &CProgressDlg::classCProgressDlg);
  EXPECT_STREQ(rc->m_lpszClassName, "CProgressDlg");
  EXPECT_EQ(rc->m_nObjectSize, static_cast<int>(sizeof(CProgressDlg)));
  ASSERT_NE(rc->m_pBaseClass, nullptr);
  EXPECT_STREQ(rc->m_pBaseClass->m_lpszClassName, "CDialog");
  EXPECT_TRUE(rc->IsDerivedFrom(rc->m_pBaseClass));
  EXPECT_FALSE(rc->m_pBaseClass->IsDerivedFrom(rc));
}
