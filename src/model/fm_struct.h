#pragma once
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/fm_boundary.h"
#include "model/fm_case_load.h"
#include "model/fm_element.h"
#include "model/fm_load.h"
#include "model/fm_material.h"
#include "model/fm_node.h"
#include "model/fm_section.h"
#include "model/fm_solution.h"
#include "model/fm_support.h"
#include "tools/fm_unit.h"

// The solved structure the results reports read: the model's tables, its units and display
// settings, and the solution. Nodes, elements and properties are in the model's units
// (m_Units); the solution's values are in its own units and are converted for display.
class CfmStruct {
 public:
  // Element flags, as the element tables keep them.
  static constexpr uint32_t kSelected = fmElementBase::kSelected;
  static constexpr uint32_t kFrozen = fmElementBase::kFrozen;
  static constexpr uint32_t kInactive = fmElementBase::kInactive;
  static constexpr uint32_t kSelfWeightExcluded = fmElementBase::kNoSelfWeight;

  // The elements as the results read them: the model's element records with the design
  // assignments of the solved model.
  struct Member {
    uint32_t id = 0;
    uint32_t flags = 0;
    std::array<uint32_t, 2> node{};
    int32_t material = 0;  // 1-based position in the material table
    int32_t section = 0;   // 1-based position in the section table
    double angle = 0;      // local angle in degrees
    double crackingFactor = 1;
    int32_t nonlinearity = 0;  // 0 linear, 1 tension only, 2 compression only
    bool column = false;
    std::string rcCriteria{}, steelCriteria{};
    bool rcExcluded = false, steelExcluded = false;
  };
  struct Shell4 {
    uint32_t id = 0;
    uint32_t flags = 0;
    std::array<uint32_t, 4> node{};
    int32_t material = 0;
    int32_t thickness = 0;  // 1-based position in the thickness table
    double angle = 0;
    double crackingFactor = 1;
    std::string rcCriteria{};
    bool rcExcluded = false;
  };
  struct Brick {
    uint32_t id = 0;
    uint32_t flags = 0;
    std::array<uint32_t, 8> node{};
    int32_t material = 0;
  };
  CfmStruct();
  ~CfmStruct();
  CfmStruct(const CfmStruct&);
  CfmStruct& operator=(const CfmStruct&);
  CfmStruct(CfmStruct&&) noexcept;
  CfmStruct& operator=(CfmStruct&&) noexcept;

  fmUnit m_Units;                                            // the display units
  std::array<int32_t, fmUnit::QuantityCount> m_DisplayFormat{};  // 0..11 per quantity
  int32_t m_nShowSelected = 0;  // shared with the rest of the application

  std::vector<fmNd> m_Nodes;
  std::vector<fmMat> m_Materials;
  std::vector<fmSect> m_Sections;
  std::vector<fmThick> m_Thicknesses;
  std::vector<Member> m_Members;
  std::vector<Shell4> m_Shells;
  std::vector<Brick> m_Bricks;
  // What holds the structure, as the model keeps it (in m_Units).
  std::vector<fmSupport> m_Supports;
  std::vector<fmNodalSpring> m_NodalSprings;
  std::vector<fmCoupledSpring> m_CoupledSprings;
  std::vector<fmLineSpring> m_LineSprings;
  std::vector<fmSurfaceSpring> m_SurfaceSprings;
  std::vector<uint32_t> m_DriftNodes;  // the drift stack, from the bottom up
  // Labels of the load cases and combinations that take part in envelopes.
  std::vector<std::string> m_EnvelopeCombinations;

  // The model's own load cases, combinations (their flags, factors and terms) and the loads
  // of each case (m_CaseLoads[i] belongs to m_LoadCases[i], in the model's units), as the
  // statistics, the combinations formed from cases and the information sheets read them.
  std::vector<fmLoadCase> m_LoadCases;
  std::vector<fmLoadComb> m_LoadCombs;
  std::vector<fmCaseLoad> m_CaseLoads;
  // Counts of model tables the solved structure holds no records of.
  struct Counts {
    int beamReleases = 0;
    int beamRcCriteria = 0, columnRcCriteria = 0, plateRcCriteria = 0, steelCriteria = 0;
  };
  Counts m_Counts;
  // Which points of a shell the shell reports list: 1 its four nodes, 2 the centre then the
  // nodes, anything else the centre only.
  int32_t m_nShellResultLocation = 0;

  fmSolution m_Solution;

  int GetNumLoadCases() const { return static_cast<int>(m_Solution.cases.size()); }
  // The name of case i; empty outside the list.
  const std::string& GetCaseName(int index) const;
  // The results of case i, or of the response-spectrum combination for -1; null when the
  // index names no case or the case has no results.
  const fmCaseResults* GetCaseResults(int index) const;
  // The same for a report: a case whose results are missing throws fmException naming it.
  const fmCaseResults& GetResults(int index) const;

  // Look-ups by number; null when there is none. Found through an index built on first use
  // and rebuilt when a table's size or storage changes (call TablesChanged after editing
  // numbers in place).
  const fmNd* FindNode(int64_t id) const;
  const Member* FindMember(int64_t id) const;
  const Shell4* FindShell(int64_t id) const;
  const Brick* FindBrick(int64_t id) const;
  bool IsNodeSelected(int64_t id) const;
  bool IsMemberSelected(int64_t id) const;
  bool IsShellSelected(int64_t id) const;
  void TablesChanged() const;

  // Multiplies a solution value of quantity q into the display unit.
  double ResultFactor(fmUnit::Quantity q) const;
  // The display format index of a quantity, 0 to 11.
  int DisplayFormat(fmUnit::Quantity q) const;
  // The base of the structure: the lowest Y of the model's supported nodes, or of all nodes
  // when it has no support (0 without nodes).
  double BaseLevel() const;

  // Per node, the maximum and minimum of each displacement (or support reaction) over the
  // cases marked true, with the 0-based index of the case that gives it. On a tie the earlier
  // case (the lower index) wins; a value that is not a number never wins, and a value no case
  // gives as a number is NaN with case -1. Records come in the order of the first marked
  // case's vector; nodes that only later cases list follow in the order they appear. A marked
  // case without results adds nothing; nothing marked gives no records.
  void CalcNodalDisplacementEnvelope(std::vector<fmEnvelopeValue6>& out, const std::vector<bool>& cases) const;
  void CalcSupportReactionEnvelope(std::vector<fmEnvelopeValue6>& out, const std::vector<bool>& cases) const;

  // Element results (fm_struct_elements.cpp).
  bool IsBrickSelected(int64_t id) const;
  // The model's combination that result entry `index` is: an entry without a load type whose
  // label names a combination; null for a load case or outside the list.
  const fmLoadComb* GetLoadCombination(int index) const;
  // True for the response-spectrum combination (-1), and for a combination whose response
  // spectrum load factor is not zero when the solution holds response-spectrum results.
  bool IsResponseSpectrumLoadCombination(int index) const;
  // The element results of an entry. A combination stored without element results is formed
  // in `scratch` as the factored sum of its load cases' results (records matched by number);
  // throws fmException when a case it needs has no results.
  const fmCaseResults& GetElementResults(int index, fmCaseResults& scratch) const;
  // Per member and station, the maxima and minima of the six forces over the entries marked
  // true, combinations without stored stations formed on the fly, one at a time. Ties go to
  // the lower index and a value that is not a number never wins, as for the nodes. Members
  // come in the order of the first marked entry that lists them.
  void CalcBeamEnvelopVMD(std::vector<fmEnvelopeBmVMD>& out, const std::vector<bool>& cases) const;
  // Entries whose combination is flagged for concrete design.
  std::vector<bool> ConcreteDesignCombinations() const;
  // Over the concrete-design combinations, for members with concrete design criteria that
  // are not excluded from concrete design.
  void CalcBeamDesignEnvelope(std::vector<fmBmDesignEnvelope>& out) const;
  // Over the concrete-design combinations, for shells not excluded from concrete design
  // (model::WoodArmer gives the rules).
  void CalcWoodArmerMoments(std::vector<fmWoodArmerMoment>& out) const;

 private:
  struct Indexes;
  Indexes& Idx() const;
  mutable std::unique_ptr<Indexes> indexes_;
};
