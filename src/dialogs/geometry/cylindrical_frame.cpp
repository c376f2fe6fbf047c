#include "dialogs/geometry/cylindrical_frame.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "model/document.h"
#include "tools/format.h"
#include "tools/numeric.h"
#include "tools/parse_list.h"

namespace geometry {
namespace {

// Running sums of increments, with sums equal to the previous one (a zero increment)
// merged: coincident rings or levels would only give duplicate nodes.
std::vector<double> DistinctRunningSums(double start, bool keepStart, const std::vector<double>& increments) {
  std::vector<double> sums;
  double sum = start;
  if (keepStart) sums.push_back(sum);
  for (double d : increments) {
    sum += d;
    if (sums.empty() || !tools::is_equal(sum, sums.back())) sums.push_back(sum);
  }
  return sums;
}

// The levels: the base (0) and every running sum of the axis-direction list, lowest first,
// equal ones merged. A list that steps back ("10,-10") returns to a level already made, and
// two frames at one level would only give coincident nodes and members.
std::vector<double> DistinctLevels(const std::vector<double>& increments) {
  std::vector<double> levels = {0.0};
  double sum = 0.0;
  for (double d : increments) levels.push_back(sum += d);
  std::sort(levels.begin(), levels.end());
  std::vector<double> distinct;
  for (double y : levels)
    if (distinct.empty() || !tools::is_equal(y, distinct.back())) distinct.push_back(y);
  return distinct;
}

struct Layout {
  std::vector<double> radii;   // distinct ring radii, the centre (0) first when present
  std::vector<double> angles;  // distinct angles in degrees; a full turn's 360 is left out
  std::vector<double> levels;  // distinct distances along the axis, lowest first
  bool centre = false;
  size_t NodesPerLevel() const { return (centre ? 1 : 0) + (radii.size() - (centre ? 1 : 0)) * angles.size(); }
  size_t NodeCount() const { return levels.size() * NodesPerLevel(); }
};

Layout MakeLayout(const CylinderCheck& check) {
  Layout l;
  l.radii = DistinctRunningSums(0.0, false, check.radial);
  l.centre = !l.radii.empty() && tools::is_equal(l.radii.front(), 0.0);
  double sum = 0.0;
  for (size_t i = 0; i < check.angles.size(); ++i) {
    sum += check.angles[i];
    l.angles.push_back(sum);
  }
  if (check.closed) l.angles.pop_back();  // 360 is where the ring started
  l.levels = DistinctLevels(check.axial);
  return l;
}

// Cosine and sine of an angle in degrees, exact at the quarter turns so that a frame at
// 0, 90, 180, 270 degrees gets clean coordinates.
void CosSinDegrees(double degrees, double& c, double& s) {
  double r = std::fmod(degrees, 360.0);
  if (r < 0) r += 360.0;
  if (r == 0.0) {
    c = 1, s = 0;
  } else if (r == 90.0) {
    c = 0, s = 1;
  } else if (r == 180.0) {
    c = -1, s = 0;
  } else if (r == 270.0) {
    c = 0, s = -1;
  } else {
    const double rad = r * std::numbers::pi / 180.0;
    c = std::cos(rad), s = std::sin(rad);
  }
}

std::string ListMessage(const char* listName, const tools::ListError& e) {
  return std::string(listName) + ": " + e.Message();
}

}  // namespace

const char* SupportKindName(SupportKind kind) {
  switch (kind) {
    case SupportKind::Pinned: return "pinned";
    case SupportKind::Fixed: return "fixed";
    case SupportKind::None: break;
  }
  return "none";
}

CylinderCheck CheckCylindricalFrameLists(std::string_view radialList, std::string_view angleList,
                                         std::string_view axialList) {
  CylinderCheck c;
  auto refuse = [&c](CylinderList list, std::string message) {
    c.list = list;
    c.message = std::move(message);
    return c;
  };

  const tools::ListParseResult radial = tools::ParseList(radialList);
  if (!radial.ok()) return refuse(CylinderList::Radial, ListMessage("Radial distance list", *radial.error));
  const tools::ListParseResult angles = tools::ParseList(angleList);
  if (!angles.ok()) return refuse(CylinderList::Angle, ListMessage("Angle increment list", *angles.error));
  const tools::ListParseResult axial = tools::ParseList(axialList);
  if (!axial.ok()) return refuse(CylinderList::Axial, ListMessage("Y direction distance list", *axial.error));
  c.radial = radial.values;
  c.angles = angles.values;
  c.axial = axial.values;

  if (c.radial.empty()) return refuse(CylinderList::Radial, kInvalidRadialList);
  for (double r : c.radial)
    if (r < 0) return refuse(CylinderList::Radial, kNegativeRadialDistance);

  if (!c.angles.empty() && c.angles.front() != 0.0) c.angles.insert(c.angles.begin(), 0.0);
  if (c.angles.size() < 2) return refuse(CylinderList::Angle, kInvalidAngleIncrements);
  double total = 0;
  for (size_t i = 0; i < c.angles.size(); ++i) {
    if (c.angles[i] < 0) return refuse(CylinderList::Angle, kNegativeAngleIncrement);
    if (c.angles[i] == 0.0 && i > 0) return refuse(CylinderList::Angle, kZeroAngleIncrement);
    total += c.angles[i];
  }
  if (tools::is_equal(total, 360.0)) {
    c.closed = true;
    if (c.angles.size() < 3) return refuse(CylinderList::Angle, kClosedFrameNeedsTwoIncrements);
  } else if (total > 360.0) {
    return refuse(CylinderList::Angle, kTotalAngleAbove360);
  }

  // Each value is finite, but their running sums may not be.
  const Layout layout = MakeLayout(c);
  if (!layout.radii.empty() && !std::isfinite(layout.radii.back())) return refuse(CylinderList::Radial, kRadiusTooLarge);
  if (!std::isfinite(layout.levels.front()) || !std::isfinite(layout.levels.back()))
    return refuse(CylinderList::Axial, kLevelTooLarge);

  const size_t nodes = layout.NodeCount();
  if (nodes > kMaxGeneratedNodes)
    return refuse(CylinderList::None,
                  tools::Format("The cylindrical frame would have %zu nodes; at most %zu can be generated at once",
                                nodes, kMaxGeneratedNodes));
  return c;
}

CylindricalFrameResult GenerateCylindricalFrame(const CylindricalFrameParameters& p, uint32_t firstNodeId,
                                                uint32_t firstMemberId) {
  CylindricalFrameResult result;
  const CylinderCheck check = CheckCylindricalFrameLists(p.radialList, p.angleList, p.axialList);
  if (!check.ok()) {
    result.error = check.message;
    return result;
  }
  if (p.rotationAxis < 0 || p.rotationAxis > 2) {
    result.error = tools::Format("Invalid rotation axis %d (0 global X, 1 global Y, 2 global Z)", p.rotationAxis);
    return result;
  }
  if (p.supports < 0 || p.supports > 2) {
    result.error = tools::Format("Invalid support kind %d (0 none, 1 pinned, 2 fixed)", p.supports);
    return result;
  }
  if (!std::isfinite(p.insertX) || !std::isfinite(p.insertY) || !std::isfinite(p.insertZ) ||
      !std::isfinite(p.rotationAngle)) {
    result.error = "Insertion point and rotation angle must be finite numbers";
    return result;
  }

  const Layout l = MakeLayout(check);
  const size_t perLevel = l.NodesPerLevel();
  const size_t nodeCount = l.NodeCount();
  const size_t ringCount = l.radii.size() - (l.centre ? 1 : 0);
  const size_t angleCount = l.angles.size();
  // Along each ring from angle to angle (one member only when a closed ring has two nodes).
  std::vector<std::pair<size_t, size_t>> chords;
  for (size_t a = 0; a + 1 < angleCount; ++a) chords.emplace_back(a, a + 1);
  if (check.closed && angleCount > 2) chords.emplace_back(angleCount - 1, 0);
  // A chord of half a turn runs through the centre: along the radial members and through the
  // centre node or the nodes of the rings inside it. Only the innermost ring of a frame
  // without a centre node may have it.
  const auto halfTurn = [&](const std::pair<size_t, size_t>& c) {
    double turn = l.angles[c.second] - l.angles[c.first];
    if (turn < 0) turn += 360.0;
    return tools::is_equal(turn, 180.0);
  };
  const size_t halfTurns = static_cast<size_t>(std::count_if(chords.begin(), chords.end(), halfTurn));
  const size_t ringsWithNodesInside = l.centre ? ringCount : ringCount - 1;
  const size_t alongRings = ringCount * chords.size() - ringsWithNodesInside * halfTurns;
  // Then radially at each angle, and between levels at every node.
  const size_t radialPerLevel = (l.radii.size() - 1) * angleCount;
  const size_t memberCount =
      p.generateMembers ? l.levels.size() * (alongRings + radialPerLevel) + (l.levels.size() - 1) * perLevel : 0;
  if (firstNodeId == 0 || firstMemberId == 0 || firstNodeId - 1 + uint64_t{nodeCount} > kMaxId ||
      firstMemberId - 1 + uint64_t{memberCount} > kMaxId) {
    result.error = kIdsUsedUp;
    return result;
  }

  CylindricalFrame& f = result.frame;
  f.closed = check.closed;
  f.levels = l.levels.size();
  f.rings = l.radii.size();
  f.angles = angleCount;

  double cr, sr;
  CosSinDegrees(p.rotationAngle, cr, sr);
  auto place = [&](double x, double y, double z) {
    double gx = x, gy = y, gz = z;
    switch (p.rotationAxis) {
      case 0: gy = cr * y - sr * z, gz = sr * y + cr * z; break;
      case 1: gx = cr * x + sr * z, gz = -sr * x + cr * z; break;
      case 2: gx = cr * x - sr * y, gy = sr * x + cr * y; break;
    }
    fmNd n;
    n.id = firstNodeId + static_cast<uint32_t>(f.nodes.size());
    // Adding 0 turns a -0 into 0, which a grid would otherwise print as "-0".
    n.x = gx + p.insertX + 0.0;
    n.y = gy + p.insertY + 0.0;
    n.z = gz + p.insertZ + 0.0;
    f.nodes.push_back(n);
  };

  std::vector<double> cosA(angleCount), sinA(angleCount);
  for (size_t a = 0; a < angleCount; ++a) CosSinDegrees(l.angles[a], cosA[a], sinA[a]);

  f.nodes.reserve(nodeCount);
  for (double y : l.levels) {
    if (l.centre) place(0.0, y, 0.0);
    for (size_t r = l.centre ? 1 : 0; r < l.radii.size(); ++r)
      for (size_t a = 0; a < angleCount; ++a) place(l.radii[r] * cosA[a], y, -l.radii[r] * sinA[a]);
  }
  // Turning and moving finite rings can still leave the range of a double.
  for (const fmNd& n : f.nodes)
    if (!std::isfinite(n.x) || !std::isfinite(n.y) || !std::isfinite(n.z)) {
      result.error = kCoordinatesTooLarge;
      result.frame = {};
      return result;
    }

  // Node id of (level, ring, angle); the centre has one node for every angle.
  auto node = [&](size_t level, size_t ring, size_t angle) {
    size_t index = level * perLevel;
    if (l.centre) index += ring == 0 ? 0 : 1 + (ring - 1) * angleCount + angle;
    else index += ring * angleCount + angle;
    return firstNodeId + static_cast<uint32_t>(index);
  };
  auto join = [&f, firstMemberId](uint32_t i, uint32_t j) {
    f.members.push_back({firstMemberId + static_cast<uint32_t>(f.members.size()), i, j});
  };

  if (p.generateMembers) {
    f.members.reserve(memberCount);
    const size_t firstRing = l.centre ? 1 : 0;
    for (size_t level = 0; level < l.levels.size(); ++level) {
      for (size_t r = firstRing; r < l.radii.size(); ++r)
        for (const auto& c : chords)
          if (r == 0 || !halfTurn(c)) join(node(level, r, c.first), node(level, r, c.second));
      for (size_t a = 0; a < angleCount; ++a)
        for (size_t r = 0; r + 1 < l.radii.size(); ++r) join(node(level, r, a), node(level, r + 1, a));
      if (level == 0) continue;
      for (size_t i = 0; i < perLevel; ++i)
        join(firstNodeId + static_cast<uint32_t>((level - 1) * perLevel + i),
             firstNodeId + static_cast<uint32_t>(level * perLevel + i));
    }
  }

  const auto kind = static_cast<SupportKind>(p.supports);
  if (kind != SupportKind::None)
    for (size_t i = 0; i < perLevel; ++i) f.supports.push_back({firstNodeId + static_cast<uint32_t>(i), kind});
  return result;
}

CylindricalFrameResult AddCylindricalFrameToDocument(model::ModelDocument& doc, const CylindricalFrameParameters& p) {
  uint32_t highestNode = 0, highestMember = 0;
  for (const fmNd& n : doc.nodes) highestNode = std::max(highestNode, n.id);
  for (const fmBm& m : doc.members) highestMember = std::max(highestMember, m.id);
  if (highestNode >= kMaxId || (p.generateMembers && highestMember >= kMaxId)) {
    CylindricalFrameResult r;
    r.error = kIdsUsedUp;
    return r;
  }
  // Without members the member ids are not used; 1 keeps the generator's check quiet.
  CylindricalFrameResult r =
      GenerateCylindricalFrame(p, highestNode + 1, highestMember >= kMaxId ? 1 : highestMember + 1);
  if (!r.ok()) return r;

  if (!doc.materials.empty()) r.material = 1;
  for (size_t i = 0; i < doc.sections.size(); ++i)
    if (!doc.sections[i].IsRigidLink()) {
      r.section = static_cast<int32_t>(i) + 1;
      break;
    }

  const CylindricalFrame& f = r.frame;
  doc.nodes.insert(doc.nodes.end(), f.nodes.begin(), f.nodes.end());
  doc.members.reserve(doc.members.size() + f.members.size());
  for (const GeneratedMember& g : f.members) {
    fmBm bm;
    bm.id = g.id;
    bm.nodes = {g.nodeI, g.nodeJ};
    bm.mat = r.material;
    bm.sect = r.section;
    doc.members.push_back(bm);
  }
  doc.supports.reserve(doc.supports.size() + f.supports.size());
  for (const GeneratedSupport& g : f.supports)
    doc.supports.push_back(g.kind == SupportKind::Fixed ? fmSupport::Fixed(g.node) : fmSupport::Pinned(g.node));
  return r;
}

}  // namespace geometry
