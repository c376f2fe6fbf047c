#pragma once
#include <optional>
#include <utility>

#include "dialogs/design/effective_length.h"
#include "dialogs/frame/CDialog.h"

class KFactorChart;
class QKeyEvent;

// The effective length factor K of a column from the stiffness ratios at its two ends,
// for a braced and an unbraced frame. The host reads both K back after IDOK.
class CComputeKDlg : public CDialog {
 public:
  explicit CComputeKDlg(QWidget* pParent = nullptr);
  static const frame::Form<CComputeKDlg>& Description();

  // 1.0 until computed. A computation that finds no root in its bracket leaves its K at 1.0
  // (shown as "No root") and sets its failed flag: OK refuses a failed braced K, but passes a
  // failed unbraced K with a good braced one, so a host reads m_bUnbracedKFailed before
  // m_dUnbracedK. A valid braced K lies in 0.51 to 0.99, a valid unbraced K in 1.01 to 20.
  double m_dBracedK = 1.0;
  double m_dUnbracedK = 1.0;
  BOOL m_bBracedKFailed = 0;    // the last Compute found no braced root
  BOOL m_bUnbracedKFailed = 0;  // the last Compute found no unbraced root
  double m_dGA = 0.47;  // top joint, 0 to 1000
  double m_dGB = 0.47;  // bottom joint, 0 to 1000

  KFactorChart* Chart() const { return chart_; }

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* pDX) override;
  void OnOK() override;
  void OnCompute();
  // Enter ends the dialog through OnOK, as it does in a dialog without an OK button.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowResults();
  void OnRatioEdited();

  KFactorChart* chart_ = nullptr;
  // The ratios the shown results belong to; editing either away from them clears the results.
  std::optional<std::pair<double, double>> computedFor_;
};
