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
  CLoadGeneratorDlg(const frame::FormBase& form, const char* entity, QWidget* pParent);
  // A generator's description: the note, the case drop-down and the dialog's own `values`
  // above the member path; "Cut Selected Rows" after "New Rows".
  template <class Dlg>
  static frame::Form<Dlg> GeneratorForm(int templateId, const char* caption, const char* note, const char* caseLabel,
                                        std::vector<frame::Field<Dlg>> values) {
    using F = frame::Field<Dlg>;
    // The column after the first value shares the spare width with the grid's, so a unit
    // stands next to its edit.
    if (!values.empty()) values.front().SuffixFlags(res::kStretchCol);
    std::vector<F> fields{F::Static(note).Flags(res::kMultiline),
                          F::DropIndexOrNone(caseLabel, &Dlg::m_nCase).Items(&CLoadGeneratorDlg::CaseItems).Span(2)};
    fields.insert(fields.end(), values.begin(), values.end());
    fields.push_back(F::Grid().Span(3).Stretch(res::kStretchRow | res::kStretchCol));
    fields.push_back(F::Button("Cut Selected Rows").Id(res::kCtlGridEditAction));
    return TableForm<Dlg>({.templateId = templateId, .caption = caption, .minWidth = 560, .minHeight = 480},
                          std::move(fields));
  }

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
  // The case drop-down's entries, "%d: %s".
  static std::vector<std::string> CaseItems(const CLoadGeneratorDlg& dlg);

 private:
  const char* entity_;  // "moving load": "Invalid empty input for moving load %d"
};
