#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/Preferences.h"
#include "dialogs/grid/CDataSettingsDlg.h"
#include "resources/grid_ids.h"
#include "support/DialogTest.h"

namespace {

class DataSettingsTest : public DialogTest {
 protected:
  std::string ColorText(CDialog& d) { return d.Item<QPushButton>(res::kCtlDsColor)->text().toStdString(); }
};

}  // namespace

TEST_F(DataSettingsTest, ShouldRefuseValuesOutOfRangeAndStayOpen) {
  struct Case { int control; const char* text; const char* message; };  // empty message: accepted
  const Case cases[] = {
      {frame::IdOf(&CDataSettingsDlg::m_nFontSize), "3", "Please enter a number between 4 and 72."},
      {frame::IdOf(&CDataSettingsDlg::m_nFontSize), "abc", "Please enter a whole number that is not negative."},
      {frame::IdOf(&CDataSettingsDlg::m_nRowHeight), "201", "Please enter a number between 8 and 200."},
      {frame::IdOf(&CDataSettingsDlg::m_nFontSize), "72", ""},
  };
  for (const auto& c : cases) {
    CDataSettingsDlg d;
    d.InitDialogForTest();
    d.Item<QLineEdit>(c.control)->setText(c.text);
    prompter.Clear();
    ASSERT_TRUE(d.PressButton(IDOK));
    EXPECT_EQ(d.ModalResult(), *c.message ? 0 : IDOK) << c.text;
    EXPECT_EQ(Messages(), *c.message ? std::vector<std::string>{c.message} : std::vector<std::string>{}) << c.text;
  }
}

TEST_F(DataSettingsTest, HostBindingLoadsAndStoresThePreferencesAndTheChosenColour) {
  for (const auto& [key, value] : {std::pair("SpreadFontSize", 11), {"SpreadRowHeight", 22}, {"ShowGridRowHeader", 0},
                                    {"SpreadsheetAppendSave", 1}})
    QSettings().setValue(QString("Preferences/") + key, value);
  HostModel model;
  model.doc.display.alternateRowColor = 0xE0FFE0;  // the profile has no colour yet
  auto d = CreateBoundDialog("CDataSettingsDlg", model, nullptr);
  ASSERT_TRUE(d);
  d->InitDialogForTest();
  EXPECT_EQ(d->windowTitle().toStdString(), "Spreadsheet Settings");
  EXPECT_EQ(d->GetDlgItemText(frame::IdOf(&CDataSettingsDlg::m_nFontSize)), "11");
  EXPECT_FALSE(d->Item<QCheckBox>(frame::IdOf(&CDataSettingsDlg::m_bShowRowHeader))->isChecked());
  EXPECT_TRUE(d->Item<QCheckBox>(frame::IdOf(&CDataSettingsDlg::m_bAppendSave))->isChecked());
  EXPECT_EQ(ColorText(*d), "#E0FFE0");

  d->Item<QLineEdit>(frame::IdOf(&CDataSettingsDlg::m_nRowHeight))->setText("30");
  d->Item<QCheckBox>(frame::IdOf(&CDataSettingsDlg::m_bShowRowHeader))->setChecked(true);
  prompter.QueueColor(0xFFEEDD);
  d->PressButton(res::kCtlDsColor);
  prompter.QueueCancel();
  d->PressButton(res::kCtlDsColor);
  EXPECT_EQ(ColorText(*d), "#FFEEDD") << "a cancelled choice keeps the colour";
  EXPECT_EQ(prompter.prompts()[0].text, "Alternate Row Color");
  ASSERT_TRUE(d->PressButton(IDOK));
  ASSERT_EQ(d->ModalResult(), IDOK);
  EXPECT_TRUE(FindDialogBinding("CDataSettingsDlg")->takeBack(*d, model));
  EXPECT_EQ(model.doc.display.alternateRowColor, 0xFFEEDDu);

  QSettings settings;
  EXPECT_EQ(settings.value("Preferences/SpreadRowHeight").toInt(), 30);
  EXPECT_EQ(settings.value("Preferences/ShowGridRowHeader").toInt(), 1);
  EXPECT_EQ(settings.value("Preferences/Spreadsheet Alternate BackColor").toString(), "#ffeedd");
  EXPECT_EQ(prefs::ReadSpreadsheetSettings().alternateRowColor, 0xFFEEDDu);
}

TEST_F(DataSettingsTest, DamagedStoredValuesReadAsTheDefaults) {
  const prefs::SpreadsheetSettings defaults;
  const char *kFont = "SpreadFontSize", *kColor = "Spreadsheet Alternate BackColor";
  const struct { const char* key; QVariant value; long expected; } cases[] = {
      {kFont, 500, defaults.fontSize},   {kFont, "big", defaults.fontSize},
      {kFont, 12, 12},                   {"SpreadRowHeight", 3, defaults.rowHeight},
      {kColor, "#zzzzzz", defaults.alternateRowColor}, {kColor, 0x1000000, defaults.alternateRowColor},
      {kColor, 0x00FF00, 0x00FF00},      {kColor, "#0000ff", 0x0000FF},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.key) + " " + c.value.toString().toStdString());
    QSettings settings;
    settings.clear();
    settings.setValue(QString("Preferences/") + c.key, c.value);
    const prefs::SpreadsheetSettings s = prefs::ReadSpreadsheetSettings(settings);
    const long read = c.key == kFont ? s.fontSize : c.key == kColor ? long(s.alternateRowColor) : s.rowHeight;
    EXPECT_EQ(read, c.expected);
  }
}
