#pragma once
#include <vector>

#include "dialogs/results/report_context.h"

// The shell and brick reports. A shell gets one row per reported point and an empty row
// after them; the model's shell result location chooses the points (ShellPoints). Bricks
// list their centre and their eight nodes whatever that setting is. The principal reports
// refuse a response-spectrum combination with a message and an empty grid.
namespace results {

// The points reported of each shell: 0 the centre, 1 to 4 its nodes.
std::vector<int> ShellPoints(int shellResultLocation);

void Shell4_ForceMoments(const ReportContext& ctx, int caseIndex);
// Always the four nodes of each shell.
void Shell4_Nodal_Resultants(const ReportContext& ctx, int caseIndex);
void Shell4_Principal_ForceMoments(const ReportContext& ctx, int caseIndex);
// surface 0: the top (local +z face), 1: the bottom.
void Shell4_Stresses(const ReportContext& ctx, int caseIndex, int surface);
void Shell4_Principal_Stresses(const ReportContext& ctx, int caseIndex);
void Brick_Stresses(const ReportContext& ctx, int caseIndex);
void Brick_Principal_Stresses(const ReportContext& ctx, int caseIndex);
void Shell4_WoodArmerMoments(const ReportContext& ctx);

inline constexpr const char* kNoPrincipalForces =
    "Principal forces and moments are not available to load combination that contains response spectrum analysis "
    "results.";
inline constexpr const char* kNoPrincipalStresses =
    "Principal stresses are not available to load combination that contains response spectrum analysis results.";

}  // namespace results
