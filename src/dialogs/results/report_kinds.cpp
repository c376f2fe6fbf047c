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

// Titles of the kinds that name the selected case with "%s"; nullptr where a kind's title is
// of another form.
const char* CaseTitle(int kind) {
  switch (kind) {
    case 0: return "Nodal Displacements - [%s]";
    case 1: return "Support Reactions - [%s]";
    case 2: case 3: case 4: case 5: return "Spring Reactions - [%s]";
    case 6: return "Member End Results - [%s]";
    case 7: return "Member Segmental Results - [%s]";
    case 12: return "Shell4 Forces and Moments - [%s]";
    case 13: return "Shell4 Nodal Resultants - [%s]";
    case 14: return "Shell4 Principal Results - [%s]";
    case 15: return "Shell4 Stresses [Top] - [%s]";
    case 16: return "Shell4 Stresses [Bottom] - [%s]";
    case 17: return "Shell4 Principal Stresses - [%s]";
    case 18: return "Brick Stresses - [%s]";
    case 19: return "Brick Principal Stresses - [%s]";
    case 33: return "Story Drift - [%s]";
    case 51: return "Multi-DOF Constraint Forces & Moments - [%s]";
    case 53: return "Coupled Spring Reactions - [%s]";
    default: return nullptr;
  }
}

const char* FixedTitle(int kind) {
  switch (kind) {
    case 20: return "Eigenvalues";
    case 22: return "Member Envelope for Concrete Design";
    case 23: return "Wood-Armer Moments for Concrete Design";
    case 24: return "Concrete Beam Design Result";
    case 25: return "Concrete Column Design Result";
    case 26: return "Concrete Shear Design Result";
    case 27: return "Concrete Plate Design Result";
    case 28: return "Model Statistics";
    case 29: return "Nodal Info";
    case 30: return "Member Info";
    case 31: return "Shell Info";
    case 32: return "Brick Info";
    case 34: return "Mode Participation Factors";
    case 41: return "Nodal Displacements - Response Spectrum Modal Combinations";
    case 42: return "Support Reactions - Response Spectrum Modal Combinations";
    case 43: case 44: case 45: case 46: return "Spring Reactions - Response Spectrum Modal Combinations";
    case 47: return "Member End Results - Response Spectrum Modal Combinations";
    case 48: return "Member Segmental Results - Response Spectrum Modal Combinations";
    case 49: return "Shell4 Forces and Moments - Response Spectrum Modal Combinations";
    case 50: return "Brick Stresses - Response Spectrum Modal Combinations";
    case 52: return "Multi-DOF Constraint Forces and Moments -  Response Spectrum Modal Combinations";
    case 54: return "Coupled Spring Reactions - Response Spectrum Modal Combinations";
    case 55: return "Nodal Displacements - Envelope";
    case 56: return "Support Reactions - Envelope";
    case 57: return "Beam Segmental Results - Envelope";
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
  if (kind == 21) return tools::Format("Eigenvectors - [Mode-%d]", modeNumber);
  if (kind >= 35 && kind <= 37)
    return tools::Format("S%s Modal Displacements - [Mode-%d]", kDirections[kind - 35], modeNumber);
  if (kind >= 38 && kind <= 40)
    return tools::Format("S%s Inertial Forces - [Mode-%d]", kDirections[kind - 38], modeNumber);
  return {};
}

ComboList ComboListOf(int kind) {
  if (kind == 21) return ComboList::EigenModes;
  if (kind >= 35 && kind <= 40) return ComboList::SpectrumModes;
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
  if (kind == 21) return "Eigenvectors";
  if (kind >= 35 && kind <= 37) return "Modal Displacements";
  if (kind >= 38 && kind <= 40) return "Inertial Forces";
  return {};
}

ControlsShown ControlsFor(int kind) {
  ControlsShown c;
  if (kind >= 28 && kind <= 32) {
    c.label = c.combo = c.check = false;
    c.compact = true;
  } else if (kind == 20 || kind == 34) {
    c.label = c.combo = c.check = false;
  } else if (kind == 24 || kind == 27 || (kind >= 41 && kind <= 50) || kind == 52 || kind == 54) {
    c.label = c.combo = false;
  }
  return c;
}

bool IgnoresComboChange(int kind) { return kind == 22 || kind == 23 || (kind >= 55 && kind <= 57); }

ComboUse ComboUseOf(int kind) {
  if (kind == 21 || (kind >= 35 && kind <= 40)) return ComboUse::Mode;
  if ((kind >= 0 && kind <= 19) || kind == 33 || kind == 51 || kind == 53) return ComboUse::LoadCase;
  return ComboUse::Nothing;
}

bool IsReportBuilt(int kind) { return kind >= 0 && kind <= kLastReportKind && !(kind >= 8 && kind <= 11); }

void BuildReport(const ReportContext& ctx, int comboIndex) {
  const CfmStruct& m = ctx.model;
  const int kind = ctx.reportType;
  switch (kind) {
    case 0: Node_Displacements(ctx, Displacements(m, comboIndex)); break;
    case 1: Support_Reactions(ctx, comboIndex); break;
    case 2: case 3: case 4: case 5: case 53: Spring_Reactions(ctx, comboIndex); break;
    case 6: case 7: Beam_VMD(ctx, comboIndex); break;
    case 12: Shell4_ForceMoments(ctx, comboIndex); break;
    case 13: Shell4_Nodal_Resultants(ctx, comboIndex); break;
    case 14: Shell4_Principal_ForceMoments(ctx, comboIndex); break;
    case 15: Shell4_Stresses(ctx, comboIndex, 0); break;
    case 16: Shell4_Stresses(ctx, comboIndex, 1); break;
    case 17: Shell4_Principal_Stresses(ctx, comboIndex); break;
    case 18: Brick_Stresses(ctx, comboIndex); break;
    case 19: Brick_Principal_Stresses(ctx, comboIndex); break;
    case 20: Eigen_Values(ctx); break;
    case 22: Beam_Envelop(ctx); break;
    case 23: Shell4_WoodArmerMoments(ctx); break;
    case 24: Beam_Concrete_Design(ctx); break;
    case 25: Column_Concrete_Design(ctx); break;
    case 26: Concrete_Shear_Design(ctx); break;
    case 27: Plate_Concrete_Design(ctx); break;
    case 28: Statistics(ctx); break;
    case 34: Mode_Participation_Factors(ctx); break;
    case 47: case 48: Beam_Mode_Combination_VMD(ctx); break;
    case 49: Shell4_ForceMoments(ctx, -1); break;
    case 50: Brick_Stresses(ctx, -1); break;
    case 57: Beam_VMD_Envelope(ctx); break;
    case 21: {
      const auto& modes = m.m_Solution.eigenModes;
      if (comboIndex >= 0 && static_cast<size_t>(comboIndex) < modes.size())
        Node_Displacements(ctx, modes[static_cast<size_t>(comboIndex)].shape);
      break;
    }
    case 29: case 30: case 31: case 32: Query(ctx); break;
    case 33: Story_Drift(ctx, comboIndex, Displacements(m, comboIndex)); break;
    case 35: case 36: case 37:
      if (const fmSpectrumMode* mode = SpectrumMode(m, comboIndex))
        Node_Displacements(ctx, mode->displacements[static_cast<size_t>(kind - 35)]);
      break;
    case 38: case 39: case 40:
      if (const fmSpectrumMode* mode = SpectrumMode(m, comboIndex))
        Node_Forces(ctx, comboIndex, mode->inertialForces[static_cast<size_t>(kind - 38)]);
      break;
    case 41: Node_Displacements(ctx, Displacements(m, -1)); break;
    case 42: Support_Reactions(ctx, -1); break;
    case 43: case 44: case 45: case 46: case 54: Spring_Reactions(ctx, -1); break;
    case 51: Multi_DOF_Constraint_Forces(ctx, comboIndex); break;
    case 52: Multi_DOF_Constraint_Forces(ctx, -1); break;
    case 55: Node_Displacements_Envelope(ctx); break;
    case 56: Support_Reactions_Envelope(ctx); break;
    default: break;  // no report of this kind here
  }
}

}  // namespace results
