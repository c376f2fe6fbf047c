#include <memory>

#include "apps/host/DialogBindings.h"
#include "dialogs/loads/CCopyCaseLoadDlg.h"
#include "dialogs/loads/CLoadCaseDlg.h"
#include "dialogs/loads/CLoadComboDlg.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"

namespace {

bool WroteThrough(CDialog&, HostModel&) { return true; }

}  // namespace

void RegisterLoadsBindings() {
  BindDialog<CLoadCaseDlg>(
      [](CLoadCaseDlg& dlg, HostModel& m) {
        dlg.m_pUnits = &m.doc.units;
        dlg.m_bModelLocked = m.doc.display.modelLocked;
        dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
        dlg.m_pLoadCases = &m.doc.loadCases;
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

  // The demo host holds no loads to copy; the dialog shows the choice it offers.
  BindDialog<CCopyCaseLoadDlg>(
      [](CCopyCaseLoadDlg& dlg, HostModel& m) {
        dlg.m_pLoadCases = &m.doc.loadCases;
        dlg.m_strCaption = "Copy Nodal Loads";
        dlg.m_nTo = m.doc.loadCases.size() > 1 ? 1 : 0;
      },
      nullptr);
}
