#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/loads/CCopyCaseLoadDlg.h"
#include "dialogs/loads/CLoadCaseDlg.h"
#include "dialogs/loads/CLoadComboDlg.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"

void RegisterLoadsDialogs() {
  const char* family = "Load cases and combinations";
  RegisterDialog<CLoadCaseDlg>("CLoadCaseDlg", family);
  RegisterDialog<CLoadComboDlg>("CLoadComboDlg", family);
  RegisterDialog<CLoadComboItemDlg>("CLoadComboItemDlg", family);
  RegisterDialog<CStdLoadCombinationDlg>("CStdLoadCombinationDlg", family);
  RegisterDialog<CCopyCaseLoadDlg>("CCopyCaseLoadDlg", family);
}
