#include "dialogs/loads/load_combinations.h"

#include <algorithm>
#include <unordered_set>

#include "dialogs/loads/load_messages.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace loads {

CasesByLoadType GroupCasesByLoadType(const std::vector<fmLoadCase>& cases) {
  CasesByLoadType byType;
  for (size_t i = 0; i < cases.size(); ++i) byType[GetLoadCaseTypeIndex(cases[i].type)].push_back(i);
  return byType;
}

void GetCombItemByLoadType(std::vector<fmLoadCombItem>& items, double factor, int loadType,
                           const std::vector<fmLoadCase>& cases, const CasesByLoadType& byType) {
  if (loadType < 0 || loadType >= kLoadTypeCount) return;
  for (size_t i : byType[loadType]) items.emplace_back(cases[i].name, factor);
}

bool HasCombinationWithPrefix(const std::vector<fmLoadComb>& combs, std::string_view prefix) {
  return std::any_of(combs.begin(), combs.end(),
                     [&](const fmLoadComb& c) { return tools::LabelStartsWith(c.name, prefix); });
}

GenerateResult GenerateStandardCombinations(const std::vector<fmLoadCase>& cases, std::vector<fmLoadComb>& combs,
                                            const StdCombCode& code, const std::vector<int32_t>& checks,
                                            bool pdelta) {
  GenerateResult result;
  if (HasCombinationWithPrefix(combs, code.prefix)) {
    result.refused = true;
    result.message = code.refusal;
    return result;
  }
  const bool concrete = tools::LabelStartsWith(code.prefix, "ACI");
  const bool steel = tools::LabelStartsWith(code.prefix, "AISC");
  const CasesByLoadType byType = GroupCasesByLoadType(cases);

  std::vector<fmLoadComb> made;
  for (size_t r = 0; r < code.rows.size(); ++r) {
    if (r >= checks.size() || checks[r] == 0) continue;
    const StdComb& row = code.rows[r];
    fmLoadComb comb("Default");
    if (pdelta) comb.pdelta = 1;
    if (concrete) {
      comb.concreteDesign = 1;
      comb.sustainedFactor = row.factors[0];
      comb.spectrumFactor = 0.0;
    }
    if (steel) comb.steelDesign = 1;
    for (int t = 0; t < kLoadTypeCount; ++t)
      if (row.factors[t] != 0) GetCombItemByLoadType(comb.items, row.factors[t], t, cases, byType);
    if (comb.items.empty()) continue;
    comb.SetName(row.name);
    made.push_back(std::move(comb));
  }
  // Reserve first: once the room is there, moving the records in cannot fail half-way.
  combs.reserve(combs.size() + made.size());
  for (fmLoadComb& c : made) combs.push_back(std::move(c));
  result.added = made.size();
  return result;
}

bool EnsureDefaultCombination(std::vector<fmLoadComb>& combs, const std::vector<fmLoadCase>& cases) {
  if (!combs.empty()) return false;
  fmLoadComb comb("Default");
  comb.items.emplace_back(cases.empty() ? std::string_view("Default") : std::string_view(cases.front().name), 1.0);
  combs.push_back(std::move(comb));
  return true;
}

size_t AddUnitCaseCombinations(const std::vector<fmLoadCase>& cases, std::vector<fmLoadComb>& combs) {
  std::unordered_set<std::string> used;
  for (const fmLoadComb& c : combs) used.insert(tools::FoldCase(c.name));
  std::vector<fmLoadComb> made;
  for (const fmLoadCase& lc : cases) {
    fmLoadComb comb("Comb_" + lc.name);
    if (!used.insert(tools::FoldCase(comb.name)).second) continue;
    comb.items.emplace_back(lc.name, 1.0);
    made.push_back(std::move(comb));
  }
  combs.reserve(combs.size() + made.size());
  for (fmLoadComb& c : made) combs.push_back(std::move(c));
  return made.size();
}

bool IsCombinationLabelUsed(const std::vector<fmLoadComb>& combs, std::string_view label, int skipIndex) {
  for (size_t i = 0; i < combs.size(); ++i)
    if (static_cast<int>(i) != skipIndex && tools::LabelsEqual(combs[i].name, label)) return true;
  return false;
}

std::string ProposeCombinationLabel(const std::vector<fmLoadComb>& combs) {
  std::unordered_set<std::string> used;
  for (const fmLoadComb& c : combs) used.insert(tools::FoldCase(c.name));
  int n = 1;
  // A deliberate cap: with 1 to 1000 all taken, 1000 is proposed all the same.
  while (n < 1000 && used.count(tools::FoldCase(tools::Format("Combination_%d", n)))) ++n;
  return tools::Format("Combination_%d", n);
}

std::string CopyCombination(std::vector<fmLoadComb>& combs, size_t index) {
  if (index >= combs.size()) return {};
  fmLoadComb copy = combs[index];
  copy.SetName(combs[index].name + "_Copy");
  if (IsCombinationLabelUsed(combs, copy.name)) return kMsgCombLabelUsed;
  combs.push_back(std::move(copy));
  return {};
}

std::string DeleteCombinations(std::vector<fmLoadComb>& combs, std::vector<size_t> indexes) {
  std::sort(indexes.begin(), indexes.end());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  std::string refusal;
  std::vector<bool> drop(combs.size(), false);
  for (size_t i : indexes) {
    if (i >= combs.size()) continue;
    if (i == 0)
      refusal = kMsgFirstCombNotDeleted;
    else
      drop[i] = true;
  }
  size_t i = 0;
  std::erase_if(combs, [&](const fmLoadComb&) { return drop[i++]; });
  return refusal;
}

std::string SustainedLoadReminder(const std::vector<fmLoadComb>& combs) {
  const auto concrete = std::count_if(combs.begin(), combs.end(), [](const fmLoadComb& c) { return c.concreteDesign; });
  return concrete == 1 ? kMsgSustainedReminder : std::string();
}

std::vector<CombinationEdit::Row> CombinationEditorRows(const std::vector<fmLoadCase>& cases, const fmLoadComb& comb) {
  std::vector<CombinationEdit::Row> rows;
  rows.reserve(cases.size());
  for (const fmLoadCase& lc : cases) rows.push_back({lc.name, "0"});
  for (const fmLoadCombItem& item : comb.items) {
    const int at = FindCaseIndex(cases, item.caseName);
    if (at >= 0) rows[static_cast<size_t>(at)].factorText = tools::FormatG(item.factor);
  }
  return rows;
}

EditCheck SaveCombinationEdit(const CombinationEdit& edit, const std::vector<fmLoadComb>& combs, int index,
                              fmLoadComb& out) {
  EditCheck check;
  const std::string label = tools::CutLabel(tools::Trim(edit.label));
  if (const std::string why = tools::IsValidLabel(label); !why.empty()) {
    check.field = EditCheck::Field::Label;
    check.message = tools::Format(kFmtBadCombLabel, why.c_str());
    return check;
  }
  if (IsCombinationLabelUsed(combs, label, index)) {
    check.field = EditCheck::Field::Label;
    check.message = kMsgCombLabelUsed;
    return check;
  }
  if (edit.sustainedFactor < 0.0) {
    check.field = EditCheck::Field::SustainedFactor;
    check.message = kMsgSustainedNegative;
    return check;
  }
  fmLoadComb comb(label);
  comb.pdelta = edit.pdelta ? 1 : 0;
  comb.steelDesign = edit.steelDesign ? 1 : 0;
  comb.totalDeflection = edit.totalDeflection ? 1 : 0;
  comb.liveDeflection = edit.liveDeflection ? 1 : 0;
  comb.concreteDesign = edit.concreteDesign ? 1 : 0;
  comb.sustainedFactor = edit.sustainedFactor;
  comb.spectrumFactor = edit.spectrumFactor;
  for (const CombinationEdit::Row& row : edit.rows) {
    // A factor that does not read as a number counts as 0 and leaves the case out.
    const double factor = tools::ParseDouble(row.factorText).value_or(0.0);
    if (factor != 0.0) comb.items.emplace_back(row.caseLabel, factor);
  }
  out = std::move(comb);
  return check;
}

}  // namespace loads
