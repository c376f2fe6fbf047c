// Strings and templates of the units dialog and the unit calculator.
#include "resources/ids.h"
#include "resources/resources.h"
#include "resources/units_ids.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {1486, "Units and Precisions"},
    {kStrUnitsQuantity + 0, "Length:"},
    {kStrUnitsQuantity + 1, "Dimension:"},
    {kStrUnitsQuantity + 2, "Force:"},
    {kStrUnitsQuantity + 3, "Linear force:"},
    {kStrUnitsQuantity + 4, "Moment:"},
    {kStrUnitsQuantity + 5, "Linear moment:"},
    {kStrUnitsQuantity + 6, "Surface force:"},
    {kStrUnitsQuantity + 7, "Displacement:"},
    {kStrUnitsQuantity + 8, "Rotation"},
    {kStrUnitsQuantity + 9, "Temperature:"},
    {kStrUnitsQuantity + 10, "Modulus (E, Fy, etc.):"},
    {kStrUnitsQuantity + 11, "Weight density:"},
    {kStrUnitsQuantity + 12, "Reinforcement. area:"},
    {kStrUnitsQuantity + 13, "Stress:"},
    {kStrUnitsQuantity + 14, "Node Kx, Ky, Kz:"},
    {kStrUnitsQuantity + 15, "Node Kox, Koy, Koz.:"},
    {kStrUnitsQuantity + 16, "Line Kx, Ky, Kz:"},
    {kStrUnitsQuantity + 17, "Area Kx, Ky, Kz:"},
    {kStrUnitsCheckAll, "Check All"},
    {kStrUnitsClearAll, "Clear All"},
    {kStrUnitsDefaultEnglish, "Default English"},
    {kStrUnitsDefaultMetric, "Default Metric"},
    {kStrUnitsConsistentEnglish, "Consistent English"},
    {kStrUnitsConsistentMetric, "Consistent Metric"},
    {kStrUnitsInstruction, "Check the box to the right of each unit to convert existing data associated with that unit."},
    {kStrUnitsSaveDefaults, "Save as defaults for future use"},
    {kStrUnitsHeadUnit, "Unit"},
    {kStrUnitsHeadPrecision, "Precision"},
    {kStrUnitsHeadConvert, "Convert"},
};

std::vector<Control> UnitsControls() {
  std::vector<Control> c = {
      {kCtlUnitsInstruction, K::Static, kStrUnitsInstruction, "Check the box ...", 0, 0, 1, 4},
      {kCtlUnitsHeadUnit, K::Static, kStrUnitsHeadUnit, "Unit", 1, 1},
      {kCtlUnitsHeadPrecision, K::Static, kStrUnitsHeadPrecision, "Precision", 1, 2},
      {kCtlUnitsHeadConvert, K::Static, kStrUnitsHeadConvert, "Convert", 1, 3},
  };
  for (int q = 0; q < 18; ++q) {
    c.push_back({kCtlUnitsLabel + q, K::Static, kStrUnitsQuantity + q, "", q + 2, 0});
    c.push_back({kCtlUnitsUnit + q, K::DropList, 0, "", q + 2, 1});
    c.push_back({kCtlUnitsPrecision + q, K::DropList, 0, "", q + 2, 2});
    c.push_back({kCtlUnitsConvert + q, K::Check, 0, "", q + 2, 3});
  }
  const Control tail[] = {
      {kCtlUnitsCheckAll, K::Button, kStrUnitsCheckAll, "Check All", kSide, 0},
      {kCtlUnitsClearAll, K::Button, kStrUnitsClearAll, "Clear All", kSide, 1},
      {kCtlUnitsDefaultEnglish, K::Button, kStrUnitsDefaultEnglish, "Default English", kSide, 2},
      {kCtlUnitsDefaultMetric, K::Button, kStrUnitsDefaultMetric, "Default Metric", kSide, 3},
      {kCtlUnitsConsistentEnglish, K::Button, kStrUnitsConsistentEnglish, "Consistent English", kSide, 4},
      {kCtlUnitsConsistentMetric, K::Button, kStrUnitsConsistentMetric, "Consistent Metric", kSide, 5},
      {kCtlUnitsSaveDefaults, K::Check, kStrUnitsSaveDefaults, "Save as defaults for future use", 20, 0, 1, 4},
      {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
      {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
  };
  c.insert(c.end(), std::begin(tail), std::end(tail));
  return c;
}

const DialogTemplate kUnits = {kIddUnits, 1486, "Units and Precisions", UnitsControls()};

const DialogTemplate* const kTemplates[] = {&kUnits};

}  // namespace

extern const ResourceTable kUnitsResources = {"units", kStrings, kTemplates};

}  // namespace res
