#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"
#include "dialogs/loads/CResponseSpectraDlg.h"
#include "dialogs/loads/CResponseSpectrumAnalysisDlg.h"
#include "dialogs/loads/CResponseSpectrumDataDlg.h"

void RegisterSpectraDialogs() {
  const char* family = "Response spectra";
  RegisterDialog<CGenerateResponseSpectrumDlg>("CGenerateResponseSpectrumDlg", family);
  RegisterDialog<CResponseSpectraDlg>("CResponseSpectraDlg", family);
  RegisterDialog<CResponseSpectrumDataDlg>("CResponseSpectrumDataDlg", family);
  RegisterDialog<CResponseSpectrumAnalysisDlg>("CResponseSpectrumAnalysisDlg", family);
}
