#pragma once
#include <string>
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "model/response_spectrum.h"

class SpectrumChart;

// The name and points of one response spectrum, editable in a grid with the curve beside
// it. After IDOK m_spectrum holds the edited spectrum; the caller stores it.
class CResponseSpectrumDataDlg : public CDataGridDlg {
 public:
  explicit CResponseSpectrumDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CResponseSpectrumDataDlg>& Description();

  fmResponseSpectrum m_spectrum;
  std::vector<std::string> m_otherNames;  // names the edited spectrum may not take

  std::string PrintTitle() const override { return "Response Spectrum " + m_spectrum.name; }
  SpectrumChart* Chart() const { return chart_; }

 protected:
  BOOL OnInitDialog() override;
  void Refresh() override;
  bool Save() override;
  void OnNewPointRows();
  void OnDeleteRows();
  // Draws the points as far as they read.
  void UpdatePlot();

 private:
  std::string name_;
  std::vector<fmSpectrumPoint> filled_;  // what the grid was filled with
  SpectrumChart* chart_ = nullptr;
};
