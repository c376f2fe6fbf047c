#include "tools/fm_unit.h"

#include "tools/units.h"

namespace {

using Units = std::array<int32_t, fmUnit::QuantityCount>;

// Presets: engineers' everyday units (kip, ft, in; kN, m, mm) and the consistent sets
// a solver-minded user picks (everything in kip and in, or kN and m).
constexpr Units kEnglishUnits = {1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88};
constexpr Units kMetricUnits = {4, 2, 18, 46, 30, 62, 78, 2, 101, 104, 73, 94, 7, 73, 46, 114, 78, 94};
constexpr Units kConsistentEnglishUnits = {0, 0, 16, 39, 23, 55, 71, 0, 101, 103,
                                           71, 87, 5,  71, 39, 107, 71, 87};
constexpr Units kConsistentMetricUnits = {4, 4, 18, 46, 30, 62, 78, 4, 101, 104,
                                          78, 94, 9, 78, 46, 114, 78, 94};
// Three decimals for most quantities, four for displacements, exponential for rotations.
constexpr Units kDefaultPrecision = {2, 2, 2, 2, 2, 2, 2, 3, 8, 1, 1, 2, 2, 2, 2, 2, 2, 2};

}  // namespace

void fmUnit::SetEnglish() {
  unit = kEnglishUnits;
  precision = kDefaultPrecision;
}
void fmUnit::SetMetric() {
  unit = kMetricUnits;
  precision = kDefaultPrecision;
}
void fmUnit::SetConsistentEnglish() {
  unit = kConsistentEnglishUnits;
  precision = kDefaultPrecision;
}
void fmUnit::SetConsistentMetric() {
  unit = kConsistentMetricUnits;
  precision = kDefaultPrecision;
}

const std::string& fmUnit::Label(Quantity q) const { return tools::UnitLabels()[unit[q]]; }

std::string fmUnit::Heading(const std::string& name, Quantity q) const { return name + " [" + Label(q) + "]"; }

double fmUnit::Factor(Quantity q) const { return tools::UnitFactors()[unit[q]]; }

const std::array<QuantityInfo, fmUnit::QuantityCount>& UnitQuantities() {
  static constexpr std::array<QuantityInfo, fmUnit::QuantityCount> q = {{
      {"Length:", 0, 5},
      {"Dimension:", 0, 5},
      {"Force:", 15, 6},
      {"Linear force:", 37, 16},
      {"Moment:", 21, 16},
      {"Linear moment:", 53, 16},
      {"Surface force:", 69, 16},
      {"Displacement:", 0, 5},
      {"Rotation", 101, 2},
      {"Temperature:", 103, 2},
      {"Modulus (E, Fy, etc.):", 69, 16},
      {"Weight density:", 85, 16},
      {"Reinforcement. area:", 5, 5},
      {"Stress:", 69, 16},
      {"Node Kx, Ky, Kz:", 37, 16},
      {"Node Kox, Koy, Koz.:", 105, 32},
      {"Line Kx, Ky, Kz:", 69, 16},
      {"Area Kx, Ky, Kz:", 85, 16},
  }};
  return q;
}

void GetConversionFactors(double* factors, const fmUnit& from, const fmUnit& to) {
  const auto& f = tools::UnitFactors();
  for (int q = 0; q < fmUnit::QuantityCount; ++q) factors[q] = f[from.unit[q]] / f[to.unit[q]];
}
