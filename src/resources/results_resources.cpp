// Strings and the template of the results dialog.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"
#include "resources/results_ids.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;

const StringEntry kStrings[] = {
    {kStrResultsCaption, "Results"},
    {kStrResultsComboLabel, "Load Combination:"},
    {kStrResultsShowSelected, "Show selected only"},
    {kStrResultsClose, "Close"},
    {kStrResultsModeLabel, "Mode Shape:"},
};

// The choice of case and the selection switch above the grid; print, save and close below.
const DialogTemplate kResults = {
    kIddResults, kStrResultsCaption, "Results",
    {
        {kCtlResultsComboLabel, K::Static, kStrResultsComboLabel, "Load Combination:", 0, 0},
        {kCtlResultsCombo, K::DropList, 0, "", 0, 1},
        {kCtlResultsShowSelected, K::Check, kStrResultsShowSelected, "Show selected only", 0, 2},
        {0, K::Static, 0, "", 0, 3, 1, 1, 0, kStretchCol},
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 1, 0, 1, 4, 0, kStretchRow},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kBar, 0},
        {kCtlSave, K::Button, kStrSave, "Save...", kBar, 1},
        {IDCANCEL_, K::Button, kStrResultsClose, "Close", kBar, 2},
    },
    860, 520};

const DialogTemplate* const kTemplates[] = {&kResults};

}  // namespace

extern const ResourceTable kResultsResources = {"results", kStrings, kTemplates};

}  // namespace res
