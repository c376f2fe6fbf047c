#pragma once
#include <string>
#include <utility>
#include <vector>

#include "dialogs/results/report_context.h"

// The reports of no one load case: the eigenvalues of the modal analysis, the participation
// factors of the response-spectrum modes, and the model statistics.
namespace results {

// One row per mode: its number, period 6.283185308 / ω, frequency ω / 6.283185308, ω, ω² and
// error measure, each through tools::format_number with four digits. A rigid-body mode
// (IsRigidBodyMode) has no period: "(rigid-body mode)" stands there and its frequencies are 0.
void Eigen_Values(const ReportContext& ctx);
void Mode_Participation_Factors(const ReportContext& ctx);

// The statistics' items and counts in their order; "Loads in case - <label>" rows carry no
// count (-1 here). Every per-case count is listed, zeros included.
std::vector<std::pair<std::string, int>> StatisticsItems(const CfmStruct& model);
void Statistics(const ReportContext& ctx);

}  // namespace results
