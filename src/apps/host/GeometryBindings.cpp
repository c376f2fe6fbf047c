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

std::string Counted(size_t n, const char* what, uint32_t first, uint32_t last) {
  if (n == 1) return tools::Format("1 %s (%u)", what, first);
  return tools::Format("%zu %ss (%u to %u)", n, what, first, last);
}

// A material or section reference as the member table shows it: "1: A992".
template <class Record>
std::string Reference(const char* what, const std::vector<Record>& records, int32_t ref) {
  const Record& r = records[static_cast<size_t>(ref) - 1];
  return tools::Format("%s %d: %s", what, r.id, r.label.c_str());
}

// What was added, and which material and section the members got, for the status bar.
std::string Describe(const geometry::CylindricalFrameResult& r, const model::ModelDocument& doc) {
  const geometry::CylindricalFrame& f = r.frame;
  std::vector<std::string> parts;
  if (!f.nodes.empty()) parts.push_back(Counted(f.nodes.size(), "node", f.nodes.front().id, f.nodes.back().id));
  if (!f.members.empty())
    parts.push_back(Counted(f.members.size(), "member", f.members.front().id, f.members.back().id));
  if (!f.supports.empty())
    parts.push_back(tools::Format("%zu %s support%s", f.supports.size(),
                                  geometry::SupportKindName(f.supports.front().kind),
                                  f.supports.size() == 1 ? "" : "s"));
  std::string text = "Generated ";
  for (size_t i = 0; i < parts.size(); ++i) text += (i == 0 ? "" : i + 1 == parts.size() ? " and " : ", ") + parts[i];
  if (f.members.empty()) return text;
  if (r.material == 0 && r.section == 0) return text + "; the members have no material or section yet";
  text += "; the members have ";
  text += r.material ? Reference("material", doc.materials, r.material) : "no material";
  text += " and ";
  text += r.section ? Reference("section", doc.sections, r.section) : "no section";
  return text;
}

}  // namespace

void RegisterGeometryBindings() {
  BindDialog<CGenerateCylindricalFrameDlg>(
      [](CGenerateCylindricalFrameDlg& dlg, HostModel& m) { dlg.m_pUnits = &m.doc.units; },
      [](CGenerateCylindricalFrameDlg& dlg, HostModel& m) {
        if (m.doc.display.modelLocked) {
          GetPrompter().Message(&dlg, "The Model is locked.\nThe cylindrical frame was not added.",
                                MessageIcon::Information);
          return false;
        }
        const auto result = geometry::AddCylindricalFrameToDocument(m.doc, ParametersOf(dlg));
        if (!result.ok()) {
          GetPrompter().Message(&dlg, result.error, MessageIcon::Error);
          return false;
        }
        m.status = Describe(result, m.doc);
        return !result.frame.nodes.empty();
      });
}
