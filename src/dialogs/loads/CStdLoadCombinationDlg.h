#pragma once
#include <cstdint>
#include <span>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "dialogs/loads/std_comb_tables.h"

// The choice of a design code and of the code's combinations to generate; the caller runs
// the generator with the result.
class CStdLoadCombinationDlg : public CDialog {
 public:
  explicit CStdLoadCombinationDlg(QWidget* pParent = nullptr);
  static const frame::Form<CStdLoadCombinationDlg>& Description();

  int32_t m_nCode = 0;            // index in the "Design code:" list, 0 to 7
  BOOL m_bPDelta = 0;             // "Perform P-Delta Analyses on the load combinations"
  std::vector<int32_t> m_checks;  // after IDOK: one flag per combination of the code

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;

  void OnSelchangeComboCode();
  // One unchecked line per combination of the table.
  void ResetCheckList(std::span<const loads::StdComb> rows);
  void OnSelectAll();
  void OnClearAll();

 private:
  void SetAllChecks(bool checked);
};
