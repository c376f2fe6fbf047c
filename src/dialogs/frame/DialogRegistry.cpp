#include "dialogs/frame/DialogRegistry.h"

#include "dialogs/frame/CDialog.h"

namespace {
std::vector<DialogClassInfo>& Registry() {
  static std::vector<DialogClassInfo> classes;
  return classes;
}
}  // namespace

void RegisterDialogClass(DialogClassInfo info) {
  for (auto& existing : Registry())
    if (existing.className == info.className) {
      existing = std::move(info);
      return;
    }
  Registry().push_back(std::move(info));
}

void ClearDialogClasses() { Registry().clear(); }

const std::vector<DialogClassInfo>& RegisteredDialogClasses() { return Registry(); }

const DialogClassInfo* FindDialogClass(std::string_view className) {
  for (const auto& info : Registry())
    if (info.className == className) return &info;
  return nullptr;
}

const DialogClassInfo* FindDialogClass(std::type_index type) {
  for (const auto& info : Registry())
    if (info.type == type) return &info;
  return nullptr;
}
