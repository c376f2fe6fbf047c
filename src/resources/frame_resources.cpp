// Strings every dialog shares; the frame's own dialogs are described as forms.
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrOk, "OK"},
    {kStrCancel, "Cancel"},
    {kStrClose, "Close"},
};

}  // namespace

extern const ResourceTable kFrameResources = {"frame", kStrings, {}};

}  // namespace res
