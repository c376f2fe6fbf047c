#pragma once
#include <functional>
#include <map>
#include <string>

#include "dialogs/frame/CDialog.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"
#include "tools/shape_table.h"

// Shape library from the source tree; nested dialogs run the script of their template id.
class SectionsDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    tools::SetShapeLibraryLocations({NORVANE_SOURCE_DATA_DIR, userData.path() + "/norvane"});
    previousHook = CDialog::SetModalLoopHook([this](CDialog& dlg) {
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
  void TearDown() override {
    CDialog::SetModalLoopHook(previousHook);
    tools::SetShapeLibraryLocations({});
    DialogTest::TearDown();
  }

  TempDir userData;
  std::map<int, std::function<void(CDialog&)>> scripts;
  std::map<int, int> opened;

 private:
  CDialog::ModalLoopHook previousHook;
};
