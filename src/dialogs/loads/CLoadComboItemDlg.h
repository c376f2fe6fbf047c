#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "dialogs/grid/TSpread.h"
#include "model/fm_load.h"

// One load combination: its label, the analysis and design flags, the sustained and
// response spectrum factors and a grid with the factor of every load case. m_comb is read
// back after IDOK; the host's lists are only read.
class CLoadComboItemDlg : public CDialog {
 public:
  explicit CLoadComboItemDlg(QWidget* pParent = nullptr);
  static const frame::Form<CLoadComboItemDlg>& Description();

  int32_t m_nIndex = -1;  // the edited combination's place in *m_pLoadCombs, -1 for a new one
  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  std::vector<fmLoadComb>* m_pLoadCombs = nullptr;
  fmLoadComb m_comb;
  uint32_t m_crAlternateRowColor = 0xF0F5FF;
  // The fields, loaded from m_comb when the dialog opens.
  std::string m_strLabel;
  BOOL m_bPDelta = 0, m_bSteelDesign = 0, m_bTotalDeflection = 0, m_bLiveDeflection = 0, m_bConcreteDesign = 0;
  double m_dSustainedFactor = 0, m_dSpectrumFactor = 1;

  TSpread& Spread() { return m_Spread; }
  // "Load Comb - <label> Table", the title of the grid's printout and export.
  std::string PrintTitle() const;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;

 private:
  TSpread m_Spread;
};
