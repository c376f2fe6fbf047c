#pragma once
#include <cstdint>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "model/fm_struct.h"

// The report picker: a report kind and the load case, combination or mode it shows; "Show"
// opens the results dialog on them.
class CReportDlg : public CDialog {
 public:
  explicit CReportDlg(QWidget* pParent = nullptr);
  static const frame::Form<CReportDlg>& Description();

  CfmStruct* m_pStruct = nullptr;  // not owned
  int32_t m_nReportType = 0;       // the kind chosen (kept when the dialog closes)
  int32_t m_nCombination = 0;      // the case or mode chosen, 0-based
  uint32_t m_crAlternateRowColor = 0xF0F5FF;

  // The kinds the picker offers, in its list's order (every kind with a report but the
  // information sheets, which need an object), and the list's text of each.
  static const std::vector<int>& Kinds();
  static std::string KindText(int kind);

  // The position in the list while the dialog runs (exchanged with the first drop-down).
  int32_t m_nKindIndex = 0;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;
  void OnSelchangeKind();

 private:
  void FillCases();
};
