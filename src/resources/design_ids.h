#pragma once
// Ids of the effective length factor calculator. The design family's own ids use 26000 to
// 26499; 26500 and above belong to the section and material dialogs.
namespace res {

inline constexpr int kIddComputeK = 26000;

inline constexpr int kStrBracedK = 26002;
inline constexpr int kStrUnbracedK = 26003;
inline constexpr int kStrNoRoot = 26009;
inline constexpr int kStrChartBraced = 26010;
inline constexpr int kStrChartUnbraced = 26011;
inline constexpr int kStrChartNoRootBetween = 26012;
inline constexpr int kStrChartUndefined = 26013;
inline constexpr int kStrChartAxisK = 26014;
inline constexpr int kStrChartAxisF = 26015;
inline constexpr int kStrChartPressCompute = 26016;
inline constexpr int kStrChartAnd = 26017;

inline constexpr int kCtlBracedK = 26106;
inline constexpr int kCtlUnbracedK = 26108;
inline constexpr int kCtlCompute = 26109;
inline constexpr int kCtlKChart = 26110;

// The steel beam-column check: 26200 to 26299.
inline constexpr int kIddSteelBeamColumnCheck = 26200;

inline constexpr int kCtlSteelAiscTable = 26234;
inline constexpr int kCtlSteelGridPlaceholder = 26259;
inline constexpr int kCtlSteelGrid = 26260;
inline constexpr int kCtlSteelShowProcedure = 26261;

}  // namespace res
