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

// CDataSettingsDlg ("Spreadsheet settings").
inline constexpr int kIddDataSettings = 22100;
inline constexpr int kCtlDsGroup = 22101;
inline constexpr int kCtlDsFontSizeLabel = 22102;
inline constexpr int kCtlDsFontSize = 22103;
inline constexpr int kCtlDsFontSizeUnit = 22104;
inline constexpr int kCtlDsRowHeightLabel = 22105;
inline constexpr int kCtlDsRowHeight = 22106;
inline constexpr int kCtlDsRowHeightUnit = 22107;
inline constexpr int kCtlDsShowRowHeader = 22108;
inline constexpr int kCtlDsAppendSave = 22109;
inline constexpr int kCtlDsColorLabel = 22110;
inline constexpr int kCtlDsColor = 22111;
inline constexpr int kStrDsCaption = 1359;       // "Spreadsheet Settings", shared with the preferences
inline constexpr int kStrDsShowRowHeader = 1360;
inline constexpr int kStrDsRowHeight = 1361;
inline constexpr int kStrDsFontSize = 1362;
inline constexpr int kStrDsAppendSave = 1516;
inline constexpr int kStrDsPoints = 22010;
inline constexpr int kStrDsPixels = 22011;
inline constexpr int kStrDsColorLabel = 22012;
inline constexpr int kStrDsColorTitle = 22013;
inline constexpr int kStrDsGroup = 22014;

}  // namespace res
