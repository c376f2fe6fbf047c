#include "apps/host/DialogBindings.h"

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
