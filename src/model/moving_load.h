#pragma once
#include "model/load_generator.h"

namespace model {

// Turns one load case into a series of cases in which its point loads stand at successive
// positions along a chain of members, with copies of every combination that uses the case.
class MovingLoadGenerator : public LoadGenerator {
 public:
  // The whole run of the dialog's OK: step, path and connection checks, then one or two
  // directions. `ask` answers the connection question (true: continue). Returns whether
  // anything was generated; Refusal() holds the refusal, if any (with bi-directional
  // moving, a refusal of "Dir2" keeps what "Dir1" added).
  bool Run(const std::vector<int64_t>& ids, double step, bool biDirectional,
           const std::function<bool(const std::string&)>& ask);

  // Generates the cases and combinations for one direction ("Dir1" or "Dir2") with the
  // absolute step; returns whether anything was generated.
  bool Process(const std::vector<uint32_t>& path, double step, const std::string& direction);
  // The loads of one position: the case's loads with its point loads on the path moved by
  // `distance`; returns whether any moved load is still on the path.
  bool ProcessMoving(fmCaseLoad& outCaseLoad, const fmCaseLoad& caseLoad, const std::vector<uint32_t>& path,
                     const std::vector<bool>& forward, const std::vector<double>& lengths, double distance) const;
  // Moves one load by `distance` along the path; false when it runs off the end.
  static bool MoveLoad(fmPtLoad& ptLoad, const std::vector<uint32_t>& path, const std::vector<bool>& forward,
                       const std::vector<double>& lengths, double distance);
  // The same from path index k, where the load's member stands. With `start` (the length of
  // the path before each member, and the whole length last) a long way is found by halving
  // instead of member by member.
  static bool MoveLoadFrom(fmPtLoad& ptLoad, size_t k, const std::vector<uint32_t>& path,
                           const std::vector<bool>& forward, const std::vector<double>& lengths, double distance,
                           const std::vector<double>* start = nullptr);
  // What every position of one run shares: the case's loads off the path, the loads on it
  // with their place in the path (in path order), and where each path member starts.
  struct Prepared {
    fmCaseLoad offPath;
    std::vector<std::pair<size_t, fmPtLoad>> onPath;
    std::vector<double> start;
  };
  static Prepared Prepare(const fmCaseLoad& caseLoad, const std::vector<uint32_t>& path,
                          const std::vector<double>& lengths);
  static bool ProcessMoving(fmCaseLoad& outCaseLoad, const Prepared& prepared, const std::vector<uint32_t>& path,
                            const std::vector<bool>& forward, const std::vector<double>& lengths, double distance);
  // Travel flags of the path members (see the .cpp).
  std::vector<bool> ForwardFlags(const std::vector<uint32_t>& path, const std::string& direction) const;

  static constexpr const char* kConnectionQuestion =
      "The members you have selected are not connected in sequence, moving loads may not be appropriate.\n"
      "Do you want to continue?";
};

}  // namespace model
