#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "model/fm_section.h"

// A material. Held in the document's units: E, fc, fy and fys in its modulus unit,
// density in its weight-density unit, Tc per its temperature unit.
struct fmMat {
  // What a new record starts with for the design strengths, in psi; whoever creates a
  // record for a document converts them to the document's modulus unit.
  static constexpr double kDefaultFcPsi = 3000;
  static constexpr double kDefaultFyPsi = 60000;
  static constexpr double kDefaultFysPsi = 60000;

  int32_t id = -1;
  std::string label;
  double E = 0;                 // modulus of elasticity
  double nu = 0;                // Poisson ratio
  double density = 0;           // weight per volume
  double Tc = 0;                // coefficient of thermal expansion
  double fc = kDefaultFcPsi;    // concrete compressive strength f'c
  double fy = kDefaultFyPsi;    // concrete: flexural reinforcement yield; steel: Fy
  double fys = kDefaultFysPsi;  // concrete: shear reinforcement yield; steel: Fu

  fmMat() = default;
  explicit fmMat(int32_t id_) : id(id_) {}
  static const char* name() { return "fmMat"; }

  void SetLabel(std::string_view text) { label = tools::CutLabel(text, kRecordLabelChars); }
  bool operator==(const fmMat&) const = default;
};
