#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tools {

inline constexpr int kUnitLabelCount = 137;
inline constexpr int kPrecisionFormatCount = 12;

// The master list of unit labels; a unit is its index here everywhere.
const std::array<std::string, kUnitLabelCount>& UnitLabels();
// Size of each unit in its group's first unit (in, in^2, lb, lb-in, ...).
const std::array<double, kUnitLabelCount>& UnitFactors();
// The twelve number-format patterns offered for every quantity.
const std::array<std::string, kPrecisionFormatCount>& PrecisionFormats();

struct UnitGroup {
  const char* name;
  int first;
  int count;
};

// The thirteen groups of the master list, in list order.
enum UnitGroupId {
  kLengthGroup, kAreaGroup, kVolumeGroup, kForceGroup, kMomentGroup, kForcePerLengthGroup,
  kMomentPerLengthGroup, kForcePerAreaGroup, kForcePerVolumeGroup, kAngleGroup,
  kTemperatureGroup, kMomentPerRadianGroup, kMomentPerDegreeGroup, kUnitGroupCount
};
const std::array<UnitGroup, kUnitGroupCount>& UnitGroups();

// Index of a label in the master list (exact spelling), or -1.
int FindUnitLabel(std::string_view label);
// The group that holds a unit index, or -1.
int GroupOfUnit(int unitIndex);

// v in unit `from` expressed in unit `to` (both master-list indices of one group).
double ConvertUnits(double value, int from, int to);

// The calculator's unit types: name and the group they convert within.
struct ConversionType {
  const char* name;
  int first;
  int count;
};
const std::array<ConversionType, 10>& ConversionTypes();

}  // namespace tools
