#include "dialogs/design/CComputeKDlg.h"
#include "dialogs/design/CSteelBeamColumnCheckDlg.h"
#include "dialogs/frame/DialogRegistry.h"

void RegisterConcreteDesignDialogs() {
  RegisterDialog<CComputeKDlg>("CComputeKDlg", "Concrete design");
  RegisterDialog<CSteelBeamColumnCheckDlg>("CSteelBeamColumnCheckDlg", "Steel design");
}
