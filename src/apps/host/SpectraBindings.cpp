#include "apps/host/DialogBindings.h"
#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"
#include "dialogs/loads/CResponseSpectraDlg.h"
#include "dialogs/loads/CResponseSpectrumAnalysisDlg.h"
#include "dialogs/loads/CResponseSpectrumDataDlg.h"
#include "model/response_spectrum_manager.h"

// The spectra live in the user's spectrum file, not in the model: only the analysis
// settings change the document.
void RegisterSpectraBindings() {
  // On its own the generator adds its curve to the spectrum file, as the list would.
  BindDialog<CGenerateResponseSpectrumDlg>(nullptr, [](CGenerateResponseSpectrumDlg& dlg, HostModel& m) {
    CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
    if (!dlg.m_bGenerated || !manager.LoadFile()) return false;
    if (manager.Find(dlg.m_spectrum.name)) {
      m.status = "The spectrum file already holds " + dlg.m_spectrum.name;
      return false;
    }
    std::vector<fmResponseSpectrum> spectra = manager.GetSpectra();
    spectra.push_back(dlg.m_spectrum);
    manager.SetSpectra(std::move(spectra));
    m.status = manager.SaveFile() ? "Added " + dlg.m_spectrum.name + " to the spectrum file"
                                  : "Error saving response spectrum data to file";
    return false;
  });

  BindDialog<CResponseSpectraDlg>(nullptr, nullptr);

  // On its own the data dialog edits the first spectrum of the file, as Modify would.
  BindDialog<CResponseSpectrumDataDlg>(
      [](CResponseSpectrumDataDlg& dlg, HostModel& m) {
        CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
        // A file that does not read is not written over: the dialog only shows.
        dlg.m_bModelLocked = manager.LoadFile() && !manager.GetSpectra().empty() ? 0 : 1;
        if (manager.GetSpectra().empty()) return;
        dlg.m_spectrum = manager.GetSpectra().front();
        for (size_t i = 1; i < manager.GetSpectra().size(); ++i)
          dlg.m_otherNames.push_back(manager.GetSpectra()[i].name);
        dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
      },
      [](CResponseSpectrumDataDlg& dlg, HostModel& m) {
        CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
        std::vector<fmResponseSpectrum> spectra = manager.GetSpectra();
        if (spectra.empty()) return false;
        const std::vector<fmResponseSpectrum> old = spectra;
        spectra.front() = dlg.m_spectrum;
        manager.SetSpectra(std::move(spectra));
        if (manager.SaveFile()) {
          m.status = "Saved " + dlg.m_spectrum.name + " to the spectrum file";
        } else {
          manager.SetSpectra(old);
          m.status = "Error saving response spectrum data to file";
        }
        return false;
      });

  BindDialog<CResponseSpectrumAnalysisDlg>(
      [](CResponseSpectrumAnalysisDlg& dlg, HostModel& m) {
        dlg.m_settings = m.doc.spectrumAnalysis;
        dlg.m_bModelLocked = m.doc.display.modelLocked;
      },
      [](CResponseSpectrumAnalysisDlg& dlg, HostModel& m) {
        if (dlg.m_settings == m.doc.spectrumAnalysis) return false;
        m.doc.spectrumAnalysis = dlg.m_settings;
        return true;
      });
}
