#include "apps/host/DialogBindings.h"
#include "dialogs/model/CBeamDataDlg.h"
#include "dialogs/model/CBrickDataDlg.h"
#include "dialogs/model/CNodeDataDlg.h"
#include "dialogs/model/CShell4DataDlg.h"
#include "tools/format.h"

namespace {

// Every data grid gets the same units, flags and colour from the host.
void PrepareGrid(CDataGridDlg& dlg, HostModel& m) {
  dlg.m_pUnits = &m.doc.units;
  dlg.m_bShowSelectedOnly = m.doc.display.showSelectedOnly;
  dlg.m_bModelLocked = m.doc.display.modelLocked;
  dlg.m_crAlternateRowColor = m.doc.display.alternateRowColor;
}

// The element grids also check nodes and materials.
void PrepareElementGrid(CElementDataDlg& dlg, HostModel& m) {
  PrepareGrid(dlg, m);
  dlg.m_pNodes = &m.doc.nodes;
  dlg.m_pMaterials = &m.doc.materials;
}

// Grid dialogs write into the host's vectors themselves on OK.
bool WroteThrough(CDialog&, HostModel&) { return true; }

}  // namespace

void RegisterModelBindings() {
  BindDialog<CNodeDataDlg>(
      [](CNodeDataDlg& dlg, HostModel& m) {
        PrepareGrid(dlg, m);
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
  BindDialog<CBeamDataDlg>(
      [](CBeamDataDlg& dlg, HostModel& m) {
        PrepareElementGrid(dlg, m);
        dlg.m_pSections = &m.doc.sections;
        dlg.m_pBeams = &m.doc.members;
      },
      WroteThrough);
  BindDialog<CShell4DataDlg>(
      [](CShell4DataDlg& dlg, HostModel& m) {
        PrepareElementGrid(dlg, m);
        dlg.m_pThicknesses = &m.doc.thicknesses;
        dlg.m_pShells = &m.doc.shells;
      },
      WroteThrough);
  BindDialog<CBrickDataDlg>(
      [](CBrickDataDlg& dlg, HostModel& m) {
        PrepareElementGrid(dlg, m);
        dlg.m_pBricks = &m.doc.bricks;
      },
      WroteThrough);
}
