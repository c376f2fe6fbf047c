#pragma once
#include <array>
#include <string>
#include <vector>

#include "model/response_spectrum.h"

// How a model runs its response spectrum analysis: the spectrum of each excitation
// direction (by name, from the user's spectrum file), the modal combination, the damping
// ratio and the share of each direction. Kept in the model document.
struct fmResponseSpectrumSettings {
  bool enabled = false;                  // "Perform response spectrum analysis"
  std::array<std::string, 3> spectrum;   // X, Y, Z; empty when none was chosen
  std::string combination = "SRSS";      // "SRSS" or "ABSSUM"
  double dampingRatio = 0.05;            // of critical
  std::array<double, 3> factor = {1.0, 1.0, 0.0};  // X, Y, Z contributions
  bool operator==(const fmResponseSpectrumSettings&) const = default;
};

namespace model {

// The modal combinations, in drop-down order.
inline constexpr const char* kSpectrumCombinations[] = {"SRSS", "ABSSUM"};
// Index of a combination text (exact spelling), -1 for any other.
int SpectrumCombinationIndex(const std::string& text);

// What the analysis dialog's OK and the analysis itself refuse, in this order.
enum class SpectrumSettingsField { None, Spectrum, Combination, Damping, FactorX, FactorY, FactorZ, Factors };
struct SpectrumSettingsCheck {
  std::string message;  // empty when the settings can run
  SpectrumSettingsField field = SpectrumSettingsField::None;
  int direction = -1;   // for Spectrum: 0 X, 1 Y, 2 Z
  bool ok() const { return message.empty(); }
};
// A spectrum name that `spectra` does not hold is "Invalid spectrum is specified".
SpectrumSettingsCheck CheckSpectrumSettings(const fmResponseSpectrumSettings& settings,
                                            const std::vector<fmResponseSpectrum>& spectra);

}  // namespace model
