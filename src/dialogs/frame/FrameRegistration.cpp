#include "dialogs/frame/CAboutDlg.h"
#include "dialogs/frame/CPreferencesDlg.h"
#include "dialogs/frame/CProgressDlg.h"
#include "dialogs/frame/DialogRegistry.h"

void RegisterFrameDialogs() {
  RegisterDialog<CAboutDlg>("CAboutDlg", "Library frame");
  RegisterDialog<CPrivateLabelAboutDlg>("CPrivateLabelAboutDlg", "Library frame");
  RegisterDialog<CProgressDlg>("CProgressDlg", "Library frame");
  RegisterDialog<CPreferencesDlg>("CPreferencesDlg", "Library frame");
}
