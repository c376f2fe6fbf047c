#include "model/response_spectrum_settings.h"

#include "tools/labels.h"

namespace model {

int SpectrumCombinationIndex(const std::string& text) {
  for (int i = 0; i < 2; ++i)
    if (text == kSpectrumCombinations[i]) return i;
  return -1;
}

SpectrumSettingsCheck CheckSpectrumSettings(const fmResponseSpectrumSettings& s,
                                            const std::vector<fmResponseSpectrum>& spectra) {
  using F = SpectrumSettingsField;
  SpectrumSettingsCheck check;
  auto refuse = [&check](F field, const char* text, int direction = -1) {
    check.field = field;
    check.message = text;
    check.direction = direction;
    return check;
  };
  for (int d = 0; d < 3; ++d) {
    bool known = false;
    for (const fmResponseSpectrum& sp : spectra) known = known || tools::LabelsEqual(sp.name, s.spectrum[d]);
    if (s.spectrum[d].empty() || !known) return refuse(F::Spectrum, "Invalid spectrum is specified", d);
  }
  if (SpectrumCombinationIndex(s.combination) < 0)
    return refuse(F::Combination, "Invalid spectrum combination method is specified");
  if (!(s.dampingRatio >= 0.0 && s.dampingRatio < 1.0))
    return refuse(F::Damping, "Critical damping ratio must be in the range of [0.0, 1.0)");
  static const char* const kFactorTexts[3] = {"Direction-X contribution factor must be in the range of [0.0, 1.0]",
                                              "Direction-Y contribution factor must be in the range of [0.0, 1.0]",
                                              "Direction-Z contribution factor must be in the range of [0.0, 1.0]"};
  for (int d = 0; d < 3; ++d)
    if (!(s.factor[d] >= 0.0 && s.factor[d] <= 1.0)) return refuse(static_cast<F>(static_cast<int>(F::FactorX) + d), kFactorTexts[d]);
  if (s.factor[0] == 0.0 && s.factor[1] == 0.0 && s.factor[2] == 0.0)
    return refuse(F::Factors, "Directional contribution factors cannot be all zeros.");
  return check;
}

}  // namespace model
