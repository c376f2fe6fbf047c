#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "apps/host/HostModel.h"
#include "dialogs/frame/DebugOutput.h"
#include "dialogs/frame/DialogRegistry.h"

class CDialog;
class CDataGridDlg;

// How the host hands its model to one dialog class and takes the result back, as any host
// embedding the library would: set the public members, DoModal, read back after IDOK.
struct DialogBinding {
  std::string className;
  std::function<void(CDialog& dlg, HostModel& model)> prepare;
  // After IDOK; returns whether the model changed.
  std::function<bool(CDialog& dlg, HostModel& model)> takeBack;
  // After IDCANCEL, for dialogs that act on the host's data at once; returns whether the model changed.
  std::function<bool(CDialog& dlg, HostModel& model)> afterCancel = nullptr;
};

const DialogBinding* FindDialogBinding(std::string_view className);
void RegisterDialogBinding(DialogBinding binding);

// Binds a registered dialog class by its type: the class name comes from the registry, and
// prepare and take-back receive the dialog as its own class.
template <class Dlg>
void BindDialog(std::function<void(Dlg&, HostModel&)> prepare, std::function<bool(Dlg&, HostModel&)> takeBack,
                std::function<bool(Dlg&, HostModel&)> afterCancel = nullptr) {
  const auto typed =
      [](auto f) -> std::function<decltype(f(std::declval<Dlg&>(), std::declval<HostModel&>()))(CDialog&, HostModel&)> {
    if (!f) return nullptr;
    return [f](CDialog& d, HostModel& m) {
      auto* dlg = dynamic_cast<Dlg*>(&d);
      using R = decltype(f(*dlg, m));
      if (!dlg) return R();
      return f(*dlg, m);
    };
  };
  const DialogClassInfo* info = FindDialogClass(typeid(Dlg));
  if (!info) {
    DebugOutput(std::string("No dialog class registered for the binding of ") + typeid(Dlg).name());
    return;
  }
  RegisterDialogBinding(
      {info->className, typed(std::move(prepare)), typed(std::move(takeBack)), typed(std::move(afterCancel))});
}

// What a table takes from the host: its units, the lock and the grid's colour; with
// selectedOnly also "show only selected entities" (the tables of the model's entities).
void PrepareGrid(CDataGridDlg& dlg, HostModel& m, bool selectedOnly);

// A table that writes into the host's lists itself on OK; `hand` gives it those lists.
template <class Dlg>
void BindTable(std::function<void(Dlg&, model::ModelDocument&)> hand, bool selectedOnly = true) {
  BindDialog<Dlg>(
      [hand, selectedOnly](Dlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m, selectedOnly);
        hand(dlg, m.doc);
      },
      [](Dlg&, HostModel&) { return true; });
}

// Each family adds its bindings; called once at start-up.
void RegisterFrameBindings();
void RegisterUnitsBindings();
void RegisterModelBindings();
void RegisterBoundaryBindings();
void RegisterLoadsBindings();
void RegisterConcreteDesignBindings();
void RegisterGeometryBindings();
void RegisterGridBindings();
void RegisterSectionsBindings();
void RegisterResultsBindings();
void RegisterSpectraBindings();
void RegisterCaseLoadsBindings();
void RegisterAllBindings();
