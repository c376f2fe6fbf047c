#pragma once
#include <cstdint>

#include "dialogs/frame/CDialog.h"
#include "tools/fm_unit.h"

class SectionPicture;

// "Regular Section": four dimensions of a rectangle, round bar, wide flange or tee; the
// caller computes the section from them after IDOK.
class CRegularSectionDlg : public CDialog {
 public:
  explicit CRegularSectionDlg(QWidget* pParent = nullptr);
  static const frame::Form<CRegularSectionDlg>& Description();
  // The box of dimension i (0 to 3) and its caption.
  static int DimensionId(int i);
  static int CaptionId(int i);

  int32_t m_nType = 0;  // 0 Rectangle, 1 Round, 2 Wide Flange, 3 Tee
  double m_dDim1 = 0, m_dDim2 = 0, m_dDim3 = 0, m_dDim4 = 0;
  fmUnit* m_pUnits = nullptr;

  SectionPicture* Picture() const { return picture_; }

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;
  void OnSelChangeType();
  // Captions, enabled boxes and the fixed values of the unused ones for a type.
  void ApplyType(int type);
  void UpdatePicture();

 private:
  SectionPicture* picture_ = nullptr;
};
