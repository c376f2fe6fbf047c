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
// A grid dialog's own editing button that a read-only grid disables with the new-row controls.
inline constexpr int kCtlGridEditAction = 8082;

// Their texts.
inline constexpr int kStrPrint = 1138;
inline constexpr int kStrNewRows = 1140;
inline constexpr int kStrSave = 1515;

// The right-click fill menu.
inline constexpr int kStrFillCopy = 22000;
inline constexpr int kStrFillSeries = 22001;

// Export and print of any grid.
inline constexpr int kStrExportTitle = 22002;
inline constexpr int kStrPrintQuestion = 22003;
inline constexpr int kStrPrintPage = 22004;
inline constexpr int kStrPrintFailed = 22005;
inline constexpr int kStrExportFilterHtml = 22006;
inline constexpr int kStrExportFilterText = 22007;
inline constexpr int kStrExportFilterXls = 22008;
inline constexpr int kStrExportFilterXlsx = 22009;

// CDataSettingsDlg ("Spreadsheet Settings"; the rest comes from its description).
inline constexpr int kIddDataSettings = 22100;
inline constexpr int kCtlDsColor = 22111;
inline constexpr int kStrDsColorTitle = 22013;

}  // namespace res
