#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "dialogs/loads/std_comb_tables.h"
#include "model/fm_load.h"

// The list of load combinations with their flags. Add, Modify, Copy, Delete, Unit Cases
// and Generate Std act on the host's list at once; Cancel does not undo them.
class CLoadComboDlg : public CDialog {
 public:
  explicit CLoadComboDlg(QWidget* pParent = nullptr);
  static const frame::Form<CLoadComboDlg>& Description();

  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  std::vector<fmLoadComb>* m_pLoadCombs = nullptr;

 protected:
  BOOL OnInitDialog() override;

  // List from the host's combinations; selects the row (0-based; -1 for none).
  void Refresh(int selectRow);
  void OnAdd();
  void OnModify();
  void OnCopy();
  void OnDelete();
  void OnDblclkList();
  void OnUnitCases();
  void OnGenerateStandard();
  // Appends the checked combinations of the code; shows the refusal when the code's
  // combinations exist. Returns whether anything could be generated.
  bool GenerateStandardCombinations(const loads::StdCombCode& code, const std::vector<int32_t>& checks,
                                    BOOL bPDelta);
  void Prompt2EnterSustainedLoadComb();

 private:
  std::vector<size_t> SelectedRows() const;
  int CurrentRow() const;
  void RunEditor(int index);
};
