#include <QLineEdit>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"
#include "resources/geometry_ids.h"
#include "support/DialogTest.h"

namespace {

class CylinderHostTest : public DialogTest {
 protected:
  // Runs the dialog as the host does, with these lists typed in, and takes the result back.
  bool Generate(const char* radial, const char* angles, const char* axial, int supports) {
    auto dlg = CreateBoundDialog("CGenerateCylindricalFrameDlg", model, nullptr);
    EXPECT_TRUE(dlg);
    dlg->InitDialogForTest();
    dlg->Item<QLineEdit>(res::kCtlRadialList)->setText(radial);
    dlg->Item<QLineEdit>(res::kCtlAngleList)->setText(angles);
    dlg->Item<QLineEdit>(res::kCtlAxialList)->setText(axial);
    dlg->ChooseItem(res::kCtlSupports, supports);
    dlg->PressButton(IDOK);
    if (dlg->ModalResult() != IDOK) return false;
    return FindDialogBinding("CGenerateCylindricalFrameDlg")->takeBack(*dlg, model);
  }

  HostModel model;
};

TEST_F(CylinderHostTest, AddsNodesAfterTheHighestIdAndReportsTheRest) {
  model.doc.nodes = {{7, 0, 1, 2, 3}, {3, 0, 0, 0, 0}};
  ASSERT_TRUE(Generate("20,10", "0, 4@90", "12, 3", 1));
  ASSERT_EQ(model.doc.nodes.size(), 2u + 24u);
  EXPECT_EQ(model.doc.nodes[0], (fmNd{7, 0, 1, 2, 3}));
  EXPECT_EQ(model.doc.nodes[2].id, 8u);
  EXPECT_EQ(model.doc.nodes.back().id, 31u);
  EXPECT_EQ(model.doc.nodes.back().y, 15.0);
  EXPECT_EQ(model.status,
            "Generated 24 nodes (8 to 31); 52 members and 8 pinned supports await member and support records "
            "and were not added");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(CylinderHostTest, ARefusedDialogLeavesTheModelAlone) {
  model.doc.nodes = {{1, 0, 0, 0, 0}};
  EXPECT_FALSE(Generate("20,10", "0, 360", "", 0));
  EXPECT_EQ(model.doc.nodes.size(), 1u);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "Closed cylindrical frame must have at least two angle increments (excluding 0 start angle)"});
}

TEST_F(CylinderHostTest, TheDialogGetsTheModelsLengthUnit) {
  model.doc.units.SetMetric();
  auto dlg = CreateBoundDialog("CGenerateCylindricalFrameDlg", model, nullptr);
  dlg->InitDialogForTest();
  EXPECT_EQ(dlg->GetDlgItemText(res::kCtlRadialUnit), model.doc.units.Label(fmUnit::Length));
}

}  // namespace
