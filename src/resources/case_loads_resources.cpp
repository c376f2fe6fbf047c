// Strings and templates of the applied-load grids and the load generators.
#include "resources/case_loads_ids.h"
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrNodalLoadCaption, "Nodal Loads"},
    {kStrPointLoadCaption, "Member Point Loads"},
    {kStrLineLoadCaption, "Member Line Loads"},
    {kStrShellLoadCaption, "Shell Surface Loads"},
    {kStrAreaLoadCaption, "Area Loads"},
    {kStrMemberThermalCaption, "Member Thermal Loads"},
    {kStrShell4ThermalCaption, "Shell4 Thermal Loads"},
    {kStrBrickThermalCaption, "Brick Thermal Loads"},
    {kStrNodalMassCaption, "Additional Nodal Masses"},
    {kStrCombMassCaption, "Combination Masses"},
    {kStrLoadDeleteRows, "Delete Rows"},
    {kStrAreaNote,
     "Nodes: the corners of the loaded area in order around it. Two-way: each edge member carries its "
     "tributary area; one-way: the members parallel to the first edge carry the load."},
    {kStrNodalMassNote, "Weight of the mass; a rotational mass as weight times length squared."},
    {kStrMovingLoadCaption, "Moving Load"},
    {kStrPatternLoadCaption, "Pattern Load"},
    {kStrMovingNote,
     "Note: Point loads of the moving load case will be moved on the members.  New loads, load cases and load "
     "combinations are generated appropriately."},
    {kStrPatternNote,
     "Note: Point and line loads of the pattern load case will be patterned on the members based on odd, even and "
     "adjacent spans.  New loads, load cases and load combinations are generated appropriately."},
    {kStrMovingCase, "Moving load case:"},
    {kStrPatternCase, "Pattern load case:"},
    {kStrMovingStep, "Moving step:"},
    {kStrPatternRatio, "Pattern ratio:"},
    {kStrBiDirectional, "Bi-Directional"},
    {kStrCutRows, "Cut Selected Rows"},
    {kStrCombMassNote,
     "The gravity loads of each load case listed, times its factor, become masses for dynamic analysis."},
};

// The data-grid layout with "Delete Rows", and a note under the grid where the table needs one.
DialogTemplate LoadData(int id, int captionId, const char* caption, int noteId = 0, const char* note = "") {
  DialogTemplate t{id,
                   captionId,
                   caption,
                   {
                       {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
                       {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
                       {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
                       {kCtlLoadDeleteRows, K::Button, kStrLoadDeleteRows, "Delete Rows", kSide, 2},
                       {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
                       {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
                       {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
                       {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
                   },
                   1020,
                   420};
  if (noteId) t.controls.push_back({kCtlLoadNote, K::Static, noteId, note, 1, 0, 1, 1, 0, kMultiline});
  return t;
}

const DialogTemplate kNodalLoadData = LoadData(kIddNodalLoadData, kStrNodalLoadCaption, "Nodal Loads");
const DialogTemplate kPointLoadData = LoadData(kIddPointLoadData, kStrPointLoadCaption, "Member Point Loads");
const DialogTemplate kLineLoadData = LoadData(kIddLineLoadData, kStrLineLoadCaption, "Member Line Loads");
const DialogTemplate kShellLoadData = LoadData(kIddShellLoadData, kStrShellLoadCaption, "Shell Surface Loads");
const DialogTemplate kAreaLoadData =
    LoadData(kIddAreaLoadData, kStrAreaLoadCaption, "Area Loads", kStrAreaNote, "Nodes: ...");
const DialogTemplate kMemberThermalData =
    LoadData(kIddMemberThermalLoadData, kStrMemberThermalCaption, "Member Thermal Loads");
const DialogTemplate kShell4ThermalData =
    LoadData(kIddShell4ThermalLoadData, kStrShell4ThermalCaption, "Shell4 Thermal Loads");
const DialogTemplate kBrickThermalData =
    LoadData(kIddBrickThermalLoadData, kStrBrickThermalCaption, "Brick Thermal Loads");
const DialogTemplate kNodalMassData =
    LoadData(kIddNodalMassData, kStrNodalMassCaption, "Additional Nodal Masses", kStrNodalMassNote, "Weight ...");
const DialogTemplate kCombMassData =
    LoadData(kIddCombMassData, kStrCombMassCaption, "Combination Masses", kStrCombMassNote, "The gravity ...");

// The generators: the note, the case, the step or ratio, the member path below them.
DialogTemplate Generator(int id, int captionId, const char* caption, int noteId, int caseId, int valueId,
                         bool moving) {
  DialogTemplate t{id,
                   captionId,
                   caption,
                   {
                       {kCtlGenNote, K::Static, noteId, "Note: ...", 0, 0, 1, 3, 0, kMultiline},
                       {kCtlGenCaseText, K::Static, caseId, "Load case:", 1, 0},
                       {kCtlGenCase, K::DropList, 0, "", 1, 1, 1, 2},
                       {kCtlGenValueText, K::Static, valueId, "Value:", 2, 0},
                       {kCtlGenValue, K::Edit, 0, "", 2, 1, 1, 1, 0, kNarrow},
                       {kCtlGridPlaceholder, K::Placeholder, 0, "", 4, 0, 1, 3, 0, kStretchRow | kStretchCol},
                       {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
                       {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
                       {kCtlGenCutRows, K::Button, kStrCutRows, "Cut Selected Rows", kSide, 2},
                       {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
                       {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
                       {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
                       {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
                   },
                   560,
                   480};
  // The third column takes the spare width, so the step's unit stands next to its edit.
  t.controls.push_back({kCtlGenValueUnit, K::Static, 0, moving ? "ft" : "", 2, 2, 1, 1, 0, kStretchCol});
  if (moving) {
    t.controls.push_back({kCtlGenBiDirectional, K::Check, kStrBiDirectional, "Bi-Directional", 3, 0, 1, 3});
  }
  return t;
}

const DialogTemplate kMovingLoad = Generator(kIddMovingLoad, kStrMovingLoadCaption, "Moving Load", kStrMovingNote,
                                             kStrMovingCase, kStrMovingStep, true);
const DialogTemplate kPatternLoad = Generator(kIddPatternLoad, kStrPatternLoadCaption, "Pattern Load",
                                              kStrPatternNote, kStrPatternCase, kStrPatternRatio, false);

const DialogTemplate* const kTemplates[] = {
    &kNodalLoadData,     &kPointLoadData,     &kLineLoadData,      &kShellLoadData, &kAreaLoadData,
    &kMemberThermalData, &kShell4ThermalData, &kBrickThermalData, &kNodalMassData, &kCombMassData, &kMovingLoad, &kPatternLoad,
};

}  // namespace

extern const ResourceTable kCaseLoadsResources = {"case loads", kStrings, kTemplates};

}  // namespace res
