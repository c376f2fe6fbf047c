#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/DialogRegistry.h"
#include "support/DialogTest.h"

using TemplatesTest = DialogTest;

TEST_F(TemplatesTest, EveryTemplateBuildsAndFindsAllItsTexts) {
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::DialogTemplate* t : table->templates) {
      SCOPED_TRACE(std::string(table->name) + " template " + std::to_string(t->id));
      CDialog dlg(t->id);
      dlg.InitDialogForTest();
      EXPECT_EQ(dlg.Template(), t);
      for (const res::Control& c : t->controls) {
        if (c.id == 0) continue;
        QWidget* w = dlg.GetDlgItem(c.id);
        ASSERT_NE(w, nullptr) << "control " << c.id;
        EXPECT_EQ(w->objectName().toStdString(), "ctl_" + std::to_string(c.id));
        if (c.stringId != 0 && c.kind != res::Kind::Edit) {
          EXPECT_EQ(dlg.GetDlgItemText(c.id), *res::LoadString(c.stringId)) << "control " << c.id;
        }
      }
      EXPECT_EQ(debugLines, std::vector<std::string>{});
      debugLines.clear();
    }
  }
}

TEST_F(TemplatesTest, EveryRegisteredDialogOpens) {
  EXPECT_EQ(FindDialogClass("CNoSuchDlg"), nullptr);
  for (const DialogClassInfo& info : RegisteredDialogClasses()) {
    SCOPED_TRACE(info.className);
    EXPECT_FALSE(info.family.empty());
    std::unique_ptr<CDialog> dlg = info.create(nullptr);
    ASSERT_NE(dlg, nullptr);
    EXPECT_NE(res::FindTemplate(dlg->TemplateId()), nullptr) << "template " << dlg->TemplateId();
  }
}
