#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "model/fm_struct.h"

// What the envelope dialogs show, without widgets: which load cases and combinations take
// part in envelopes, and the envelope of one force along one member.
namespace results {

// One line per load case, then per combination ("%d: %s", numbered as the results list
// them), checked when its label is in `chosen` (without regard to case).
struct EnvelopeChoice {
  std::string text;
  std::string label;
  bool checked = false;
};
std::vector<EnvelopeChoice> EnvelopeChoices(const std::vector<fmLoadCase>& cases, const std::vector<fmLoadComb>& combs,
                                            const std::vector<std::string>& chosen);
// The labels of the checked lines, in list order.
std::vector<std::string> ChosenLabels(const std::vector<EnvelopeChoice>& choices);

// The six forces a member envelope covers, as the member reports head them.
const std::vector<std::string>& MemberForceNames();

// The envelope of force `force` (0 to 5) along member `member`, over the model's envelope
// list, in display units: per station the distance from the start node (length unit), the
// largest and smallest value and the 0-based entry that gives each (-1 for none).
struct EnvelopeCurve {
  int32_t member = 0;
  std::string forceName;  // "Mz (Major Moment)"
  fmUnit::Quantity quantity = fmUnit::Force;
  std::string valueUnit, lengthUnit;
  std::vector<double> distance, max, min;
  std::vector<int32_t> maxCase, minCase;
  bool empty() const { return distance.empty(); }
};
// Members that have stations in some load case or combination of the envelope list, in the
// order the envelope lists them.
std::vector<int32_t> EnvelopeMembers(const CfmStruct& model);
EnvelopeCurve MemberEnvelopeCurve(const CfmStruct& model, int32_t member, int force);
// What the diagram says of a station under the mouse: "max Mz (Major Moment) = 19.800
// [kip-ft] at 12.000 [ft], Comb# 3: D+W"; empty outside the curve.
std::string GoverningText(const CfmStruct& model, const EnvelopeCurve& curve, size_t station, bool max);

}  // namespace results
