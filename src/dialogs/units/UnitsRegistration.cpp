#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/units/CUnitConversionDlg.h"
#include "dialogs/units/CUnitsDlg.h"

void RegisterUnitsDialogs() {
  RegisterDialog<CUnitsDlg>("CUnitsDlg", "Units");
  RegisterDialog<CUnitConversionDlg>("CUnitConversionDlg", "Units");
}
