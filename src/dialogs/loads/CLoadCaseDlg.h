#pragma once
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "model/fm_case_load.h"
#include "model/fm_load.h"

// The load case table: number, label and load type of every static load case. OK replaces
// the host's cases; the first case keeps its label and can never be deleted.
class CLoadCaseDlg : public CDataGridDlg {
 public:
  explicit CLoadCaseDlg(QWidget* pParent = nullptr);
  static const frame::Form<CLoadCaseDlg>& Description();

  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  // The loads of the cases, one per case in case order; kept in step with the cases on OK
  // (the loads of a deleted case go with it, a new case starts without loads). Optional.
  std::vector<fmCaseLoad>* m_pCaseLoads = nullptr;

 protected:
  GridEditLock EditLock() const override;
  void OnOK() override;
  void Refresh() override;
  bool Save() override;

  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) override;
  void OnDeleteRows();

 private:
  int filledRows_ = 0;  // rows filled from the host's cases and still in the grid
  std::vector<int> origins_;  // per row, the case it was filled from; rows past its end are new
};
