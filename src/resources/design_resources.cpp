// Strings and template of the effective length factor calculator.
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

const DialogTemplate* const kTemplates[] = {&kComputeK};

}  // namespace

extern const ResourceTable kDesignResources = {"design", kStrings, kTemplates};

}  // namespace res
