#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"

#include <QComboBox>
#include <QLineEdit>

#include "dialogs/frame/DataExchange.h"
#include "dialogs/geometry/cylindrical_frame.h"
#include "resources/geometry_ids.h"

using namespace res;

namespace {

void FillCombo(QComboBox* combo, int firstStringId, const char* const fallbacks[3]) {
  if (!combo) return;
  combo->clear();
  for (int i = 0; i < 3; ++i) combo->addItem(QString::fromStdString(LoadStringOr(firstStringId + i, fallbacks[i])));
}

// A drop-down list must name one of its entries; a host may have set an index it lacks.
void DDV_Selected(CDataExchange* pDX, int32_t index) {
  if (pDX->m_bSaveAndValidate && index < 0) pDX->Fail("Please select an item from the list.");
}

}  // namespace

CGenerateCylindricalFrameDlg::CGenerateCylindricalFrameDlg(QWidget* pParent)
    : CDialog(kIddGenerateCylindricalFrame, pParent) {
  OnCommand(IDOK, [this] { OnBnClickedOk(); });
}

BOOL CGenerateCylindricalFrameDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  static const char* const kAxes[3] = {"Global X", "Global Y", "Global Z"};
  static const char* const kSupports[3] = {"No Supports", "Pinned", "Fixed"};
  FillCombo(Item<QComboBox>(kCtlRotationAxis), kStrGlobalX, kAxes);
  FillCombo(Item<QComboBox>(kCtlSupports), kStrNoSupports, kSupports);
  if (auto* axis = Item<QComboBox>(kCtlRotationAxis)) axis->setCurrentIndex(m_nRotationAxis);
  if (auto* supports = Item<QComboBox>(kCtlSupports)) supports->setCurrentIndex(m_nSupports);

  const std::string length = m_pUnits ? m_pUnits->Label(fmUnit::Length) : std::string();
  for (int id : {kCtlRadialUnit, kCtlAxialUnit, kCtlInsertXUnit, kCtlInsertYUnit, kCtlInsertZUnit})
    SetDlgItemText(id, length);
  return 1;
}

void CGenerateCylindricalFrameDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, kCtlRadialList, m_strRadialList);
  DDX_Text(pDX, kCtlAngleList, m_strAngleList);
  DDX_Text(pDX, kCtlAxialList, m_strYList);
  DDX_Text(pDX, kCtlInsertX, m_dInsertX);
  DDX_Text(pDX, kCtlInsertY, m_dInsertY);
  DDX_Text(pDX, kCtlInsertZ, m_dInsertZ);
  DDX_CBIndex(pDX, kCtlRotationAxis, m_nRotationAxis);
  DDV_Selected(pDX, m_nRotationAxis);
  DDX_Text(pDX, kCtlRotationAngle, m_dRotationAngle);
  DDX_CBIndex(pDX, kCtlSupports, m_nSupports);
  DDV_Selected(pDX, m_nSupports);
  DDX_Check(pDX, kCtlGenerateMembers, m_bGenerateMembers);
}

void CGenerateCylindricalFrameDlg::OnBnClickedOk() {
  if (!UpdateData(1)) return;
  const geometry::CylinderCheck check =
      geometry::CheckCylindricalFrameLists(m_strRadialList, m_strAngleList, m_strYList);
  if (!check.ok()) {
    FailOn(check.list == geometry::CylinderList::Angle   ? kCtlAngleList
           : check.list == geometry::CylinderList::Axial ? kCtlAxialList
                                                         : kCtlRadialList,
           check.message);
    return;
  }
  EndDialog(IDOK);
}
