// Strings and templates of the load case and load combination dialogs.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/loads_ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrLoadCasesCaption, "Load Cases"},
    {kStrCaseNote, "The optional load types are used in forming standard load combinations"},
    {kStrCaseDeleteRows, "Delete Rows"},
};

// The load case table: the grid with the data-grid buttons on the right and the note on
// load types below it.
const DialogTemplate kLoadCase = {
    kIddLoadCase, kStrLoadCasesCaption, "Load Cases",
    {
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlCaseNote, K::Static, kStrCaseNote, "The optional load types ...", 1, 0},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlCaseDeleteRows, K::Button, kStrCaseDeleteRows, "Delete Rows", kSide, 2},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    560, 380};

const DialogTemplate* const kTemplates[] = {&kLoadCase};

}  // namespace

extern const ResourceTable kLoadsResources = {"loads", kStrings, kTemplates};

}  // namespace res
