#pragma once
#include "dialogs/loads/CLoadGeneratorDlg.h"
#include "model/pattern_load.h"

// "Pattern Load": the point and line loads of one case on a chain of spans become the
// checkerboard patterns of continuous-beam design (odd, even, adjacent spans), one new case
// each, with copies of the combinations that use the case.
class CPatternLoadDataDlg : public CLoadGeneratorDlg {
 public:
  explicit CPatternLoadDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CPatternLoadDataDlg>& Description();

  double m_dRatio = 1.0;  // "Pattern ratio:", multiplies the loads of the loaded spans

  std::string PrintTitle() const override { return "Point Load Table"; }

 protected:
  BOOL OnInitDialog() override;
  bool Generate(const std::vector<int64_t>& path) override;
};
