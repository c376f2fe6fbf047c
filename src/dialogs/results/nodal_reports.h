#pragma once
#include <vector>

#include "dialogs/results/report_context.h"

// The nodal reports: displacements (also mode shapes and spectrum displacements), nodal
// forces, support reactions with their sum, spring reactions, multi-DOF constraint forces,
// story drift and the two nodal envelopes. Each sets the grid up with its own columns and
// rows; an empty result vector leaves the grid as it is (empty). With the model's
// show-selected flag on, only selected objects get a row.
namespace results {

void Node_Displacements(const ReportContext& ctx, const std::vector<fmResult6Val>& displacements);
void Node_Forces(const ReportContext& ctx, int mode, const std::vector<fmResult6Val>& forces);
// caseIndex -1: the response-spectrum modal combination.
void Support_Reactions(const ReportContext& ctx, int caseIndex);
// Which springs ctx.reportType lists: 2 and 43 nodal springs, 3, 44, 53 and 54 coupled
// springs, 4 and 45 member line springs, 5 and 46 shell surface springs.
enum class SpringKind { Nodal, Coupled, Line, Surface };
SpringKind SpringKindOf(int reportType);
void Spring_Reactions(const ReportContext& ctx, int caseIndex);
void Multi_DOF_Constraint_Forces(const ReportContext& ctx, int caseIndex);
// The drift nodes in their list order, each against the one before it; the first against
// the base of the structure (the level of the supports, which does not move).
void Story_Drift(const ReportContext& ctx, int caseIndex, const std::vector<fmResult6Val>& displacements);
void Node_Displacements_Envelope(const ReportContext& ctx);
void Support_Reactions_Envelope(const ReportContext& ctx);

}  // namespace results
