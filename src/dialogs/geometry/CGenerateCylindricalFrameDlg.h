#pragma once
#include <string>

#include "dialogs/frame/CDialog.h"
#include "tools/fm_unit.h"

// Collects and checks the parameters of a cylindrical frame; the host generates it after
// IDOK from the members (see geometry::GenerateCylindricalFrame).
class CGenerateCylindricalFrameDlg : public CDialog {
 public:
  explicit CGenerateCylindricalFrameDlg(QWidget* pParent = nullptr);
  static const frame::Form<CGenerateCylindricalFrameDlg>& Description();

  fmUnit* m_pUnits = nullptr;             // the length label comes from it
  std::string m_strRadialList = "20,10";  // radial distances
  std::string m_strAngleList = "0, 2@30";  // angle increments, degrees
  std::string m_strYList;                 // distances along the axis; may be empty
  double m_dInsertX = 0;
  double m_dInsertY = 0;
  double m_dInsertZ = 0;
  int32_t m_nRotationAxis = 0;  // 0 global X, 1 global Y, 2 global Z
  double m_dRotationAngle = 0;  // degrees
  int32_t m_nSupports = 0;      // 0 none, 1 pinned, 2 fixed
  BOOL m_bGenerateMembers = 1;

 protected:
  bool ValidateOnOK() override;
};
