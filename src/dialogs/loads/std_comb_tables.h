#pragma once
#include <span>
#include <string>

#include "model/fm_load.h"

// The standard load combinations of the design codes, one table per code in the order of
// the "Design code:" drop-down. The check list and the generator both read them here.
namespace loads {

// One combination of a code: the name the generated combination receives and a factor
// per load type (D, L, Lr, S, W, E, R); 0 leaves the type out, a negative factor
// reverses the load.
struct StdComb {
  const char* name;
  double factors[kLoadTypeCount];
};

struct StdCombCode {
  const char* title;    // as the drop-down lists it, "IBC-2015 LRFD"
  const char* prefix;   // existing combinations with this prefix block a second run
  const char* refusal;  // the message of that refusal
  std::span<const StdComb> rows;
};

inline constexpr const char* kRefuseStandard =
    "Please rename or delete the existing standard load combinations before running this command.";
inline constexpr const char* kRefuseAci1999 =
    "Please rename or delete the existing standard ACI 1999 load combinations before running this command.";
inline constexpr const char* kRefuseAiscLrfd93 =
    "Please rename or delete the existing standard AISC-LRFD93 load combinations before running this command.";
inline constexpr const char* kRefuseAiscAsd89 =
    "Please rename or delete the existing standard AISC-ASD89 load combinations before running this command.";

std::span<const StdCombCode> StandardCombinationCodes();
// The code at that drop-down index (0 to 7), or null.
const StdCombCode* FindStandardCombinationCode(int index);

// The check-list line of a row: "IBC-2015_Eq16-3g:  1.2D + 1.6Lr - 0.5W".
std::string StdCombLine(const StdComb& row);

}  // namespace loads
