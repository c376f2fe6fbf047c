#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"
#include "resources/geometry_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

class CylinderDlgTest : public DialogTest {
 protected:
  void Open() {
    dlg.m_pUnits = &units;
    ASSERT_TRUE(dlg.InitDialogForTest());
  }
  void Type(int id, const std::string& text) { dlg.Item<QLineEdit>(id)->setText(QString::fromStdString(text)); }
  std::string Text(int id) const { return dlg.GetDlgItemText(id); }
  QStringList Items(int id) const {
    QStringList items;
    auto* combo = dlg.Item<QComboBox>(id);
    for (int i = 0; i < combo->count(); ++i) items << combo->itemText(i);
    return items;
  }
  // Presses OK with these lists; returns the one message shown, or "" when accepted.
  std::string PressOk(const std::string& radial, const std::string& angles, const std::string& axial) {
    prompter.Clear();
    Type(kCtlRadialList, radial);
    Type(kCtlAngleList, angles);
    Type(kCtlAxialList, axial);
    EXPECT_TRUE(dlg.PressButton(IDOK));
    const auto messages = Messages();
    EXPECT_LE(messages.size(), 1u);
    return messages.empty() ? std::string() : messages.front();
  }

  fmUnit units;
  CGenerateCylindricalFrameDlg dlg;
};

TEST_F(CylinderDlgTest, ShouldHaveDefaultValuesAndTexts) {
  EXPECT_EQ(dlg.m_pUnits, nullptr);
  EXPECT_EQ(dlg.m_strRadialList, "20,10");
  EXPECT_EQ(dlg.m_strAngleList, "0, 2@30");
  EXPECT_EQ(dlg.m_strYList, "");
  EXPECT_EQ(dlg.m_dInsertX, 0.0);
  EXPECT_EQ(dlg.m_dInsertY, 0.0);
  EXPECT_EQ(dlg.m_dInsertZ, 0.0);
  EXPECT_EQ(dlg.m_nRotationAxis, 0);
  EXPECT_EQ(dlg.m_dRotationAngle, 0.0);
  EXPECT_EQ(dlg.m_nSupports, 0);
  EXPECT_EQ(dlg.m_bGenerateMembers, 1);
  EXPECT_EQ(dlg.TemplateId(), 8107);

  units.SetMetric();
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Generate Cylindrical Frame");
  const std::string length = units.Label(fmUnit::Length);
  EXPECT_FALSE(length.empty());
  const std::pair<int, std::string> texts[] = {
      {kCtlRadialListLabel, "Radial distance list (e.g. 12, 3@20, 2@15):"},
      {kCtlAngleListLabel, "Angle increment list with 0 as start angle (e.g. 3@45):"},
      {kCtlAxialListLabel, "Y direction distance list (e.g. 12, 3@20, 2@15), may leave empty:"},
      {kCtlInsertionGroup, "Insertion Point Coordinates"},
      {kCtlRotationGroup, "Rotation"},
      {kCtlAboutGroup, "About:"},
      {kCtlRotationAngleLabel, "Angle:"},
      {kCtlSupportsLabel, "Supports at bottom:"},
      {kCtlGenerateMembers, "Generate members"},
      {IDOK, "OK"},
      {IDCANCEL, "Cancel"},
      {kCtlRadialList, "20,10"},
      {kCtlAngleList, "0, 2@30"},
      {kCtlAxialList, ""},
      {kCtlInsertX, "0"},
      {kCtlInsertY, "0"},
      {kCtlInsertZ, "0"},
      {kCtlRotationAngle, "0"},
      {kCtlRotationAxis, "Global X"},
      {kCtlSupports, "No Supports"},
      {kCtlRadialUnit, length},
      {kCtlAxialUnit, length},
      {kCtlInsertXUnit, length},
      {kCtlInsertYUnit, length},
      {kCtlInsertZUnit, length},
      {kCtlAngleListUnit, "deg"},
      {kCtlRotationAngleUnit, "deg"},
  };
  for (const auto& [id, text] : texts) EXPECT_EQ(Text(id), text) << id;
  EXPECT_EQ(Items(kCtlRotationAxis), (QStringList{"Global X", "Global Y", "Global Z"}));
  EXPECT_EQ(Items(kCtlSupports), (QStringList{"No Supports", "Pinned", "Fixed"}));
  EXPECT_TRUE(dlg.Item<QCheckBox>(kCtlGenerateMembers)->isChecked());
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(CylinderDlgTest, ShowsTheHostsValues) {
  dlg.m_strYList = "12, 3@20";
  dlg.m_nRotationAxis = 2;
  dlg.m_nSupports = 1;
  dlg.m_dRotationAngle = 22.5;
  dlg.m_bGenerateMembers = 0;
  Open();
  EXPECT_EQ(Text(kCtlAxialList), "12, 3@20");
  EXPECT_EQ(Text(kCtlRotationAxis), "Global Z");
  EXPECT_EQ(Text(kCtlSupports), "Pinned");
  EXPECT_EQ(Text(kCtlRotationAngle), "22.5");
  EXPECT_FALSE(dlg.Item<QCheckBox>(kCtlGenerateMembers)->isChecked());
}

TEST_F(CylinderDlgTest, ChecksTheListsOnOk) {
  const struct {
    const char* radial;
    const char* angles;
    const char* axial;
    const char* message;  // "": accepted
  } cases[] = {
      {"20,10", "2@30", "", ""},
      {"20,10", "0", "", "Invalid angle increment(s)"},
      {"20,10", "0, 30, 0", "", "Angle increment other than the first may not be 0"},
      {"20,10", "0, 4@90", "", ""},
      {"20,10", "0, 360", "",
       "Closed cylindrical frame must have at least two angle increments (excluding 0 start angle)"},
      {"20,10", "0, 180, 180.0000001", "", ""},
      {"20,10", "0, 200, 200", "", "Total angle may not be greater than 360 degrees"},
      {"0", "0, 2@30", "", ""},
      {"-5, 10", "0, 2@30", "", "Radial distance may not be negative"},
      {"", "0, 2@30", "", "Invalid radial distance list"},
      {"20,10", "0, 2@30", "", ""},
      {"20,10", "0, 2@30", "12, 3@20, 2@15", ""},
  };
  for (const auto& c : cases) {
    CGenerateCylindricalFrameDlg fresh;
    fresh.m_pUnits = &units;
    ASSERT_TRUE(fresh.InitDialogForTest());
    prompter.Clear();
    fresh.Item<QLineEdit>(kCtlRadialList)->setText(c.radial);
    fresh.Item<QLineEdit>(kCtlAngleList)->setText(c.angles);
    fresh.Item<QLineEdit>(kCtlAxialList)->setText(c.axial);
    ASSERT_TRUE(fresh.PressButton(IDOK));
    SCOPED_TRACE(std::string(c.radial) + " | " + c.angles + " | " + c.axial);
    if (*c.message) {
      EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
      EXPECT_EQ(fresh.ModalResult(), 0);
    } else {
      EXPECT_TRUE(Messages().empty());
      EXPECT_EQ(fresh.ModalResult(), IDOK);
      // The texts go back as typed; the host parses them again.
      EXPECT_EQ(fresh.m_strRadialList, c.radial);
      EXPECT_EQ(fresh.m_strAngleList, c.angles);
      EXPECT_EQ(fresh.m_strYList, c.axial);
    }
  }
}

TEST_F(CylinderDlgTest, BadListTextGetsOneClearMessageAndStaysAsTyped) {
  const struct {
    const char* item;
    const char* problem;
  } bad[] = {
      {"abc", "\"abc\" (item 1) is not a number"},
      {"3@", "\"3@\" (item 1) has no value after @"},
      {"@5", "\"@5\" (item 1) has no repeat count before @"},
      {"1e999", "\"1e999\" (item 1) is out of range"},
      {"-2@10", "\"-2@10\" (item 1) has a repeat count that is not a whole number from 1 to 100000"},
  };
  Open();
  for (const auto& b : bad) {
    SCOPED_TRACE(b.item);
    EXPECT_EQ(PressOk(b.item, "0, 2@30", ""), std::string("Radial distance list: ") + b.problem);
    EXPECT_EQ(PressOk("20,10", b.item, ""), std::string("Angle increment list: ") + b.problem);
    EXPECT_EQ(PressOk("20,10", "0, 2@30", b.item), std::string("Y direction distance list: ") + b.problem);
    EXPECT_EQ(Text(kCtlAxialList), b.item);
    EXPECT_EQ(dlg.ModalResult(), 0);
  }
  // A repeated negative value reads, and each list refuses it by its own rule.
  EXPECT_EQ(PressOk("2@-10", "0, 2@30", ""), "Radial distance may not be negative");
  EXPECT_EQ(PressOk("20,10", "2@-10", ""), "Angle increment may not be negative");
  EXPECT_EQ(PressOk("20,10", "0, 2@30", "2@-10"), "Y direction distance may not be negative");
  EXPECT_EQ(dlg.ModalResult(), 0);
}

TEST_F(CylinderDlgTest, PlainValuesAreCheckedByDataExchange) {
  Open();
  Type(kCtlInsertY, "1,5");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Please enter a number."});
  EXPECT_EQ(dlg.ModalResult(), 0);

  prompter.Clear();
  Type(kCtlInsertY, "1.5");
  Type(kCtlRotationAngle, "-45");
  ASSERT_TRUE(dlg.ChooseItem(kCtlRotationAxis, 1));
  ASSERT_TRUE(dlg.ChooseItem(kCtlSupports, 2));
  dlg.Item<QCheckBox>(kCtlGenerateMembers)->setChecked(false);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_dInsertY, 1.5);
  EXPECT_EQ(dlg.m_dRotationAngle, -45.0);
  EXPECT_EQ(dlg.m_nRotationAxis, 1);
  EXPECT_EQ(dlg.m_nSupports, 2);
  EXPECT_EQ(dlg.m_bGenerateMembers, 0);
}

TEST_F(CylinderDlgTest, AnIndexTheListLacksIsRefused) {
  dlg.m_nSupports = 7;
  Open();
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Please select an item from the list."});
  EXPECT_EQ(dlg.ModalResult(), 0);
}

TEST_F(CylinderDlgTest, CancelLeavesTheResultToTheHost) {
  Open();
  ASSERT_TRUE(dlg.PressButton(IDCANCEL));
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
