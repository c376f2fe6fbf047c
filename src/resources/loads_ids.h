#pragma once
// Ids of the load case and load combination dialogs (our range 24000 to 24999).
namespace res {

// Templates.
inline constexpr int kIddLoadCase = 24801;
inline constexpr int kIddLoadCombo = 24802;
inline constexpr int kIddLoadComboItem = 24803;
inline constexpr int kIddStdLoadCombination = 24804;
inline constexpr int kIddCopyCaseLoad = 24805;

// CLoadCaseDlg (the grid, New Rows, Print and Save are the data-grid dialog's own).
inline constexpr int kCtlCaseDeleteRows = 24100;
inline constexpr int kCtlCaseNote = 24101;

// CLoadComboDlg.
inline constexpr int kCtlComboList = 24110;
inline constexpr int kCtlComboAdd = 24111;
inline constexpr int kCtlComboModify = 24112;
inline constexpr int kCtlComboCopy = 24113;
inline constexpr int kCtlComboDelete = 24114;
inline constexpr int kCtlComboUnitCases = 24115;
inline constexpr int kCtlComboGenerateStd = 24116;

// CLoadComboItemDlg.
inline constexpr int kCtlItemLabelText = 24120;
inline constexpr int kCtlItemLabel = 24121;
inline constexpr int kCtlItemPDelta = 24122;
inline constexpr int kCtlItemSteelDesign = 24123;
inline constexpr int kCtlItemTotalDeflection = 24124;
inline constexpr int kCtlItemLiveDeflection = 24125;
inline constexpr int kCtlItemConcreteDesign = 24126;
inline constexpr int kCtlItemSustainedText = 24127;
inline constexpr int kCtlItemSustained = 24128;
inline constexpr int kCtlItemSpectrumText = 24129;
inline constexpr int kCtlItemSpectrum = 24130;

// CStdLoadCombinationDlg.
inline constexpr int kCtlStdCodeText = 24140;
inline constexpr int kCtlStdCode = 24141;
inline constexpr int kCtlStdListText = 24142;
inline constexpr int kCtlStdList = 24143;
inline constexpr int kCtlStdSelectAll = 24144;
inline constexpr int kCtlStdClearAll = 24145;
inline constexpr int kCtlStdPDelta = 24146;

// Strings.
inline constexpr int kStrLoadCasesCaption = 24000;
inline constexpr int kStrLoadCombosCaption = 24001;
inline constexpr int kStrLoadComboCaption = 24002;
inline constexpr int kStrStdCombosCaption = 24003;
inline constexpr int kStrCaseNote = 24010;
inline constexpr int kStrCaseDeleteRows = 24011;
inline constexpr int kStrComboListHeadings = 24020;
inline constexpr int kStrComboAdd = 24021;
inline constexpr int kStrComboModify = 24022;
inline constexpr int kStrComboCopy = 24023;
inline constexpr int kStrComboDelete = 24024;
inline constexpr int kStrComboUnitCases = 24025;
inline constexpr int kStrComboGenerateStd = 24026;
inline constexpr int kStrItemLabel = 24030;
inline constexpr int kStrItemPDelta = 24031;
inline constexpr int kStrItemSteelDesign = 24032;
inline constexpr int kStrItemTotalDeflection = 24033;
inline constexpr int kStrItemLiveDeflection = 24034;
inline constexpr int kStrItemConcreteDesign = 24035;
inline constexpr int kStrItemSustained = 24036;
inline constexpr int kStrItemSpectrum = 24037;
inline constexpr int kStrStdCode = 24040;
inline constexpr int kStrStdList = 24041;
inline constexpr int kStrStdSelectAll = 24042;
inline constexpr int kStrStdClearAll = 24043;
inline constexpr int kStrStdPDelta = 24044;

}  // namespace res
