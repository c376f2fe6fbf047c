#pragma once
// Control and string ids of the units dialogs.
namespace res {

inline constexpr int kIddUnits = 3135;

// CUnitsDlg: one row per quantity q (0 to 17) of label, unit list, precision list, check.
inline constexpr int kCtlUnitsLabel = 21100;
inline constexpr int kCtlUnitsUnit = 21120;
inline constexpr int kCtlUnitsPrecision = 21140;
inline constexpr int kCtlUnitsConvert = 21160;
inline constexpr int kCtlUnitsInstruction = 21180;
inline constexpr int kCtlUnitsHeadUnit = 21181;
inline constexpr int kCtlUnitsHeadPrecision = 21182;
inline constexpr int kCtlUnitsHeadConvert = 21183;
inline constexpr int kCtlUnitsCheckAll = 3336;
inline constexpr int kCtlUnitsClearAll = 3011;
inline constexpr int kCtlUnitsDefaultEnglish = 3348;
inline constexpr int kCtlUnitsDefaultMetric = 3349;
inline constexpr int kCtlUnitsConsistentEnglish = 3357;
inline constexpr int kCtlUnitsConsistentMetric = 3358;
inline constexpr int kCtlUnitsSaveDefaults = 3350;

inline constexpr int kStrUnitsQuantity = 21000;  // + q
inline constexpr int kStrUnitsCheckAll = 21020;
inline constexpr int kStrUnitsClearAll = 21021;
inline constexpr int kStrUnitsDefaultEnglish = 21022;
inline constexpr int kStrUnitsDefaultMetric = 21023;
inline constexpr int kStrUnitsConsistentEnglish = 21024;
inline constexpr int kStrUnitsConsistentMetric = 21025;
inline constexpr int kStrUnitsInstruction = 21026;
inline constexpr int kStrUnitsSaveDefaults = 21027;
inline constexpr int kStrUnitsHeadUnit = 21028;
inline constexpr int kStrUnitsHeadPrecision = 21029;
inline constexpr int kStrUnitsHeadConvert = 21030;

// CUnitConversionDlg
inline constexpr int kIddUnitConversion = 8097;
inline constexpr int kCtlConvType = 3410;
inline constexpr int kCtlConvFrom = 3409;
inline constexpr int kCtlConvTo = 3214;
inline constexpr int kCtlConvValue = 3210;
inline constexpr int kCtlConvResult = 3211;

}  // namespace res
