#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/results/CResultsDlg.h"

void RegisterResultsDialogs() { RegisterDialog<CResultsDlg>("CResultsDlg", "Results and reports"); }
