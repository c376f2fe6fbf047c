#pragma once
#include "model/load_generator.h"

namespace model {

// Turns one load case on a chain of spans into the checkerboard patterns of continuous-beam
// design: odd spans, even spans, and each pair of adjacent spans with alternate spans beyond.
class PatternLoadGenerator : public LoadGenerator {
 public:
  double m_dRatio = 1.0;  // multiplies the loads of the loaded spans

  // Preselects the first case of type Live ("Live", "L" or "Live-L"), else case 0, when
  // m_nCase is -1 and there are cases.
  void PreselectCase();
  // Path and connection checks, then Process; `ask` answers the connection question.
  bool Run(const std::vector<int64_t>& ids, const std::function<bool(const std::string&)>& ask);
  bool Process(const std::vector<uint32_t>& path);
  // The loads of one pattern: point and line loads of the loaded spans times `ratio`, none on
  // the other spans of the path, everything else as the case has it.
  static void ProcessPattern(fmCaseLoad& outCaseLoad, const fmCaseLoad& caseLoad, const std::vector<uint32_t>& path,
                             double ratio, const std::vector<uint32_t>& loadedMembers);
  // Spans (1-based) that pattern suffix loads: "Odd", "Even", "S1" ... for n spans; sorted.
  static std::vector<std::pair<std::string, std::vector<int>>> Patterns(int n);

  static constexpr const char* kConnectionQuestion =
      "The members you have selected are not connected in sequence, load patterns may not be appropriate.\n"
      "Do you want to continue?";
};

}  // namespace model
