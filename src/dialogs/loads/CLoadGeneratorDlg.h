#pragma once
#include <cstdint>
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "model/load_generator.h"

// What the moving and pattern load dialogs share: the host's lists, the case drop-down
// ("%d: %s"), the member-path grid with "New Rows", "Cut Selected Rows", "Print..." and
// "Save...", and OK's checks of the path before the generator runs. A run appends to the
// host's cases, case loads and combinations all at once, or nothing.
class CLoadGeneratorDlg : public CDataGridDlg {
 public:
  std::vector<fmBm>* m_pMembers = nullptr;  // read for their end nodes; selected ones open the path
  std::vector<fmNd>* m_pNodes = nullptr;
  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  std::vector<fmCaseLoad>* m_pCaseLoads = nullptr;  // one per load case, in case order
  std::vector<fmLoadComb>* m_pLoadCombs = nullptr;
  int32_t m_nCase = -1;  // the drop-down's index, -1 when none is chosen

 protected:
  CLoadGeneratorDlg(int templateId, const char* entity, QWidget* pParent);

  BOOL OnInitDialog() override;
  GridEditLock EditLock() const override;
  void DoDataExchange(CDataExchange* pDX) override;
  void Refresh() override;
  bool Save() override { return true; }
  void OnOK() override { OnBnClickedOk(); }

  void OnBnClickedOk();
  void OnBnClickedGenerateMore();
  void OnBnClickedDeleteRows();
  void OnBnClickedPrint() { OnPrint(); }
  void OnBnClickedSave() { OnSave(); }

  // Checks of the dialog's own values before the path is read (the moving step).
  virtual bool CheckValues() { return true; }
  // Runs the generator on the checked path; true when anything was generated.
  virtual bool Generate(const std::vector<int64_t>& path) = 0;
  // Hands the host's lists and the chosen case to a generator.
  void Prepare(model::LoadGenerator& generator) const;
  // Shows every refusal of the run, one message each.
  void ShowRefusals(const model::LoadGenerator& generator);

 private:
  const char* entity_;  // "moving load": "Invalid empty input for moving load %d"
};
