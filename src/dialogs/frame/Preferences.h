#pragma once
#include <QString>

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

struct SpreadsheetSettings {
  int fontSize = 7;
  bool showRowHeader = true;
  int rowHeight = 14;
  bool appendSave = false;
};

// Read afresh each time a grid is set up, so a change in the preferences applies at once.
SpreadsheetSettings ReadSpreadsheetSettings();

void LoadPreferences(CPreferencesDlg& dlg, QSettings& settings);
void StorePreferences(const CPreferencesDlg& dlg, QSettings& settings);

}  // namespace prefs
