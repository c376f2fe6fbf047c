#pragma once
#include <cstdint>

#include "dialogs/frame/CDialog.h"
#include "model/response_spectrum.h"
#include "model/response_spectrum_codes.h"

class SpectrumChart;

// Builds a design response spectrum of a code and shows its curve while the values are
// entered. After IDOK, m_spectrum holds the named curve and m_bGenerated is set.
class CGenerateResponseSpectrumDlg : public CDialog {
 public:
  explicit CGenerateResponseSpectrumDlg(QWidget* pParent = nullptr);
  static const frame::Form<CGenerateResponseSpectrumDlg>& Description();

  int32_t m_nCode = model::kAsce2010;  // 0 UBC 97, 1 IBC 2000, 2 ASCE 2005, 3 ASCE 2010, 4 ASCE 7-16, 5 Eurocode 8
  double m_dValue1 = 1.0;  // Ca (UBC 97) or SDS
  double m_dValue2 = 0.6;  // Cv (UBC 97) or SD1
  double m_dTL = 8.0;
  int32_t m_nEc8Type = 0;  // 0 Type 1, 1 Type 2
  int32_t m_nGround = 2;   // 0 to 4: ground types A to E
  double m_dAg = 0.25;     // agR, g
  double m_dImportance = 1.0;
  double m_dDamping = 5.0;  // percent
  BOOL m_bLogScale = 1;  // the long-period tail reads better on a log axis

  fmResponseSpectrum m_spectrum;
  BOOL m_bGenerated = 0;

  SpectrumChart* Chart() const { return chart_; }

 protected:
  BOOL OnInitDialog() override;
  bool ValidateOnOK() override;
  void OnSelChangeCode();
  // Redraws the curve from the controls as they read now; an unusable value leaves the
  // chart empty and says why under it.
  void UpdatePreview();

 private:
  model::SpectrumInput InputFromMembers() const;
  void ShowCodeControls();
  int FieldControl(model::SpectrumField field) const;

  SpectrumChart* chart_ = nullptr;
};
