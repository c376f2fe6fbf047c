#pragma once
#include <array>
#include <cstdint>
#include <string>

// The unit settings: for each of eighteen quantities, the unit (index into the master
// label list), the precision (index into the precision formats) and the convert flag.
struct fmUnit {
  enum Quantity {
    Length, Dimension, Force, LinearForce, Moment, LinearMoment, SurfaceForce, Displacement, Rotation,
    Temperature, Modulus, WeightDensity, ReinforcementArea, Stress, NodeSpring, NodeRotationalSpring,
    LineSpring, AreaSpring, QuantityCount
  };

  std::array<int32_t, QuantityCount> unit{};
  std::array<int32_t, QuantityCount> precision{};
  std::array<int32_t, QuantityCount> convert{};

  fmUnit() { SetEnglish(); }

  void SetEnglish();
  void SetMetric();
  void SetConsistentEnglish();
  void SetConsistentMetric();

  // The label of a quantity's current unit, e.g. "ft".
  const std::string& Label(Quantity q) const;
  // Column heading with its unit: "X" -> "X [ft]".
  std::string Heading(const std::string& name, Quantity q) const;
  // Size of the quantity's current unit in its group's first unit.
  double Factor(Quantity q) const;

  bool operator==(const fmUnit&) const = default;
};

struct QuantityInfo {
  const char* label;  // as the units dialog shows it
  int first;          // the group's first index: list position = unit - first
  int count;          // entries offered in the drop-down
};
const std::array<QuantityInfo, fmUnit::QuantityCount>& UnitQuantities();

// factors[q] converts quantity q from the units of `from` to those of `to`.
void GetConversionFactors(double* factors, const fmUnit& from, const fmUnit& to);
