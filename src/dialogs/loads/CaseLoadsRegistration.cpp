#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/loads/CCaseLoadDataDlg.h"
#include "dialogs/loads/CMovingLoadDlg.h"
#include "dialogs/loads/CPatternLoadDataDlg.h"

void RegisterCaseLoadsDialogs() {
  const char* family = "Applied loads";
  RegisterDialog<CNodalLoadDataDlg>("CNodalLoadDataDlg", family);
  RegisterDialog<CPointLoadDataDlg>("CPointLoadDataDlg", family);
  RegisterDialog<CLineLoadDataDlg>("CLineLoadDataDlg", family);
  RegisterDialog<CShellLoadDataDlg>("CShellLoadDataDlg", family);
  RegisterDialog<CAreaLoadDataDlg>("CAreaLoadDataDlg", family);
  RegisterDialog<CMemberThermalLoadDataDlg>("CMemberThermalLoadDataDlg", family);
  RegisterDialog<CShell4ThermalLoadDataDlg>("CShell4ThermalLoadDataDlg", family);
  RegisterDialog<CBrickThermalLoadDataDlg>("CBrickThermalLoadDataDlg", family);
  RegisterDialog<CNodalMassDataDlg>("CNodalMassDataDlg", family);
  RegisterDialog<CCombMassDataDlg>("CCombMassDataDlg", family);
  RegisterDialog<CMovingLoadDlg>("CMovingLoadDlg", family);
  RegisterDialog<CPatternLoadDataDlg>("CPatternLoadDataDlg", family);
}
