#include "dialogs/design/CAiscDataDlg.h"
#include "dialogs/design/CMaterialDlg.h"
#include "dialogs/design/CMaterialStrengthDlg.h"
#include "dialogs/design/CNdsDataDlg.h"
#include "dialogs/design/CRegularSectionDlg.h"
#include "dialogs/design/CSectionDlg.h"
#include "dialogs/design/CStandardMaterialDlg.h"
#include "dialogs/design/CThickDlg.h"
#include "dialogs/frame/DialogRegistry.h"

void RegisterSectionsDialogs() {
  RegisterDialog<CSectionDlg>("CSectionDlg", "Sections");
  RegisterDialog<CThickDlg>("CThickDlg", "Sections");
  RegisterDialog<CRegularSectionDlg>("CRegularSectionDlg", "Sections");
  RegisterDialog<CMaterialDlg>("CMaterialDlg", "Materials");
  RegisterDialog<CMaterialRcDlg>("CMaterialRcDlg", "Materials");
  RegisterDialog<CMaterialSteelDlg>("CMaterialSteelDlg", "Materials");
  RegisterDialog<CStandardMaterialDlg>("CStandardMaterialDlg", "Materials");
  RegisterDialog<CAiscDataDlg>("CAiscDataDlg", "Shape databases");
  RegisterDialog<CNdsDataDlg>("CNdsDataDlg", "Shape databases");
}
