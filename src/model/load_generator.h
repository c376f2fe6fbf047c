#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "model/fm_case_load.h"
#include "model/fm_element.h"
#include "model/fm_load.h"
#include "model/fm_node.h"

// What the moving-load and pattern-load generators share: the host's lists, the member path
// and its checks, the label prefixes and the copying of combinations. A run adds nothing
// until it has passed every check, so a refusal leaves the lists as they were.
namespace model {

class LoadGenerator {
 public:
  // Set by the host. Members and nodes are read; cases, case loads (one per case, in case
  // order) and combinations are appended to.
  const std::vector<fmBm>* m_pMembers = nullptr;
  const std::vector<fmNd>* m_pNodes = nullptr;
  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  std::vector<fmCaseLoad>* m_pCaseLoads = nullptr;
  std::vector<fmLoadComb>* m_pLoadCombs = nullptr;
  int m_nCase = -1;  // the case to generate from, index into the load cases

  // The refusal of the last Process (or check); empty when it was not refused.
  const std::string& Refusal() const { return refusal_; }
  // Every refusal of the last Run, in order (a bi-directional run may have one per direction).
  const std::vector<std::string>& Refusals() const { return refusals_; }

  // "Duplicate member id %d found" or "Member id %d not found" for the first bad entry; empty
  // when every entry is a member of the model, given once. `at` gets the bad entry's index.
  std::string CheckPath(const std::vector<int64_t>& ids, size_t* at = nullptr) const;
  // Whether each member of the path shares a node with the next one.
  bool IsConnected(const std::vector<uint32_t>& path) const;
  // The member with that number; null when there is none.
  const fmBm* FindMember(uint32_t id) const;
  // Distance between the member's end nodes; 0 when one of them is missing.
  double MemberLength(const fmBm& member) const;

 protected:
  // A combination to copy: its index and the item that names the generator's case.
  struct CombUse {
    size_t comb;
    size_t item;
    std::string prefix;
  };
  bool Refuse(std::string text);
  // Checks the case prefix ("%s too long" at 119 characters or more, "%s already exists"
  // when a case label begins with it) with the word for the messages ("Moving", "Pattern").
  bool CheckCasePrefix(const std::string& prefix, const char* word);
  // Forms the prefix of every combination with `makePrefix(number, label)`, checks them all
  // and returns those combinations that use the case with a non-zero factor.
  bool CollectCombinations(const std::function<std::string(int, const std::string&)>& makePrefix, const char* word,
                           std::vector<CombUse>& uses);
  // Appends the generated cases (suffixes to the case prefix), their loads, and the copies of
  // the used combinations (the same suffixes to their prefixes), all at once.
  void Commit(const std::string& casePrefix, const std::vector<std::string>& suffixes,
              std::vector<fmCaseLoad>& loads, const std::vector<CombUse>& uses);
  void EnsureCaseLoads();

  void ClearRefusals() {
    refusal_.clear();
    refusals_.clear();
  }

  std::string refusal_;
  std::vector<std::string> refusals_;
};

// Gives the case list as the drop-downs show it: "%d: %s" with 1-based numbers.
std::vector<std::string> CaseChoices(const std::vector<fmLoadCase>& cases);

}  // namespace model
