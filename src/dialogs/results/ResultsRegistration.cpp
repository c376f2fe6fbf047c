#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/results/CBeamEnvelopDiagramDlg.h"
#include "dialogs/results/CEnvelopeReportDlg.h"
#include "dialogs/results/CReportDlg.h"
#include "dialogs/results/CResultsDlg.h"

void RegisterResultsDialogs() {
  const char* family = "Results and reports";
  RegisterDialog<CResultsDlg>("CResultsDlg", family);
  RegisterDialog<CReportDlg>("CReportDlg", family);
  RegisterDialog<CEnvelopeReportDlg>("CEnvelopeReportDlg", family);
  RegisterDialog<CBeamEnvelopDiagramDlg>("CBeamEnvelopDiagramDlg", family);
}
