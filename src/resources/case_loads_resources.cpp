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
                   820,
                   420};
  if (noteId) t.controls.push_back({kCtlLoadNote, K::Static, noteId, note, 1, 0});
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

const DialogTemplate* const kTemplates[] = {
    &kNodalLoadData,     &kPointLoadData,     &kLineLoadData,      &kShellLoadData, &kAreaLoadData,
    &kMemberThermalData, &kShell4ThermalData, &kBrickThermalData, &kNodalMassData, &kCombMassData,
};

}  // namespace

extern const ResourceTable kCaseLoadsResources = {"case loads", kStrings, kTemplates};

}  // namespace res
