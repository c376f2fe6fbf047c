#pragma once
#include <vector>

#include "model/fm_material.h"
#include "tools/fm_unit.h"

// The 22 predefined materials offered by "Std Material...": seven structural steels and
// fifteen concretes.
namespace stdmat {

inline constexpr int kCount = 22;
inline constexpr int kFirstConcrete = 7;

// The table in its US base units: psi, lb/in^3, 1/F.
std::vector<fmMat> UsTable();

// The size of one psi, one lb/in^3 and one 1/F in the document's modulus, weight-density
// and (inverse) temperature units.
struct Factors {
  double stress, density, thermal;
};
Factors FromUsFactors(const fmUnit& units);

// Every entry converted to the document's units (nu unchanged).
void ConvertToDocument(std::vector<fmMat>& table, const fmUnit& units);

// What OK does to the chosen entry (document units): every entry takes the edited unit
// density; a concrete also gets f'c, its modulus 33 w^1.5 sqrt(f'c) and the label
// "Concrete%d" (f'c / 100).
void Finish(fmMat& entry, int index, double unitDensity, const fmUnit& units);

}  // namespace stdmat
