#include <QSettings>

#include "apps/host/DialogBindings.h"
#include "dialogs/frame/Preferences.h"
#include "dialogs/grid/CDataSettingsDlg.h"

void RegisterGridBindings() {
  BindDialog<CDataSettingsDlg>(
      [](CDataSettingsDlg& dlg, HostModel& m) {
        QSettings settings;
        prefs::SpreadsheetSettings s = prefs::ReadSpreadsheetSettings(settings);
        // Until the profile holds a colour, the open model's own is the one its grids show.
        if (!settings.contains(prefs::kGroup + "/" + prefs::kSpreadAlternateBackColor))
          s.alternateRowColor = m.doc.display.alternateRowColor;
        dlg.SetSettings(s);
      },
      [](CDataSettingsDlg& dlg, HostModel& m) {
        const prefs::SpreadsheetSettings s = dlg.GetSettings();
        QSettings settings;
        prefs::WriteSpreadsheetSettings(s, settings);
        // The grids of the open model take the new colour at once.
        const bool changed = m.doc.display.alternateRowColor != s.alternateRowColor;
        m.doc.display.alternateRowColor = s.alternateRowColor;
        return changed;
      });
}
