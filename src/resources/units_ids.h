#pragma once
// Control and string ids of the units dialogs.
namespace res {

inline constexpr int kIddUnits = 3135;
inline constexpr int kStrUnitsCaption = 1486;

// CUnitsDlg: one row per quantity q (0 to 17) of label, unit list, precision list, check.
inline constexpr int kCtlUnitsLabel = 21100;
inline constexpr int kCtlUnitsUnit = 21120;
inline constexpr int kCtlUnitsPrecision = 21140;
inline constexpr int kCtlUnitsConvert = 21160;
inline constexpr int kStrUnitsQuantity = 21000;  // + q
inline constexpr int kCtlUnitsCheckAll = 3336;
inline constexpr int kCtlUnitsClearAll = 3011;
inline constexpr int kCtlUnitsDefaultEnglish = 3348;
inline constexpr int kCtlUnitsDefaultMetric = 3349;
inline constexpr int kCtlUnitsConsistentEnglish = 3357;
inline constexpr int kCtlUnitsConsistentMetric = 3358;
inline constexpr int kCtlUnitsSaveDefaults = 3350;
inline constexpr int kStrUnitsCheckAll = 21020;

// CUnitConversionDlg
inline constexpr int kIddUnitConversion = 8097;
inline constexpr int kStrUnitConversionCaption = 1518;
inline constexpr int kCtlConvType = 3410;
inline constexpr int kCtlConvFrom = 3409;
inline constexpr int kCtlConvTo = 3214;
inline constexpr int kCtlConvValue = 3210;
inline constexpr int kCtlConvResult = 3211;

}  // namespace res
