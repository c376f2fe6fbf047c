#include <QCheckBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QSettings>
#include <tuple>

#include "apps/host/DialogRunner.h"
#include "dialogs/frame/CPreferencesDlg.h"
#include "dialogs/frame/FolderBrowseEdit.h"
#include "dialogs/frame/Preferences.h"
#include "support/DialogTest.h"

namespace {

// A host's valid settings: the members the library leaves to the host are set.
void SetHostValues(CPreferencesDlg& dlg) {
  dlg.m_nOutOfCoreMemory = 512;
  dlg.m_nNumberOfFrames = 10;
  dlg.m_dFrameDuration = 0.2;
  dlg.m_nGraphicsFontSize = 9;
}

class PreferencesTest : public DialogTest {
 protected:
  void Open() {
    SetHostValues(dlg);
    dlg.InitDialogForTest();
  }
  void Type(int id, const char* text) { dlg.Item<QLineEdit>(id)->setText(text); }
  FolderBrowseEdit* Folder() { return dynamic_cast<FolderBrowseEdit*>(dlg.GetDlgItem(1339)); }
  static auto Spreadsheet() {
    const prefs::SpreadsheetSettings s = prefs::ReadSpreadsheetSettings();
    return std::tuple(s.fontSize, s.rowHeight, s.showRowHeader, s.appendSave);
  }
  CPreferencesDlg dlg;
};

}  // namespace

TEST_F(PreferencesTest, RangesAreChecked) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {3380, "201", "Please enter a number between 0 and 200."},
      {3382, "0.001", "Please enter a number between 0.01 and 100."},
      {3381, "2", "Please enter a number between 3 and 100."},
      {3385, "19", "Please enter a number between 20 and 100000."},
      {3386, "0", "Please enter a number between 1 and 10000."},
      {3387, "101", "Please enter a number between 2 and 100."},
      {3388, "1.01", "Please enter a number between 0 and 1."},
  };
  for (const auto& [control, bad, message] : cases) {
    SCOPED_TRACE(control);
    CPreferencesDlg fresh;
    SetHostValues(fresh);
    fresh.InitDialogForTest();
    fresh.Item<QLineEdit>(control)->setText(bad);
    EXPECT_TRUE(fresh.PressButton(IDOK));
    EXPECT_EQ(Messages(), std::vector<std::string>{message});
    EXPECT_EQ(fresh.ModalResult(), 0);
    prompter.Clear();
  }
}

TEST_F(PreferencesTest, OkTakesTheChosenFontFolderAndEveryValue) {
  Open();
  EXPECT_EQ(dlg.GetDlgItemText(3385), "512");
  auto* fonts = dlg.Item<QFontComboBox>(1338);
  ASSERT_GT(fonts->count(), 0);
  fonts->setCurrentIndex(fonts->count() - 1);
  const std::string chosen = fonts->currentFont().family().toStdString();
  Type(3380, "15");
  Type(3383, "1000");  // row height and font size have no range
  Type(3384, "0");
  Type(3388, "0.75");
  dlg.Item<QCheckBox>(1014)->setChecked(true);
  dlg.Item<QCheckBox>(1012)->setChecked(false);
  prompter.QueuePath("/srv/models");
  Folder()->Browse();
  prompter.QueuePath("");  // cancelled: the folder stays
  Folder()->Browse();
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_strGraphicsFontName, chosen);
  EXPECT_EQ(std::tuple(dlg.m_nBackupPeriod, dlg.m_nRowHeight, dlg.m_nSpreadFontSize, dlg.m_dFillTransparency),
            std::tuple(15u, 1000u, 0u, 0.75));
  EXPECT_EQ(std::tuple(dlg.m_bAppendSpreadsheetSave, dlg.m_bShowRowHeaders), std::tuple(1, 0));
  EXPECT_EQ(dlg.m_strDataFolder, "/srv/models");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(PreferencesTest, WrittenToAndReadFromTheSettings) {
  EXPECT_EQ(Spreadsheet(), std::tuple(7, 14, true, false));

  SetHostValues(dlg);
  dlg.m_nSpreadFontSize = 9;
  dlg.m_nRowHeight = 20;
  dlg.m_bShowRowHeaders = 0;
  dlg.m_bAppendSpreadsheetSave = 1;
  dlg.m_strGraphicsFontName = "DejaVu Sans";
  dlg.m_strDataFolder = "/data";
  dlg.m_dFillTransparency = 0.25;
  QSettings settings;
  prefs::StorePreferences(dlg, settings);
  settings.sync();
  EXPECT_EQ(settings.childGroups(), QStringList{"Preferences"});
  // Other programs of the suite read these keys.
  QStringList expected = {"BackupPeriod", "LockAfterAnalysis", "ExternalHtmlViewer", "AnimationFrameDuration",
                          "AnimationFrames", "ShowGridRowHeader", "SpreadRowHeight", "SpreadFontSize", "RubberBanding",
                          "TraditionalSelection", "SpreadsheetAppendSave", "OutOfCoreMemory", "SolverCpus", "DataFolder",
                          "GraphicsFontSize", "GraphicsFontName", "SaveDrawingGrid", "FillDiagrams", "FillTransparency"};
  settings.beginGroup("Preferences");
  QStringList keys = settings.childKeys();
  settings.endGroup();
  keys.sort();
  expected.sort();
  EXPECT_EQ(keys, expected);
  EXPECT_EQ(settings.value("Preferences/ShowGridRowHeader").toInt(), 0);

  // The grid reads the spreadsheet keys at every set-up.
  EXPECT_EQ(Spreadsheet(), std::tuple(9, 20, false, true));

  CPreferencesDlg loaded;
  prefs::LoadPreferences(loaded, settings);
  EXPECT_EQ(std::tuple(loaded.m_nSpreadFontSize, loaded.m_nRowHeight, loaded.m_bShowRowHeaders, loaded.m_nOutOfCoreMemory),
            std::tuple(9u, 20u, 0, 512u));
  EXPECT_EQ(std::tuple(loaded.m_dFrameDuration, loaded.m_dFillTransparency, loaded.m_strGraphicsFontName,
                       loaded.m_strDataFolder),
            std::tuple(0.2, 0.25, "DejaVu Sans", "/data"));
}

TEST_F(PreferencesTest, TheHostStoresThemAfterOk) {
  HostModel model;
  auto bound = CreateBoundDialog("CPreferencesDlg", model, nullptr);
  ASSERT_NE(bound, nullptr);
  bound->InitDialogForTest();
  bound->Item<QLineEdit>(3384)->setText("11");
  EXPECT_TRUE(bound->PressButton(IDOK));
  ASSERT_EQ(bound->ModalResult(), IDOK);
  EXPECT_FALSE(TakeBackDialogResult("CPreferencesDlg", *bound, bound->ModalResult(), model))
      << "preferences are not part of the model";
  EXPECT_FALSE(model.modified);
  EXPECT_EQ(std::get<0>(Spreadsheet()), 11);
}
