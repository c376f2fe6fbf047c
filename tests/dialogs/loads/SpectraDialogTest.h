#pragma once
#include <functional>
#include <map>
#include <string>

#include "dialogs/frame/CDialog.h"
#include "model/response_spectrum_manager.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"

// A private spectrum file per test; nested dialogs run the script of their template id.
class SpectraDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    manager.SetFilePath(dir / "response-spectra.txt");
    manager.SetSpectra(model::DefaultSpectra());
    previousHook = CDialog::SetModalLoopHook([this](CDialog& dlg) {
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
  std::map<int, std::function<void(CDialog&)>> scripts;

 private:
  CDialog::ModalLoopHook previousHook;
};
