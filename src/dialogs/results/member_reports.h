#pragma once
#include "dialogs/results/report_context.h"

// The member reports: end and segmental results of a case (or of the response-spectrum
// combination, index -1), the member force envelope and the member envelope for concrete
// design. Distances are shown as a percentage of the member's length ("Distance (%L)").
namespace results {

// Kinds 6 and 47 give end results (the first and the last station of each member), 7 and 48
// segmental results (every station, with Dy and Dz).
void Beam_VMD(const ReportContext& ctx, int caseIndex);
// The member table of the response-spectrum modal combination.
void Beam_Mode_Combination_VMD(const ReportContext& ctx);
void Beam_VMD_Envelope(const ReportContext& ctx);
// Kind 22; one row per station, an empty row after each member as in the other member tables.
void Beam_Envelop(const ReportContext& ctx);

}  // namespace results
