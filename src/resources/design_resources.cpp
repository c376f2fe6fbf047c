// Strings and templates of the effective length factor calculator and the steel beam-column check.
#include "resources/design_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;

const StringEntry kStrings[] = {
    {kStrComputeKCaption, "Compute Effective Length Factor K"},
    {kStrBracedK, "Braced K:"},
    {kStrUnbracedK, "Unbraced K:"},
    {kStrColumnTop, "@ Column Top:"},
    {kStrColumnBottom, "@ Column Bottom:"},
    {kStrStiffnessRatios, "Relative stiffness ratios at the top and bottom joints of the column"},
    {kStrCompute, "Compute"},
    {kStrComputeKClose, "Close"},
    {kStrNoRoot, "No root"},
    {kStrChartBraced, "Braced frame"},
    {kStrChartUnbraced, "Unbraced frame"},
    {kStrChartNoRootBetween, "no root between"},
    {kStrChartUndefined, "f(K) is not defined when GA + GB = 0"},
    {kStrChartAxisK, "K"},
    {kStrChartAxisF, "f(K)"},
    {kStrChartPressCompute, "press Compute to solve"},
    {kStrChartAnd, "and"},
    {kStrSteelCheckCaption, "Steel Beam-Column Check"},
    {kStrSteelCode, "Code:"},
    {kStrSteelCodeAisc360, "ANSI/AISC 360-10 LRFD"},
    {kStrSteelSection, "Section:"},
    {kStrSteelAiscTable, "AISC Table..."},
    {kStrSteelFy, "Fy (ksi):"},
    {kStrSteelLength, "Length (ft):"},
    {kStrSteelLb, "Lb (ft):"},
    {kStrSteelCb, "Cb:"},
    {kStrSteelLux, "Lux (ft):"},
    {kStrSteelLuy, "Luy (ft):"},
    {kStrSteelLuz, "Luz (ft):"},
    {kStrSteelKx, "Kx:"},
    {kStrSteelKy, "Ky:"},
    {kStrSteelKz, "Kz:"},
    {kStrSteelConnector, "Connector Distance\n(for double angles only):"},
    {kStrSteelMagnify, "Consider Moment Magnification"},
    {kStrSteelDirect, "Use Direct Design Method"},
    {kStrSteelCompute, "Compute"},
    {kStrSteelShowProcedure, "Show Procedure"},
    {kStrSteelClose, "Close"},
};

// Inputs and results on the left, the picture of both equations beside them.
const DialogTemplate kComputeK = {
    kIddComputeK, kStrComputeKCaption, "Compute Effective Length Factor K",
    {
        {kCtlStiffnessGroup, K::Group, kStrStiffnessRatios, "Relative stiffness ratios", 0, 0, 1, 2},
        {kCtlColumnTopLabel, K::Static, kStrColumnTop, "@ Column Top:", 0, 0, 1, 1, kCtlStiffnessGroup},
        {kCtlGA, K::Edit, 0, "", 0, 1, 1, 1, kCtlStiffnessGroup},
        {kCtlColumnBottomLabel, K::Static, kStrColumnBottom, "@ Column Bottom:", 1, 0, 1, 1, kCtlStiffnessGroup},
        {kCtlGB, K::Edit, 0, "", 1, 1, 1, 1, kCtlStiffnessGroup},
        {kCtlBracedKLabel, K::Static, kStrBracedK, "Braced K:", 1, 0},
        {kCtlBracedK, K::Edit, 0, "", 1, 1, 1, 1, 0, kReadOnly | kAlignRight},
        {kCtlUnbracedKLabel, K::Static, kStrUnbracedK, "Unbraced K:", 2, 0},
        {kCtlUnbracedK, K::Edit, 0, "", 2, 1, 1, 1, 0, kReadOnly | kAlignRight},
        {kCtlKChart, K::Placeholder, 0, "", 0, 2, 4, 1, 0, kStretchCol},
        {0, K::Static, 0, "", 3, 0, 1, 2, 0, kStretchRow},
        {kCtlCompute, K::Button, kStrCompute, "Compute", kBar, 0},
        {IDCANCEL_, K::Button, kStrComputeKClose, "Close", kBar, 1},
    },
    900, 520};

// The member's data in three pairs of columns above the grid of load sets; the spare width goes
// to an empty column at the right.
const DialogTemplate kSteelBeamColumnCheck = {
    kIddSteelBeamColumnCheck, kStrSteelCheckCaption, "Steel Beam-Column Check",
    {
        {kCtlSteelCodeLabel, K::Static, kStrSteelCode, "Code:", 0, 0},
        {kCtlSteelCode, K::DropList, 0, "", 0, 1, 1, 3},
        {kCtlSteelSectionLabel, K::Static, kStrSteelSection, "Section:", 1, 0},
        {kCtlSteelSection, K::Edit, 0, "", 1, 1},
        {kCtlSteelAiscTable, K::Button, kStrSteelAiscTable, "AISC Table...", 1, 2, 1, 2},
        {kCtlSteelFyLabel, K::Static, kStrSteelFy, "Fy (ksi):", 1, 4},
        {kCtlSteelFy, K::Edit, 0, "", 1, 5, 1, 1, 0, kNarrow},
        {kCtlSteelLengthLabel, K::Static, kStrSteelLength, "Length (ft):", 2, 0},
        {kCtlSteelLength, K::Edit, 0, "", 2, 1, 1, 1, 0, kNarrow},
        {kCtlSteelLbLabel, K::Static, kStrSteelLb, "Lb (ft):", 2, 2},
        {kCtlSteelLb, K::Edit, 0, "", 2, 3, 1, 1, 0, kNarrow},
        {kCtlSteelCbLabel, K::Static, kStrSteelCb, "Cb:", 2, 4},
        {kCtlSteelCb, K::Edit, 0, "", 2, 5, 1, 1, 0, kNarrow},
        {kCtlSteelLuxLabel, K::Static, kStrSteelLux, "Lux (ft):", 3, 0},
        {kCtlSteelLux, K::Edit, 0, "", 3, 1, 1, 1, 0, kNarrow},
        {kCtlSteelLuyLabel, K::Static, kStrSteelLuy, "Luy (ft):", 3, 2},
        {kCtlSteelLuy, K::Edit, 0, "", 3, 3, 1, 1, 0, kNarrow},
        {kCtlSteelLuzLabel, K::Static, kStrSteelLuz, "Luz (ft):", 3, 4},
        {kCtlSteelLuz, K::Edit, 0, "", 3, 5, 1, 1, 0, kNarrow},
        {kCtlSteelKxLabel, K::Static, kStrSteelKx, "Kx:", 4, 0},
        {kCtlSteelKx, K::Edit, 0, "", 4, 1, 1, 1, 0, kNarrow},
        {kCtlSteelKyLabel, K::Static, kStrSteelKy, "Ky:", 4, 2},
        {kCtlSteelKy, K::Edit, 0, "", 4, 3, 1, 1, 0, kNarrow},
        {kCtlSteelKzLabel, K::Static, kStrSteelKz, "Kz:", 4, 4},
        {kCtlSteelKz, K::Edit, 0, "", 4, 5, 1, 1, 0, kNarrow},
        {kCtlSteelConnectorLabel, K::Static, kStrSteelConnector, "Connector Distance\n(for double angles only):", 5, 0},
        {kCtlSteelConnector, K::Edit, 0, "", 5, 1, 1, 1, 0, kNarrow},
        {kCtlSteelMagnify, K::Check, kStrSteelMagnify, "Consider Moment Magnification", 5, 2, 1, 2},
        {kCtlSteelDirect, K::Check, kStrSteelDirect, "Use Direct Design Method", 5, 4, 1, 2},
        {0, K::Static, 0, "", 0, 6, 1, 1, 0, kStretchCol},
        {kCtlSteelGridPlaceholder, K::Placeholder, 0, "", 6, 0, 1, 7, 0, kStretchRow},
        {IDOK_, K::Button, kStrSteelCompute, "Compute", kBar, 0, 1, 1, 0, kDefault},
        {kCtlSteelShowProcedure, K::Button, kStrSteelShowProcedure, "Show Procedure", kBar, 1},
        {IDCANCEL_, K::Button, kStrSteelClose, "Close", kBar, 2},
    },
    1100, 560};

const DialogTemplate* const kTemplates[] = {&kComputeK, &kSteelBeamColumnCheck};

}  // namespace

extern const ResourceTable kDesignResources = {"design", kStrings, kTemplates};

}  // namespace res
