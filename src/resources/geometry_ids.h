#pragma once
// Ids of the geometry generators. The system's ids keep their numbers; our own would be 27000
// and above.
namespace res {

// CGenerateCylindricalFrameDlg
inline constexpr int kIddGenerateCylindricalFrame = 8107;
inline constexpr int kCtlRadialListLabel = 1300;
inline constexpr int kCtlAngleListLabel = 1302;
inline constexpr int kCtlRadialUnit = 1303;
inline constexpr int kCtlAxialListLabel = 1304;
inline constexpr int kCtlRadialList = 1306;
inline constexpr int kCtlAngleList = 1307;
inline constexpr int kCtlAxialUnit = 1308;
inline constexpr int kCtlAxialList = 1309;
inline constexpr int kCtlGenerateMembers = 1310;
inline constexpr int kCtlInsertionGroup = 1107;
inline constexpr int kCtlRotationGroup = 1108;
inline constexpr int kCtlAboutGroup = 1109;
inline constexpr int kCtlRotationAngleLabel = 1090;
inline constexpr int kCtlSupports = 3191;
inline constexpr int kCtlInsertX = 3192;
inline constexpr int kCtlInsertY = 3193;
inline constexpr int kCtlInsertZ = 3194;
inline constexpr int kCtlRotationAxis = 3195;
inline constexpr int kCtlRotationAngle = 3197;
inline constexpr int kCtlSupportsLabel = 3206;
inline constexpr int kCtlInsertXUnit = 3362;
inline constexpr int kCtlInsertYUnit = 3363;
inline constexpr int kCtlInsertZUnit = 3364;

inline constexpr int kStrGenerateCylindricalFrame = 1561;
inline constexpr int kStrRadialList = 1562;
inline constexpr int kStrAngleList = 1563;
inline constexpr int kStrAxialList = 1564;
inline constexpr int kStrInsertionPoint = 1261;
inline constexpr int kStrRotation = 1262;
inline constexpr int kStrRotationAbout = 1263;
inline constexpr int kStrRotationAngle = 1228;
inline constexpr int kStrSupportsAtBottom = 1269;
inline constexpr int kStrGenerateMembers = 1560;

}  // namespace res
