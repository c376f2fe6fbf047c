#pragma once
#include "dialogs/frame/CDialog.h"
#include "tools/fm_unit.h"

// Units and precisions of the eighteen quantities, with the convert flags the host uses to
// convert stored data when a unit changes.
class CUnitsDlg : public CDialog {
 public:
  explicit CUnitsDlg(QWidget* pParent = nullptr);

  fmUnit m_Units;             // set by the host before DoModal, read back after IDOK
  BOOL m_bModelLocked = 0;
  BOOL m_bSaveAsDefaults = 0;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* pDX) override;
  void OnOK() override;

  void OnCheckAll();
  void OnClearAll();
  void OnDefaultEnglish();
  void OnDefaultMetric();
  void OnConsistentEnglish();
  void OnConsistentMetric();

 private:
  void SetAllChecks(bool checked);
  // Selects every unit and precision list from m_Units.
  void SelectLists();
};
