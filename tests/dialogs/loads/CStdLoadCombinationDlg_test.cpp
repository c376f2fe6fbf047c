#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

class StdDialogTest : public DialogTest {
 protected:
  QListWidget* List() { return dlg.Item<QListWidget>(kCtlStdList); }
  int Checked() {
    int n = 0;
    for (int i = 0; i < List()->count(); ++i) n += List()->item(i)->checkState() == Qt::Checked;
    return n;
  }
  CStdLoadCombinationDlg dlg;
};

}  // namespace

TEST_F(StdDialogTest, ChangingTheCodeResetsTheListAndOkCopiesTheChecks) {
  dlg.m_nCode = 12;  // out of range: the first code
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.Item<QComboBox>(frame::IdOf(&CStdLoadCombinationDlg::m_nCode))->currentIndex(), 0);
  ASSERT_EQ(List()->count(), 36);
  EXPECT_EQ(List()->item(13)->text().toStdString(), "IBC-2015_Eq16-3g:  1.2D + 1.6Lr - 0.5W");
  dlg.PressButton(kCtlStdSelectAll);
  EXPECT_EQ(Checked(), 36);
  dlg.ChooseItem(frame::IdOf(&CStdLoadCombinationDlg::m_nCode), 7);
  ASSERT_EQ(List()->count(), 10);
  EXPECT_EQ(Checked(), 0);
  dlg.PressButton(kCtlStdSelectAll);
  dlg.PressButton(kCtlStdClearAll);
  List()->item(1)->setCheckState(Qt::Checked);
  List()->item(9)->setCheckState(Qt::Checked);
  dlg.Item<QCheckBox>(frame::IdOf(&CStdLoadCombinationDlg::m_bPDelta))->setChecked(true);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_nCode, 7);
  EXPECT_EQ(dlg.m_bPDelta, 1);
  EXPECT_EQ(dlg.m_checks, (std::vector<int32_t>{0, 1, 0, 0, 0, 0, 0, 0, 0, 1}));
}
