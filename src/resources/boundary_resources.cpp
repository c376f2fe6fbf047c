// Strings and templates of the boundary and connection grids.
#include "resources/boundary_ids.h"
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrSuptDataCaption, "Supports"},
    {kStrSpringDataCaption, "Springs"},
    {kStrCoupledSpringDataCaption, "Coupled Springs"},
    {kStrMomentReleasesDataCaption, "Member End Releases"},
    {kStrMultiDofConstraintDataCaption, "Multi-DOF Constraints"},
    {kStrDiaphragmDataCaption, "Rigid Diaphragms"},
    {kStrDriftNodeDataCaption, "Drift Nodes"},
    {kStrDeleteRows, "Delete Rows"},
    {kStrSpringType, "Springs of:"},
    {kStrSpringNodal, "Nodes"},
    {kStrSpringLine, "Members (line springs)"},
    {kStrSpringSurface, "Shells (surface springs)"},
    {kStrSuptNote,
     "X ... OZ: Fixed holds the node in that direction (global axes). Dx ... Doz: the displacement a Fixed "
     "direction is given, a settlement; 0 holds it where it is."},
    {kStrSpringNote, "Springs to ground in global axes, one row per node, member or shell; 0 is no spring."},
    {kStrCoupledSpringNote,
     "The upper triangle of the node's symmetric 6x6 stiffness. Terms coupling a translation with a rotation are "
     "forces per radian."},
    {kStrReleasesNote,
     "End forces in the member's local axes. Released: the end does not pass that force on; My and Mz Released pin "
     "the end."},
    {kStrConstraintNote, "The two degrees of freedom of each row move together."},
    {kStrDiaphragmNote,
     "Either a level (Y) or a list of nodes such as 5-9, 12. The floor follows its master node in X, Z and the "
     "rotation about Y."},
    {kStrDriftNodeNote,
     "The drift stack from the bottom up. The first node is measured from the base, the level of the lowest "
     "support."},
};

// The data-grid layout with "Delete Rows" and a note under the grid.
DialogTemplate BoundaryData(int id, int captionId, const char* caption, int noteId, int width = 720) {
  return {id,
          captionId,
          caption,
          {
              {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
              {kCtlBoundaryNote, K::Static, noteId, "", 1, 0, 1, 1, 0, kMultiline},
              {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
              {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
              {kCtlDeleteRows, K::Button, kStrDeleteRows, "Delete Rows", kSide, 2},
              {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
              {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
              {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
              {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
          },
          width,
          420};
}

const DialogTemplate kSuptData = BoundaryData(kIddSuptData, kStrSuptDataCaption, "Supports", kStrSuptNote, 1000);
const DialogTemplate kSpringData = [] {
  DialogTemplate t = BoundaryData(kIddSpringData, kStrSpringDataCaption, "Springs", kStrSpringNote, 900);
  t.controls.push_back({kCtlSpringTypeText, K::Static, kStrSpringType, "Springs of:", kSide, 5});
  t.controls.push_back({kCtlSpringType, K::DropList, 0, "", kSide, 6});
  return t;
}();
const DialogTemplate kCoupledSpringData = BoundaryData(kIddCoupledSpringData, kStrCoupledSpringDataCaption,
                                                       "Coupled Springs", kStrCoupledSpringNote, 1020);
const DialogTemplate kMomentReleasesData = BoundaryData(kIddMomentReleasesData, kStrMomentReleasesDataCaption,
                                                        "Member End Releases", kStrReleasesNote, 1000);
const DialogTemplate kMultiDofConstraintData =
    BoundaryData(kIddMultiDofConstraintData, kStrMultiDofConstraintDataCaption, "Multi-DOF Constraints",
                 kStrConstraintNote, 560);
const DialogTemplate kDiaphragmData =
    BoundaryData(kIddDiaphragmData, kStrDiaphragmDataCaption, "Rigid Diaphragms", kStrDiaphragmNote, 620);
const DialogTemplate kDriftNodeData =
    BoundaryData(kIddDriftNodeData, kStrDriftNodeDataCaption, "Drift Nodes", kStrDriftNodeNote, 420);

const DialogTemplate* const kTemplates[] = {&kSuptData,           &kSpringData,    &kCoupledSpringData,
                                            &kMomentReleasesData, &kMultiDofConstraintData, &kDiaphragmData,
                                            &kDriftNodeData};

}  // namespace

extern const ResourceTable kBoundaryResources = {"boundary", kStrings, kTemplates};

}  // namespace res
