#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "dialogs/frame/Form.h"

class CDialog;
class QWidget;

// The exported dialog classes by name, so a host can list and create them.
struct DialogClassInfo {
  std::string className;
  std::string family;  // e.g. "Units", as the host groups its menus
  std::function<std::unique_ptr<CDialog>(QWidget* parent)> create;
  std::type_index type = typeid(void);
};

void RegisterDialogClass(DialogClassInfo info);
void ClearDialogClasses();
const std::vector<DialogClassInfo>& RegisteredDialogClasses();
const DialogClassInfo* FindDialogClass(std::string_view className);
const DialogClassInfo* FindDialogClass(std::type_index type);

// A dialog described as a form also puts its template and strings into the resource chain.
template <class Dlg>
void RegisterDialog(const char* className, const char* family) {
  if constexpr (requires { Dlg::Description(); }) Dlg::Description().Publish();
  RegisterDialogClass(
      {className, family, [](QWidget* parent) { return std::unique_ptr<CDialog>(new Dlg(parent)); }, typeid(Dlg)});
}
