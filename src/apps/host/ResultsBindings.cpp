#include "apps/host/DialogBindings.h"
#include "dialogs/frame/DebugOutput.h"
#include "dialogs/results/CBeamEnvelopDiagramDlg.h"
#include "dialogs/results/CEnvelopeReportDlg.h"
#include "dialogs/results/CReportDlg.h"
#include "dialogs/results/CResultsDlg.h"
#include "model/solved_structure.h"
#include "tools/parse.h"

namespace {

// A whole-number option of --show, or the fallback.
int32_t ShowOption(const HostModel& m, const char* name, int32_t fallback) {
  const auto it = m.showOptions.find(name);
  if (it == m.showOptions.end()) return fallback;
  return tools::ParseInt32(it->second).value_or(fallback);
}

}  // namespace

void RegisterResultsBindings() {
  BindDialog<CResultsDlg>(
      [](CResultsDlg& dlg, HostModel& m) {
        // The dialog reads the solved structure while it runs; the host keeps it alive.
        auto solved = std::make_shared<CfmStruct>(model::SolvedStructure(m.doc));
        for (const std::string& line : model::CheckSolution(m.doc))
          DebugOutput("Results do not fit the model: " + line);
        dlg.m_pStruct = solved.get();
        m.dialogState = solved;
        dlg.m_nReportType = ShowOption(m, "kind", 0);
        dlg.m_nCombination = ShowOption(m, "case", 1) - 1;
        const int32_t firstNode = m.doc.nodes.empty() ? 1 : static_cast<int32_t>(m.doc.nodes.front().id);
        dlg.m_nQueryId = ShowOption(m, "query", firstNode);
        dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
      },
      nullptr,
      // "Show selected only" is the model's data option, kept when the dialog closes (it has no OK).
      [](CResultsDlg& dlg, HostModel& m) {
        const CfmStruct* solved = dlg.m_pStruct;
        const bool selectedOnly = solved && solved->m_nShowSelected != 0;
        if (!solved || selectedOnly == m.doc.display.showSelectedOnly) return false;
        m.doc.display.showSelectedOnly = selectedOnly;
        return true;
      });

  // The envelope list is the model's: OK writes it into the document.
  BindDialog<CEnvelopeReportDlg>(
      [](CEnvelopeReportDlg& dlg, HostModel& m) {
        dlg.m_pLoadCases = &m.doc.loadCases;
        dlg.m_pLoadCombs = &m.doc.loadCombs;
        dlg.m_pEnvelopeCombinations = &m.doc.envelopeCombinations;
        dlg.m_bModelLocked = m.doc.display.modelLocked;
      },
      [](CEnvelopeReportDlg&, HostModel&) { return true; });

  BindDialog<CReportDlg>(
      [](CReportDlg& dlg, HostModel& m) {
        auto solved = std::make_shared<CfmStruct>(model::SolvedStructure(m.doc));
        dlg.m_pStruct = solved.get();
        m.dialogState = solved;
        dlg.m_nReportType = ShowOption(m, "kind", 0);
        dlg.m_nCombination = ShowOption(m, "case", 1) - 1;
        dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
      },
      nullptr);

  BindDialog<CBeamEnvelopDiagramDlg>(
      [](CBeamEnvelopDiagramDlg& dlg, HostModel& m) {
        auto solved = std::make_shared<CfmStruct>(model::SolvedStructure(m.doc));
        dlg.m_pStruct = solved.get();
        m.dialogState = solved;
        dlg.m_nMember = ShowOption(m, "query", 0);
        dlg.m_nForce = ShowOption(m, "kind", 5);
      },
      nullptr);
}
