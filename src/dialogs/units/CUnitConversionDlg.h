#pragma once
#include "dialogs/frame/CDialog.h"

// A unit calculator over the master unit list.
class CUnitConversionDlg : public CDialog {
 public:
  explicit CUnitConversionDlg(QWidget* pParent = nullptr);
  static const frame::Form<CUnitConversionDlg>& Description();

  int32_t m_nUnitType = 0;  // list positions of the three drop-down lists
  int32_t m_nFromUnit = 0;
  int32_t m_nToUnit = 0;
  double m_dFromValue = 1.0;

 protected:
  BOOL OnInitDialog() override;

  void UpdateFromAndToUnits();
  void Convert();
  void OnEnChangeEditFrom();
  void OnCbnSelchangeComboUnitType();
};
