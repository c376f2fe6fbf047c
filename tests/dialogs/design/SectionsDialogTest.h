#pragma once
#include <functional>
#include <map>
#include <string>

#include "dialogs/frame/CDialog.h"
#include "support/DialogTest.h"
#include "support/NestedDialogs.h"
#include "support/TempDir.h"
#include "tools/shape_table.h"

// Shape library from the source tree; nested dialogs run the script of their template id.
class SectionsDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    tools::SetShapeLibraryLocations({NORVANE_SOURCE_DATA_DIR, userData.path() + "/norvane"});
  }
  void TearDown() override {
    tools::SetShapeLibraryLocations({});
    DialogTest::TearDown();
  }

  TempDir userData;
  NestedDialogs nested;
  std::map<int, std::function<void(CDialog&)>>& scripts = nested.scripts;
  std::map<int, int>& opened = nested.opened;
};
