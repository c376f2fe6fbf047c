#include "dialogs/design/CComputeKDlg.h"
#include "dialogs/frame/DialogRegistry.h"

void RegisterConcreteDesignDialogs() { RegisterDialog<CComputeKDlg>("CComputeKDlg", "Concrete design"); }
