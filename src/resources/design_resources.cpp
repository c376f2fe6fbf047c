// Strings of the effective length factor calculator (its chart and messages).
#include "resources/design_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrBracedK, "Braced K:"},
    {kStrUnbracedK, "Unbraced K:"},
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

}  // namespace

extern const ResourceTable kDesignResources = {"design", kStrings, {}};

}  // namespace res
