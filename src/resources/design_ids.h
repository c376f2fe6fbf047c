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

// The steel beam-column check: 26200 to 26299.
inline constexpr int kIddSteelBeamColumnCheck = 26200;

inline constexpr int kStrSteelCheckCaption = 26201;
inline constexpr int kStrSteelCode = 26202;
inline constexpr int kStrSteelCodeAisc360 = 26203;
inline constexpr int kStrSteelSection = 26204;
inline constexpr int kStrSteelAiscTable = 26205;
inline constexpr int kStrSteelFy = 26206;
inline constexpr int kStrSteelLength = 26207;
inline constexpr int kStrSteelLb = 26208;
inline constexpr int kStrSteelCb = 26209;
inline constexpr int kStrSteelLux = 26210;
inline constexpr int kStrSteelLuy = 26211;
inline constexpr int kStrSteelLuz = 26212;
inline constexpr int kStrSteelKx = 26213;
inline constexpr int kStrSteelKy = 26214;
inline constexpr int kStrSteelKz = 26215;
inline constexpr int kStrSteelConnector = 26216;
inline constexpr int kStrSteelMagnify = 26217;
inline constexpr int kStrSteelDirect = 26218;
inline constexpr int kStrSteelCompute = 26219;
inline constexpr int kStrSteelShowProcedure = 26220;
inline constexpr int kStrSteelClose = 26221;

inline constexpr int kCtlSteelCodeLabel = 26230;
inline constexpr int kCtlSteelCode = 26231;
inline constexpr int kCtlSteelSectionLabel = 26232;
inline constexpr int kCtlSteelSection = 26233;
inline constexpr int kCtlSteelAiscTable = 26234;
inline constexpr int kCtlSteelFyLabel = 26235;
inline constexpr int kCtlSteelFy = 26236;
inline constexpr int kCtlSteelLengthLabel = 26237;
inline constexpr int kCtlSteelLength = 26238;
inline constexpr int kCtlSteelLbLabel = 26239;
inline constexpr int kCtlSteelLb = 26240;
inline constexpr int kCtlSteelCbLabel = 26241;
inline constexpr int kCtlSteelCb = 26242;
inline constexpr int kCtlSteelLuxLabel = 26243;
inline constexpr int kCtlSteelLux = 26244;
inline constexpr int kCtlSteelLuyLabel = 26245;
inline constexpr int kCtlSteelLuy = 26246;
inline constexpr int kCtlSteelLuzLabel = 26247;
inline constexpr int kCtlSteelLuz = 26248;
inline constexpr int kCtlSteelKxLabel = 26249;
inline constexpr int kCtlSteelKx = 26250;
inline constexpr int kCtlSteelKyLabel = 26251;
inline constexpr int kCtlSteelKy = 26252;
inline constexpr int kCtlSteelKzLabel = 26253;
inline constexpr int kCtlSteelKz = 26254;
inline constexpr int kCtlSteelConnectorLabel = 26255;
inline constexpr int kCtlSteelConnector = 26256;
inline constexpr int kCtlSteelMagnify = 26257;
inline constexpr int kCtlSteelDirect = 26258;
inline constexpr int kCtlSteelGridPlaceholder = 26259;
inline constexpr int kCtlSteelGrid = 26260;
inline constexpr int kCtlSteelShowProcedure = 26261;

}  // namespace res
