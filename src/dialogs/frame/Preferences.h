#pragma once
#include <QString>
#include <cstdint>

class CPreferencesDlg;
class QSettings;

// The application's "Preferences" settings group: the keys the grid reads at every set-up
// and the storing of the preferences dialog's members.
namespace prefs {

inline const QString kGroup = QStringLiteral("Preferences");
inline const QString kSpreadFontSize = QStringLiteral("SpreadFontSize");
inline const QString kShowGridRowHeader = QStringLiteral("ShowGridRowHeader");
inline const QString kSpreadRowHeight = QStringLiteral("SpreadRowHeight");
inline const QString kSpreadsheetAppendSave = QStringLiteral("SpreadsheetAppendSave");
// Stored as "#rrggbb".
inline const QString kSpreadAlternateBackColor = QStringLiteral("Spreadsheet Alternate BackColor");

// What the spreadsheet settings dialog accepts; a stored value outside reads as the default.
inline constexpr uint32_t kMinSpreadFontSize = 4, kMaxSpreadFontSize = 72;
inline constexpr uint32_t kMinSpreadRowHeight = 8, kMaxSpreadRowHeight = 200;

struct SpreadsheetSettings {
  int fontSize = 7;
  bool showRowHeader = true;
  int rowHeight = 14;
  bool appendSave = false;
  uint32_t alternateRowColor = 0xF0F5FF;  // 0xRRGGBB
};

// Read afresh each time a grid is set up, so a change in the preferences applies at once.
SpreadsheetSettings ReadSpreadsheetSettings();
SpreadsheetSettings ReadSpreadsheetSettings(QSettings& settings);
void WriteSpreadsheetSettings(const SpreadsheetSettings& s, QSettings& settings);

void LoadPreferences(CPreferencesDlg& dlg, QSettings& settings);
void StorePreferences(const CPreferencesDlg& dlg, QSettings& settings);

}  // namespace prefs
