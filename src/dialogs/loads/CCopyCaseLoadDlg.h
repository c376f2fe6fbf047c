#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "model/fm_load.h"

// The choice of a source and a target load case and a multiplier for copying loads; the
// host copies the loads with the values it reads back after IDOK.
class CCopyCaseLoadDlg : public CDialog {
 public:
  explicit CCopyCaseLoadDlg(QWidget* pParent = nullptr);
  static const frame::Form<CCopyCaseLoadDlg>& Description();

  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  std::string m_strCaption;  // the host names what is copied ("Copy Nodal Loads" ...); empty keeps "Copy Loads"
  int32_t m_nFrom = 0;       // indexes in the "From:" and "To:" lists
  int32_t m_nTo = 0;
  double m_dFactor = 1.0;    // "Multiplied by:"
  BOOL m_bDeleteExisting = 0;

 protected:
  BOOL OnInitDialog() override;
  bool ValidateOnOK() override;
};
