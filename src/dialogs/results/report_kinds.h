#pragma once
#include <string>
#include <vector>

#include "dialogs/results/report_context.h"

// The report kinds of the results dialog (its m_nReportType): their window titles, what the
// combo box lists, which controls they show, and the builder each one calls.
namespace results {

inline constexpr int kLastReportKind = 57;

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
