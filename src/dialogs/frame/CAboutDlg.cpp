#include "dialogs/frame/CAboutDlg.h"

#include "tools/format.h"
#include "tools/release.h"

CAboutDlg::CAboutDlg() : CDialog(100, nullptr), m_strAppTitle(tools::kProductName) {}

BOOL CAboutDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  SetDlgItemText(1003, tools::Format("%s  Version %s (Build %s)", m_strAppTitle.c_str(), tools::kReleaseVersion,
                                     tools::kReleaseBuild));
  SetDlgItemText(1006, m_strDriverType);
  return 1;
}

bool CAboutDlg::Create(QWidget* pParent) {
  if (pParent) setParent(pParent, windowFlags());
  CreateFromTemplate();
  OnInitDialog();
  setModal(false);
  show();
  return true;
}

CPrivateLabelAboutDlg::CPrivateLabelAboutDlg() : CDialog(134, nullptr) {}

BOOL CPrivateLabelAboutDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  SetDlgItemText(1003, m_strTitle);
  SetDlgItemText(1006, m_strDescription);
  return 1;
}

bool CPrivateLabelAboutDlg::Create(QWidget* pParent) {
  if (pParent) setParent(pParent, windowFlags());
  CreateFromTemplate();
  OnInitDialog();
  setModal(false);
  show();
  return true;
}
