#pragma once
#include <string>
#include <vector>

#include "dialogs/results/report_context.h"

// The report kinds of the results dialog (its m_nReportType): their window titles, what the
// combo box lists, which controls they show, and the builder each one calls.
namespace results {

// The report kinds, by the number a host passes as m_nReportType. 8 to 11 have no report here.
enum ReportKind : int {
  kNodalDisplacements = 0,
  kSupportReactions = 1,
  kNodalSpringReactions = 2,
  kCoupledSpringReactionsOfSprings = 3,
  kLineSpringReactions = 4,
  kSurfaceSpringReactions = 5,
  kMemberEndResults = 6,
  kMemberSegmentalResults = 7,
  kShell4ForcesAndMoments = 12,
  kShell4NodalResultants = 13,
  kShell4PrincipalResults = 14,
  kShell4StressesTop = 15,
  kShell4StressesBottom = 16,
  kShell4PrincipalStresses = 17,
  kBrickStresses = 18,
  kBrickPrincipalStresses = 19,
  kEigenvalues = 20,
  kEigenvectors = 21,
  kMemberEnvelopeForConcrete = 22,
  kWoodArmerMoments = 23,
  kConcreteBeamDesign = 24,
  kConcreteColumnDesign = 25,
  kConcreteShearDesign = 26,
  kConcretePlateDesign = 27,
  kModelStatistics = 28,
  kNodalInfo = 29,
  kMemberInfo = 30,
  kShellInfo = 31,
  kBrickInfo = 32,
  kStoryDrift = 33,
  kModeParticipationFactors = 34,
  kModalDisplacementsX = 35,  // then Y and Z
  kInertialForcesX = 38,      // then Y and Z
  kSpectrumNodalDisplacements = 41,
  kSpectrumSupportReactions = 42,
  kSpectrumNodalSpringReactions = 43,
  kSpectrumCoupledSpringReactionsOfSprings = 44,
  kSpectrumLineSpringReactions = 45,
  kSpectrumSurfaceSpringReactions = 46,
  kSpectrumMemberEndResults = 47,
  kSpectrumMemberSegmentalResults = 48,
  kSpectrumShell4ForcesAndMoments = 49,
  kSpectrumBrickStresses = 50,
  kMultiDofConstraintForces = 51,
  kSpectrumMultiDofConstraintForces = 52,
  kCoupledSpringReactions = 53,
  kSpectrumCoupledSpringReactions = 54,
  kNodalDisplacementsEnvelope = 55,
  kSupportReactionsEnvelope = 56,
  kMemberSegmentalEnvelope = 57,
};
inline constexpr int kLastReportKind = kMemberSegmentalEnvelope;

// The window title of a kind with the case name or 1-based mode number filled in; empty for
// kinds that have no report in this dialog (8 to 11, and anything outside 0 to 57).
std::string ReportTitle(int kind, const std::string& caseName, int modeNumber);

enum class ComboList { Cases, EigenModes, SpectrumModes };
ComboList ComboListOf(int kind);
// The combo box's entries: "%d: %s" per load case or combination, or one
// "Mode-%d: (Period=%.4g sec)" per mode, the period 6.283185308 / sqrt(omega2); a rigid-body
// mode (IsRigidBodyMode) reads "Mode-%d: (rigid-body mode, no period)".
std::vector<std::string> ComboEntries(const CfmStruct& model, int kind);
// The label and window title the mode kinds set; empty for the others.
std::string ComboLabelOf(int kind);
std::string ModeListTitleOf(int kind);

struct ControlsShown {
  bool label = true;   // "Load Combination:"
  bool combo = true;
  bool check = true;   // "Show selected only"
  bool compact = false;  // the smaller window of the statistics and information sheets
};
ControlsShown ControlsFor(int kind);
// The statistics and information sheets: they show for a model without any case.
bool NeedsNoCase(int kind);

// Reports that do not depend on one case: a change of the combo box leaves them alone.
bool IgnoresComboChange(int kind);

// What a kind's report reads of the combo box: a load case or combination (0 to 19, 33, 51,
// 53), a mode (21, 35 to 40), or nothing (the kinds that hide or ignore the combo).
enum class ComboUse { LoadCase, Mode, Nothing };
ComboUse ComboUseOf(int kind);

// Whether this version builds the report of a kind: every kind of 0 to 57 but 8 to 11.
bool IsReportBuilt(int kind);

// Fills the grid with the report of ctx.reportType for the combo choice (a case or mode
// index). Kinds without a report leave the grid as it is.
void BuildReport(const ReportContext& ctx, int comboIndex);

}  // namespace results
