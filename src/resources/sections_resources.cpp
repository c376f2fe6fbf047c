// Strings and templates of the section, thickness, material and shape-database dialogs.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"
#include "resources/sections_ids.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrSectionCaption, "Member Sections"},
    {kStrThickCaption, "Shell Thickness"},
    {kStrMaterialCaption, "Material"},
    {kStrMaterialRcCaption, "Concrete Material Strengths"},
    {kStrMaterialSteelCaption, "Steel Material Strengths"},
    {kStrSecRegular, "Regular Section..."},
    {kStrSecAisc, "AISC Table..."},
    {kStrSecNds, "NDS Table..."},
    {kStrSecRigidLink, "Rigid Link"},
    {kStrSecExportAisc, "Export AISC Table..."},
    {kStrSecImportAisc, "Import AISC Table..."},
    {kStrSecAssign, "Assign active section to currently selected members"},
    {kStrApply, "Apply"},
    {kStrMatStandard, "Std Material..."},
    {kStrMatAssign, "Assign active material to currently selected elements"},
    {kStrRegWidth, "Width"},
    {kStrRegDepth, "Depth"},
    {kStrRegDiameter, "Diameter"},
    {kStrRegFlangeWidth, "Flange Width"},
    {kStrRegFlangeThickness, "Flange Thickness"},
    {kStrRegWebThickness, "Web Thickness"},
    {kStrRegPictureHint, "Enter positive dimensions to see the shape to scale."},
    {kStrShapeAllTypes, "All types"},
    {kStrLumberBoards, "Boards"},
    {kStrLumberDimension, "Dimension lumber"},
    {kStrLumberTimbers, "Timbers"},
};

const DialogTemplate kSection = {
    kIddSection, kStrSectionCaption, "Member Sections",
    {
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlSecAssign, K::Check, kStrSecAssign, "Assign active section to currently selected members", 1, 0},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlSecRegular, K::Button, kStrSecRegular, "Regular Section...", kSide, 2},
        {kCtlSecAisc, K::Button, kStrSecAisc, "AISC Table...", kSide, 3},
        {kCtlSecNds, K::Button, kStrSecNds, "NDS Table...", kSide, 4},
        {kCtlSecRigidLink, K::Button, kStrSecRigidLink, "Rigid Link", kSide, 5},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 6},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 7},
        {kCtlSecExportAisc, K::Button, kStrSecExportAisc, "Export AISC Table...", kSide, 8},
        {kCtlSecImportAisc, K::Button, kStrSecImportAisc, "Import AISC Table...", kSide, 9},
        {IDOK_, K::Button, kStrApply, "Apply", kBar, 0},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    900, 460};

const DialogTemplate kThick = {
    kIddThick, kStrThickCaption, "Shell Thickness",
    {
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 2},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 3},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    480, 360};

const DialogTemplate kMaterial = {
    kIddMaterial, kStrMaterialCaption, "Material",
    {
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlMatAssign, K::Check, kStrMatAssign, "Assign active material to currently selected elements", 1, 0},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlMatStandard, K::Button, kStrMatStandard, "Std Material...", kSide, 2},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
        {IDOK_, K::Button, kStrApply, "Apply", kBar, 0},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    760, 400};

DialogTemplate StrengthTemplate(int id, int caption, const char* text) {
  return {id, caption, text,
          {
              {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
              {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 0},
              {kCtlSave, K::Button, kStrSave, "Save...", kSide, 1},
              {IDOK_, K::Button, kStrOk, "OK", kBar, 0},
              {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
          },
          600, 360};
}
const DialogTemplate kMaterialRc =
    StrengthTemplate(kIddMaterialRc, kStrMaterialRcCaption, "Concrete Material Strengths");
const DialogTemplate kMaterialSteel =
    StrengthTemplate(kIddMaterialSteel, kStrMaterialSteelCaption, "Steel Material Strengths");

const DialogTemplate* const kTemplates[] = {&kSection, &kThick, &kMaterial, &kMaterialRc, &kMaterialSteel};

}  // namespace

extern const ResourceTable kSectionsResources = {"sections", kStrings, kTemplates};

}  // namespace res
