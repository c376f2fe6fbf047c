#pragma once
// Template ids of the boundary and connection grids (our range 23100 to 23199, inside the
// model family's); their controls and texts come from their descriptions.
namespace res {

inline constexpr int kIddSuptData = 23100;
inline constexpr int kIddSpringData = 23101;
inline constexpr int kIddCoupledSpringData = 23102;
inline constexpr int kIddMomentReleasesData = 23103;
inline constexpr int kIddMultiDofConstraintData = 23104;
inline constexpr int kIddDiaphragmData = 23105;
inline constexpr int kIddDriftNodeData = 23106;

}  // namespace res
