#pragma once
// Ids of the section, thickness, material and shape-database dialogs (our range 26500-26999;
// 26000-26499 belongs to the other design dialogs).
namespace res {

// Templates.
inline constexpr int kIddSection = 26500;
inline constexpr int kIddThick = 26501;
inline constexpr int kIddRegularSection = 26502;
inline constexpr int kIddAiscData = 26503;
inline constexpr int kIddNdsData = 26504;
inline constexpr int kIddMaterial = 26505;
inline constexpr int kIddMaterialRc = 26506;
inline constexpr int kIddMaterialSteel = 26507;
inline constexpr int kIddStandardMaterial = 26508;

// CRegularSectionDlg.
inline constexpr int kCtlRegUnit = 26609;
inline constexpr int kCtlRegPicture = 26610;

// CSectionDlg.
inline constexpr int kCtlSecRegular = 26620;
inline constexpr int kCtlSecAisc = 26621;
inline constexpr int kCtlSecNds = 26622;
inline constexpr int kCtlSecRigidLink = 26623;
inline constexpr int kCtlSecExportAisc = 26624;
inline constexpr int kCtlSecImportAisc = 26625;
inline constexpr int kCtlSecAssign = 26626;

// CMaterialDlg.
inline constexpr int kCtlMatStandard = 26630;
inline constexpr int kCtlMatAssign = 26631;

// The shape browsers (CAiscDataDlg, CNdsDataDlg).
inline constexpr int kCtlShapeType = 26650;
inline constexpr int kCtlShapeFind = 26651;
inline constexpr int kCtlShapeList = 26652;
inline constexpr int kCtlShapeProperties = 26653;
inline constexpr int kCtlShapePicture = 26654;
inline constexpr int kCtlShapeCount = 26657;

// Strings.

inline constexpr int kStrRegWidth = 26755;
inline constexpr int kStrRegDepth = 26756;
inline constexpr int kStrRegDiameter = 26757;
inline constexpr int kStrRegFlangeWidth = 26758;
inline constexpr int kStrRegFlangeThickness = 26759;
inline constexpr int kStrRegWebThickness = 26770;
inline constexpr int kStrRegPictureHint = 26771;
inline constexpr int kStrShapeAllTypes = 26763;
inline constexpr int kStrLumberBoards = 26764;
inline constexpr int kStrLumberDimension = 26765;
inline constexpr int kStrLumberTimbers = 26766;

}  // namespace res
