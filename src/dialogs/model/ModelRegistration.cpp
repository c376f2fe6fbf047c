#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/model/CBeamDataDlg.h"
#include "dialogs/model/CBrickDataDlg.h"
#include "dialogs/model/CNodeDataDlg.h"
#include "dialogs/model/CShell4DataDlg.h"

void RegisterModelDialogs() {
  RegisterDialog<CNodeDataDlg>("CNodeDataDlg", "Node and element grids");
  RegisterDialog<CBeamDataDlg>("CBeamDataDlg", "Node and element grids");
  RegisterDialog<CShell4DataDlg>("CShell4DataDlg", "Node and element grids");
  RegisterDialog<CBrickDataDlg>("CBrickDataDlg", "Node and element grids");
}
