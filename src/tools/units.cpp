#include "tools/units.h"

#include <cmath>

namespace tools {
namespace {

// The four English pairs, then N, kN, MT and Kgf with mm, cm, m: the pattern of every
// sixteen-label group.
constexpr std::array<const char*, 16> kForceParts = {"lb", "lb", "kip", "kip", "N",  "N",  "N",  "kN",
                                                     "kN", "kN", "MT",  "MT",  "MT", "Kgf", "Kgf", "Kgf"};
constexpr std::array<const char*, 16> kLengthParts = {"in", "ft", "in", "ft", "mm", "cm", "m", "mm",
                                                      "cm", "m",  "mm", "cm", "m",  "mm", "cm", "m"};
// Index of each part in the Force and Length groups, for the computed factors.
constexpr std::array<int, 16> kForceIndex = {0, 0, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5};
constexpr std::array<int, 16> kLengthIndex = {0, 1, 0, 1, 2, 3, 4, 2, 3, 4, 2, 3, 4, 2, 3, 4};

constexpr std::array<double, 5> kLengthFactors = {1.0, 12.0, 0.03937007874015748, 0.39370078740157477,
                                                  39.37007874015748};
constexpr std::array<double, 5> kAreaFactors = {1.0, 144.0, 0.0015500031000062, 0.15500031000061998,
                                                1550.0031000062002};
constexpr std::array<double, 5> kVolumeFactors = {1.0, 1728.0, 6.1023744094732284e-05, 0.06102374409473227,
                                                  61023.74409473229};
constexpr std::array<double, 6> kForceFactors = {1.0, 1000.0, 0.22480892365533914, 224.80892365533916,
                                                 2204.622622, 2.204622431164631};
constexpr std::array<double, 16> kMomentFactors = {
    1.0, 12.0, 1000.0, 12000.0, 0.008850745025800754, 0.08850745025800753, 8.850745025800753,
    8.850745025800753, 88.50745025800754, 8850.745025800754, 86.79616622047243, 867.9616622047242,
    86796.16622047244, 0.08679615870726895, 0.8679615870726893, 86.79615870726894};
constexpr std::array<double, 16> kForcePerLengthFactors = {
    1.0, 0.08333333333333333, 1000.0, 83.33333333333333, 5.710146660845615, 0.5710146660845614,
    0.005710146660845614, 5710.146660845615, 571.0146660845616, 5.710146660845615, 55997.414598799995,
    5599.741459880001, 55.99741459879999, 55.997409751581635, 5.599740975158164, 0.05599740975158163};
// Deliberately dimensionally a force: the length in the denominator repeats the numerator's.
constexpr std::array<double, 16> kMomentPerLengthFactors = {
    1.0, 1.0, 1000.0, 1000.0, 0.22480892365533914, 0.22480892365533914, 0.22480892365533914,
    224.80892365533916, 224.80892365533916, 224.80892365533916, 2204.622622, 2204.622622, 2204.622622,
    2.204622431164631, 2.204622431164631, 2.204622431164631};
constexpr std::array<double, 16> kMomentPerDegreeFactors = {
    57.295779509999996, 687.54935412, 57295.77951, 687549.35412, 0.5071103354975093, 5.071103354975092,
    507.1103354975092, 507.1103354975092, 5071.103354975093, 507110.3354975092, 4973.054002081498,
    49730.54002081498, 4973054.0020814985, 4.973053571606648, 49.73053571606647, 4973.053571606648};

constexpr std::array<UnitGroup, kUnitGroupCount> kGroups = {{
    {"Length", 0, 5},
    {"Area", 5, 5},
    {"Volume", 10, 5},
    {"Force", 15, 6},
    {"Moment", 21, 16},
    {"Force per length", 37, 16},
    {"Moment per length", 53, 16},
    {"Force per area", 69, 16},
    {"Force per volume", 85, 16},
    {"Angle", 101, 2},
    {"Temperature", 103, 2},
    {"Moment per radian", 105, 16},
    {"Moment per degree", 121, 16},
}};

struct Tables {
  std::array<std::string, kUnitLabelCount> labels;
  std::array<double, kUnitLabelCount> factors{};
  Tables();
};

Tables::Tables() {
  int i = 0;
  auto put = [&](const std::string& label, double factor) {
    labels[i] = label;
    factors[i] = factor;
    ++i;
  };
  const char* lengths[] = {"in", "ft", "mm", "cm", "m"};
  for (int k = 0; k < 5; ++k) put(lengths[k], kLengthFactors[k]);
  for (int k = 0; k < 5; ++k) put(std::string(lengths[k]) + "^2", kAreaFactors[k]);
  for (int k = 0; k < 5; ++k) put(std::string(lengths[k]) + "^3", kVolumeFactors[k]);
  const char* forces[] = {"lb", "kip", "N", "kN", "MT", "Kgf"};
  for (int k = 0; k < 6; ++k) put(forces[k], kForceFactors[k]);
  auto moment = [](int k) { return std::string(kForceParts[k]) + "-" + kLengthParts[k]; };
  for (int k = 0; k < 16; ++k) put(moment(k), kMomentFactors[k]);
  for (int k = 0; k < 16; ++k)
    put(std::string(kForceParts[k]) + "/" + kLengthParts[k], kForcePerLengthFactors[k]);
  for (int k = 0; k < 16; ++k)
    put(moment(k) + "/" + kLengthParts[k], kMomentPerLengthFactors[k]);
  // Pressures and weight densities: the label's force over its length squared or cubed.
  for (int k = 0; k < 16; ++k) {
    const double len = kLengthFactors[kLengthIndex[k]];
    put(std::string(kForceParts[k]) + "/" + kLengthParts[k] + "^2",
        k == 0 ? 1.0 : kForceFactors[kForceIndex[k]] / (len * len));
  }
  for (int k = 0; k < 16; ++k) {
    const double len = kLengthFactors[kLengthIndex[k]];
    put(std::string(kForceParts[k]) + "/" + kLengthParts[k] + "^3",
        k == 0 ? 1.0 : kForceFactors[kForceIndex[k]] / (len * len * len));
  }
  put("rad", 1.0);
  put("deg", 0.017453292520882225);
  put("F", 1.0);
  put("C", 1.7999999999999998);
  for (int k = 0; k < 16; ++k) put(moment(k) + "/rad", kMomentFactors[k]);
  for (int k = 0; k < 16; ++k) put(moment(k) + "/deg", kMomentPerDegreeFactors[k]);
}

const Tables& GetTables() {
  static const Tables tables;
  return tables;
}

}  // namespace

const std::array<std::string, kUnitLabelCount>& UnitLabels() { return GetTables().labels; }
const std::array<double, kUnitLabelCount>& UnitFactors() { return GetTables().factors; }

const std::array<std::string, kPrecisionFormatCount>& PrecisionFormats() {
  static const std::array<std::string, kPrecisionFormatCount> formats = {
      "#.0",     "#.00",     "#.000",     "#.0000",     "#.00000",     "#.000000",
      "#.0E+00", "#.00E+00", "#.000E+00", "#.0000E+00", "#.00000E+00", "#.000000E+00"};
  return formats;
}

const std::array<UnitGroup, kUnitGroupCount>& UnitGroups() { return kGroups; }

int FindUnitLabel(std::string_view label) {
  const auto& labels = UnitLabels();
  for (int i = 0; i < kUnitLabelCount; ++i)
    if (labels[i] == label) return i;
  return -1;
}

int GroupOfUnit(int unitIndex) {
  for (int g = 0; g < kUnitGroupCount; ++g)
    if (unitIndex >= kGroups[g].first && unitIndex < kGroups[g].first + kGroups[g].count) return g;
  return -1;
}

double ConvertUnits(double value, int from, int to) {
  const auto& f = UnitFactors();
  return value * f[from] / f[to];
}

const std::array<ConversionType, 10>& ConversionTypes() {
  static constexpr std::array<ConversionType, 10> types = {{
      {"Length", 0, 5},
      {"Area", 5, 5},
      {"Volume", 10, 5},
      {"Force", 15, 6},
      {"Linear Force", 37, 16},
      {"Moment", 21, 16},
      {"Linear Moment", 53, 16},
      {"Pressure", 69, 16},
      {"Weight Density", 85, 16},
      {"Angle", 101, 2},
  }};
  return types;
}

}  // namespace tools
