#include "dialogs/results/envelope_tools.h"

#include <cmath>

#include "dialogs/results/display_format.h"
#include "dialogs/results/report_context.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace results {

std::vector<EnvelopeChoice> EnvelopeChoices(const std::vector<fmLoadCase>& cases, const std::vector<fmLoadComb>& combs,
                                            const std::vector<std::string>& chosen) {
  std::vector<EnvelopeChoice> out;
  auto add = [&](const std::string& label) {
    bool checked = false;
    for (const std::string& name : chosen) checked = checked || tools::LabelsEqual(name, label);
    out.push_back({tools::Format("%d: %s", static_cast<int>(out.size() + 1), label.c_str()), label, checked});
  };
  for (const fmLoadCase& c : cases) add(c.name);
  for (const fmLoadComb& c : combs) add(c.name);
  return out;
}

std::vector<std::string> ChosenLabels(const std::vector<EnvelopeChoice>& choices) {
  std::vector<std::string> labels;
  for (const EnvelopeChoice& c : choices)
    if (c.checked) labels.push_back(c.label);
  return labels;
}

const std::vector<std::string>& MemberForceNames() {
  static const std::vector<std::string> names = {"Fx (Axial)",   "Fy (Major Shear)",  "Fz (Minor Shear)",
                                                 "Mx (Torsion)", "My (Minor Moment)", "Mz (Major Moment)"};
  return names;
}

std::vector<int32_t> EnvelopeMembers(const CfmStruct& model) {
  std::vector<fmEnvelopeBmVMD> envelope;
  model.CalcBeamEnvelopVMD(envelope, EnvelopeLoadCombs(model));
  std::vector<int32_t> members;
  for (const fmEnvelopeBmVMD& e : envelope) members.push_back(e.number);
  return members;
}

EnvelopeCurve MemberEnvelopeCurve(const CfmStruct& model, int32_t member, int force) {
  EnvelopeCurve curve;
  curve.member = member;
  if (force < 0 || force > 5) return curve;
  const fmUnit::Quantity q = force < 3 ? fmUnit::Force : fmUnit::Moment;
  curve.quantity = q;
  curve.forceName = MemberForceNames()[static_cast<size_t>(force)];
  curve.valueUnit = model.m_Units.Label(q);
  curve.lengthUnit = model.m_Units.Label(fmUnit::Length);
  std::vector<fmEnvelopeBmVMD> envelope;
  model.CalcBeamEnvelopVMD(envelope, EnvelopeLoadCombs(model));
  const double factor = model.ResultFactor(q), length = model.ResultFactor(fmUnit::Length);
  const auto f = static_cast<size_t>(force);
  for (const fmEnvelopeBmVMD& e : envelope) {
    if (e.number != member) continue;
    for (size_t k = 0; k < e.station.size(); ++k) {
      curve.distance.push_back(e.distance[k] * length);
      curve.max.push_back(e.station[k].max[f] * factor);
      curve.min.push_back(e.station[k].min[f] * factor);
      curve.maxCase.push_back(e.station[k].maxCase[f]);
      curve.minCase.push_back(e.station[k].minCase[f]);
    }
    break;
  }
  return curve;
}

std::string GoverningText(const CfmStruct& model, const EnvelopeCurve& curve, size_t station, bool max) {
  if (station >= curve.distance.size()) return {};
  const double value = max ? curve.max[station] : curve.min[station];
  const int32_t entry = max ? curve.maxCase[station] : curve.minCase[station];
  const fmUnit::Quantity q = curve.quantity;
  std::string text = tools::Format("%s %s = %s [%s] at %.3f [%s]", max ? "max" : "min", curve.forceName.c_str(),
                                   FormatDisplay(value, model.DisplayFormat(q)).c_str(), curve.valueUnit.c_str(),
                                   curve.distance[station], curve.lengthUnit.c_str());
  if (entry >= 0) text += tools::Format(", Comb# %d: %s", entry + 1, model.GetCaseName(entry).c_str());
  return text;
}

}  // namespace results
