#pragma once
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "dialogs/frame/CDialog.h"

// While it lives, a dialog that another dialog opens runs the script of its template id
// instead of a modal loop (after its OnInitDialog); one without a script fails the test.
class NestedDialogs {
 public:
  NestedDialogs() {
    previous_ = CDialog::SetModalLoopHook([this](CDialog& dlg) {
      ++opened[dlg.TemplateId()];
      const auto it = scripts.find(dlg.TemplateId());
      if (it == scripts.end()) {
        ADD_FAILURE() << "dialog " << dlg.TemplateId() << " opened without a script";
        return IDCANCEL;
      }
      it->second(dlg);
      return dlg.ModalResult() != 0 ? dlg.ModalResult() : IDCANCEL;
    });
  }
  ~NestedDialogs() { CDialog::SetModalLoopHook(previous_); }
  NestedDialogs(const NestedDialogs&) = delete;
  NestedDialogs& operator=(const NestedDialogs&) = delete;

  std::map<int, std::function<void(CDialog&)>> scripts;
  std::map<int, int> opened;

 private:
  CDialog::ModalLoopHook previous_;
};
