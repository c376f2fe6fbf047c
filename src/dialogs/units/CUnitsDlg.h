#pragma once
#include <functional>

#include "dialogs/frame/CDialog.h"
#include "tools/fm_unit.h"

// Units and precisions of the eighteen quantities, with the convert flags the host uses to
// convert stored data when a unit changes.
class CUnitsDlg : public CDialog {
 public:
  explicit CUnitsDlg(QWidget* pParent = nullptr);
  static const frame::Form<CUnitsDlg>& Description();

  fmUnit m_Units;             // set by the host before DoModal, read back after IDOK
  BOOL m_bModelLocked = 0;
  BOOL m_bSaveAsDefaults = 0;

 protected:
  BOOL OnInitDialog() override;

  void OnCheckAll();
  void OnClearAll();
  void OnDefaultEnglish();
  void OnDefaultMetric();
  void OnConsistentEnglish();
  void OnConsistentMetric();

 private:
  void Apply(const std::function<void(fmUnit&)>& change);
};
