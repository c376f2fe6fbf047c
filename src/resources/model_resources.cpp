// Strings the node grid loads while it runs.
#include "resources/model_ids.h"
#include "resources/resources.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrRoundOffTip,
     "Rounds every coordinate in the table to the number of decimals that Epsilon implies\n"
     "(Epsilon = 0.001 keeps three decimals; 1 or more rounds to whole numbers)."},
};

}  // namespace

extern const ResourceTable kModelResources = {"model", kStrings, {}};

}  // namespace res
