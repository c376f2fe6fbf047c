#include <QLineEdit>
#include <QTreeWidget>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/loads/CLoadCaseDlg.h"
#include "dialogs/loads/CLoadComboDlg.h"
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
  HostModel model;
};

}  // namespace

TEST_F(LoadsHostTest, LoadCaseTableWritesTheDocumentOnOk) {
  auto dlg = CreateBoundDialog("CLoadCaseDlg", model, nullptr);
  ASSERT_TRUE(dlg);
  dlg->InitDialogForTest();
  auto& table = static_cast<CLoadCaseDlg&>(*dlg);
  EXPECT_EQ(table.Spread().sheet().MaxRows(), 7);
  table.Spread().sheet().SetData(2, 7, "Construction loads");
  dlg->PressButton(IDOK);
  ASSERT_EQ(dlg->ModalResult(), IDOK);
  EXPECT_TRUE(TakeBackDialogResult("CLoadCaseDlg", *dlg, IDOK, model));
  EXPECT_TRUE(model.modified);
  EXPECT_EQ(model.doc.loadCases[6].name, "Construction loads");
  EXPECT_EQ(model.doc.loadCases[6].number, -1);
}

TEST_F(LoadsHostTest, CombinationListChangesCountEvenAfterCancel) {
  const size_t before = model.doc.loadCombs.size();
  {
    auto dlg = CreateBoundDialog("CLoadComboDlg", model, nullptr);
    dlg->InitDialogForTest();
    EXPECT_EQ(dlg->Item<QTreeWidget>(res::kCtlComboList)->topLevelItemCount(), static_cast<int>(before));
    dlg->PressButton(IDCANCEL);
    EXPECT_FALSE(TakeBackDialogResult("CLoadComboDlg", *dlg, IDCANCEL, model));
    EXPECT_FALSE(model.modified);
  }
  auto dlg = CreateBoundDialog("CLoadComboDlg", model, nullptr);
  dlg->InitDialogForTest();
  dlg->PressButton(res::kCtlComboUnitCases);
  dlg->PressButton(IDCANCEL);
  EXPECT_EQ(model.doc.loadCombs.size(), before + 7);
  EXPECT_TRUE(TakeBackDialogResult("CLoadComboDlg", *dlg, IDCANCEL, model));
  EXPECT_TRUE(model.modified);
}

TEST_F(LoadsHostTest, EditorAloneEditsTheFirstCombination) {
  auto dlg = CreateBoundDialog("CLoadComboItemDlg", model, nullptr);
  dlg->InitDialogForTest();
  EXPECT_EQ(dlg->GetDlgItemText(res::kCtlItemLabel), model.doc.loadCombs.front().name);
  dlg->Item<QLineEdit>(res::kCtlItemLabel)->setText("Dead alone");
  dlg->PressButton(IDOK);
  ASSERT_EQ(dlg->ModalResult(), IDOK);
  EXPECT_TRUE(TakeBackDialogResult("CLoadComboItemDlg", *dlg, IDOK, model));
  EXPECT_EQ(model.doc.loadCombs.front().name, "Dead alone");
  EXPECT_EQ(model.doc.loadCombs.front().items, (std::vector<fmLoadCombItem>{{"Dead", 1.0}}));
}
