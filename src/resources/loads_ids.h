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

// CLoadComboDlg.
inline constexpr int kCtlComboList = 24110;
inline constexpr int kCtlComboAdd = 24111;
inline constexpr int kCtlComboModify = 24112;
inline constexpr int kCtlComboCopy = 24113;
inline constexpr int kCtlComboDelete = 24114;
inline constexpr int kCtlComboUnitCases = 24115;
inline constexpr int kCtlComboGenerateStd = 24116;

// CStdLoadCombinationDlg (its other fields come from its description).
inline constexpr int kCtlStdList = 24143;
inline constexpr int kCtlStdSelectAll = 24144;
inline constexpr int kCtlStdClearAll = 24145;

}  // namespace res
