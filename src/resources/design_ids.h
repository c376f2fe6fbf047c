#pragma once
// Ids of the effective length factor calculator. The design family's own ids use 26000 to
// 26499; 26500 and above belong to the section and material dialogs.
namespace res {

inline constexpr int kIddComputeK = 26000;

inline constexpr int kStrComputeKCaption = 26001;
inline constexpr int kStrBracedK = 26002;
inline constexpr int kStrUnbracedK = 26003;
inline constexpr int kStrColumnTop = 26004;
inline constexpr int kStrColumnBottom = 26005;
inline constexpr int kStrStiffnessRatios = 26006;
inline constexpr int kStrCompute = 26007;
inline constexpr int kStrComputeKClose = 26008;
inline constexpr int kStrNoRoot = 26009;
inline constexpr int kStrChartBraced = 26010;
inline constexpr int kStrChartUnbraced = 26011;
inline constexpr int kStrChartNoRootBetween = 26012;
inline constexpr int kStrChartUndefined = 26013;
inline constexpr int kStrChartAxisK = 26014;
inline constexpr int kStrChartAxisF = 26015;
inline constexpr int kStrChartPressCompute = 26016;
inline constexpr int kStrChartAnd = 26017;

inline constexpr int kCtlStiffnessGroup = 26100;
inline constexpr int kCtlColumnTopLabel = 26101;
inline constexpr int kCtlGA = 26102;
inline constexpr int kCtlColumnBottomLabel = 26103;
inline constexpr int kCtlGB = 26104;
inline constexpr int kCtlBracedKLabel = 26105;
inline constexpr int kCtlBracedK = 26106;
inline constexpr int kCtlUnbracedKLabel = 26107;
inline constexpr int kCtlUnbracedK = 26108;
inline constexpr int kCtlCompute = 26109;
inline constexpr int kCtlKChart = 26110;

}  // namespace res
