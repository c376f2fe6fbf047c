#pragma once
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "dialogs/design/CPropertyGridDlg.h"
#include "model/fm_material.h"

class CStandardMaterialDlg;

// "Material": the elastic properties of the material table, rows filled by hand or from
// the standard materials. OK rewrites the host's vector whole.
class CMaterialDlg : public CPropertyGridDlg {
 public:
  explicit CMaterialDlg(QWidget* pParent = nullptr);
  static const frame::Form<CMaterialDlg>& Description();
  ~CMaterialDlg() override;

  std::vector<fmMat>* m_pMaterials = nullptr;
  int32_t m_nActiveMaterial = 1;  // row made active on entry; the active row (or -1) after OK
  BOOL m_bAssignActive = 0;       // "Assign active material to currently selected elements"
  // The full record of every row filled from the standard table, by material id; the host
  // takes fc, fy and fys from here (this grid does not show them).
  std::map<int, fmMat> m_mapStdMaterials;

  void FillOneRow(const fmMat& material, int row);
  std::string PrintTitle() const override { return "Material Table"; }
  // A modulus in psi in the document's stress unit.
  double ConvertModulusFromPsiDocumentUnit(double psi) const;

 protected:
  BOOL OnInitDialog() override;
  std::vector<int> EditingControls() const override;
  void Refresh() override;
  bool Save() override;
  void OnStdMaterial();

 private:
  std::vector<fmMat> filled_;
  std::unique_ptr<CStandardMaterialDlg> standard_;  // remembers the last choice while this lives
};
