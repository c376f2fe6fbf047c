#include "dialogs/loads/load_cases.h"

#include <unordered_set>

#include "dialogs/loads/load_messages.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace loads {

LoadCaseCheck BuildLoadCases(const std::vector<LoadCaseRow>& rows, std::vector<fmLoadCase>& out) {
  LoadCaseCheck check;
  std::vector<fmLoadCase> cases;
  cases.reserve(rows.size());
  std::unordered_set<std::string> seen;
  for (size_t r = 0; r < rows.size(); ++r) {
    // Stray blanks around a typed label are not part of it.
    const std::string label = tools::CutLabel(tools::Trim(rows[r].label));
    if (const std::string why = tools::IsValidLabel(label); !why.empty()) {
      check.row = static_cast<int>(r);
      check.message = tools::Format(kFmtBadCaseLabel, why.c_str());
      return check;
    }
    // Combinations find their cases by label, so two cases may not share one.
    if (!seen.insert(tools::FoldCase(label)).second) {
      check.row = static_cast<int>(r);
      check.message = tools::Format(kFmtDuplicateLabel, label.c_str());
      return check;
    }
    cases.emplace_back(-1, label, rows[r].type);
  }
  out = std::move(cases);
  return check;
}

std::string CheckDeleteLoadCases(const std::vector<int>& rows) {
  for (int r : rows)
    if (r == 0) return kMsgFirstCaseNotDeleted;
  return {};
}

std::vector<std::string> CopyCaseLoadChoices(const std::vector<fmLoadCase>& cases) {
  std::vector<std::string> items;
  items.reserve(cases.size());
  for (size_t i = 0; i < cases.size(); ++i)
    items.push_back(tools::Format("%d: %s", static_cast<int>(i + 1), cases[i].name.c_str()));
  return items;
}

std::string CheckCopyCaseLoad(int from, int to, double factor) {
  if (from == to) return kMsgCopySameCase;
  if (factor == 0.0) return kMsgCopyZeroFactor;
  return {};
}

}  // namespace loads
