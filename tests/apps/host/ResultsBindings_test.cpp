#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/results/CResultsDlg.h"
#include "model/document.h"
#include "resources/results_ids.h"
#include "support/DialogTest.h"

namespace {

class ResultsHostTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    model.doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  }
  std::unique_ptr<CDialog> Open(std::map<std::string, std::string> options) {
    model.showOptions = std::move(options);
    auto dlg = CreateBoundDialog("CResultsDlg", model, nullptr);
    if (dlg) dlg->InitDialogForTest();
    return dlg;
  }
  HostModel model;
};

TEST_F(ResultsHostTest, TheShowOptionsChooseTheReportAndTheCase) {
  auto dlg = Open({{"kind", "1"}, {"case", "5"}});
  ASSERT_TRUE(dlg);
  auto& results = static_cast<CResultsDlg&>(*dlg);
  EXPECT_EQ(results.windowTitle().toStdString(), "Support Reactions - [Wind X]");
  EXPECT_EQ(results.Spread().sheet().GetData(2, 7), "-9.000");
  EXPECT_TRUE(model.dialogState);  // the solved structure lives while the dialog runs
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ResultsHostTest, ShowSelectedIsWrittenBackAlthoughTheDialogOnlyCloses) {
  auto dlg = Open({{"kind", "0"}});
  ASSERT_TRUE(dlg);
  ASSERT_TRUE(dlg->PressButton(res::kCtlResultsShowSelected));
  ASSERT_TRUE(dlg->PressButton(IDCANCEL));
  EXPECT_EQ(dlg->ModalResult(), IDCANCEL);
  EXPECT_TRUE(TakeBackDialogResult("CResultsDlg", *dlg, IDCANCEL, model));
  EXPECT_TRUE(model.doc.display.showSelectedOnly);
  EXPECT_TRUE(model.modified);
  EXPECT_FALSE(model.dialogState);
}

}  // namespace
