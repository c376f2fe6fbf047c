#include <QGuiApplication>
#include <QSettings>
#include <QStandardPaths>

#include "apps/host/DialogBindings.h"
#include "dialogs/frame/CAboutDlg.h"
#include "dialogs/frame/CPreferencesDlg.h"
#include "dialogs/frame/Preferences.h"

void RegisterFrameBindings() {
  BindDialog<CAboutDlg>(
      [](CAboutDlg& dlg, HostModel&) {
        dlg.m_strAppTitle = "Norvane";
        dlg.m_strDriverType =
            "Display: Qt " + std::string(qVersion()) + ", " + QGuiApplication::platformName().toStdString();
      },
      nullptr);
  BindDialog<CPrivateLabelAboutDlg>(
      [](CPrivateLabelAboutDlg& dlg, HostModel&) {
        dlg.m_strTitle = "Norvane demo host";
        dlg.m_strDescription = "Private-label edition for testing";
      },
      nullptr);
  BindDialog<CPreferencesDlg>(
      [](CPreferencesDlg& dlg, HostModel&) {
        // The host's own defaults for the members the library leaves to it.
        dlg.m_nOutOfCoreMemory = 2048;
        dlg.m_nNumberOfFrames = 12;
        dlg.m_dFrameDuration = 0.1;
        dlg.m_nGraphicsFontSize = 10;
        dlg.m_strGraphicsFontName = "DejaVu Sans";
        dlg.m_strDataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
        QSettings settings;
        // The grid settings the grids use now, their defaults included, so
        // OK without a change changes nothing on screen.
        const prefs::SpreadsheetSettings grid = prefs::ReadSpreadsheetSettings(settings);
        dlg.m_nSpreadFontSize = static_cast<uint32_t>(grid.fontSize);
        dlg.m_nRowHeight = static_cast<uint32_t>(grid.rowHeight);
        dlg.m_bShowRowHeaders = grid.showRowHeader;
        dlg.m_bAppendSpreadsheetSave = grid.appendSave;
        prefs::LoadPreferences(dlg, settings);
      },
      [](CPreferencesDlg& dlg, HostModel&) {
        QSettings settings;
        prefs::StorePreferences(dlg, settings);
        return false;
      });
}
