#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/model/CNodeDataDlg.h"

void RegisterModelDialogs() { RegisterDialog<CNodeDataDlg>("CNodeDataDlg", "Node and element grids"); }
