#include <QCheckBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QSettings>

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
  void Type(int id, const char* text) {
    auto* edit = dlg.Item<QLineEdit>(id);
    ASSERT_NE(edit, nullptr) << id;
    edit->setText(text);
  }
  CPreferencesDlg dlg;
};

const char* const kKeys[] = {
    "BackupPeriod",       "LockAfterAnalysis",    "ExternalHtmlViewer",    "AnimationFrameDuration",
    "AnimationFrames",    "ShowGridRowHeader",    "SpreadRowHeight",       "SpreadFontSize",
    "RubberBanding",      "TraditionalSelection", "SpreadsheetAppendSave", "OutOfCoreMemory",
    "SolverCpus",         "DataFolder",           "GraphicsFontSize",      "GraphicsFontName",
    "SaveDrawingGrid",    "FillDiagrams",         "FillTransparency",
};

}  // namespace

TEST_F(PreferencesTest, ShouldHaveDefaultValues) {
  EXPECT_EQ(dlg.m_nBackupPeriod, 0u);
  EXPECT_EQ(dlg.m_bLockAfterAnalysis, 0);
  EXPECT_EQ(dlg.m_bExternalHtmlViewer, 0);
  EXPECT_EQ(dlg.m_dFrameDuration, 0.0);
  EXPECT_EQ(dlg.m_nNumberOfFrames, 0u);
  EXPECT_EQ(dlg.m_bShowRowHeaders, 1);
  EXPECT_EQ(dlg.m_nRowHeight, 28u);
  EXPECT_EQ(dlg.m_nSpreadFontSize, 7u);
  EXPECT_EQ(dlg.m_bRubberBanding, 1);
  EXPECT_EQ(dlg.m_bTraditionalSelection, 1);
  EXPECT_EQ(dlg.m_bAppendSpreadsheetSave, 0);
  EXPECT_EQ(dlg.m_nOutOfCoreMemory, 0u);
  EXPECT_EQ(dlg.m_nSolverCpus, 1u);
  EXPECT_EQ(dlg.m_strDataFolder, "");
  EXPECT_EQ(dlg.m_nGraphicsFontSize, 0u);
  EXPECT_EQ(dlg.m_strGraphicsFontName, "");
  EXPECT_EQ(dlg.m_bSaveDrawingGrid, 0);
  EXPECT_EQ(dlg.m_bFillDiagrams, 0);
  EXPECT_EQ(dlg.m_dFillTransparency, 0.5);
}

TEST_F(PreferencesTest, ControlsShowTheMembersAndTheStringTable) {
  SetHostValues(dlg);
  dlg.m_strDataFolder = "/home/eng/models";
  dlg.InitDialogForTest();
  const std::pair<int, const char*> texts[] = {
      {3380, "0"},   {3381, "10"},  {3382, "0.2"},  {3383, "28"}, {3384, "7"},
      {3385, "512"}, {3386, "1"},   {3387, "9"},    {3388, "0.5"}, {1339, "/home/eng/models"},
      // Labels: the string table's texts, including the one that replaces the template's wording.
      {1163, "Data Folder:"}, {1164, "Automatic file backup period:"}, {1165, "minutes"},
      {1166, "Response Animation"}, {1167, "Number of frames:"}, {1168, "Duration per frame:"},
      {1172, "second(s)"}, {1169, "Spreadsheet Settings"}, {1170, "Row height:"}, {1171, "Font size:"},
      {1173, "Maximum memory for Out-of-core solver (MB):"},
      {1010, "Lock model after analysis is performed successfully."},
      {1011, "Use the external HTML viewer (e.g. Internet Explorer)"},
      {1012, "Show row headers in spreadsheets"}, {1013, "Use rubber-banding while drawing elements"},
      {1014, "Append to existing file when saving spreadsheet to htm/txt format"},
      {1015, "Use traditional selection rectangle\n(may not work on some newer systems)"},
      {1016, "Save drawing grid settings"}, {1017, "Fill moment and shear diagrams"},
      {1177, "Fill transparency value [0 - 1.0]:"}, {1175, "Font name:"},
      {IDOK, "OK"}, {IDCANCEL, "Cancel"},
  };
  for (const auto& [id, text] : texts) EXPECT_EQ(dlg.GetDlgItemText(id), text) << "control " << id;
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Preferences");
  const std::pair<int, bool> checks[] = {{1010, false}, {1011, false}, {1012, true}, {1013, true},
                                         {1014, false}, {1015, true},  {1016, false}, {1017, false}};
  for (const auto& [id, checked] : checks) EXPECT_EQ(dlg.Item<QCheckBox>(id)->isChecked(), checked) << id;
  EXPECT_NE(dlg.Item<QFontComboBox>(1338), nullptr);
  EXPECT_NE(dynamic_cast<FolderBrowseEdit*>(dlg.GetDlgItem(1339)), nullptr);
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(PreferencesTest, RangesAreChecked) {
  struct Case {
    int control;
    const char* bad;
    const char* lowest;
    const char* highest;
    const char* message;
  };
  const Case cases[] = {
      {3380, "201", "0", "200", "Please enter a number between 0 and 200."},
      {3382, "0.001", "0.01", "100", "Please enter a number between 0.01 and 100."},
      {3382, "100.5", "0.01", "100", "Please enter a number between 0.01 and 100."},
      {3381, "2", "3", "100", "Please enter a number between 3 and 100."},
      {3385, "19", "20", "100000", "Please enter a number between 20 and 100000."},
      {3386, "0", "1", "10000", "Please enter a number between 1 and 10000."},
      {3387, "101", "2", "100", "Please enter a number between 2 and 100."},
      {3388, "1.01", "0", "1", "Please enter a number between 0 and 1."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.control);
    for (const char* good : {c.lowest, c.highest}) {
      CPreferencesDlg ok;
      SetHostValues(ok);
      ok.InitDialogForTest();
      ok.Item<QLineEdit>(c.control)->setText(good);
      EXPECT_TRUE(ok.PressButton(IDOK));
      EXPECT_EQ(ok.ModalResult(), IDOK) << good << " is within the range";
    }
    EXPECT_TRUE(Messages().empty());

    CPreferencesDlg bad;
    SetHostValues(bad);
    bad.InitDialogForTest();
    bad.Item<QLineEdit>(c.control)->setText(c.bad);
    EXPECT_TRUE(bad.PressButton(IDOK));
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(bad.ModalResult(), 0);
    EXPECT_EQ(bad.focusWidget(), bad.GetDlgItem(c.control));
    prompter.Clear();
  }
}

TEST_F(PreferencesTest, RowHeightAndFontSizeAreNotRangeChecked) {
  SetHostValues(dlg);
  dlg.InitDialogForTest();
  Type(3383, "1000");
  Type(3384, "0");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_nRowHeight, 1000u);
  EXPECT_EQ(dlg.m_nSpreadFontSize, 0u);
}

TEST_F(PreferencesTest, TheHostMustSetWhatHasNoValidDefault) {
  dlg.InitDialogForTest();  // defaults only: 0 frames is outside 3 to 100
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Please enter a number between 0.01 and 100."});
  EXPECT_EQ(dlg.ModalResult(), 0);
}

TEST_F(PreferencesTest, OkTakesTheChosenFontAndEveryValue) {
  SetHostValues(dlg);
  dlg.InitDialogForTest();
  auto* fonts = dlg.Item<QFontComboBox>(1338);
  ASSERT_GT(fonts->count(), 0);
  fonts->setCurrentIndex(fonts->count() - 1);
  const std::string chosen = fonts->currentFont().family().toStdString();
  Type(3380, "15");
  Type(3388, "0.75");
  dlg.Item<QCheckBox>(1014)->setChecked(true);
  dlg.Item<QCheckBox>(1012)->setChecked(false);
  dynamic_cast<FolderBrowseEdit*>(dlg.GetDlgItem(1339))->setText("/data/norvane");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_strGraphicsFontName, chosen);
  EXPECT_EQ(dlg.m_nBackupPeriod, 15u);
  EXPECT_EQ(dlg.m_dFillTransparency, 0.75);
  EXPECT_EQ(dlg.m_bAppendSpreadsheetSave, 1);
  EXPECT_EQ(dlg.m_bShowRowHeaders, 0);
  EXPECT_EQ(dlg.m_strDataFolder, "/data/norvane");
}

TEST_F(PreferencesTest, FolderBrowseAsksThroughThePrompter) {
  dlg.InitDialogForTest();
  auto* folder = dynamic_cast<FolderBrowseEdit*>(dlg.GetDlgItem(1339));
  ASSERT_NE(folder, nullptr);
  prompter.QueuePath("/srv/models");
  folder->Browse();
  EXPECT_EQ(folder->text().toStdString(), "/srv/models");
  prompter.QueuePath("");  // cancelled: the folder stays
  folder->Browse();
  EXPECT_EQ(folder->text().toStdString(), "/srv/models");
}

TEST_F(PreferencesTest, StoredUnderPreferencesWithTheKeyNames) {
  SetHostValues(dlg);
  dlg.m_nSpreadFontSize = 9;
  dlg.m_nRowHeight = 20;
  dlg.m_bShowRowHeaders = 0;
  dlg.m_bAppendSpreadsheetSave = 1;
  dlg.m_strGraphicsFontName = "DejaVu Sans";
  dlg.m_strDataFolder = "/data";
  dlg.m_dFillTransparency = 0.25;
  {
    QSettings settings;
    prefs::StorePreferences(dlg, settings);
  }
  QSettings settings;
  EXPECT_EQ(settings.childGroups(), QStringList{"Preferences"});
  settings.beginGroup("Preferences");
  QStringList expected;
  for (const char* k : kKeys) expected << k;
  expected.sort();
  QStringList keys = settings.childKeys();
  keys.sort();
  EXPECT_EQ(keys, expected);
  EXPECT_EQ(settings.value("SpreadFontSize").toInt(), 9);
  EXPECT_EQ(settings.value("SpreadRowHeight").toInt(), 20);
  EXPECT_EQ(settings.value("ShowGridRowHeader").toInt(), 0);
  EXPECT_EQ(settings.value("SpreadsheetAppendSave").toInt(), 1);
  settings.endGroup();

  // The grid reads the four spreadsheet keys at every set-up.
  const prefs::SpreadsheetSettings grid = prefs::ReadSpreadsheetSettings();
  EXPECT_EQ(grid.fontSize, 9);
  EXPECT_EQ(grid.rowHeight, 20);
  EXPECT_FALSE(grid.showRowHeader);
  EXPECT_TRUE(grid.appendSave);

  CPreferencesDlg loaded;
  prefs::LoadPreferences(loaded, settings);
  EXPECT_EQ(loaded.m_nSpreadFontSize, 9u);
  EXPECT_EQ(loaded.m_nRowHeight, 20u);
  EXPECT_EQ(loaded.m_bShowRowHeaders, 0);
  EXPECT_EQ(loaded.m_nOutOfCoreMemory, 512u);
  EXPECT_EQ(loaded.m_dFrameDuration, 0.2);
  EXPECT_EQ(loaded.m_dFillTransparency, 0.25);
  EXPECT_EQ(loaded.m_strGraphicsFontName, "DejaVu Sans");
  EXPECT_EQ(loaded.m_strDataFolder, "/data");
}

TEST_F(PreferencesTest, GridSettingsDefaultWhenNothingIsStored) {
  const prefs::SpreadsheetSettings grid = prefs::ReadSpreadsheetSettings();
  EXPECT_EQ(grid.fontSize, 7);
  EXPECT_EQ(grid.rowHeight, 14);
  EXPECT_TRUE(grid.showRowHeader);
  EXPECT_FALSE(grid.appendSave);
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
  EXPECT_EQ(prefs::ReadSpreadsheetSettings().fontSize, 11);
}
