#include <QCheckBox>
#include <QLineEdit>

#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"
#include "resources/geometry_ids.h"
#include "resources/resources.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

// The rules on the lists are tested on the engine; here only how the dialog applies them.
class CylinderDlgTest : public DialogTest {
 protected:
  void Open() {
    dlg.m_pUnits = &units;
    ASSERT_TRUE(dlg.InitDialogForTest());
  }
  void Type(int id, const char* text) { dlg.Item<QLineEdit>(id)->setText(text); }

  fmUnit units;
  CGenerateCylindricalFrameDlg dlg;
};

TEST_F(CylinderDlgTest, CaptionsComeFromTheStringTableAndValuesFromTheHost) {
  units.SetMetric();
  dlg.m_strYList = "12, 3@20";
  dlg.m_nSupports = 1;
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), *LoadString(kStrGenerateCylindricalFrame));
  EXPECT_EQ(dlg.GetDlgItemText(kCtlSupports), "Pinned");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlAxialList), "12, 3@20");
  for (int id : {kCtlRadialUnit, kCtlAxialUnit, kCtlInsertXUnit}) EXPECT_EQ(dlg.GetDlgItemText(id), "m") << id;
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(CylinderDlgTest, RefusalsAreShownAndTheDialogStaysOpenWithTheTextAsTyped) {
  Open();
  const struct { int id; const char *text, *message; } cases[] = {
      {kCtlAngleList, "0, 360",
       "Closed cylindrical frame must have at least two angle increments (excluding 0 start angle)"},
      {kCtlAxialList, "-2@10",
       "Y direction distance list: \"-2@10\" (item 1) has a repeat count that is not a whole number from 1 to 100000"},
      {kCtlInsertY, "1,5", "Please enter a number."},  // data exchange, before the lists are checked
  };
  for (const auto& c : cases) {
    prompter.Clear();
    Type(c.id, c.text);
    ASSERT_TRUE(dlg.PressButton(IDOK));
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg.ModalResult(), 0);
    EXPECT_EQ(dlg.GetDlgItemText(c.id), c.text);
  }
}

TEST_F(CylinderDlgTest, OkWritesTheValuesBackAndCancelLeavesThem) {
  Open();
  for (const auto& [id, text] : {std::pair{kCtlAngleList, "2@30"}, {kCtlAxialList, "12, 3@20, 2@15"},
                                 {kCtlInsertY, "1.5"}, {kCtlRotationAngle, "-45"}})
    Type(id, text);  // "2@30" is accepted: the leading 0 is put in place
  ASSERT_TRUE(dlg.ChooseItem(kCtlRotationAxis, 1));
  ASSERT_TRUE(dlg.ChooseItem(kCtlSupports, 2));
  dlg.Item<QCheckBox>(kCtlGenerateMembers)->setChecked(false);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  // The texts go back as typed; the host parses them again.
  EXPECT_EQ(dlg.m_strRadialList, "20,10");
  EXPECT_EQ(dlg.m_strAngleList, "2@30");
  EXPECT_EQ(dlg.m_strYList, "12, 3@20, 2@15");
  EXPECT_TRUE(dlg.m_dInsertY == 1.5 && dlg.m_dRotationAngle == -45.0);
  EXPECT_TRUE(dlg.m_nRotationAxis == 1 && dlg.m_nSupports == 2 && dlg.m_bGenerateMembers == 0);

  CGenerateCylindricalFrameDlg cancelled;
  ASSERT_TRUE(cancelled.InitDialogForTest());
  cancelled.Item<QLineEdit>(kCtlRadialList)->setText("-5");
  ASSERT_TRUE(cancelled.PressButton(IDCANCEL));
  EXPECT_TRUE(cancelled.ModalResult() == IDCANCEL && cancelled.m_strRadialList == "20,10" && Messages().empty());
}

}  // namespace
