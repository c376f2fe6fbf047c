#pragma once
#include <cstdint>
#include <vector>

#include "dialogs/design/CPropertyGridDlg.h"
#include "model/fm_section.h"

// "Member Sections": the section table, filled by hand, from the regular-section calculator,
// the AISC and NDS shape tables or as the rigid link; also exports and imports the AISC
// shape library. OK rewrites the host's vector whole.
class CSectionDlg : public CPropertyGridDlg {
 public:
  explicit CSectionDlg(QWidget* pParent = nullptr);
  static const frame::Form<CSectionDlg>& Description();

  std::vector<fmSect>* m_pSections = nullptr;
  int32_t m_nActiveSection = 1;   // row made active on entry; the active row (or -1) after OK
  BOOL m_bAssignActive = 0;       // "Assign active section to currently selected members"
  BOOL m_bAiscTableImported = 0;  // set when an import replaced the shape library

  void FillOneRow(const fmSect& section, int row);
  std::string PrintTitle() const override { return "Section Table"; }

 protected:
  BOOL OnInitDialog() override;
  std::vector<int> EditingControls() const override;
  void Refresh() override;
  bool Save() override;

  void OnAddRegular();
  void OnAisc();
  void OnBnClickedNds();
  void OnBnClickedRigidLink();
  void OnBnClickedExportAiscTable();
  void OnBnClickedImportAiscTable();

 private:
  std::vector<fmSect> shown_;  // the records the rows were filled from
};
