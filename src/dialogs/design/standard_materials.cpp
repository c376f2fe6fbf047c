#include "dialogs/design/standard_materials.h"

#include <cmath>

#include "tools/format.h"

namespace stdmat {
namespace {

constexpr int kPsi = 69;       // lb/in^2
constexpr int kLbPerIn3 = 85;  // lb/in^3
constexpr int kFahrenheit = 103;

struct Steel {
  const char* label;
  double fy, fu;
};
constexpr Steel kSteels[kFirstConcrete] = {
    {"Steel", 36000, 58000},
    {"Steel-A36--Fy36", 36000, 58000},
    {"Steel-A53.Gr.B--Fy35", 35000, 60000},
    {"Steel-A500.Gr.B.42--Fy42", 42000, 58000},
    {"Steel-A500.Gr.B.46--Fy46", 46000, 58000},
    {"Steel-A572.Gr.50--Fy50", 50000, 65000},
    {"Steel-A992--Fy50", 50000, 65000},
};

}  // namespace

std::vector<fmMat> UsTable() {
  std::vector<fmMat> table(kCount);
  for (int i = 0; i < kCount; ++i) {
    fmMat& m = table[static_cast<size_t>(i)];
    m.nu = 0.15;
    m.density = 145.0 / (12 * 12 * 12);
    m.Tc = 5.5e-6;
    m.fc = 3000;
    m.fy = 60000;
    m.fys = 60000;
    if (i < kFirstConcrete) {
      m.label = kSteels[i].label;
      m.E = 29000000;
      m.nu = 0.3;
      m.density = 0.283;
      m.Tc = 6.5e-6;
      m.fy = kSteels[i].fy;
      m.fys = kSteels[i].fu;
    } else {
      // "Concrete fc = 3.0 ksi" up to 10.0 in steps of 0.5; E and fc are set on OK.
      m.label = tools::Format("Concrete fc = %.1f ksi", 3.0 + 0.5 * (i - kFirstConcrete));
    }
  }
  return table;
}

Factors FromUsFactors(const fmUnit& units) {
  fmUnit us = units;
  us.unit[fmUnit::Modulus] = kPsi;
  us.unit[fmUnit::WeightDensity] = kLbPerIn3;
  us.unit[fmUnit::Temperature] = kFahrenheit;
  double f[fmUnit::QuantityCount];
  GetConversionFactors(f, us, units);
  // A coefficient per degree grows as the degree does: the inverse of the temperature factor.
  return {f[fmUnit::Modulus], f[fmUnit::WeightDensity], 1.0 / f[fmUnit::Temperature]};
}

void ConvertToDocument(std::vector<fmMat>& table, const fmUnit& units) {
  const Factors k = FromUsFactors(units);
  for (fmMat& m : table) {
    m.E *= k.stress;
    m.fc *= k.stress;
    m.fy *= k.stress;
    m.fys *= k.stress;
    m.density *= k.density;
    m.Tc *= k.thermal;
  }
}

void Finish(fmMat& entry, int index, double unitDensity, const fmUnit& units) {
  entry.density = unitDensity;
  if (index < kFirstConcrete || index >= kCount) return;
  const Factors k = FromUsFactors(units);
  const double w = unitDensity / k.density * (12 * 12 * 12);  // lb/ft^3
  const double fcPsi = 500.0 * (index - 1);
  entry.E = 33 * std::pow(w, 1.5) * std::sqrt(3000.0 + 500.0 * (index - kFirstConcrete)) * k.stress;
  entry.SetLabel(tools::Format("Concrete%d", static_cast<int>(fcPsi / 100)));
  entry.fc = fcPsi * k.stress;
}

}  // namespace stdmat
