#include <functional>

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
  const struct {
    const char* className;
    int rows;
    int col;  // a cell of row 1 to change
    const char* text;
    std::function<bool(const model::ModelDocument&)> changed;
  } cases[] = {
      {"CBeamDataDlg", 28, 7, "Compression Only",
       [](const model::ModelDocument& d) { return d.members[0].nonlinear == fmNonlinear::CompressionOnly; }},
      {"CShell4DataDlg", 8, 7, "2: Wall12in", [](const model::ModelDocument& d) { return d.shells[0].thick == 2; }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.className);
    model.modified = false;
    auto dlg = CreateBoundDialog(c.className, model, nullptr);
    ASSERT_TRUE(dlg);
    dlg->InitDialogForTest();
    auto& grid = static_cast<CElementDataDlg&>(*dlg);
    EXPECT_EQ(grid.Spread().sheet().MaxRows(), c.rows);
    grid.Spread().sheet().SetData(c.col, 1, c.text);
    dlg->PressButton(IDOK);
    ASSERT_EQ(dlg->ModalResult(), IDOK) << (Messages().empty() ? "" : Messages().back());
    EXPECT_TRUE(TakeBackDialogResult(c.className, *dlg, IDOK, model));
    EXPECT_TRUE(model.modified);
    EXPECT_TRUE(c.changed(model.doc));
  }
}

TEST_F(ModelHostTest, RenumberingASupportedNodeRemovesItsSupport) {
  auto dlg = CreateBoundDialog("CNodeDataDlg", model, nullptr);
  ASSERT_TRUE(dlg);
  dlg->InitDialogForTest();
  auto& grid = static_cast<CDataGridDlg&>(*dlg);
  grid.Spread().sheet().SetData(1, 1, "1001");  // node 1 carries a fixed support
  dlg->PressButton(IDOK);
  ASSERT_EQ(dlg->ModalResult(), IDOK) << (Messages().empty() ? "" : Messages().back());
  EXPECT_TRUE(TakeBackDialogResult("CNodeDataDlg", *dlg, IDOK, model));
  EXPECT_EQ(model.status, "Removed 1 support at nodes no longer in the model (1)");
  ASSERT_EQ(model.doc.supports.size(), 5u);
  EXPECT_EQ(model.doc.supports[0], fmSupport::Fixed(2));
}
