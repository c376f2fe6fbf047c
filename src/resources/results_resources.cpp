// Strings the results dialog loads while it runs.
#include "resources/resources.h"
#include "resources/results_ids.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrResultsModeLabel, "Mode Shape:"},
};

}  // namespace

extern const ResourceTable kResultsResources = {"results", kStrings, {}};

}  // namespace res
