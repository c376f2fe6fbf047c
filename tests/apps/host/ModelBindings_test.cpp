#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/model/CElementDataDlg.h"
#include "support/DialogTest.h"

namespace {

class ModelHostTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    RegisterAllBindings();
    model.doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  }
  HostModel model;
};

}  // namespace

TEST_F(ModelHostTest, ElementGridsShowTheDocumentsElementsAndWriteItOnOk) {
  const struct { const char* className; int rows, col; const char* text; } cases[] = {
      {"CBeamDataDlg", 28, 7, "Compression Only"}, {"CShell4DataDlg", 8, 7, "2: Wall12in"},
      {"CNodeDataDlg", 44, 1, "1001"}};  // node 1 carries a fixed support
  for (const auto& c : cases) {
    SCOPED_TRACE(c.className);
    model.modified = false;
    auto dlg = CreateBoundDialog(c.className, model, nullptr);
    ASSERT_TRUE(dlg);
    dlg->InitDialogForTest();
    auto& grid = static_cast<CDataGridDlg&>(*dlg);
    EXPECT_EQ(grid.Spread().sheet().MaxRows(), c.rows);
    grid.Spread().sheet().SetData(c.col, 1, c.text);
    dlg->PressButton(IDOK);
    ASSERT_EQ(dlg->ModalResult(), IDOK) << (Messages().empty() ? "" : Messages().back());
    EXPECT_TRUE(TakeBackDialogResult(c.className, *dlg, IDOK, model));
    EXPECT_TRUE(model.modified);
  }
  EXPECT_EQ(model.doc.members[0].nonlinear, fmNonlinear::CompressionOnly);
  EXPECT_EQ(model.doc.shells[0].thick, 2);
  // Renumbering a supported node removes its support.
  EXPECT_EQ(model.status, "Removed 1 support at nodes no longer in the model (1)");
  ASSERT_EQ(model.doc.supports.size(), 5u);
  EXPECT_EQ(model.doc.supports[0], fmSupport::Fixed(2));
}
