#include "apps/host/DialogBindings.h"

#include "dialogs/grid/CDataGridDlg.h"

#include <vector>

namespace {
std::vector<DialogBinding>& Bindings() {
  static std::vector<DialogBinding> bindings;
  return bindings;
}
}  // namespace

void RegisterDialogBinding(DialogBinding binding) {
  for (auto& b : Bindings())
    if (std::string_view(b.className) == binding.className) {
      b = std::move(binding);
      return;
    }
  Bindings().push_back(std::move(binding));
}

const DialogBinding* FindDialogBinding(std::string_view className) {
  for (const auto& b : Bindings())
    if (className == b.className) return &b;
  return nullptr;
}

void PrepareGrid(CDataGridDlg& dlg, HostModel& m, bool selectedOnly) {
  dlg.m_pUnits = &m.doc.units;
  if (selectedOnly) dlg.m_bShowSelectedOnly = m.doc.display.showSelectedOnly;
  dlg.m_bModelLocked = m.doc.display.modelLocked;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

void RegisterAllBindings() {
  static bool done = false;
  if (done) return;
  done = true;
  RegisterFrameBindings();
  RegisterUnitsBindings();
  RegisterModelBindings();
  RegisterBoundaryBindings();
  RegisterLoadsBindings();
  RegisterConcreteDesignBindings();
  RegisterGeometryBindings();
  RegisterGridBindings();
  RegisterSectionsBindings();
  RegisterResultsBindings();
  RegisterSpectraBindings();
  RegisterCaseLoadsBindings();
}
