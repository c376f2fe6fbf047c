#pragma once
#include <string>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "model/fm_load.h"

// Which load cases and combinations take part in the envelope reports: one check a case or
// combination. OK writes the checked labels into the model's envelope list.
class CEnvelopeReportDlg : public CDialog {
 public:
  explicit CEnvelopeReportDlg(QWidget* pParent = nullptr);
  static const frame::Form<CEnvelopeReportDlg>& Description();

  const std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  const std::vector<fmLoadComb>* m_pLoadCombs = nullptr;
  std::vector<std::string>* m_pEnvelopeCombinations = nullptr;  // written on OK
  BOOL m_bModelLocked = 0;

  // The check of line i (cases first, then combinations).
  bool IsChecked(int i) const;
  void SetChecked(int i, bool checked);
  int LineCount() const;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;
  void OnSelectAll();
  void OnClearAll();
};
