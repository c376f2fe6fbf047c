#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "model/response_spectrum.h"

// Design response spectra of the building codes, as the generator dialog and
// "norvane-cli spectrum generate" build them. Every curve is in g.
namespace model {

// Drop-down order; the first four keep their places, the newer codes follow.
enum SpectrumCode : int {
  kUbc97 = 0,
  kIbc2000 = 1,
  kAsce2005 = 2,
  kAsce2010 = 3,
  kAsce2016 = 4,
  kEurocode8 = 5,
};
inline constexpr int kSpectrumCodeCount = 6;
// "UBC 97", "IBC 2000", "ASCE 2005", "ASCE 2010", "ASCE 7-16", "Eurocode 8".
const char* SpectrumCodeName(int code);

struct SpectrumInput {
  int code = kAsce2010;
  // Ca and Cv for UBC 97; SDS and SD1 (in g) for IBC and ASCE.
  double value1 = 1.0;
  double value2 = 0.6;
  double tl = 8.0;  // long-period transition, seconds (ASCE)
  // Eurocode 8: spectrum type 1 or 2, ground type 'A' to 'E', reference peak ground
  // acceleration in g, importance factor and viscous damping in percent.
  int ec8Type = 1;
  char ground = 'C';
  double ag = 0.25;
  double importance = 1.0;
  double damping = 5.0;
};

// The input a refusal points at, so a dialog can focus it.
enum class SpectrumField { None, Code, Value1, Value2, Tl, Type, Ground, Ag, Importance, Damping };

struct SpectrumResult {
  std::string message;  // empty when the spectrum was built
  SpectrumField field = SpectrumField::None;
  fmResponseSpectrum spectrum;
  bool ok() const { return message.empty(); }
};

// Checks the input in the dialog's order and builds the named curve.
SpectrumResult GenerateResponseSpectrum(const SpectrumInput& input);

// Eurocode 8 ground parameters of one row of Table 3.2 (Type 1) or 3.3 (Type 2).
struct Ec8Ground {
  double s, tb, tc, td;
};
// Null for a type other than 1 or 2 or a ground other than 'A' to 'E' (either case).
const Ec8Ground* FindEc8Ground(int type, char ground);
// The damping correction factor eta = sqrt(10 / (5 + xi)), never below 0.55; xi in percent.
double Ec8DampingCorrection(double dampingPercent);

}  // namespace model
