#pragma once
#include "dialogs/loads/CLoadGeneratorDlg.h"
#include "model/moving_load.h"

// "Moving Load": the point loads of one case stand at successive positions along a chain of
// members, one new case per position, with copies of the combinations that use the case.
class CMovingLoadDlg : public CLoadGeneratorDlg {
 public:
  explicit CMovingLoadDlg(QWidget* pParent = nullptr);
  static const frame::Form<CMovingLoadDlg>& Description();

  double m_dStep = 0;        // "Moving step:", a length, positive or negative
  BOOL m_bBiDirectional = 0;  // "Bi-Directional"

  std::string PrintTitle() const override { return "Moving Load Path Table"; }

 protected:
  bool CheckValues() override;
  bool Generate(const std::vector<int64_t>& path) override;
};
