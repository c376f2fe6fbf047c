#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"

#include "dialogs/frame/Form.h"
#include "dialogs/geometry/cylindrical_frame.h"
#include "resources/geometry_ids.h"

using namespace res;

// The three lists one above the other, each with its unit; the insertion point and the
// rotation side by side below them; supports and members last. The system names nearly every id.
const frame::Form<CGenerateCylindricalFrameDlg>& CGenerateCylindricalFrameDlg::Description() {
  using F = frame::Field<CGenerateCylindricalFrameDlg>;
  using D = CGenerateCylindricalFrameDlg;
  static const frame::Form<D> form(
      {.templateId = kIddGenerateCylindricalFrame, .caption = "Generate Cylindrical Frame",
       .captionStringId = kStrGenerateCylindricalFrame, .minWidth = 480, .stretchColumn = false},
      {
          F::Static("Radial distance list (e.g. 12, 3@20, 2@15):").Id(kCtlRadialListLabel, kStrRadialList),
          F::Text("", &D::m_strRadialList).Id(kCtlRadialList).Span(2).Suffix("", kCtlRadialUnit).Unit(fmUnit::Length),
          F::Static("Angle increment list with 0 as start angle (e.g. 3@45):").Id(kCtlAngleListLabel, kStrAngleList),
          F::Text("", &D::m_strAngleList).Id(kCtlAngleList).Span(2).Suffix("deg"),
          F::Static("Y direction distance list (e.g. 12, 3@20, 2@15), may leave empty:")
              .Id(kCtlAxialListLabel, kStrAxialList),
          F::Text("", &D::m_strYList).Id(kCtlAxialList).Span(2).Suffix("", kCtlAxialUnit).Unit(fmUnit::Length),

          F::Group("Insertion Point Coordinates").Id(kCtlInsertionGroup, kStrInsertionPoint).At(6, 0),
          F::Real("X:", &D::m_dInsertX).Id(kCtlInsertX).Suffix("", kCtlInsertXUnit).Unit(fmUnit::Length),
          F::Real("Y:", &D::m_dInsertY).Id(kCtlInsertY).Suffix("", kCtlInsertYUnit).Unit(fmUnit::Length),
          F::Real("Z:", &D::m_dInsertZ).Id(kCtlInsertZ).Suffix("", kCtlInsertZUnit).Unit(fmUnit::Length),
          F::EndGroup(),

          F::Group("Rotation").Id(kCtlRotationGroup, kStrRotation).At(6, 1).Span(2),
          F::Group("About:").Id(kCtlAboutGroup, kStrRotationAbout).Span(3),
          F::DropIndexOrNone("", &D::m_nRotationAxis).Id(kCtlRotationAxis).Items({"Global X", "Global Y", "Global Z"})
              .Flags(kStretchCol),
          F::EndGroup(),
          F::Real("Angle:", &D::m_dRotationAngle)
              .Id(kCtlRotationAngle).LabelId(kCtlRotationAngleLabel, kStrRotationAngle).Suffix("deg"),
          F::EndGroup(),

          F::DropIndexOrNone("Supports at bottom:", &D::m_nSupports)
              .Id(kCtlSupports).LabelId(kCtlSupportsLabel, kStrSupportsAtBottom)
              .Items({"No Supports", "Pinned", "Fixed"}).At(7, 0),
          F::Check("Generate members", &D::m_bGenerateMembers).Id(kCtlGenerateMembers, kStrGenerateMembers),
      },
      &D::m_pUnits);
  return form;
}

CGenerateCylindricalFrameDlg::CGenerateCylindricalFrameDlg(QWidget* pParent) : CDialog(Description(), pParent) {}

bool CGenerateCylindricalFrameDlg::ValidateOnOK() {
  // A drop-down list must name one of its entries; a host may have set an index it lacks.
  for (const auto& [id, index] : {std::pair{kCtlRotationAxis, m_nRotationAxis}, {kCtlSupports, m_nSupports}}) {
    if (index < 0) {
      FailOn(id, "Please select an item from the list.");
      return false;
    }
  }
  const geometry::CylinderCheck check =
      geometry::CheckCylindricalFrameLists(m_strRadialList, m_strAngleList, m_strYList);
  if (!check.ok()) {
    FailOn(check.list == geometry::CylinderList::Angle   ? kCtlAngleList
           : check.list == geometry::CylinderList::Axial ? kCtlAxialList
                                                         : kCtlRadialList,
           check.message);
    return false;
  }
  return true;
}
