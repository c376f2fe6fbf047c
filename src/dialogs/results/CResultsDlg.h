#pragma once
#include <QIcon>
#include <QSize>
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "dialogs/grid/TSpread.h"
#include "dialogs/results/report_context.h"

// Every tabular result of a solved model: the host sets the report kind, the solved
// structure and, for the information sheets, the object; the user switches the load case
// (or mode), restricts the rows to the selection, prints and saves. The dialog reads the
// structure and writes back only its show-selected flag.
class CResultsDlg : public CDialog {
 public:
  explicit CResultsDlg(QWidget* pParent = nullptr);
  static const frame::Form<CResultsDlg>& Description();
  ~CResultsDlg() override;

  int32_t m_nReportType = -1;    // the report kind; -1: none
  CfmStruct* m_pStruct = nullptr;  // not owned
  int32_t m_nQueryId = 0;        // node, member, shell or brick of the information sheets
  int32_t m_nCombination = 0;    // the combo box's choice; -1: none
  BOOL m_bShowSelected = 0;
  int32_t m_nGridWidth = 0;      // measured once when the dialog is set up
  uint32_t m_crAlternateRowColor = 0xF0F5FF;

  // Rebuilds the grid for the report kind, the combo choice and the show-selected state.
  void Refresh();
  TSpread& Spread() { return m_Spread; }

  // The reports, filling the grid from the structure.
  void Node_Displacements(const std::vector<fmResult6Val>& displacements);
  void Node_Forces(int mode, const std::vector<fmResult6Val>& forces);
  void Support_Reactions(int caseIndex);
  void Spring_Reactions(int caseIndex);
  void Multi_DOF_Constraint_Forces(int caseIndex);
  void Story_Drift(int caseIndex, const std::vector<fmResult6Val>& displacements);
  void Node_Displacements_Envelope();
  void Support_Reactions_Envelope();
  // The information sheet of kinds 29 to 32.
  void Query();
  bool GetNodeInfo(std::vector<std::string>& lines, long id) const;
  bool GetBeamInfo(std::vector<std::string>& lines, long id) const;
  bool GetShell4Info(std::vector<std::string>& lines, long id) const;
  bool GetBrickInfo(std::vector<std::string>& lines, long id) const;
  // Which load cases and combinations take part in envelopes.
  void GetEnvelopeLoadCombs(std::vector<bool>& cases) const;

  QSize sizeHint() const override;

 protected:
  BOOL OnInitDialog() override;
  void resizeEvent(QResizeEvent* event) override;

  void OnSelchangeComboCombination();
  void OnCheckShowSelected();
  void OnPrint();
  void OnBnClickedSave();
  void OnSize();

 private:
  results::ReportContext Context();
  // The report of the kind for the current choice; false when the kind has none.
  void BuildReport();

  TSpread m_Spread;
  QIcon m_hIcon;
  std::vector<std::string> messages_;  // what the last report had to tell the user
  QSize initialSize_;  // the smaller window of the statistics and information sheets
};
