#pragma once
// Template ids of the applied-load grids and the moving and pattern load generators (our
// range 24700 to 24799, inside the loads family's); their controls and texts come from their
// descriptions.
namespace res {

// The ten load grids in the order of caseloadgrid::LoadKind, then the generators.
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

}  // namespace res
