// Strings of the spreadsheet grid, shared by every table dialog.
#include "resources/grid_ids.h"
#include "resources/resources.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrPrint, "Print..."},
    {kStrNewRows, "New Rows"},
    {kStrSave, "Save..."},
    {kStrFillCopy, "Copy this value to the selected cells"},
    {kStrFillSeries, "Fill the selected cells as a series"},
};

}  // namespace

extern const ResourceTable kGridResources = {"grid", kStrings, {}};

}  // namespace res
