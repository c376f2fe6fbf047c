#include "dialogs/Library.h"

#include "dialogs/frame/DialogRegistry.h"
#include "resources/resources.h"
#include "tools/units.h"

// Each family registers its dialog classes; add a family's function here.
void RegisterFrameDialogs();
void RegisterUnitsDialogs();
void RegisterModelDialogs();
void RegisterBoundaryDialogs();
void RegisterLoadsDialogs();
void RegisterConcreteDesignDialogs();
void RegisterGeometryDialogs();
void RegisterGridDialogs();
void RegisterSectionsDialogs();
void RegisterResultsDialogs();
void RegisterSpectraDialogs();
void RegisterCaseLoadsDialogs();

namespace {
int g_users = 0;
}

bool NorvaneDlgsStartup() {
  if (g_users++ > 0) return true;
  for (const res::ResourceTable* table : res::LibraryResourceTables()) res::LinkResourceTable(*table, false);
  tools::UnitFactors();  // build the unit tables now rather than inside the first dialog
  RegisterFrameDialogs();
  RegisterUnitsDialogs();
  RegisterModelDialogs();
  RegisterBoundaryDialogs();
  RegisterLoadsDialogs();
  RegisterConcreteDesignDialogs();
  RegisterGeometryDialogs();
  RegisterGridDialogs();
  RegisterSectionsDialogs();
  RegisterResultsDialogs();
  RegisterSpectraDialogs();
  RegisterCaseLoadsDialogs();
  return true;
}

void NorvaneDlgsShutdown() {
  if (g_users == 0 || --g_users > 0) return;
  ClearDialogClasses();
  for (const res::ResourceTable* table : res::LibraryResourceTables()) res::UnlinkResourceTable(*table);
}
