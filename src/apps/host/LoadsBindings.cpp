#include <memory>

#include "apps/host/DialogBindings.h"
#include "dialogs/loads/CCopyCaseLoadDlg.h"
#include "dialogs/loads/CLoadCaseDlg.h"
#include "dialogs/loads/CLoadComboDlg.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"
#include "model/fm_case_load.h"
#include "tools/format.h"

namespace {

bool WroteThrough(CDialog&, HostModel&) { return true; }

}  // namespace

void RegisterLoadsBindings() {
  BindDialog<CLoadCaseDlg>(
      [](CLoadCaseDlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m, false);
        dlg.m_pLoadCases = &m.doc.loadCases;
        m.doc.caseLoads.resize(m.doc.loadCases.size());
        dlg.m_pCaseLoads = &m.doc.caseLoads;
      },
      WroteThrough);

  // The list acts on the document at once, so even after Cancel what it did is kept: the
  // model counts as changed when the list differs from the one it was opened on.
  auto openedWith = std::make_shared<std::vector<fmLoadComb>>();
  BindDialog<CLoadComboDlg>(
      [openedWith](CLoadComboDlg& dlg, HostModel& m) {
        *openedWith = m.doc.loadCombs;
        dlg.m_pLoadCases = &m.doc.loadCases;
        dlg.m_pLoadCombs = &m.doc.loadCombs;
      },
      WroteThrough, [openedWith](CDialog&, HostModel& m) { return m.doc.loadCombs != *openedWith; });

  // The editor on its own edits the document's first combination, as Modify would.
  BindDialog<CLoadComboItemDlg>(
      [](CLoadComboItemDlg& dlg, HostModel& m) {
        dlg.m_pLoadCases = &m.doc.loadCases;
        dlg.m_pLoadCombs = &m.doc.loadCombs;
        dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
        if (!m.doc.loadCombs.empty()) {
          dlg.m_nIndex = 0;
          dlg.m_comb = m.doc.loadCombs.front();
        }
      },
      [](CLoadComboItemDlg& dlg, HostModel& m) {
        if (dlg.m_nIndex < 0)
          m.doc.loadCombs.push_back(dlg.m_comb);
        else
          m.doc.loadCombs[static_cast<size_t>(dlg.m_nIndex)] = dlg.m_comb;
        return true;
      });

  // On its own the code dialog only chooses; the list dialog generates from the choice.
  BindDialog<CStdLoadCombinationDlg>(nullptr, nullptr);

  // The host copies every kind of load of the source case into the target case.
  BindDialog<CCopyCaseLoadDlg>(
      [](CCopyCaseLoadDlg& dlg, HostModel& m) {
        dlg.m_pLoadCases = &m.doc.loadCases;
        dlg.m_nTo = m.doc.loadCases.size() > 1 ? 1 : 0;
      },
      [](CCopyCaseLoadDlg& dlg, HostModel& m) {
        m.doc.caseLoads.resize(m.doc.loadCases.size());
        if (dlg.m_nFrom < 0 || dlg.m_nTo < 0 ||
            !CopyCaseLoads(m.doc.caseLoads, static_cast<size_t>(dlg.m_nFrom), static_cast<size_t>(dlg.m_nTo),
                           dlg.m_dFactor, dlg.m_bDeleteExisting != 0))
          return false;
        m.status = tools::Format("Copied the loads of \"%s\" to \"%s\" times %g",
                                 m.doc.loadCases[static_cast<size_t>(dlg.m_nFrom)].name.c_str(),
                                 m.doc.loadCases[static_cast<size_t>(dlg.m_nTo)].name.c_str(), dlg.m_dFactor);
        return true;
      });
}
