#pragma once
// Ids of the results dialog.
namespace res {

inline constexpr int kIddResults = 8033;
inline constexpr int kIconResults = 8056;
inline constexpr int kCtlResultsComboLabel = 8083;
inline constexpr int kCtlResultsCombo = 3213;
inline constexpr int kCtlResultsShowSelected = 3379;
// The grid takes the place of placeholder 8042 and the print and save buttons are 8005 and
// 8009, as in every data-grid dialog (grid_ids.h).

inline constexpr int kStrResultsModeLabel = 25004;

// The envelope list, the report picker and the member envelope diagram.
inline constexpr int kIddEnvelopeReport = 25100;
inline constexpr int kIddReport = 25101;
inline constexpr int kIddBeamEnvelopDiagram = 25102;
inline constexpr int kCtlEnvelopeChart = 25110;
inline constexpr int kCtlEnvelopeStatus = 25111;
inline constexpr int kCtlEnvelopePrint = 25112;

}  // namespace res
