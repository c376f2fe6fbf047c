#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "apps/host/HostModel.h"

class CDialog;

// How the host hands its model to one dialog class and takes the result back, as any host
// embedding the library would: set the public members, DoModal, read back after IDOK.
struct DialogBinding {
  const char* className;
  std::function<void(CDialog& dlg, HostModel& model)> prepare;
  // After IDOK; returns whether the model changed.
  std::function<bool(CDialog& dlg, HostModel& model)> takeBack;
  // After IDCANCEL, for dialogs that act on the host's data at once; returns whether the model changed.
  std::function<bool(CDialog& dlg, HostModel& model)> afterCancel = nullptr;
};

const DialogBinding* FindDialogBinding(std::string_view className);
void RegisterDialogBinding(DialogBinding binding);

// Each family adds its bindings; called once at start-up.
void RegisterFrameBindings();
void RegisterUnitsBindings();
void RegisterModelBindings();
void RegisterLoadsBindings();
void RegisterConcreteDesignBindings();
void RegisterGeometryBindings();
void RegisterGridBindings();
void RegisterSectionsBindings();
void RegisterResultsBindings();
void RegisterSpectraBindings();
void RegisterAllBindings();
