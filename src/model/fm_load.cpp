#include "model/fm_load.h"

#include "tools/labels.h"

fmLoadCase::fmLoadCase(int32_t n, std::string_view label, std::string_view typeText)
    : number(n), name(tools::CutLabel(label)), type(tools::CutLabel(typeText)) {}

void fmLoadCase::SetName(std::string_view label) { name = tools::CutLabel(label); }
void fmLoadCase::SetType(std::string_view text) { type = tools::CutLabel(text); }

fmLoadCombItem::fmLoadCombItem(std::string_view caseLabel, double multiplier)
    : caseName(tools::CutLabel(caseLabel)), factor(multiplier) {}

fmLoadComb::fmLoadComb(std::string_view label) : name(tools::CutLabel(label)) {}

void fmLoadComb::SetName(std::string_view label) { name = tools::CutLabel(label); }

const std::array<LoadType, kLoadTypeCount + 1>& LoadTypes() {
  static const std::array<LoadType, kLoadTypeCount + 1> types = {{
      {"Dead", "D", "Dead-D"},
      {"Live", "L", "Live-L"},
      {"RoofLive", "Lr", "RoofLive-Lr"},
      {"Snow", "S", "Snow-S"},
      {"Wind", "W", "Wind-W"},
      {"Earthquake", "E", "Earthquake-E"},
      {"Rain", "R", "Rain-R"},
      {"Other", "", "Other"},
  }};
  return types;
}

bool MatchesLoadType(std::string_view typeText, int loadType) {
  if (loadType < 0 || loadType >= kLoadTypeCount) return false;
  const LoadType& t = LoadTypes()[loadType];
  return tools::LabelsEqual(typeText, t.longName) || tools::LabelsEqual(typeText, t.letter) ||
         tools::LabelsEqual(typeText, t.combined);
}

int GetLoadCaseTypeIndex(std::string_view typeText) {
  for (int i = 0; i < kLoadTypeCount; ++i)
    if (MatchesLoadType(typeText, i)) return i;
  return kLoadTypeOther;
}

int FindCaseIndex(const std::vector<fmLoadCase>& cases, std::string_view label) {
  for (size_t i = 0; i < cases.size(); ++i)
    if (tools::LabelsEqual(cases[i].name, label)) return static_cast<int>(i);
  return -1;
}
