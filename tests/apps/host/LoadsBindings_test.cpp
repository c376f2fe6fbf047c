#include <QLineEdit>
#include <QTreeWidget>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/frame/Form.h"
#include "dialogs/loads/CLoadCaseDlg.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "resources/loads_ids.h"
#include "support/DialogTest.h"

namespace {

class LoadsHostTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    RegisterAllBindings();
    model.doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  }
  template <typename Edit>
  bool Run(const char* className, int button, Edit edit) {
    auto dlg = CreateBoundDialog(className, model, nullptr);
    EXPECT_TRUE(dlg);
    dlg->InitDialogForTest();
    edit(*dlg);
    dlg->PressButton(button);
    EXPECT_EQ(dlg->ModalResult(), button) << (Messages().empty() ? "" : Messages().back());
    return TakeBackDialogResult(className, *dlg, dlg->ModalResult(), model);
  }
  HostModel model;
};

}  // namespace

TEST_F(LoadsHostTest, TablesWriteTheDocumentOnOk) {
  EXPECT_TRUE(Run("CLoadCaseDlg", IDOK, [](CDialog& d) {
    auto& sheet = static_cast<CLoadCaseDlg&>(d).Spread().sheet();
    EXPECT_EQ(sheet.MaxRows(), 7);
    sheet.SetData(2, 7, "Construction loads");
  }));
  EXPECT_TRUE(model.modified);
  EXPECT_EQ(model.doc.loadCases[6].name, "Construction loads");
  EXPECT_EQ(model.doc.loadCases[6].number, -1);

  EXPECT_TRUE(Run("CLoadComboItemDlg", IDOK, [&](CDialog& d) {  // alone, it edits the first combination
    EXPECT_EQ(d.GetDlgItemText(frame::IdOf(&CLoadComboItemDlg::m_strLabel)), model.doc.loadCombs.front().name);
    d.Item<QLineEdit>(frame::IdOf(&CLoadComboItemDlg::m_strLabel))->setText("Dead alone");
  }));
  EXPECT_EQ(model.doc.loadCombs.front().name, "Dead alone");
  EXPECT_EQ(model.doc.loadCombs.front().items, (std::vector<fmLoadCombItem>{{"Dead", 1.0}}));
}

// The combination list acts on the model at once: what it did counts even after Cancel.
TEST_F(LoadsHostTest, CombinationListChangesCountEvenAfterCancel) {
  const size_t before = model.doc.loadCombs.size();
  EXPECT_FALSE(Run("CLoadComboDlg", IDCANCEL, [&](CDialog& d) {
    EXPECT_EQ(d.Item<QTreeWidget>(res::kCtlComboList)->topLevelItemCount(), static_cast<int>(before));
  }));
  EXPECT_FALSE(model.modified);
  EXPECT_TRUE(Run("CLoadComboDlg", IDCANCEL, [](CDialog& d) { d.PressButton(res::kCtlComboUnitCases); }));
  EXPECT_EQ(model.doc.loadCombs.size(), before + 7);
  EXPECT_TRUE(model.modified);
}
