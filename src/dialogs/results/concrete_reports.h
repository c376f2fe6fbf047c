#pragma once
#include "dialogs/results/report_context.h"

// The concrete design tables (kinds 24 to 27), read from the results' concrete design
// records. Their headings are fixed; without records they show the headings and no rows.
// Combination numbers are 1-based; distances in percent of the member's length.
namespace results {

void Beam_Concrete_Design(const ReportContext& ctx);
void Column_Concrete_Design(const ReportContext& ctx);
void Concrete_Shear_Design(const ReportContext& ctx);
// The shell's points as the shell reports choose them; a failed design shows "Error".
void Plate_Concrete_Design(const ReportContext& ctx);

}  // namespace results
