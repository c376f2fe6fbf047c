// Strings and templates of the geometry generators.
#include "resources/geometry_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;

const StringEntry kStrings[] = {
    {1228, "Angle:"},
    {1261, "Insertion Point Coordinates"},
    {1262, "Rotation"},
    {1263, "About:"},
    {1269, "Supports at bottom:"},
    {1560, "Generate members"},
    {1561, "Generate Cylindrical Frame"},
    {1562, "Radial distance list (e.g. 12, 3@20, 2@15):"},
    {1563, "Angle increment list with 0 as start angle (e.g. 3@45):"},
    {1564, "Y direction distance list (e.g. 12, 3@20, 2@15), may leave empty:"},
    {kStrGlobalX, "Global X"},
    {kStrGlobalX + 1, "Global Y"},
    {kStrGlobalX + 2, "Global Z"},
    {kStrNoSupports, "No Supports"},
    {kStrNoSupports + 1, "Pinned"},
    {kStrNoSupports + 2, "Fixed"},
    {kStrDegrees, "deg"},
    {kStrInsertX, "X:"},
    {kStrInsertX + 1, "Y:"},
    {kStrInsertX + 2, "Z:"},
};

// The three lists one above the other, each with its unit; the insertion point and the
// rotation side by side below them; supports and members last.
const DialogTemplate kGenerateCylindricalFrame = {
    kIddGenerateCylindricalFrame, kStrGenerateCylindricalFrame, "Generate Cylindrical Frame",
    {
        {kCtlRadialListLabel, K::Static, 1562, "Radial distance list:", 0, 0, 1, 3},
        {kCtlRadialList, K::Edit, 0, "", 1, 0, 1, 2},
        {kCtlRadialUnit, K::Static, 0, "", 1, 2},
        {kCtlAngleListLabel, K::Static, 1563, "Angle increment list:", 2, 0, 1, 3},
        {kCtlAngleList, K::Edit, 0, "", 3, 0, 1, 2},
        {kCtlAngleListUnit, K::Static, kStrDegrees, "deg", 3, 2},
        {kCtlAxialListLabel, K::Static, 1564, "Y direction distance list:", 4, 0, 1, 3},
        {kCtlAxialList, K::Edit, 0, "", 5, 0, 1, 2},
        {kCtlAxialUnit, K::Static, 0, "", 5, 2},

        {kCtlInsertionGroup, K::Group, 1261, "Insertion Point Coordinates", 6, 0},
        {kCtlInsertXLabel, K::Static, kStrInsertX, "X:", 0, 0, 1, 1, kCtlInsertionGroup},
        {kCtlInsertX, K::Edit, 0, "", 0, 1, 1, 1, kCtlInsertionGroup},
        {kCtlInsertXUnit, K::Static, 0, "", 0, 2, 1, 1, kCtlInsertionGroup},
        {kCtlInsertYLabel, K::Static, kStrInsertX + 1, "Y:", 1, 0, 1, 1, kCtlInsertionGroup},
        {kCtlInsertY, K::Edit, 0, "", 1, 1, 1, 1, kCtlInsertionGroup},
        {kCtlInsertYUnit, K::Static, 0, "", 1, 2, 1, 1, kCtlInsertionGroup},
        {kCtlInsertZLabel, K::Static, kStrInsertX + 2, "Z:", 2, 0, 1, 1, kCtlInsertionGroup},
        {kCtlInsertZ, K::Edit, 0, "", 2, 1, 1, 1, kCtlInsertionGroup},
        {kCtlInsertZUnit, K::Static, 0, "", 2, 2, 1, 1, kCtlInsertionGroup},

        {kCtlRotationGroup, K::Group, 1262, "Rotation", 6, 1, 1, 2},
        {kCtlAboutGroup, K::Group, 1263, "About:", 0, 0, 1, 3, kCtlRotationGroup},
        {kCtlRotationAxis, K::DropList, 0, "", 0, 0, 1, 1, kCtlAboutGroup, kStretchCol},
        {kCtlRotationAngleLabel, K::Static, 1228, "Angle:", 1, 0, 1, 1, kCtlRotationGroup},
        {kCtlRotationAngle, K::Edit, 0, "", 1, 1, 1, 1, kCtlRotationGroup},
        {kCtlRotationAngleUnit, K::Static, kStrDegrees, "deg", 1, 2, 1, 1, kCtlRotationGroup},

        {kCtlSupportsLabel, K::Static, 1269, "Supports at bottom:", 7, 0},
        {kCtlSupports, K::DropList, 0, "", 7, 1},
        {kCtlGenerateMembers, K::Check, 1560, "Generate members", 8, 0, 1, 3},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    480, 0};

const DialogTemplate* const kTemplates[] = {&kGenerateCylindricalFrame};

}  // namespace

extern const ResourceTable kGeometryResources = {"geometry", kStrings, kTemplates};

}  // namespace res
