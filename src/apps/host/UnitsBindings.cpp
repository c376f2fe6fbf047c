#include <QSettings>

#include "apps/host/DialogBindings.h"
#include "apps/host/HostSettings.h"
#include "dialogs/frame/Prompter.h"
#include "dialogs/units/CUnitsDlg.h"
#include "model/convert_units.h"
#include "tools/fm_exception.h"

void RegisterUnitsBindings() {
  BindDialog<CUnitsDlg>(
      [](CUnitsDlg& dlg, HostModel& m) {
        dlg.m_Units = m.doc.units;
        dlg.m_bModelLocked = m.doc.display.modelLocked;
      },
      [](CUnitsDlg& dlg, HostModel& m) {
        if (dlg.m_bSaveAsDefaults) {
          QSettings settings;
          StoreDefaultUnits(dlg.m_Units, settings);
        }
        const fmUnit before = m.doc.units;
        try {
          model::ChangeDocumentUnits(m.doc, dlg.m_Units);
        } catch (const fmException& e) {
          GetPrompter().Message(&dlg, e.what(), MessageIcon::Error);
          return false;
        }
        return !(m.doc.units == before);
      });
}
