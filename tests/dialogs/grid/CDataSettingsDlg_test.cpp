#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "dialogs/frame/Preferences.h"
#include "dialogs/grid/CDataSettingsDlg.h"
#include "resources/grid_ids.h"
#include "support/DialogTest.h"

namespace {

class DataSettingsTest : public DialogTest {
 protected:
  std::string Text(int id) { return dlg.GetDlgItemText(id); }
  void SetText(int id, const char* text) { dlg.Item<QLineEdit>(id)->setText(text); }
  bool Checked(int id) { return dlg.Item<QCheckBox>(id)->isChecked(); }

  CDataSettingsDlg dlg;
};

}  // namespace

TEST_F(DataSettingsTest, ShouldShowTheDefaultsAndTheColourOnItsButton) {
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Spreadsheet Settings");
  EXPECT_EQ(Text(res::kCtlDsFontSize), "7");
  EXPECT_EQ(Text(res::kCtlDsRowHeight), "14");
  EXPECT_TRUE(Checked(res::kCtlDsShowRowHeader));
  EXPECT_FALSE(Checked(res::kCtlDsAppendSave));
  EXPECT_EQ(Text(res::kCtlDsAppendSave), "Append to existing file when saving spreadsheet to htm/txt format");
  auto* color = dlg.Item<QPushButton>(res::kCtlDsColor);
  ASSERT_TRUE(color);
  EXPECT_EQ(color->text().toStdString(), "#F0F5FF");
  EXPECT_EQ(color->icon().pixmap(40, 16).toImage().pixelColor(20, 8), QColor(0xF0, 0xF5, 0xFF));
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(DataSettingsTest, ShouldRefuseValuesOutOfRangeAndStayOpen) {
  struct Case {
    int control;
    const char* text;
    const char* message;  // empty: accepted
  };
  const std::vector<Case> cases = {
      {res::kCtlDsFontSize, "3", "Please enter a number between 4 and 72."},
      {res::kCtlDsFontSize, "73", "Please enter a number between 4 and 72."},
      {res::kCtlDsFontSize, "abc", "Please enter a whole number that is not negative."},
      {res::kCtlDsFontSize, "-5", "Please enter a whole number that is not negative."},
      {res::kCtlDsRowHeight, "7", "Please enter a number between 8 and 200."},
      {res::kCtlDsRowHeight, "201", "Please enter a number between 8 and 200."},
      {res::kCtlDsFontSize, "4", ""},
      {res::kCtlDsRowHeight, "200", ""},
  };
  for (const auto& c : cases) {
    CDataSettingsDlg d;
    d.InitDialogForTest();
    d.Item<QLineEdit>(c.control)->setText(c.text);
    prompter.Clear();
    ASSERT_TRUE(d.PressButton(IDOK));
    if (*c.message) {
      EXPECT_EQ(d.ModalResult(), 0) << c.text;
      EXPECT_EQ(Messages(), std::vector<std::string>{c.message}) << c.text;
    } else {
      EXPECT_EQ(d.ModalResult(), IDOK) << c.text;
      EXPECT_TRUE(Messages().empty()) << c.text;
    }
  }
}

TEST_F(DataSettingsTest, ShouldTakeTheChosenColourAndKeepItWhenCancelled) {
  dlg.m_crAlternateRowColor = 0xFFFFE0;
  dlg.InitDialogForTest();
  prompter.QueueColor(0x123456);
  ASSERT_TRUE(dlg.PressButton(res::kCtlDsColor));
  EXPECT_EQ(dlg.Item<QPushButton>(res::kCtlDsColor)->text().toStdString(), "#123456");
  prompter.QueueCancel();
  ASSERT_TRUE(dlg.PressButton(res::kCtlDsColor));
  EXPECT_EQ(dlg.Item<QPushButton>(res::kCtlDsColor)->text().toStdString(), "#123456");
  ASSERT_EQ(prompter.prompts().size(), 2u);
  EXPECT_EQ(prompter.prompts()[0].kind, ScriptedPrompter::PromptKind::Color);
  EXPECT_EQ(prompter.prompts()[0].text, "Alternate Row Color");

  SetText(res::kCtlDsFontSize, "9");
  dlg.Item<QCheckBox>(res::kCtlDsAppendSave)->setChecked(true);
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  const prefs::SpreadsheetSettings s = dlg.GetSettings();
  EXPECT_EQ(s.alternateRowColor, 0x123456u);
  EXPECT_EQ(s.fontSize, 9);
  EXPECT_TRUE(s.appendSave);
}

TEST_F(DataSettingsTest, HostBindingLoadsAndStoresThePreferences) {
  {
    QSettings settings;
    settings.setValue("Preferences/SpreadFontSize", 11);
    settings.setValue("Preferences/SpreadRowHeight", 22);
    settings.setValue("Preferences/ShowGridRowHeader", 0);
    settings.setValue("Preferences/SpreadsheetAppendSave", 1);
  }
  HostModel model;
  model.doc.display.alternateRowColor = 0xE0FFE0;  // the profile has no colour yet
  auto d = CreateBoundDialog("CDataSettingsDlg", model, nullptr);
  ASSERT_TRUE(d);
  d->InitDialogForTest();
  EXPECT_EQ(d->GetDlgItemText(res::kCtlDsFontSize), "11");
  EXPECT_EQ(d->GetDlgItemText(res::kCtlDsRowHeight), "22");
  EXPECT_FALSE(d->Item<QCheckBox>(res::kCtlDsShowRowHeader)->isChecked());
  EXPECT_TRUE(d->Item<QCheckBox>(res::kCtlDsAppendSave)->isChecked());
  EXPECT_EQ(d->Item<QPushButton>(res::kCtlDsColor)->text().toStdString(), "#E0FFE0");

  d->Item<QLineEdit>(res::kCtlDsRowHeight)->setText("30");
  d->Item<QCheckBox>(res::kCtlDsShowRowHeader)->setChecked(true);
  prompter.QueueColor(0xFFEEDD);
  d->PressButton(res::kCtlDsColor);
  ASSERT_TRUE(d->PressButton(IDOK));
  ASSERT_EQ(d->ModalResult(), IDOK);
  EXPECT_TRUE(FindDialogBinding("CDataSettingsDlg")->takeBack(*d, model));
  EXPECT_EQ(model.doc.display.alternateRowColor, 0xFFEEDDu);

  QSettings settings;
  EXPECT_EQ(settings.value("Preferences/SpreadFontSize").toInt(), 11);
  EXPECT_EQ(settings.value("Preferences/SpreadRowHeight").toInt(), 30);
  EXPECT_EQ(settings.value("Preferences/ShowGridRowHeader").toInt(), 1);
  EXPECT_EQ(settings.value("Preferences/SpreadsheetAppendSave").toInt(), 1);
  EXPECT_EQ(settings.value("Preferences/Spreadsheet Alternate BackColor").toString(), "#ffeedd");
  const prefs::SpreadsheetSettings read = prefs::ReadSpreadsheetSettings();
  EXPECT_EQ(read.rowHeight, 30);
  EXPECT_EQ(read.alternateRowColor, 0xFFEEDDu);
}

TEST_F(DataSettingsTest, DamagedStoredValuesReadAsTheDefaults) {
  struct Case {
    const char* key;
    QVariant value;
    prefs::SpreadsheetSettings expected;
  };
  auto with = [](auto change) {
    prefs::SpreadsheetSettings s;
    change(s);
    return s;
  };
  const std::vector<Case> cases = {
      {"SpreadFontSize", 0, {}},
      {"SpreadFontSize", 500, {}},
      {"SpreadFontSize", "big", {}},
      {"SpreadFontSize", 12, with([](auto& s) { s.fontSize = 12; })},
      {"SpreadRowHeight", 3, {}},
      {"SpreadRowHeight", 9999, {}},
      {"Spreadsheet Alternate BackColor", "#zzzzzz", {}},
      {"Spreadsheet Alternate BackColor", "not a colour", {}},
      {"Spreadsheet Alternate BackColor", 0x1000000, {}},
      {"Spreadsheet Alternate BackColor", 0x00FF00, with([](auto& s) { s.alternateRowColor = 0x00FF00; })},
      {"Spreadsheet Alternate BackColor", "#0000ff", with([](auto& s) { s.alternateRowColor = 0x0000FF; })},
  };
  for (const auto& c : cases) {
    QSettings settings;
    settings.clear();
    settings.setValue(QString("Preferences/") + c.key, c.value);
    const prefs::SpreadsheetSettings s = prefs::ReadSpreadsheetSettings(settings);
    EXPECT_EQ(s.fontSize, c.expected.fontSize) << c.key << " " << c.value.toString().toStdString();
    EXPECT_EQ(s.rowHeight, c.expected.rowHeight) << c.key;
    EXPECT_EQ(s.alternateRowColor, c.expected.alternateRowColor) << c.key << " " << c.value.toString().toStdString();
  }
}
