#include <QLineEdit>
#include <filesystem>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "apps/host/HostWindow.h"
#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"
#include "dialogs/model/CElementDataDlg.h"
#include "resources/geometry_ids.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"

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

TEST_F(CylinderHostTest, AddsTheFrameAfterTheHighestIdsAndSaysWhat) {
  model.doc.nodes = {{7, 0, 1, 2, 3}, {3, 0, 0, 0, 0}};
  ASSERT_TRUE(Generate("20,10", "0, 4@90", "12, 3", 1));
  ASSERT_EQ(model.doc.nodes.size(), 2u + 24u);
  EXPECT_EQ(model.doc.nodes[0], (fmNd{7, 0, 1, 2, 3}));
  EXPECT_EQ(model.doc.nodes[2].id, 8u);
  EXPECT_EQ(model.doc.nodes.back().id, 31u);
  EXPECT_EQ(model.doc.nodes.back().y, 15.0);
  EXPECT_EQ(model.doc.members.size(), 52u);
  EXPECT_EQ(model.doc.supports.size(), 8u);
  EXPECT_EQ(model.status,
            "Generated 24 nodes (8 to 31), 52 members (1 to 52) and 8 pinned supports; "
            "the members have no material or section yet");
  EXPECT_TRUE(Messages().empty());

  // Nothing but a centre node: one node, no members.
  ASSERT_TRUE(Generate("0", "0, 30", "", 2));
  EXPECT_EQ(model.status, "Generated 1 node (32) and 1 fixed support");
}

// The example building gets a frame beside it; the member table then lists the new members,
// accepts them on OK, and File Save writes the whole frame.
TEST_F(CylinderHostTest, TheFrameReachesTheMemberTableAndTheSavedFile) {
  TempDir dir;
  const std::string path = dir / "building.json";
  std::filesystem::copy_file(std::string(NORVANE_EXAMPLES_DIR) + "/building.json", path);
  HostWindow window;
  ASSERT_TRUE(window.OpenModel(path));
  HostModel& m = window.model();
  auto dlg = CreateBoundDialog("CGenerateCylindricalFrameDlg", m, &window);
  dlg->InitDialogForTest();
  dlg->Item<QLineEdit>(res::kCtlRadialList)->setText("10");
  dlg->Item<QLineEdit>(res::kCtlAngleList)->setText("0, 3@120");
  dlg->Item<QLineEdit>(res::kCtlAxialList)->setText("12");
  dlg->ChooseItem(res::kCtlSupports, 2);
  dlg->PressButton(IDOK);
  ASSERT_EQ(dlg->ModalResult(), IDOK);
  EXPECT_TRUE(TakeBackDialogResult("CGenerateCylindricalFrameDlg", *dlg, IDOK, m));
  EXPECT_TRUE(m.modified);
  EXPECT_EQ(m.status,
            "Generated 6 nodes (45 to 50), 9 members (29 to 37) and 3 fixed supports; "
            "the members have material 1: Steel-A992--Fy50 and section 1: W14X90");

  auto beams = CreateBoundDialog("CBeamDataDlg", m, &window);
  beams->InitDialogForTest();
  const grid::Sheet& sheet = static_cast<CElementDataDlg&>(*beams).Spread().sheet();
  ASSERT_EQ(sheet.MaxRows(), 28 + 9);
  const std::vector<std::string> last = {"37", "47", "50", "1: Steel-A992--Fy50", "1: W14X90"};
  for (int col = 1; col <= 5; ++col) EXPECT_EQ(sheet.GetData(col, 37), last[static_cast<size_t>(col) - 1]) << col;
  const std::vector<fmBm> members = m.doc.members;
  beams->PressButton(IDOK);
  ASSERT_EQ(beams->ModalResult(), IDOK) << (Messages().empty() ? "" : Messages().back());
  EXPECT_EQ(m.doc.members, members);

  ASSERT_TRUE(window.SaveModel());
  const model::ModelDocument saved = model::LoadModelDocument(path);
  EXPECT_EQ(saved.nodes, m.doc.nodes);
  EXPECT_EQ(saved.members, m.doc.members);
  ASSERT_EQ(saved.supports.size(), 6u + 3u);
  for (uint32_t k = 0; k < 3; ++k) EXPECT_EQ(saved.supports[6 + k], fmSupport::Fixed(45 + k));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(CylinderHostTest, ALockedModelIsNotChanged) {
  model.doc.display.modelLocked = true;
  EXPECT_FALSE(Generate("20,10", "0, 2@30", "", 1));
  EXPECT_TRUE(model.doc.nodes.empty() && model.doc.members.empty() && model.doc.supports.empty());
  EXPECT_EQ(Messages(), std::vector<std::string>{"The Model is locked.\nThe cylindrical frame was not added."});
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
