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
    {kStrRegularCaption, "Regular Section"},
    {kStrAiscCaption, "AISC Steel Shapes"},
    {kStrNdsCaption, "NDS Sawn Lumber"},
    {kStrMaterialCaption, "Material"},
    {kStrMaterialRcCaption, "Concrete Material Strengths"},
    {kStrMaterialSteelCaption, "Steel Material Strengths"},
    {kStrStandardCaption, "Standard Material"},
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
    {kStrStdMaterialLabel, "Material:"},
    {kStrStdDensityLabel, "Unit density:"},
    {kStrStdOk, "Ok"},
    {kStrRegTypeLabel, "Section Type:"},
    {kStrRegTypeNames + 0, "Rectangle"},
    {kStrRegTypeNames + 1, "Round"},
    {kStrRegTypeNames + 2, "Wide Flange"},
    {kStrRegTypeNames + 3, "Tee"},
    {kStrRegWidth, "Width"},
    {kStrRegDepth, "Depth"},
    {kStrRegDiameter, "Diameter"},
    {kStrRegFlangeWidth, "Flange Width"},
    {kStrRegFlangeThickness, "Flange Thickness"},
    {kStrRegWebThickness, "Web Thickness"},
    {kStrRegPictureHint, "Enter positive dimensions to see the shape to scale."},
    {kStrShapeTypeLabel, "Shape type:"},
    {kStrShapeFindLabel, "Find:"},
    {kStrShapeProperties, "Property\tValue\tUnit"},
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

const DialogTemplate kRegular = {
    kIddRegularSection, kStrRegularCaption, "Regular Section",
    {
        {kCtlRegTypeLabel, K::Static, kStrRegTypeLabel, "Section Type:", 0, 0},
        {kCtlRegType, K::DropList, 0, "", 0, 1},
        {kCtlRegCaption1 + 0, K::Static, 0, "Width", 1, 0},
        {kCtlRegDim1 + 0, K::Edit, 0, "", 1, 1},
        {kCtlRegCaption1 + 1, K::Static, 0, "Depth", 2, 0},
        {kCtlRegDim1 + 1, K::Edit, 0, "", 2, 1},
        {kCtlRegCaption1 + 2, K::Static, 0, "Flange Thickness", 3, 0},
        {kCtlRegDim1 + 2, K::Edit, 0, "", 3, 1},
        {kCtlRegCaption1 + 3, K::Static, 0, "Web Thickness", 4, 0},
        {kCtlRegDim1 + 3, K::Edit, 0, "", 4, 1},
        {kCtlRegUnit, K::Static, 0, "in", 5, 1},
        {kCtlRegPicture, K::Placeholder, 0, "", 0, 2, 7, 1, 0, kStretchCol},
        {0, K::Static, 0, "", 6, 0, 1, 2, 0, kStretchRow},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    560, 300};

// The shape browsers: type filter and search above the list of labels, the chosen shape's
// properties and its outline beside it.
DialogTemplate BrowserTemplate(int id, int caption, const char* text) {
  return {id, caption, text,
          {
              {kCtlShapeTypeLabel, K::Static, kStrShapeTypeLabel, "Shape type:", 0, 0},
              {kCtlShapeType, K::DropList, 0, "", 0, 1},
              {kCtlShapeFindLabel, K::Static, kStrShapeFindLabel, "Find:", 1, 0},
              {kCtlShapeFind, K::Edit, 0, "", 1, 1},
              {kCtlShapeList, K::List, 0, "", 2, 0, 1, 2, 0, kStretchRow},
              {kCtlShapeCount, K::Static, 0, "", 3, 0, 1, 2},
              {kCtlShapeProperties, K::ReportList, kStrShapeProperties, "Property\tValue\tUnit", 0, 2, 4, 1, 0,
               kStretchCol},
              {kCtlShapePicture, K::Placeholder, 0, "", 0, 3, 4, 1},
              {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
              {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
          },
          860, 480};
}
const DialogTemplate kAisc = BrowserTemplate(kIddAiscData, kStrAiscCaption, "AISC Steel Shapes");
const DialogTemplate kNds = BrowserTemplate(kIddNdsData, kStrNdsCaption, "NDS Sawn Lumber");

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

const DialogTemplate kStandard = {
    kIddStandardMaterial, kStrStandardCaption, "Standard Material",
    {
        {kCtlStdMaterialLabel, K::Static, kStrStdMaterialLabel, "Material:", 0, 0},
        {kCtlStdMaterial, K::DropList, 0, "", 0, 1, 1, 2},
        {kCtlStdDensityLabel, K::Static, kStrStdDensityLabel, "Unit density:", 1, 0},
        {kCtlStdDensity, K::Edit, 0, "", 1, 1},
        {kCtlStdDensityUnit, K::Static, 0, "lb/ft^3", 1, 2},
        {IDOK_, K::Button, kStrStdOk, "Ok", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    360, 0};

const DialogTemplate* const kTemplates[] = {&kSection,    &kThick,       &kRegular,       &kAisc,    &kNds,
                                            &kMaterial,   &kMaterialRc,  &kMaterialSteel, &kStandard};

}  // namespace

extern const ResourceTable kSectionsResources = {"sections", kStrings, kTemplates};

}  // namespace res
