#include "dialogs/frame/Preferences.h"

#include <QColor>
#include <QSettings>

#include "dialogs/frame/CPreferencesDlg.h"

namespace prefs {

SpreadsheetSettings ReadSpreadsheetSettings() {
  QSettings settings;
  return ReadSpreadsheetSettings(settings);
}

namespace {

bool InRange(int value, uint32_t low, uint32_t high) {
  return value >= static_cast<int>(low) && value <= static_cast<int>(high);
}

// "#rrggbb", or a plain number as a host may have stored it.
uint32_t ReadColor(const QVariant& v, uint32_t fallback) {
  if (!v.isValid()) return fallback;
  const QString text = v.toString().trimmed();
  if (text.startsWith('#')) {
    const QColor color(text);
    return color.isValid() ? (color.rgb() & 0xFFFFFFu) : fallback;
  }
  bool ok = false;
  const uint value = text.toUInt(&ok);
  return ok && value <= 0xFFFFFFu ? value : fallback;
}

}  // namespace

SpreadsheetSettings ReadSpreadsheetSettings(QSettings& settings) {
  settings.beginGroup(kGroup);
  SpreadsheetSettings s;
  const SpreadsheetSettings defaults;
  s.fontSize = settings.value(kSpreadFontSize, s.fontSize).toInt();
  s.showRowHeader = settings.value(kShowGridRowHeader, 1).toInt() != 0;
  s.rowHeight = settings.value(kSpreadRowHeight, s.rowHeight).toInt();
  s.appendSave = settings.value(kSpreadsheetAppendSave, 0).toInt() != 0;
  s.alternateRowColor = ReadColor(settings.value(kSpreadAlternateBackColor), defaults.alternateRowColor);
  settings.endGroup();
  if (!InRange(s.fontSize, kMinSpreadFontSize, kMaxSpreadFontSize)) s.fontSize = defaults.fontSize;
  if (!InRange(s.rowHeight, kMinSpreadRowHeight, kMaxSpreadRowHeight)) s.rowHeight = defaults.rowHeight;
  return s;
}

void WriteSpreadsheetSettings(const SpreadsheetSettings& s, QSettings& settings) {
  settings.beginGroup(kGroup);
  settings.setValue(kSpreadFontSize, s.fontSize);
  settings.setValue(kShowGridRowHeader, s.showRowHeader ? 1 : 0);
  settings.setValue(kSpreadRowHeight, s.rowHeight);
  settings.setValue(kSpreadsheetAppendSave, s.appendSave ? 1 : 0);
  settings.setValue(kSpreadAlternateBackColor, QColor::fromRgb(s.alternateRowColor & 0xFFFFFFu).name());
  settings.endGroup();
}

namespace {
template <class T>
void Read(QSettings& s, const char* key, T& member) {
  const QVariant v = s.value(key);
  if (v.isValid()) member = v.value<T>();
}
}  // namespace

void LoadPreferences(CPreferencesDlg& d, QSettings& s) {
  s.beginGroup(kGroup);
  Read(s, "BackupPeriod", d.m_nBackupPeriod);
  Read(s, "LockAfterAnalysis", d.m_bLockAfterAnalysis);
  Read(s, "ExternalHtmlViewer", d.m_bExternalHtmlViewer);
  Read(s, "AnimationFrameDuration", d.m_dFrameDuration);
  Read(s, "AnimationFrames", d.m_nNumberOfFrames);
  Read(s, "ShowGridRowHeader", d.m_bShowRowHeaders);
  Read(s, "SpreadRowHeight", d.m_nRowHeight);
  Read(s, "SpreadFontSize", d.m_nSpreadFontSize);
  Read(s, "RubberBanding", d.m_bRubberBanding);
  Read(s, "TraditionalSelection", d.m_bTraditionalSelection);
  Read(s, "SpreadsheetAppendSave", d.m_bAppendSpreadsheetSave);
  Read(s, "OutOfCoreMemory", d.m_nOutOfCoreMemory);
  Read(s, "SolverCpus", d.m_nSolverCpus);
  QString folder = QString::fromStdString(d.m_strDataFolder), font = QString::fromStdString(d.m_strGraphicsFontName);
  Read(s, "DataFolder", folder);
  Read(s, "GraphicsFontName", font);
  d.m_strDataFolder = folder.toStdString();
  d.m_strGraphicsFontName = font.toStdString();
  Read(s, "GraphicsFontSize", d.m_nGraphicsFontSize);
  Read(s, "SaveDrawingGrid", d.m_bSaveDrawingGrid);
  Read(s, "FillDiagrams", d.m_bFillDiagrams);
  Read(s, "FillTransparency", d.m_dFillTransparency);
  s.endGroup();
}

void StorePreferences(const CPreferencesDlg& d, QSettings& s) {
  s.beginGroup(kGroup);
  s.setValue("BackupPeriod", d.m_nBackupPeriod);
  s.setValue("LockAfterAnalysis", d.m_bLockAfterAnalysis);
  s.setValue("ExternalHtmlViewer", d.m_bExternalHtmlViewer);
  s.setValue("AnimationFrameDuration", d.m_dFrameDuration);
  s.setValue("AnimationFrames", d.m_nNumberOfFrames);
  s.setValue("ShowGridRowHeader", d.m_bShowRowHeaders);
  s.setValue("SpreadRowHeight", d.m_nRowHeight);
  s.setValue("SpreadFontSize", d.m_nSpreadFontSize);
  s.setValue("RubberBanding", d.m_bRubberBanding);
  s.setValue("TraditionalSelection", d.m_bTraditionalSelection);
  s.setValue("SpreadsheetAppendSave", d.m_bAppendSpreadsheetSave);
  s.setValue("OutOfCoreMemory", d.m_nOutOfCoreMemory);
  s.setValue("SolverCpus", d.m_nSolverCpus);
  s.setValue("DataFolder", QString::fromStdString(d.m_strDataFolder));
  s.setValue("GraphicsFontSize", d.m_nGraphicsFontSize);
  s.setValue("GraphicsFontName", QString::fromStdString(d.m_strGraphicsFontName));
  s.setValue("SaveDrawingGrid", d.m_bSaveDrawingGrid);
  s.setValue("FillDiagrams", d.m_bFillDiagrams);
  s.setValue("FillTransparency", d.m_dFillTransparency);
  s.endGroup();
}

}  // namespace prefs
