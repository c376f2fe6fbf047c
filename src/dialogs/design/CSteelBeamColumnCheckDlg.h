#pragma once
#include <fstream>
#include <string>

#include "dialogs/design/steel_check.h"
#include "dialogs/frame/CDialog.h"
#include "dialogs/grid/TSpread.h"

// The check of one steel member of an AISC shape, for rows of factored loads, to
// ANSI/AISC 360-10 LRFD; writes the step-by-step report that "Show Procedure" opens.
// Fixed US units: kip, kip-ft, ft, ksi.
class CSteelBeamColumnCheckDlg : public CDialog {
 public:
  explicit CSteelBeamColumnCheckDlg(QWidget* pParent = nullptr);
  static const frame::Form<CSteelBeamColumnCheckDlg>& Description();

  std::string m_strSectionName = "W14X90";
  double m_dLength = 14;
  double m_dLux = 14, m_dLuy = 14, m_dLuz = 14;
  double m_dKx = 1, m_dKy = 1, m_dKz = 1;
  double m_dCb = 1;
  double m_dConnectorDistance = 0;
  double m_dFy = 50;
  double m_dLb = 14;
  BOOL m_bConsiderMomentMagnification = 0;
  BOOL m_bUseDirectDesignMethod = 0;
  int32_t m_nCode = 0;  // "ANSI/AISC 360-10 LRFD"
  // Load sets the grid shows when it opens (a host may pass member forces); none: an empty grid.
  std::vector<design::SteelLoadSet> m_LoadSets;
  // Where the report is written; empty: the user's data folder (the preferences' data folder,
  // else the per-user data location).
  std::string m_strReportFolder;

  // The grid of load sets: 15 columns, inputs 1 to 7, results 8 to 15.
  TSpread m_Spread;
  static constexpr int kColumns = 15;
  static constexpr int kFirstResultColumn = 8;

  std::string ReportPath() const;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;  // "Compute" runs the check and keeps the dialog open

  void OnBnClickedAisc();
  void OnBnClickedOk();
  bool Run();
  bool Calculate(std::ofstream& stream);
  bool CheckLoads();
  bool CheckGeometryAndMaterial();
  void ClearResults();
  void OnBnClickedViewProcedure();
  void OnGridChange();
  void OnChangeEditLength();
  void OnEnChangeEditCb();

 private:
  void InitializeGrid();
  design::SteelMember Member() const;
  // The load sets of the grid (rows 1 to the last used one, at least one); false after a
  // refused cell, whose message was shown.
  bool ReadLoads(std::vector<design::SteelLoadSet>& loads);

  bool writingResults_ = false;
};
