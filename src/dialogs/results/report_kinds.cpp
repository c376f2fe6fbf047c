#include "dialogs/results/report_kinds.h"

#include <cmath>

#include "dialogs/results/concrete_reports.h"
#include "dialogs/results/info_sheets.h"
#include "dialogs/results/member_reports.h"
#include "dialogs/results/modal_reports.h"
#include "dialogs/results/nodal_reports.h"
#include "dialogs/results/plate_reports.h"
#include "tools/format.h"

namespace results {
namespace {

const char* const kDirections[] = {"X", "Y", "Z"};

bool IsModalDisplacements(int kind) { return kind >= kModalDisplacementsX && kind < kModalDisplacementsX + 3; }
bool IsInertialForces(int kind) { return kind >= kInertialForcesX && kind < kInertialForcesX + 3; }

// Titles of the kinds that name the selected case with "%s"; nullptr where a kind's title is
// of another form.
const char* CaseTitle(int kind) {
  switch (kind) {
    case kNodalDisplacements: return "Nodal Displacements - [%s]";
    case kSupportReactions: return "Support Reactions - [%s]";
    case kNodalSpringReactions:
    case kCoupledSpringReactionsOfSprings:
    case kLineSpringReactions:
    case kSurfaceSpringReactions: return "Spring Reactions - [%s]";
    case kMemberEndResults: return "Member End Results - [%s]";
    case kMemberSegmentalResults: return "Member Segmental Results - [%s]";
    case kShell4ForcesAndMoments: return "Shell4 Forces and Moments - [%s]";
    case kShell4NodalResultants: return "Shell4 Nodal Resultants - [%s]";
    case kShell4PrincipalResults: return "Shell4 Principal Results - [%s]";
    case kShell4StressesTop: return "Shell4 Stresses [Top] - [%s]";
    case kShell4StressesBottom: return "Shell4 Stresses [Bottom] - [%s]";
    case kShell4PrincipalStresses: return "Shell4 Principal Stresses - [%s]";
    case kBrickStresses: return "Brick Stresses - [%s]";
    case kBrickPrincipalStresses: return "Brick Principal Stresses - [%s]";
    case kStoryDrift: return "Story Drift - [%s]";
    case kMultiDofConstraintForces: return "Multi-DOF Constraint Forces & Moments - [%s]";
    case kCoupledSpringReactions: return "Coupled Spring Reactions - [%s]";
    default: return nullptr;
  }
}

const char* FixedTitle(int kind) {
  switch (kind) {
    case kEigenvalues: return "Eigenvalues";
    case kMemberEnvelopeForConcrete: return "Member Envelope for Concrete Design";
    case kWoodArmerMoments: return "Wood-Armer Moments for Concrete Design";
    case kConcreteBeamDesign: return "Concrete Beam Design Result";
    case kConcreteColumnDesign: return "Concrete Column Design Result";
    case kConcreteShearDesign: return "Concrete Shear Design Result";
    case kConcretePlateDesign: return "Concrete Plate Design Result";
    case kModelStatistics: return "Model Statistics";
    case kNodalInfo: return "Nodal Info";
    case kMemberInfo: return "Member Info";
    case kShellInfo: return "Shell Info";
    case kBrickInfo: return "Brick Info";
    case kModeParticipationFactors: return "Mode Participation Factors";
    case kSpectrumNodalDisplacements: return "Nodal Displacements - Response Spectrum Modal Combinations";
    case kSpectrumSupportReactions: return "Support Reactions - Response Spectrum Modal Combinations";
    case kSpectrumNodalSpringReactions:
    case kSpectrumCoupledSpringReactionsOfSprings:
    case kSpectrumLineSpringReactions:
    case kSpectrumSurfaceSpringReactions: return "Spring Reactions - Response Spectrum Modal Combinations";
    case kSpectrumMemberEndResults: return "Member End Results - Response Spectrum Modal Combinations";
    case kSpectrumMemberSegmentalResults: return "Member Segmental Results - Response Spectrum Modal Combinations";
    case kSpectrumShell4ForcesAndMoments: return "Shell4 Forces and Moments - Response Spectrum Modal Combinations";
    case kSpectrumBrickStresses: return "Brick Stresses - Response Spectrum Modal Combinations";
    case kSpectrumMultiDofConstraintForces:
      return "Multi-DOF Constraint Forces and Moments -  Response Spectrum Modal Combinations";
    case kSpectrumCoupledSpringReactions: return "Coupled Spring Reactions - Response Spectrum Modal Combinations";
    case kNodalDisplacementsEnvelope: return "Nodal Displacements - Envelope";
    case kSupportReactionsEnvelope: return "Support Reactions - Envelope";
    case kMemberSegmentalEnvelope: return "Beam Segmental Results - Envelope";
    default: return nullptr;
  }
}

const std::vector<fmResult6Val>& Displacements(const CfmStruct& m, int caseIndex) {
  return m.GetResults(caseIndex).displacements;
}

const fmSpectrumMode* SpectrumMode(const CfmStruct& m, int mode) {
  const auto& modes = m.m_Solution.spectrumModes;
  return mode >= 0 && static_cast<size_t>(mode) < modes.size() ? &modes[static_cast<size_t>(mode)] : nullptr;
}

}  // namespace

std::string ReportTitle(int kind, const std::string& caseName, int modeNumber) {
  if (const char* title = CaseTitle(kind)) return tools::Format(title, caseName.c_str());
  if (const char* title = FixedTitle(kind)) return title;
  if (kind == kEigenvectors) return tools::Format("Eigenvectors - [Mode-%d]", modeNumber);
  if (IsModalDisplacements(kind))
    return tools::Format("S%s Modal Displacements - [Mode-%d]", kDirections[kind - kModalDisplacementsX], modeNumber);
  if (IsInertialForces(kind))
    return tools::Format("S%s Inertial Forces - [Mode-%d]", kDirections[kind - kInertialForcesX], modeNumber);
  return {};
}

ComboList ComboListOf(int kind) {
  if (kind == kEigenvectors) return ComboList::EigenModes;
  if (IsModalDisplacements(kind) || IsInertialForces(kind)) return ComboList::SpectrumModes;
  return ComboList::Cases;
}

template <class Mode>
std::vector<std::string> ModeEntries(const std::vector<Mode>& modes) {
  std::vector<double> omega2;
  for (const Mode& m : modes) omega2.push_back(m.omega2);
  std::vector<std::string> entries;
  for (size_t i = 0; i < modes.size(); ++i) {
    const int number = static_cast<int>(i + 1);
    // Documents refuse eigenvalues below zero beyond round-off, so no period is ever "nan".
    entries.push_back(IsRigidBodyMode(omega2[i], omega2)
                          ? tools::Format("Mode-%d: (rigid-body mode, no period)", number)
                          : tools::Format("Mode-%d: (Period=%.4g sec)", number, 6.283185308 / std::sqrt(omega2[i])));
  }
  return entries;
}

std::vector<std::string> ComboEntries(const CfmStruct& model, int kind) {
  std::vector<std::string> entries;
  switch (ComboListOf(kind)) {
    case ComboList::EigenModes:
      return ModeEntries(model.m_Solution.eigenModes);
    case ComboList::SpectrumModes:
      return ModeEntries(model.m_Solution.spectrumModes);
    case ComboList::Cases:
      for (int i = 0; i < model.GetNumLoadCases(); ++i)
        entries.push_back(tools::Format("%d: %s", i + 1, model.GetCaseName(i).c_str()));
      break;
  }
  return entries;
}

std::string ComboLabelOf(int kind) { return ComboListOf(kind) == ComboList::Cases ? std::string() : "Mode Shape:"; }

std::string ModeListTitleOf(int kind) {
  if (kind == kEigenvectors) return "Eigenvectors";
  if (IsModalDisplacements(kind)) return "Modal Displacements";
  if (IsInertialForces(kind)) return "Inertial Forces";
  return {};
}

ControlsShown ControlsFor(int kind) {
  ControlsShown c;
  if (NeedsNoCase(kind)) {
    c.label = c.combo = c.check = false;
    c.compact = true;
  } else if (kind == kEigenvalues || kind == kModeParticipationFactors) {
    c.label = c.combo = c.check = false;
  } else if (kind == kConcreteBeamDesign || kind == kConcretePlateDesign ||
             (kind >= kSpectrumNodalDisplacements && kind <= kSpectrumBrickStresses) ||
             kind == kSpectrumMultiDofConstraintForces || kind == kSpectrumCoupledSpringReactions) {
    c.label = c.combo = false;
  }
  return c;
}

bool NeedsNoCase(int kind) { return kind >= kModelStatistics && kind <= kBrickInfo; }

bool IgnoresComboChange(int kind) {
  return kind == kMemberEnvelopeForConcrete || kind == kWoodArmerMoments ||
         (kind >= kNodalDisplacementsEnvelope && kind <= kMemberSegmentalEnvelope);
}

ComboUse ComboUseOf(int kind) {
  if (ComboListOf(kind) != ComboList::Cases) return ComboUse::Mode;
  if ((kind >= kNodalDisplacements && kind <= kBrickPrincipalStresses) || kind == kStoryDrift ||
      kind == kMultiDofConstraintForces || kind == kCoupledSpringReactions)
    return ComboUse::LoadCase;
  return ComboUse::Nothing;
}

bool IsReportBuilt(int kind) {
  return kind >= 0 && kind <= kLastReportKind && !(kind > kMemberSegmentalResults && kind < kShell4ForcesAndMoments);
}

void BuildReport(const ReportContext& ctx, int comboIndex) {
  const CfmStruct& m = ctx.model;
  const int kind = ctx.reportType;
  switch (kind) {
    case kNodalDisplacements: Node_Displacements(ctx, Displacements(m, comboIndex)); break;
    case kSupportReactions: Support_Reactions(ctx, comboIndex); break;
    case kNodalSpringReactions:
    case kCoupledSpringReactionsOfSprings:
    case kLineSpringReactions:
    case kSurfaceSpringReactions:
    case kCoupledSpringReactions: Spring_Reactions(ctx, comboIndex); break;
    case kMemberEndResults: case kMemberSegmentalResults: Beam_VMD(ctx, comboIndex); break;
    case kShell4ForcesAndMoments: Shell4_ForceMoments(ctx, comboIndex); break;
    case kShell4NodalResultants: Shell4_Nodal_Resultants(ctx, comboIndex); break;
    case kShell4PrincipalResults: Shell4_Principal_ForceMoments(ctx, comboIndex); break;
    case kShell4StressesTop: Shell4_Stresses(ctx, comboIndex, 0); break;
    case kShell4StressesBottom: Shell4_Stresses(ctx, comboIndex, 1); break;
    case kShell4PrincipalStresses: Shell4_Principal_Stresses(ctx, comboIndex); break;
    case kBrickStresses: Brick_Stresses(ctx, comboIndex); break;
    case kBrickPrincipalStresses: Brick_Principal_Stresses(ctx, comboIndex); break;
    case kEigenvalues: Eigen_Values(ctx); break;
    case kMemberEnvelopeForConcrete: Beam_Envelop(ctx); break;
    case kWoodArmerMoments: Shell4_WoodArmerMoments(ctx); break;
    case kConcreteBeamDesign: Beam_Concrete_Design(ctx); break;
    case kConcreteColumnDesign: Column_Concrete_Design(ctx); break;
    case kConcreteShearDesign: Concrete_Shear_Design(ctx); break;
    case kConcretePlateDesign: Plate_Concrete_Design(ctx); break;
    case kModelStatistics: Statistics(ctx); break;
    case kModeParticipationFactors: Mode_Participation_Factors(ctx); break;
    case kSpectrumMemberEndResults: case kSpectrumMemberSegmentalResults: Beam_Mode_Combination_VMD(ctx); break;
    case kSpectrumShell4ForcesAndMoments: Shell4_ForceMoments(ctx, -1); break;
    case kSpectrumBrickStresses: Brick_Stresses(ctx, -1); break;
    case kMemberSegmentalEnvelope: Beam_VMD_Envelope(ctx); break;
    case kEigenvectors: {
      const auto& modes = m.m_Solution.eigenModes;
      if (comboIndex >= 0 && static_cast<size_t>(comboIndex) < modes.size())
        Node_Displacements(ctx, modes[static_cast<size_t>(comboIndex)].shape);
      break;
    }
    case kNodalInfo: case kMemberInfo: case kShellInfo: case kBrickInfo: Query(ctx); break;
    case kStoryDrift: Story_Drift(ctx, comboIndex, Displacements(m, comboIndex)); break;
    case kModalDisplacementsX: case kModalDisplacementsX + 1: case kModalDisplacementsX + 2:
      if (const fmSpectrumMode* mode = SpectrumMode(m, comboIndex))
        Node_Displacements(ctx, mode->displacements[static_cast<size_t>(kind - kModalDisplacementsX)]);
      break;
    case kInertialForcesX: case kInertialForcesX + 1: case kInertialForcesX + 2:
      if (const fmSpectrumMode* mode = SpectrumMode(m, comboIndex))
        Node_Forces(ctx, comboIndex, mode->inertialForces[static_cast<size_t>(kind - kInertialForcesX)]);
      break;
    case kSpectrumNodalDisplacements: Node_Displacements(ctx, Displacements(m, -1)); break;
    case kSpectrumSupportReactions: Support_Reactions(ctx, -1); break;
    case kSpectrumNodalSpringReactions:
    case kSpectrumCoupledSpringReactionsOfSprings:
    case kSpectrumLineSpringReactions:
    case kSpectrumSurfaceSpringReactions:
    case kSpectrumCoupledSpringReactions: Spring_Reactions(ctx, -1); break;
    case kMultiDofConstraintForces: Multi_DOF_Constraint_Forces(ctx, comboIndex); break;
    case kSpectrumMultiDofConstraintForces: Multi_DOF_Constraint_Forces(ctx, -1); break;
    case kNodalDisplacementsEnvelope: Node_Displacements_Envelope(ctx); break;
    case kSupportReactionsEnvelope: Support_Reactions_Envelope(ctx); break;
    default: break;  // no report of this kind here
  }
}

}  // namespace results
