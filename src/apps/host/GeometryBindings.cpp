#include "apps/host/DialogBindings.h"
#include "dialogs/frame/Prompter.h"
#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"
#include "dialogs/geometry/cylindrical_frame.h"
#include "tools/format.h"

namespace {

geometry::CylindricalFrameParameters ParametersOf(const CGenerateCylindricalFrameDlg& dlg) {
  geometry::CylindricalFrameParameters p;
  p.radialList = dlg.m_strRadialList;
  p.angleList = dlg.m_strAngleList;
  p.axialList = dlg.m_strYList;
  p.insertX = dlg.m_dInsertX;
  p.insertY = dlg.m_dInsertY;
  p.insertZ = dlg.m_dInsertZ;
  p.rotationAxis = dlg.m_nRotationAxis;
  p.rotationAngle = dlg.m_dRotationAngle;
  p.supports = dlg.m_nSupports;
  p.generateMembers = dlg.m_bGenerateMembers != 0;
  return p;
}

// The document holds nodes only so far: members and supports are counted, not stored.
std::string Describe(const geometry::CylindricalFrame& f) {
  std::string text = tools::Format("Generated %zu nodes", f.nodes.size());
  if (!f.nodes.empty()) text += tools::Format(" (%u to %u)", f.nodes.front().id, f.nodes.back().id);
  if (!f.members.empty() || !f.supports.empty()) {
    text += tools::Format("; %zu members", f.members.size());
    if (!f.supports.empty())
      text += tools::Format(" and %zu %s supports", f.supports.size(), geometry::SupportKindName(f.supports[0].kind));
    text += " await member and support records and were not added";
  }
  return text;
}

}  // namespace

void RegisterGeometryBindings() {
  RegisterDialogBinding({"CGenerateCylindricalFrameDlg",
                         [](CDialog& d, HostModel& m) {
                           static_cast<CGenerateCylindricalFrameDlg&>(d).m_pUnits = &m.doc.units;
                         },
                         [](CDialog& d, HostModel& m) {
                           const auto result = geometry::AddCylindricalFrameToDocument(
                               m.doc, ParametersOf(static_cast<CGenerateCylindricalFrameDlg&>(d)));
                           if (!result.ok()) {
                             GetPrompter().Message(&d, result.error, MessageIcon::Error);
                             return false;
                           }
                           m.status = Describe(result.frame);
                           return !result.frame.nodes.empty();
                         }});
}
