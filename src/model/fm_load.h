#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Load cases, load combinations and the load types that link them. Labels are UTF-8 and
// hold at most 127 characters; the constructors and SetName cut longer texts.

// A static load case: its number, label and load type text as the user chose it
// (normally one of the combined spellings of the load type table, or "Other").
struct fmLoadCase {
  int32_t number = -1;
  std::string name;
  std::string type;

  explicit fmLoadCase(int32_t number = -1, std::string_view name = {}, std::string_view type = {});
  void SetName(std::string_view label);
  void SetType(std::string_view text);
  bool operator==(const fmLoadCase&) const = default;
};

// One term of a combination: the case (by label, not by index) and its multiplier.
struct fmLoadCombItem {
  std::string caseName;
  double factor = 0;

  fmLoadCombItem() = default;
  fmLoadCombItem(std::string_view caseLabel, double multiplier);
  bool operator==(const fmLoadCombItem&) const = default;
};

struct fmLoadComb {
  std::string name;
  int32_t pdelta = 0;           // "Perform P-Delta Analysis on this Load Combination"
  int32_t steelDesign = 0;      // "Perform Steel Design using this Load Combination"
  int32_t totalDeflection = 0;  // "Check Total Load Deflection"
  int32_t liveDeflection = 0;   // "Check Live Load Deflection"
  int32_t concreteDesign = 0;   // "Perform Concrete Design using this Load Combination"
  double sustainedFactor = 0.0;  // never negative; Beta-d of concrete columns
  double spectrumFactor = 1.0;
  std::vector<fmLoadCombItem> items;

  explicit fmLoadComb(std::string_view label = "Default");
  void SetName(std::string_view label);
  bool operator==(const fmLoadComb&) const = default;
};

// The seven load types of the standard combinations, in the order of the factor columns
// of the code tables, and "Other" (index 7), which no standard combination picks up.
struct LoadType {
  const char* longName;  // "Dead"
  const char* letter;    // "D"
  const char* combined;  // "Dead-D", as the Type column shows it
};

inline constexpr int kLoadTypeCount = 7;
inline constexpr int kLoadTypeOther = 7;
// All eight entries of the Type drop-down, "Other" last.
const std::array<LoadType, kLoadTypeCount + 1>& LoadTypes();

// Whether a case's type text names the load type: any of its three spellings, without
// regard to case. "Other" matches none of the seven.
bool MatchesLoadType(std::string_view typeText, int loadType);
// Index 0 to 7 of the type text in the Type drop-down; 7 ("Other") for any text that
// names none of the seven load types.
int GetLoadCaseTypeIndex(std::string_view typeText);
// Index of the load case with that label (without regard to case), -1 when there is none.
int FindCaseIndex(const std::vector<fmLoadCase>& cases, std::string_view label);
