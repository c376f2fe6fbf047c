#include <QLineEdit>
#include <filesystem>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "apps/host/HostWindow.h"
#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"
#include "resources/geometry_ids.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"

namespace {

class CylinderHostTest : public DialogTest {
 protected:
  bool Generate(HostModel& m, const char* radial, const char* angles, const char* axial, int supports,
                HostWindow* window = nullptr) {
    auto dlg = CreateBoundDialog("CGenerateCylindricalFrameDlg", m, window);
    EXPECT_TRUE(dlg);
    dlg->InitDialogForTest();
    EXPECT_EQ(dlg->GetDlgItemText(res::kCtlRadialUnit), m.doc.units.Label(fmUnit::Length));
    dlg->Item<QLineEdit>(res::kCtlRadialList)->setText(radial);
    dlg->Item<QLineEdit>(res::kCtlAngleList)->setText(angles);
    dlg->Item<QLineEdit>(res::kCtlAxialList)->setText(axial);
    dlg->ChooseItem(res::kCtlSupports, supports);
    dlg->PressButton(IDOK);
    return TakeBackDialogResult("CGenerateCylindricalFrameDlg", *dlg, dlg->ModalResult(), m);
  }

  HostModel model;
};

TEST_F(CylinderHostTest, AddsTheFrameAfterTheHighestIdsAndSaysWhat) {
  model.doc.nodes = {{7, 0, 1, 2, 3}, {3, 0, 0, 0, 0}};
  ASSERT_TRUE(Generate(model, "20,10", "0, 4@90", "12, 3", 1));
  ASSERT_EQ(model.doc.nodes.size(), 2u + 24u);
  EXPECT_EQ(model.doc.nodes[0], (fmNd{7, 0, 1, 2, 3}));
  EXPECT_EQ(model.doc.nodes.back().id, 31u);
  EXPECT_EQ(model.doc.nodes.back().y, 15.0);
  EXPECT_EQ(model.status,
            "Generated 24 nodes (8 to 31), 52 members (1 to 52) and 8 pinned supports; "
            "the members have no material or section yet");
  ASSERT_TRUE(Generate(model, "0", "0, 30", "", 2));
  EXPECT_EQ(model.status, "Generated 1 node (32) and 1 fixed support");
  EXPECT_TRUE(Messages().empty());

  const std::vector<fmNd> nodes = model.doc.nodes;  // a locked model is left alone
  model.doc.display.modelLocked = true;
  EXPECT_FALSE(Generate(model, "20,10", "0, 2@30", "", 1));
  EXPECT_EQ(model.doc.nodes, nodes);
  EXPECT_EQ(Messages(), std::vector<std::string>{"The Model is locked.\nThe cylindrical frame was not added."});
}

// The example building gets a frame beside it, with its first material and section; File Save writes it all.
TEST_F(CylinderHostTest, TheFrameReachesTheSavedFile) {
  TempDir dir;
  const std::string path = dir / "building.json";
  std::filesystem::copy_file(std::string(NORVANE_EXAMPLES_DIR) + "/building.json", path);
  HostWindow window;
  ASSERT_TRUE(window.OpenModel(path));
  HostModel& m = window.model();
  ASSERT_TRUE(Generate(m, "10", "0, 3@120", "12", 2, &window));
  EXPECT_TRUE(m.modified);
  EXPECT_EQ(m.status,
            "Generated 6 nodes (45 to 50), 9 members (29 to 37) and 3 fixed supports; "
            "the members have material 1: Steel-A992--Fy50 and section 1: W14X90");

  ASSERT_TRUE(window.SaveModel());
  const model::ModelDocument saved = model::LoadModelDocument(path);
  EXPECT_EQ(saved.nodes, m.doc.nodes);
  EXPECT_EQ(saved.members, m.doc.members);
  ASSERT_EQ(saved.supports.size(), 6u + 3u);
  for (uint32_t k = 0; k < 3; ++k) EXPECT_EQ(saved.supports[6 + k], fmSupport::Fixed(45 + k));
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
