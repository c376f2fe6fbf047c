#pragma once
// Ids shared by every data-grid dialog, and the grid family's own strings.
namespace res {

// Controls every data-grid dialog has (ids the locked-model guard also knows).
inline constexpr int kCtlGridPlaceholder = 8042;
inline constexpr int kCtlGrid = 1348;
inline constexpr int kCtlNewRowCount = 8050;
inline constexpr int kCtlNewRows = 8006;
inline constexpr int kCtlPrint = 8005;
inline constexpr int kCtlSave = 8009;

// Their texts.
inline constexpr int kStrPrint = 1138;
inline constexpr int kStrNewRows = 1140;
inline constexpr int kStrSave = 1515;

// The right-click fill menu.
inline constexpr int kStrFillCopy = 22000;
inline constexpr int kStrFillSeries = 22001;

}  // namespace res
