#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/loads/std_comb_tables.h"
#include "model/fm_load.h"

// What the combination dialogs do to the host's lists, without any window: standard
// combinations from a code table, unit cases, copy, delete, the proposed label and the
// editor's save rules. Each operation reports what happened; the dialog shows it.
namespace loads {

// The cases of each load type in case order; index 7 gathers "Other" and unknown texts.
using CasesByLoadType = std::array<std::vector<size_t>, kLoadTypeCount + 1>;
CasesByLoadType GroupCasesByLoadType(const std::vector<fmLoadCase>& cases);

// Appends one item per case of the load type, in case order, all with the factor.
void GetCombItemByLoadType(std::vector<fmLoadCombItem>& items, double factor, int loadType,
                           const std::vector<fmLoadCase>& cases, const CasesByLoadType& byType);

struct GenerateResult {
  bool refused = false;  // combinations of the code exist; message says so
  std::string message;
  size_t added = 0;
};

// True when a combination's label begins with the prefix, without regard to case.
bool HasCombinationWithPrefix(const std::vector<fmLoadComb>& combs, std::string_view prefix);

// One combination per checked row that finds cases of its load types, named after the
// row and appended in table order; rows that find no case are left out. Refused, with
// nothing appended, when a combination labelled with the code's prefix exists. checks
// holds one flag per row (missing flags count as unchecked). All or nothing: on an
// exception the list is as it was.
GenerateResult GenerateStandardCombinations(const std::vector<fmLoadCase>& cases, std::vector<fmLoadComb>& combs,
                                            const StdCombCode& code, const std::vector<int32_t>& checks,
                                            bool pdelta);

// When the list is empty, the combination "Default" holding the first load case (or the
// case "Default" when there is none) with factor 1.0; returns whether it was added.
bool EnsureDefaultCombination(std::vector<fmLoadComb>& combs, const std::vector<fmLoadCase>& cases);

// "Comb_<case label>" with that case at factor 1.0 for every case, in case order, except
// where a combination of that label exists. Returns how many were added.
size_t AddUnitCaseCombinations(const std::vector<fmLoadCase>& cases, std::vector<fmLoadComb>& combs);

// "Combination_N" with the smallest N from 1 that no combination uses; N stops at 1000.
std::string ProposeCombinationLabel(const std::vector<fmLoadComb>& combs);

// Whether any combination other than the one at skipIndex has the label (without regard to case).
bool IsCombinationLabelUsed(const std::vector<fmLoadComb>& combs, std::string_view label, int skipIndex = -1);

// Appends a copy of combination index labelled "<label>_Copy"; the refusal text when that
// label is used (nothing added), else empty.
std::string CopyCombination(std::vector<fmLoadComb>& combs, size_t index);

// Deletes the combinations at the given indexes in one step, except the first, which
// stays. Returns the refusal text when the first was among them (the others still go).
std::string DeleteCombinations(std::vector<fmLoadComb>& combs, std::vector<size_t> indexes);

// The reminder to make a sustained-load combination, shown after Add or Modify when
// exactly one combination is flagged for concrete design; empty otherwise.
std::string SustainedLoadReminder(const std::vector<fmLoadComb>& combs);

// The combination editor's state as its controls hold it.
struct CombinationEdit {
  std::string label;
  int32_t pdelta = 0, steelDesign = 0, totalDeflection = 0, liveDeflection = 0, concreteDesign = 0;
  double sustainedFactor = 0, spectrumFactor = 1;
  struct Row {
    std::string caseLabel;
    std::string factorText;
  };
  std::vector<Row> rows;  // one per load case, in case order
};

// The editor's grid: one row per case with factor "0", then the factors ("%g") of the
// combination's items whose case exists. Items of deleted cases are not shown.
std::vector<CombinationEdit::Row> CombinationEditorRows(const std::vector<fmLoadCase>& cases, const fmLoadComb& comb);

struct EditCheck {
  enum class Field { None, Label, SustainedFactor };
  Field field = Field::None;
  std::string message;  // empty when the edit was accepted
  bool ok() const { return message.empty(); }
};

// Checks the edit in the editor's order (label, label unique, sustained factor) and on
// success writes it into out: label cut to 127 characters, flags, factors and one item per
// row whose factor reads as a non-zero number, in row order. index is the edited
// combination's place in combs, -1 for a new one.
EditCheck SaveCombinationEdit(const CombinationEdit& edit, const std::vector<fmLoadComb>& combs, int index,
                              fmLoadComb& out);

}  // namespace loads
