#pragma once
// Ids of the boundary and connection grids (our range 23100 to 23199, inside the model
// family's).
#include "resources/grid_ids.h"

namespace res {

// Templates.
inline constexpr int kIddSuptData = 23100;
inline constexpr int kIddSpringData = 23101;
inline constexpr int kIddCoupledSpringData = 23102;
inline constexpr int kIddMomentReleasesData = 23103;
inline constexpr int kIddMultiDofConstraintData = 23104;
inline constexpr int kIddDiaphragmData = 23105;
inline constexpr int kIddDriftNodeData = 23106;

// Controls. "Delete Rows" is the grid's own editing action, which a read-only grid disables.
inline constexpr int kCtlDeleteRows = kCtlGridEditAction;
inline constexpr int kCtlBoundaryNote = 23120;
inline constexpr int kCtlSpringTypeText = 23121;
inline constexpr int kCtlSpringType = 23122;

// Strings.
inline constexpr int kStrSuptDataCaption = 23130;
inline constexpr int kStrSpringDataCaption = 23131;
inline constexpr int kStrCoupledSpringDataCaption = 23132;
inline constexpr int kStrMomentReleasesDataCaption = 23133;
inline constexpr int kStrMultiDofConstraintDataCaption = 23134;
inline constexpr int kStrDiaphragmDataCaption = 23135;
inline constexpr int kStrDriftNodeDataCaption = 23136;
inline constexpr int kStrDeleteRows = 23140;
inline constexpr int kStrSpringType = 23141;
inline constexpr int kStrSpringNodal = 23142;
inline constexpr int kStrSpringLine = 23143;
inline constexpr int kStrSpringSurface = 23144;
inline constexpr int kStrSuptNote = 23150;
inline constexpr int kStrSpringNote = 23151;
inline constexpr int kStrCoupledSpringNote = 23152;
inline constexpr int kStrReleasesNote = 23153;
inline constexpr int kStrConstraintNote = 23154;
inline constexpr int kStrDiaphragmNote = 23155;
inline constexpr int kStrDriftNodeNote = 23156;

}  // namespace res
