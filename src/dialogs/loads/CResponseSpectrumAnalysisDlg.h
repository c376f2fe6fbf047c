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
  static const frame::Form<CResponseSpectrumAnalysisDlg>& Description();

  fmResponseSpectrumSettings m_settings;
  BOOL m_bModelLocked = 0;

 protected:
  BOOL OnInitDialog() override;
  bool ValidateOnOK() override;
  // Opens the spectrum list, then offers the spectra it left.
  void OnSpectra();

 private:
  void FillSpectra();

  std::vector<fmResponseSpectrum> spectra_;
  // The fields: a spectrum (its index, -1 for none) and a factor per direction X, Y, Z.
  int32_t spectrumX_ = -1, spectrumY_ = -1, spectrumZ_ = -1;
  double factorX_ = 1, factorY_ = 1, factorZ_ = 0;
  int32_t combination_ = 0;
  BOOL perform_ = 0;
  double damping_ = 0.05;
  static int32_t CResponseSpectrumAnalysisDlg::* const kSpectrum[3];
  static double CResponseSpectrumAnalysisDlg::* const kFactor[3];
};
