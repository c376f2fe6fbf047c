#include "dialogs/design/CMaterialDlg.h"

#include <QLineEdit>
#include <cmath>

#include "dialogs/design/CMaterialStrengthDlg.h"
#include "dialogs/design/SectionsDialogTest.h"
#include "dialogs/design/CStandardMaterialDlg.h"
#include "dialogs/design/material_grid.h"
#include "dialogs/frame/Form.h"
#include "resources/grid_ids.h"
#include "resources/sections_ids.h"

namespace {

// English units of the example: modulus ksi, weight density lb/ft^3, temperature F.
fmMat Steel(int id, const char* label) {
  fmMat m(id);
  m.label = label;
  m.E = 29000, m.nu = 0.3, m.density = 490, m.Tc = 6.5e-6, m.fc = 3, m.fy = 50, m.fys = 65;
  return m;
}

std::vector<fmMat> Sample() { return {Steel(1, "A992"), Steel(2, "A36")}; }

class MaterialDialogTest : public SectionsDialogTest {
 protected:
  void Open() {
    dlg.m_pUnits = &units;
    dlg.m_pMaterials = &materials;
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }

  // Picks a standard material and a unit density, then OK.
  std::function<void(CDialog&)> Choose(int index, const char* density) {
    return [index, density](CDialog& d) {
      d.ChooseItem(frame::IdOf(&CStandardMaterialDlg::m_nMaterial), index);
      if (density) d.Item<QLineEdit>(frame::IdOf(&CStandardMaterialDlg::m_dUnitDensity))->setText(density);
      d.PressButton(IDOK);
    };
  }

  fmUnit units;
  std::vector<fmMat> materials = Sample();
  CMaterialDlg dlg;
};

}  // namespace

TEST_F(MaterialDialogTest, StandardConcreteFillsANewRowAndItsStrengthsReachTheHost) {
  Open();
  scripts[res::kIddStandardMaterial] = Choose(9, "145");  // "Concrete fc = 4.0 ksi"
  dlg.PressButton(res::kCtlMatStandard);
  EXPECT_TRUE(Messages().empty()) << "row 1 active: a new row, no question";
  ASSERT_EQ(sheet().MaxRows(), 3);
  for (const auto& [col, text] : {std::pair{1, "3"}, {2, "Concrete40"}, {3, "3644.15"}, {4, "0.15"}, {5, "145"}})
    EXPECT_EQ(sheet().GetData(col, 3), text) << col;
  ASSERT_TRUE(dlg.PressButton(IDOK));
  ASSERT_EQ(materials.size(), 3u);
  EXPECT_NEAR(materials[2].E, 33 * std::pow(145.0, 1.5) * std::sqrt(4000.0) / 1000, 1e-9);
  EXPECT_NEAR(materials[2].fc, 4, 1e-12);
  EXPECT_NEAR(materials[2].fy, 60, 1e-12);
  EXPECT_EQ(materials[0], Sample()[0]);
}

TEST_F(MaterialDialogTest, StandardMaterialAsksBeforeOverwritingALabelledRow) {
  Open();
  scripts[res::kIddStandardMaterial] = Choose(1, nullptr);  // Steel-A36--Fy36 with its own density
  dlg.Spread().SetActiveCell(1, 2);
  prompter.QueueAnswer(false);
  dlg.PressButton(res::kCtlMatStandard);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Do you want to override the current material?"});
  EXPECT_EQ(opened[res::kIddStandardMaterial], 0);
  prompter.QueueAnswer(true);
  dlg.PressButton(res::kCtlMatStandard);
  EXPECT_EQ(sheet().GetData(2, 2), "Steel-A36--Fy36");
  EXPECT_EQ(sheet().GetData(5, 2), "489.024");  // 0.283 lb/in^3
}

TEST_F(MaterialDialogTest, RefusalKeepsTheDialogOpenAndTheHostsVector) {
  Open();
  sheet().SetData(matgrid::kNu, 2, "0.51");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(),
            std::vector<std::string>{"Poisson ratio must be greater than 0.0 and less than 0.5 for material 2."});
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 2}));
  EXPECT_EQ(materials, Sample());
}

TEST_F(SectionsDialogTest, StrengthGridsWriteBackOnlyTheirStrengths) {
  fmUnit units;
  std::vector<fmMat> materials = Sample();
  CMaterialRcDlg rc;
  rc.m_pUnits = &units;
  rc.m_pMaterials = &materials;
  rc.InitDialogForTest();
  auto& s = rc.Spread().sheet();
  s.SetData(3, 2, "-1");
  rc.PressButton(IDOK);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid fc input for material 2."});
  s.SetData(3, 2, "0");
  s.SetData(5, 2, "40");
  ASSERT_TRUE(rc.PressButton(IDOK));
  EXPECT_EQ(materials[1].fc, 0);
  EXPECT_EQ(materials[1].fys, 40);
  EXPECT_EQ(materials[1].E, 29000);

  EXPECT_TRUE(debugLines.empty()) << debugLines.front();
}
