#include "dialogs/frame/CPreferencesDlg.h"

#include <QFontComboBox>

#include "dialogs/frame/DataExchange.h"

namespace {
constexpr int kFontCombo = 1338;
}

CPreferencesDlg::CPreferencesDlg(QWidget* pParent) : CDialog(130, pParent) {}

BOOL CPreferencesDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (auto* fonts = Item<QFontComboBox>(kFontCombo); fonts && !m_strGraphicsFontName.empty())
    fonts->setCurrentFont(QFont(QString::fromStdString(m_strGraphicsFontName)));
  return 1;
}

void CPreferencesDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, 3380, m_nBackupPeriod);
  DDV_MinMaxUInt(pDX, m_nBackupPeriod, 0, 200);
  DDX_Check(pDX, 1010, m_bLockAfterAnalysis);
  DDX_Check(pDX, 1011, m_bExternalHtmlViewer);
  DDX_Text(pDX, 3382, m_dFrameDuration);
  DDV_MinMaxDouble(pDX, m_dFrameDuration, 0.01, 100.0);
  DDX_Text(pDX, 3381, m_nNumberOfFrames);
  DDV_MinMaxUInt(pDX, m_nNumberOfFrames, 3, 100);
  DDX_Check(pDX, 1012, m_bShowRowHeaders);
  DDX_Text(pDX, 3383, m_nRowHeight);
  DDX_Text(pDX, 3384, m_nSpreadFontSize);
  DDX_Check(pDX, 1013, m_bRubberBanding);
  DDX_Check(pDX, 1015, m_bTraditionalSelection);
  DDX_Check(pDX, 1014, m_bAppendSpreadsheetSave);
  DDX_Text(pDX, 3385, m_nOutOfCoreMemory);
  DDV_MinMaxUInt(pDX, m_nOutOfCoreMemory, 20, 100000);
  DDX_Text(pDX, 3386, m_nSolverCpus);
  DDV_MinMaxUInt(pDX, m_nSolverCpus, 1, 10000);
  DDX_Text(pDX, 1339, m_strDataFolder);
  DDX_Text(pDX, 3387, m_nGraphicsFontSize);
  DDV_MinMaxUInt(pDX, m_nGraphicsFontSize, 2, 100);
  DDX_Check(pDX, 1016, m_bSaveDrawingGrid);
  DDX_Check(pDX, 1017, m_bFillDiagrams);
  DDX_Text(pDX, 3388, m_dFillTransparency);
  DDV_MinMaxDouble(pDX, m_dFillTransparency, 0.0, 1.0);
}

void CPreferencesDlg::OnOK() {
  if (auto* fonts = Item<QFontComboBox>(kFontCombo)) m_strGraphicsFontName = fonts->currentFont().family().toStdString();
  CDialog::OnOK();
}
