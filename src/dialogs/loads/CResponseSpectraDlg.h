#pragma once
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "model/response_spectrum.h"

// The user's response spectra, shared by all models: generate from a code, read from a
// file, modify, delete, export. Each change is saved to the spectrum file at once; a
// failed save is reported and undone, so the list always shows what the file holds.
class CResponseSpectraDlg : public CDialog {
 public:
  explicit CResponseSpectraDlg(QWidget* pParent = nullptr);
  static const frame::Form<CResponseSpectraDlg>& Description();

 protected:
  BOOL OnInitDialog() override;

  // List from the manager's spectra; selects the row (0-based; -1 for none).
  void Refresh(int selectRow);
  void OnGenerate();
  void OnImport();
  void OnModify();
  void OnDelete();
  void OnExport();

 private:
  int CurrentRow() const;
  // Adds or replaces (index >= 0) a spectrum, refusing a name that another one has.
  void Store(fmResponseSpectrum spectrum, int index);
  // Hands the list to the manager and saves; on failure the old list comes back.
  bool Commit(std::vector<fmResponseSpectrum> spectra);

  bool readOnly_ = false;  // the file could not be read and is not written over
};
