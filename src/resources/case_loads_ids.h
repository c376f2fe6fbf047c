#pragma once
// Ids of the applied-load grids and the moving and pattern load generators (our range
// 24700 to 24799, inside the loads family's).
namespace res {

// Templates: the ten load grids in the order of caseloadgrid::LoadKind, then the generators.
inline constexpr int kIddNodalLoadData = 24700;
inline constexpr int kIddPointLoadData = 24701;
inline constexpr int kIddLineLoadData = 24702;
inline constexpr int kIddShellLoadData = 24703;
inline constexpr int kIddAreaLoadData = 24704;
inline constexpr int kIddMemberThermalLoadData = 24705;
inline constexpr int kIddShell4ThermalLoadData = 24706;
inline constexpr int kIddBrickThermalLoadData = 24707;
inline constexpr int kIddNodalMassData = 24708;
inline constexpr int kIddCombMassData = 24709;
inline constexpr int kIddMovingLoad = 24710;
inline constexpr int kIddPatternLoad = 24711;

// Controls.
inline constexpr int kCtlLoadDeleteRows = 24720;
inline constexpr int kCtlLoadNote = 24721;
inline constexpr int kCtlGenNote = 24722;
inline constexpr int kCtlGenCaseText = 24723;
inline constexpr int kCtlGenCase = 24724;
inline constexpr int kCtlGenValueText = 24725;
inline constexpr int kCtlGenValue = 24726;
inline constexpr int kCtlGenValueUnit = 24727;
inline constexpr int kCtlGenBiDirectional = 24728;
inline constexpr int kCtlGenCutRows = 24729;

// Strings: captions in template order, then the controls' texts.
inline constexpr int kStrNodalLoadCaption = 24740;
inline constexpr int kStrPointLoadCaption = 24741;
inline constexpr int kStrLineLoadCaption = 24742;
inline constexpr int kStrShellLoadCaption = 24743;
inline constexpr int kStrAreaLoadCaption = 24744;
inline constexpr int kStrMemberThermalCaption = 24745;
inline constexpr int kStrShell4ThermalCaption = 24746;
inline constexpr int kStrBrickThermalCaption = 24747;
inline constexpr int kStrNodalMassCaption = 24748;
inline constexpr int kStrCombMassCaption = 24749;
inline constexpr int kStrMovingLoadCaption = 24750;
inline constexpr int kStrPatternLoadCaption = 24751;
inline constexpr int kStrLoadDeleteRows = 24760;
inline constexpr int kStrAreaNote = 24761;
inline constexpr int kStrCombMassNote = 24762;
inline constexpr int kStrMovingNote = 24763;
inline constexpr int kStrPatternNote = 24764;
inline constexpr int kStrMovingCase = 24765;
inline constexpr int kStrPatternCase = 24766;
inline constexpr int kStrMovingStep = 24767;
inline constexpr int kStrPatternRatio = 24768;
inline constexpr int kStrBiDirectional = 24769;
inline constexpr int kStrCutRows = 24770;
inline constexpr int kStrNodalMassNote = 24771;

}  // namespace res
