#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/fm_node.h"

namespace model {
struct ModelDocument;
}

// The cylindrical frame generator: checks the three lists as the dialog does on OK, and
// builds the nodes, members and supports that the host adds to its model.
//
// Geometry. The lists are increments: ring radii are the running sums of the radial list
// (a first 0 is the centre), angles the running sums of the angle list (always starting
// at 0), levels the base level 0 and the running sums of the axis-direction list, which may
// step below the base or back to a level already made (equal levels are one level).
// In the cylinder's own axes a node lies at (r cos a, y, -r sin a): angles turn about +Y by
// the right-hand rule, starting on +X. The frame is then turned about the chosen global
// axis (right-hand rule, degrees) about its base centre and moved to the insertion point.
namespace geometry {

inline constexpr const char* kInvalidRadialList = "Invalid radial distance list";
inline constexpr const char* kNegativeRadialDistance = "Radial distance may not be negative";
inline constexpr const char* kInvalidAngleIncrements = "Invalid angle increment(s)";
inline constexpr const char* kNegativeAngleIncrement = "Angle increment may not be negative";
inline constexpr const char* kZeroAngleIncrement = "Angle increment other than the first may not be 0";
inline constexpr const char* kClosedFrameNeedsTwoIncrements =
    "Closed cylindrical frame must have at least two angle increments (excluding 0 start angle)";
inline constexpr const char* kTotalAngleAbove360 = "Total angle may not be greater than 360 degrees";
inline constexpr const char* kRadiusTooLarge = "The radial distances add up to more than a number can hold";
inline constexpr const char* kLevelTooLarge = "The Y direction distances add up to more than a number can hold";
inline constexpr const char* kCoordinatesTooLarge =
    "The frame's coordinates would be larger than a number can hold; use smaller distances or insertion point";

inline constexpr const char* kIdsUsedUp = "The new nodes and members cannot be numbered: ids would pass 2147483647";

// One generation may make at most this many nodes.
inline constexpr size_t kMaxGeneratedNodes = 1000000;

enum class CylinderList { None, Radial, Angle, Axial };

struct CylinderCheck {
  std::string message;                  // empty when the lists are accepted
  CylinderList list = CylinderList::None;  // the list the message is about
  std::vector<double> radial, angles, axial;  // angles with the leading 0 in place
  bool closed = false;                  // the angles add up to a full turn
  bool ok() const { return message.empty(); }
};

// The dialog's checks on OK, in its order: parse the three lists; radial list empty or
// negative; the leading 0 put in front of the angles; fewer than two angle values; a
// negative or (after the first) zero angle; a closed frame (total 360 within 5e-7) with
// fewer than two increments; a total above 360. The axis-direction list is parsed but not
// checked further. Then the generator's own: ring radii or levels that are not finite numbers
// once summed, and a frame of more than kMaxGeneratedNodes nodes.
CylinderCheck CheckCylindricalFrameLists(std::string_view radialList, std::string_view angleList,
                                         std::string_view axialList);

enum class SupportKind : int { None = 0, Pinned = 1, Fixed = 2 };

struct CylindricalFrameParameters {
  std::string radialList = "20,10";
  std::string angleList = "0, 2@30";
  std::string axialList;
  double insertX = 0, insertY = 0, insertZ = 0;
  int rotationAxis = 0;  // 0 global X, 1 global Y, 2 global Z
  double rotationAngle = 0;  // degrees
  int supports = 0;      // SupportKind
  bool generateMembers = true;
};

struct GeneratedMember {
  uint32_t id;
  uint32_t nodeI, nodeJ;
  bool operator==(const GeneratedMember&) const = default;
};

struct GeneratedSupport {
  uint32_t node;
  SupportKind kind;
  bool operator==(const GeneratedSupport&) const = default;
};

struct CylindricalFrame {
  std::vector<fmNd> nodes;
  std::vector<GeneratedMember> members;
  std::vector<GeneratedSupport> supports;
  bool closed = false;
  size_t levels = 0, rings = 0, angles = 0;  // distinct levels, rings (the centre counts) and angles
};

struct CylindricalFrameResult {
  std::string error;  // empty on success
  CylindricalFrame frame;
  // Added to a document: the material and section references its members got (0: none).
  int32_t material = 0, section = 0;
  bool ok() const { return error.empty(); }
};

// Nodes are numbered from firstNodeId and members from firstMemberId, level by level from
// the lowest; within a level the centre node first, then ring by ring outwards, each ring in
// angle order. Members of a level (along each ring, closing it on a full turn, then radially
// outwards at each angle) come before the members that join it to the level below. No member
// coincides with another or passes through a node: a ring member of half a turn would run
// through the centre, so only the innermost ring of a frame without a centre node has one.
// With supports, every node of the lowest level gets one.
CylindricalFrameResult GenerateCylindricalFrame(const CylindricalFrameParameters& p, uint32_t firstNodeId,
                                                uint32_t firstMemberId);

// Generates into a model, all or nothing: the model is untouched when the parameters are
// refused or the new ids would pass kMaxId (2147483647).
// - Nodes are numbered after the model's highest node id and members after its highest
//   member id, and appended to `nodes` and `members`.
// - Every member takes the model's first material (reference 1) and its first section that
//   is not the rigid link, so the frame can be analysed as generated and changed in the
//   member table; a model without materials or sections gives 0, none chosen.
// - Pinned (Dx, Dy, Dz) or fixed (all six) supports go to `supports`, one per base node.
CylindricalFrameResult AddCylindricalFrameToDocument(model::ModelDocument& doc, const CylindricalFrameParameters& p);

const char* SupportKindName(SupportKind kind);  // "pinned", "fixed", "none"

}  // namespace geometry
