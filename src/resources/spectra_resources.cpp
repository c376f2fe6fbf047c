// Strings the response spectrum dialogs load while they run.
#include "resources/resources.h"
#include "resources/spectra_ids.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrSpecCa, "Ca:"},
    {kStrSpecCv, "Cv:"},
    {kStrSpecSds, "SDS:"},
    {kStrSpecSd1, "SD1:"},
    {kStrChartPeriod, "Period [sec]"},
    {kStrChartAcceleration, "Sa [g]"},
};

}  // namespace

extern const ResourceTable kSpectraResources = {"spectra", kStrings, {}};

}  // namespace res
