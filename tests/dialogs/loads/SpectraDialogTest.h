#pragma once
#include <functional>
#include <map>
#include <string>

#include "dialogs/frame/CDialog.h"
#include "model/response_spectrum_manager.h"
#include "support/DialogTest.h"
#include "support/NestedDialogs.h"
#include "support/TempDir.h"

// A private spectrum file per test; nested dialogs run the script of their template id.
class SpectraDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    manager.SetFilePath(dir / "response-spectra.txt");
    manager.SetSpectra(model::DefaultSpectra());
  }
  void TearDown() override {
    manager.SetFilePath({});
    manager.SetSpectra(model::DefaultSpectra());
    DialogTest::TearDown();
  }
  std::string File() const { return dir / "response-spectra.txt"; }
  // Saves these spectra as the user's file.
  void Store(std::vector<fmResponseSpectrum> spectra) {
    manager.SetSpectra(std::move(spectra));
    ASSERT_TRUE(manager.SaveFile()) << manager.LastError();
  }

  TempDir dir;
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
  NestedDialogs nested;
  std::map<int, std::function<void(CDialog&)>>& scripts = nested.scripts;
};
