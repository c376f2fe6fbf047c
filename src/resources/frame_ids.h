#pragma once
// Ids of the library frame's dialogs: those the system names, and the frame's own strings.
namespace res {

// Templates.
inline constexpr int kIddAbout = 100;
inline constexpr int kIddPreferences = 130;
inline constexpr int kIddPrivateLabelAbout = 134;
inline constexpr int kIddProgress = 1545;

// The about boxes and the progress bar.
inline constexpr int kCtlAboutVersion = 1003;
inline constexpr int kCtlAboutDriver = 1006;
inline constexpr int kCtlAboutProduct = 1007;
inline constexpr int kCtlAboutCopyright = 1008;
inline constexpr int kCtlProgressBar = 1325;
inline constexpr int kStrAboutCopyright = 1033;
inline constexpr int kStrAboutProduct = 1034;
inline constexpr int kStrAboutCaption = 1042;

// CPreferencesDlg: the controls bound to members, then labels and groups, then strings.
inline constexpr int kCtlPrefLockAfterAnalysis = 1010;
inline constexpr int kCtlPrefExternalHtmlViewer = 1011;
inline constexpr int kCtlPrefShowRowHeaders = 1012;
inline constexpr int kCtlPrefRubberBanding = 1013;
inline constexpr int kCtlPrefAppendSave = 1014;
inline constexpr int kCtlPrefTraditionalSelection = 1015;
inline constexpr int kCtlPrefSaveDrawingGrid = 1016;
inline constexpr int kCtlPrefFillDiagrams = 1017;
inline constexpr int kCtlPrefGraphicsFontName = 1338;
inline constexpr int kCtlPrefDataFolder = 1339;
inline constexpr int kCtlPrefBackupPeriod = 3380;
inline constexpr int kCtlPrefNumberOfFrames = 3381;
inline constexpr int kCtlPrefFrameDuration = 3382;
inline constexpr int kCtlPrefRowHeight = 3383;
inline constexpr int kCtlPrefSpreadFontSize = 3384;
inline constexpr int kCtlPrefOutOfCoreMemory = 3385;
inline constexpr int kCtlPrefSolverCpus = 3386;
inline constexpr int kCtlPrefGraphicsFontSize = 3387;
inline constexpr int kCtlPrefFillTransparency = 3388;
inline constexpr int kCtlPrefDataFolderLabel = 1163;
inline constexpr int kCtlPrefBackupPeriodLabel = 1164;
inline constexpr int kCtlPrefMinutes = 1165;
inline constexpr int kCtlPrefAnimationGroup = 1166;
inline constexpr int kCtlPrefNumberOfFramesLabel = 1167;
inline constexpr int kCtlPrefFrameDurationLabel = 1168;
inline constexpr int kCtlPrefSpreadsheetGroup = 1169;
inline constexpr int kCtlPrefRowHeightLabel = 1170;
inline constexpr int kCtlPrefSpreadFontSizeLabel = 1171;
inline constexpr int kCtlPrefSeconds = 1172;
inline constexpr int kCtlPrefOutOfCoreMemoryLabel = 1173;
inline constexpr int kStrPrefCaption = 1349;
inline constexpr int kStrPrefDataFolder = 1350;
inline constexpr int kStrPrefBackupPeriod = 1351;
inline constexpr int kStrPrefMinutes = 1352;
inline constexpr int kStrPrefAnimation = 1353;
inline constexpr int kStrPrefNumberOfFrames = 1354;
inline constexpr int kStrPrefFrameDuration = 1355;
inline constexpr int kStrPrefLockAfterAnalysis = 1356;
inline constexpr int kStrPrefExternalHtmlViewer = 1357;
inline constexpr int kStrPrefRubberBanding = 1358;
inline constexpr int kStrPrefSpreadsheet = 1359;
inline constexpr int kStrPrefShowRowHeaders = 1360;
inline constexpr int kStrPrefRowHeight = 1361;
inline constexpr int kStrPrefFontSize = 1362;
inline constexpr int kStrPrefSeconds = 1363;
inline constexpr int kStrPrefAppendSave = 1516;
inline constexpr int kStrPrefOutOfCoreMemory = 1585;

}  // namespace res
