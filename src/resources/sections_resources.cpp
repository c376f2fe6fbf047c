// Strings the section, material and shape-database dialogs load while they run.
#include "resources/resources.h"
#include "resources/sections_ids.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrRegWidth, "Width"},
    {kStrRegDepth, "Depth"},
    {kStrRegDiameter, "Diameter"},
    {kStrRegFlangeWidth, "Flange Width"},
    {kStrRegFlangeThickness, "Flange Thickness"},
    {kStrRegWebThickness, "Web Thickness"},
    {kStrRegPictureHint, "Enter positive dimensions to see the shape to scale."},
    {kStrShapeAllTypes, "All types"},
    {kStrLumberBoards, "Boards"},
    {kStrLumberDimension, "Dimension lumber"},
    {kStrLumberTimbers, "Timbers"},
};

}  // namespace

extern const ResourceTable kSectionsResources = {"sections", kStrings, {}};

}  // namespace res
