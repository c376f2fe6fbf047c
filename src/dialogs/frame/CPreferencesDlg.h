#pragma once
#include <cstdint>
#include <string>

#include "dialogs/frame/CDialog.h"

// Application preferences; the host loads them into the members and stores them after OK.
class CPreferencesDlg : public CDialog {
 public:
  explicit CPreferencesDlg(QWidget* pParent = nullptr);
  static const frame::Form<CPreferencesDlg>& Description();

  uint32_t m_nBackupPeriod = 0;  // minutes, 0 to 200
  BOOL m_bLockAfterAnalysis = 0;
  BOOL m_bExternalHtmlViewer = 0;
  double m_dFrameDuration = 0;     // seconds, 0.01 to 100
  uint32_t m_nNumberOfFrames = 0;  // 3 to 100
  BOOL m_bShowRowHeaders = 1;
  uint32_t m_nRowHeight = 28;
  uint32_t m_nSpreadFontSize = 7;
  BOOL m_bRubberBanding = 1;
  BOOL m_bTraditionalSelection = 1;
  BOOL m_bAppendSpreadsheetSave = 0;
  uint32_t m_nOutOfCoreMemory = 0;  // MB, 20 to 100000; the host must set a valid value
  uint32_t m_nSolverCpus = 1;       // 1 to 10000
  std::string m_strDataFolder;
  uint32_t m_nGraphicsFontSize = 0;  // 2 to 100; the host sets it
  std::string m_strGraphicsFontName;
  BOOL m_bSaveDrawingGrid = 0;
  BOOL m_bFillDiagrams = 0;
  double m_dFillTransparency = 0.5;  // 0 to 1
};
