#include "apps/host/DialogBindings.h"
#include "dialogs/model/CBeamDataDlg.h"
#include "dialogs/model/CBrickDataDlg.h"
#include "dialogs/model/CNodeDataDlg.h"
#include "dialogs/model/CShell4DataDlg.h"
#include "tools/format.h"

namespace {

// The element grids also check nodes and materials.
void HandElements(CElementDataDlg& dlg, model::ModelDocument& doc) {
  dlg.m_pNodes = &doc.nodes;
  dlg.m_pMaterials = &doc.materials;
}

}  // namespace

void RegisterModelBindings() {
  BindDialog<CNodeDataDlg>(
      [](CNodeDataDlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m, true);
        dlg.m_pNodes = &m.doc.nodes;
      },
      [](CDialog&, HostModel& m) {
        // A renumbered node leaves its support behind; a support at no node
        // would make the saved model unreadable.
        const std::vector<uint32_t> removed = model::RemoveSupportsAtMissingNodes(m.doc);
        if (!removed.empty()) {
          std::string ids;
          for (size_t i = 0; i < removed.size() && i < 10; ++i) ids += tools::Format("%s%u", i ? ", " : "", removed[i]);
          if (removed.size() > 10) ids += ", ...";
          m.status = tools::Format("Removed %zu support%s at nodes no longer in the model (%s)", removed.size(),
                                   removed.size() == 1 ? "" : "s", ids.c_str());
        }
        if (const size_t others = model::RemoveBoundariesAtMissingObjects(m.doc); others > 0)
          m.status += tools::Format("%sRemoved or changed %zu spring, constraint, diaphragm or drift record%s naming "
                                    "nodes no longer in the model",
                                    m.status.empty() ? "" : "; ", others, others == 1 ? "" : "s");
        return true;
      });
  BindTable<CBeamDataDlg>([](CBeamDataDlg& dlg, model::ModelDocument& doc) {
    HandElements(dlg, doc);
    dlg.m_pSections = &doc.sections;
    dlg.m_pBeams = &doc.members;
  });
  BindTable<CShell4DataDlg>([](CShell4DataDlg& dlg, model::ModelDocument& doc) {
    HandElements(dlg, doc);
    dlg.m_pThicknesses = &doc.thicknesses;
    dlg.m_pShells = &doc.shells;
  });
  BindTable<CBrickDataDlg>([](CBrickDataDlg& dlg, model::ModelDocument& doc) {
    HandElements(dlg, doc);
    dlg.m_pBricks = &doc.bricks;
  });
}
