// Strings and templates of the node and element grids.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/model_ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrNodeDataCaption, "Node Data"},
    {kStrRoundOff, "Round-off Coordinates"},
    {kStrRoundOffTip,
     "Rounds every coordinate in the table to the number of decimals that Epsilon implies\n"
     "(Epsilon = 0.001 keeps three decimals; 1 or more rounds to whole numbers)."},
    {kStrBeamDataCaption, "Member Data"},
    {kStrShell4DataCaption, "Shell4 Data"},
    {kStrBrickDataCaption, "Brick Data"},
};

// The data-grid layout: the grid, a column of buttons on the right, OK and Cancel below.
const DialogTemplate kNodeData = {
    kIddNodeData, kStrNodeDataCaption, "Nodes",
    {
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlRoundOff, K::Button, kStrRoundOff, "Round-off Coordinates", kSide, 2},
        {kCtlEpsilon, K::Static, 0, "Epsilon = 1e-10", kSide, 3},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 4},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 5},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    640, 420};

// The element grids: the same layout without the node grid's round-off.
DialogTemplate ElementData(int id, int captionId, const char* caption) {
  return {id,
          captionId,
          caption,
          {
              {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
              {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
              {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
              {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 2},
              {kCtlSave, K::Button, kStrSave, "Save...", kSide, 3},
              {IDOK_, K::Button, kStrOk, "OK", kBar, 0},
              {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
          },
          1020,
          460};
}

const DialogTemplate kBeamData = ElementData(kIddBeamData, kStrBeamDataCaption, "Members");
const DialogTemplate kShell4Data = ElementData(kIddShell4Data, kStrShell4DataCaption, "Shell4s");
const DialogTemplate kBrickData = ElementData(kIddBrickData, kStrBrickDataCaption, "Bricks");

const DialogTemplate* const kTemplates[] = {&kNodeData, &kBeamData, &kShell4Data, &kBrickData};

}  // namespace

extern const ResourceTable kModelResources = {"model", kStrings, kTemplates};

}  // namespace res
