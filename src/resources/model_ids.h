#pragma once
// Ids of the node and element grid dialogs.
namespace res {

inline constexpr int kCtlRoundOff = 8010;
inline constexpr int kCtlEpsilon = 1299;
inline constexpr int kStrNodeDataCaption = 1170;
inline constexpr int kStrRoundOff = 1557;
inline constexpr int kStrRoundOffTip = 23000;

// The element grids.
inline constexpr int kIddNodeData = 8007;
inline constexpr int kIddBeamData = 23010;
inline constexpr int kIddShell4Data = 23011;
inline constexpr int kIddBrickData = 23012;

}  // namespace res
