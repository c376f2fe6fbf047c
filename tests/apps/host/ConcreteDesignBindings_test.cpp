#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/design/CComputeKDlg.h"
#include "dialogs/frame/Form.h"
#include "resources/design_ids.h"
#include "support/DialogTest.h"

namespace {

class KFactorHostTest : public DialogTest {
 protected:
  // Computes K for the ratios, presses OK and hands the result to the host.
  bool Compute(const char* ga, const char* gb) {
    auto dlg = CreateBoundDialog("CComputeKDlg", model, nullptr);
    EXPECT_TRUE(dlg);
    dlg->InitDialogForTest();
    dlg->Item<QLineEdit>(frame::IdOf(&CComputeKDlg::m_dGA))->setText(ga);
    dlg->Item<QLineEdit>(frame::IdOf(&CComputeKDlg::m_dGB))->setText(gb);
    dlg->PressButton(res::kCtlCompute);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);  // the dialog's OK
    QApplication::sendEvent(dlg.get(), &enter);
    EXPECT_EQ(dlg->ModalResult(), IDOK) << ga << " " << gb;
    return TakeBackDialogResult("CComputeKDlg", *dlg, dlg->ModalResult(), model);
  }

  HostModel model;
};

}  // namespace

TEST_F(KFactorHostTest, TheStatusBarShowsAFailedKAsFailedNeverAsOne) {
  Compute("0.47", "0.47");
  EXPECT_EQ(model.status, "Braced K = 0.68, unbraced K = 1.15");

  // GA = 0, GB = 0.05: the unbraced bracket holds no root; the braced K is fine, so OK passes.
  Compute("0", "0.05");
  ASSERT_FALSE(Messages().empty());
  EXPECT_EQ(model.status.substr(0, 16), "Braced K = 0.51,");
  EXPECT_EQ(model.status.substr(16), " unbraced K failed (no root)");
}
