#pragma once
#include <cstdint>

#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/Preferences.h"

// The settings every grid reads when it is set up: font size, row height, row headers,
// appending on save and the alternate row colour. The host loads the members (SetSettings)
// and stores them after OK (GetSettings); see prefs::ReadSpreadsheetSettings.
class CDataSettingsDlg : public CDialog {
 public:
  explicit CDataSettingsDlg(QWidget* pParent = nullptr);
  static const frame::Form<CDataSettingsDlg>& Description();

  uint32_t m_nFontSize = 7;    // points
  uint32_t m_nRowHeight = 14;  // pixels
  BOOL m_bShowRowHeader = 1;
  BOOL m_bAppendSave = 0;
  uint32_t m_crAlternateRowColor = 0xF0F5FF;  // 0xRRGGBB

  void SetSettings(const prefs::SpreadsheetSettings& s);
  prefs::SpreadsheetSettings GetSettings() const;

 protected:
  BOOL OnInitDialog() override;
  void OnChooseColor();

 private:
  void ShowColor();
};
