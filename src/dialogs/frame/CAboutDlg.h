#pragma once
#include <string>

#include "dialogs/frame/CDialog.h"

// The about box: the host's application title with the release's version and build, and
// the display driver the host reports.
class CAboutDlg : public CDialog {
 public:
  CAboutDlg();
  static const frame::Form<CAboutDlg>& Description();
  explicit CAboutDlg(QWidget* pParent) : CAboutDlg() { setParent(pParent, windowFlags()); }

  std::string m_strAppTitle;    // e.g. "Norvane"
  std::string m_strDriverType;  // display driver, shown in control 1006

  // Modeless use: shows the box without a modal loop.
  bool Create(QWidget* pParent = nullptr);
  void EnableWindow(bool enable) { setEnabled(enable); }

 protected:
  BOOL OnInitDialog() override;
};

// The same box for a private-label release: two host texts and nothing of ours.
class CPrivateLabelAboutDlg : public CDialog {
 public:
  CPrivateLabelAboutDlg();
  static const frame::Form<CPrivateLabelAboutDlg>& Description();
  explicit CPrivateLabelAboutDlg(QWidget* pParent) : CPrivateLabelAboutDlg() { setParent(pParent, windowFlags()); }

  std::string m_strTitle;        // control 1003
  std::string m_strDescription;  // control 1006

  bool Create(QWidget* pParent = nullptr);
  void EnableWindow(bool enable) { setEnabled(enable); }

 protected:
  BOOL OnInitDialog() override;
};
