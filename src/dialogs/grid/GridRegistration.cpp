#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/grid/CDataSettingsDlg.h"

void RegisterGridDialogs() { RegisterDialog<CDataSettingsDlg>("CDataSettingsDlg", "Spreadsheet settings"); }
