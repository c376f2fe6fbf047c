#pragma once
#include <cstdint>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "model/fm_material.h"
#include "tools/fm_unit.h"

// "Standard Material": one of seven structural steels and fifteen concretes, with the unit
// density to use; after IDOK the caller takes m_Materials[m_nMaterial].
class CStandardMaterialDlg : public CDialog {
 public:
  explicit CStandardMaterialDlg(QWidget* pParent = nullptr);
  static const frame::Form<CStandardMaterialDlg>& Description();

  std::vector<fmMat> m_Materials;  // the 22 entries; in document units once opened
  int32_t m_nMaterial = 0;
  double m_dUnitDensity = 0;
  fmUnit* m_pUnits = nullptr;

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;
  void OnSelChangeMaterial();
};
