#pragma once
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "model/response_spectrum.h"
#include "model/response_spectrum_settings.h"

// The model's response spectrum analysis: a spectrum and a contribution factor per
// direction, the modal combination and the damping ratio. The host passes the model's
// settings in m_settings and takes them back after IDOK.
class CResponseSpectrumAnalysisDlg : public CDialog {
 public:
  explicit CResponseSpectrumAnalysisDlg(QWidget* pParent = nullptr);

  fmResponseSpectrumSettings m_settings;
  BOOL m_bModelLocked = 0;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* pDX) override;
  void OnBnClickedOk();
  // Opens the spectrum list, then offers the spectra it left.
  void OnSpectra();

 private:
  void FillSpectra();

  std::vector<fmResponseSpectrum> spectra_;
  int32_t spectrumIndex_[3] = {-1, -1, -1};
  int32_t combination_ = 0;
  BOOL perform_ = 0;
  double damping_ = 0.05;
  double factor_[3] = {1, 1, 0};
};
