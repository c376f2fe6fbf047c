#pragma once
#include <string>
#include <vector>

#include "model/fm_load.h"

// The load case grid's save and delete rules and the copy-loads choice, without any window.
namespace loads {

struct LoadCaseRow {
  std::string label;
  std::string type;  // the text of the Type cell
};

struct LoadCaseCheck {
  int row = -1;          // 0-based row of the first refusal, -1 when accepted
  std::string message;   // empty when accepted
  bool ok() const { return message.empty(); }
};

// The grid's rows as the host's cases: every label must be a valid label and differ from
// the others (without regard to case); then one case per row, numbered -1, label and
// type cut to 127 characters. On a refusal out is left untouched.
LoadCaseCheck BuildLoadCases(const std::vector<LoadCaseRow>& rows, std::vector<fmLoadCase>& out);

// The refusal when the rows to delete include the first case, else empty.
std::string CheckDeleteLoadCases(const std::vector<int>& rows);

// The drop-down entries of the copy-loads dialog: "%d: %s", case number from 1.
std::vector<std::string> CopyCaseLoadChoices(const std::vector<fmLoadCase>& cases);
// The refusal of the copy-loads choice, checked in order: same case, then a zero factor.
std::string CheckCopyCaseLoad(int from, int to, double factor);

}  // namespace loads
