#include "dialogs/frame/CAboutDlg.h"

#include "dialogs/frame/Form.h"
#include "resources/frame_ids.h"
#include "tools/format.h"
#include "tools/release.h"

using namespace res;
using Buttons = frame::FormFrame::Buttons;

const frame::Form<CAboutDlg>& CAboutDlg::Description() {
  using F = frame::Field<CAboutDlg>;
  static const frame::Form<CAboutDlg> form(
      {kIddAbout, "About Norvane", kStrAboutCaption, 420, 0, 0, Buttons::Ok},
      {
          F::Static("Norvane: structural analysis and design of 3-D frames, shells and solids")
              .Id(kCtlAboutProduct, kStrAboutProduct),
          F::Static("").Id(kCtlAboutVersion),
          F::Static("").Id(kCtlAboutDriver),
          F::Static("Copyright (C) 2026 The Norvane developers. All rights reserved.")
              .Id(kCtlAboutCopyright, kStrAboutCopyright),
      });
  return form;
}

CAboutDlg::CAboutDlg() : CDialog(Description(), nullptr), m_strAppTitle(tools::kProductName) {}

BOOL CAboutDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  SetDlgItemText(kCtlAboutVersion, tools::Format("%s  Version %s (Build %s)", m_strAppTitle.c_str(), tools::kReleaseVersion,
                                     tools::kReleaseBuild));
  SetDlgItemText(kCtlAboutDriver, m_strDriverType);
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

const frame::Form<CPrivateLabelAboutDlg>& CPrivateLabelAboutDlg::Description() {
  using F = frame::Field<CPrivateLabelAboutDlg>;
  static const frame::Form<CPrivateLabelAboutDlg> form(
      {kIddPrivateLabelAbout, "About", 0, 360, 0, 0, Buttons::Ok},
      {F::Static("").Id(kCtlAboutVersion), F::Static("").Id(kCtlAboutDriver)});
  return form;
}

CPrivateLabelAboutDlg::CPrivateLabelAboutDlg() : CDialog(Description(), nullptr) {}

BOOL CPrivateLabelAboutDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  SetDlgItemText(kCtlAboutVersion, m_strTitle);
  SetDlgItemText(kCtlAboutDriver, m_strDescription);
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
