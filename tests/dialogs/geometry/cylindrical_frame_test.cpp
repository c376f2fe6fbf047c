#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "dialogs/geometry/cylindrical_frame.h"
#include "model/document.h"

namespace {

using namespace geometry;

// Whole strings: assigning short literals to the members trips a false -Wrestrict of GCC 12.
CylindricalFrameParameters Params(const std::string& radial, const std::string& angles, const std::string& axial,
                                  int supports = 0) {
  CylindricalFrameParameters p;
  p.radialList = radial;
  p.angleList = angles;
  p.axialList = axial;
  p.supports = supports;
  return p;
}

CylindricalFrame Generate(const CylindricalFrameParameters& p, uint32_t firstNode = 1, uint32_t firstMember = 1) {
  const CylindricalFrameResult r = GenerateCylindricalFrame(p, firstNode, firstMember);
  EXPECT_TRUE(r.ok()) << r.error;
  return r.frame;
}

TEST(CylinderCheck, AcceptsAndRefusesListsInTheDialogsOrder) {
  const struct {
    const char *radial, *angles, *axial, *message;  // message empty: accepted
    CylinderList list;
  } cases[] = {
      {"20,10", "2@30", "", "", CylinderList::None},  // the leading 0 is put in place
      {"20,10", "0", "", kInvalidAngleIncrements, CylinderList::Angle},
      {"20,10", "0, 30, 0", "", kZeroAngleIncrement, CylinderList::Angle},
      {"20,10", "0, 4@90", "", "", CylinderList::None},
      {"20,10", "0, 360", "", kClosedFrameNeedsTwoIncrements, CylinderList::Angle},
      {"20,10", "0, 180, 180.0000001", "", "", CylinderList::None},  // within the tolerance: closed
      {"20,10", "0, 180, 180.000001", "", kTotalAngleAbove360, CylinderList::Angle},
      {"20,10", "2@-10", "", kNegativeAngleIncrement, CylinderList::Angle},
      {"0", "0, 2@30", "", "", CylinderList::None},
      {"-5, 10", "0, 2@30", "", kNegativeRadialDistance, CylinderList::Radial},
      {"20,10", "0, 2@30", "", "", CylinderList::None},  // an empty axial list: one level
      {"20,10", "0, 2@30", "2@-10", "", CylinderList::None},  // levels below the base are allowed
      {"1e308, 1e308", "0, 90", "", kRadiusTooLarge, CylinderList::Radial},  // finite values, infinite sum
      {"10", "0, 90", "1e308, 1e308", kLevelTooLarge, CylinderList::Axial},
      {"10", "3@", "", "Angle increment list: \"3@\" (item 1) has no value after @", CylinderList::Angle},
      {"100@1", "0, 100@1", "100@1",
       "The cylindrical frame would have 1020100 nodes; at most 1000000 can be generated at once", CylinderList::None},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.radial) + " | " + c.angles + " | " + c.axial);
    const CylinderCheck check = CheckCylindricalFrameLists(c.radial, c.angles, c.axial);
    EXPECT_EQ(check.message, c.message);
    EXPECT_EQ(check.list, c.list);
  }

  const struct { const char* angles; std::vector<double> expected; bool closed; } angles[] = {
      {"2@30", {0, 30, 30}, false}, {"0, 4@90", {0, 90, 90, 90, 90}, true},
      {"0, 180, 180.0000001", {0, 180, 180.0000001}, true}};
  for (const auto& c : angles) {
    const CylinderCheck check = CheckCylindricalFrameLists("10", c.angles, "");
    ASSERT_TRUE(check.ok()) << c.angles << ": " << check.message;
    EXPECT_TRUE(check.angles == c.expected && check.closed == c.closed) << c.angles;
  }
}

TEST(CylindricalFrame, CountsNodesMembersAndSupports) {
  const struct {
    const char *radial, *angles, *axial;
    int supports;
    size_t nodes, memberCount, supportCount;
    bool closed;
  } cases[] = {
      {"20,10", "0, 2@30", "", 0, 6, 7, 0, false},        // open: 2 ring members per ring, 3 radial
      {"20,10", "0, 4@90", "", 2, 8, 12, 8, true},        // closed: 4 ring members per ring, 4 radial
      {"20,10", "0, 4@90", "12, 3", 1, 24, 52, 8, true},  // 3 x (8 + 4) in the levels, 2 x 8 between
      {"0, 10", "0, 3@120", "5", 2, 8, 2 * (3 + 3) + 4, 4, true},  // a centre node: spokes, one column each
      {"10", "0, 180, 180", "", 0, 2, 1, 0, true},        // a closed ring of two nodes: one member, not two
      {"10, 0", "0, 90", "0, 5, 0", 0, 4, 1 + 1 + 2, 0, false},  // zero increments merge rings and levels
      {"20,10", "0, 2@30", "10,-10", 1, 12, 2 * 7 + 6, 6, false},  // back to the base: two levels, not three
      // Half turns: a chord through the centre would lie on the spokes; the radial members join.
      {"0, 10, 10", "0, 180, 179.9999996", "", 0, 5, 4, 0, true},
      {"10, 10", "0, 180, 180", "", 0, 4, 1 + 2, 0, true},  // the inner chord crosses no node, the outer would
      {"10", "0, 180, 90", "", 0, 3, 2, 0, false},          // a half-turn chord of a lone ring crosses nothing
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.radial) + " | " + c.angles + " | " + c.axial);
    const CylindricalFrame f = Generate(Params(c.radial, c.angles, c.axial, c.supports));
    EXPECT_EQ(f.nodes.size(), c.nodes);
    EXPECT_EQ(f.members.size(), c.memberCount);
    EXPECT_EQ(f.supports.size(), c.supportCount);
    EXPECT_EQ(f.closed, c.closed);
    // Every member joins two distinct nodes of the frame, no pair twice; no two nodes coincide.
    std::set<uint32_t> ids;
    for (const fmNd& n : f.nodes) ids.insert(n.id);
    std::set<std::pair<uint32_t, uint32_t>> pairs;
    for (const GeneratedMember& m : f.members) {
      EXPECT_TRUE(m.nodeI != m.nodeJ && ids.count(m.nodeI) && ids.count(m.nodeJ)) << m.id;
      EXPECT_TRUE(pairs.insert(std::minmax(m.nodeI, m.nodeJ)).second) << m.nodeI << "-" << m.nodeJ;
    }
    for (size_t i = 0; i < f.nodes.size(); ++i)
      for (size_t j = i + 1; j < f.nodes.size(); ++j) {
        const fmNd &a = f.nodes[i], &b = f.nodes[j];
        EXPECT_GT(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z), 1e-9) << a.id << " and " << b.id << " coincide";
      }
    // No member passes through a node it does not end at (nor so lies along another member).
    const auto at = [&](uint32_t id) { return f.nodes[id - f.nodes.front().id]; };
    for (const GeneratedMember& m : f.members) {
      const fmNd a = at(m.nodeI), b = at(m.nodeJ);
      const double ab[] = {b.x - a.x, b.y - a.y, b.z - a.z}, len2 = ab[0] * ab[0] + ab[1] * ab[1] + ab[2] * ab[2];
      for (const fmNd& n : f.nodes) {
        if (n.id == m.nodeI || n.id == m.nodeJ) continue;
        const double t = ((n.x - a.x) * ab[0] + (n.y - a.y) * ab[1] + (n.z - a.z) * ab[2]) / len2;
        const double off = std::hypot(a.x + t * ab[0] - n.x, a.y + t * ab[1] - n.y, a.z + t * ab[2] - n.z);
        EXPECT_FALSE(t > 0 && t < 1 && off < 1e-6) << "member " << m.id << " passes through node " << n.id;
      }
    }
  }
}

TEST(CylindricalFrame, LevelsBelowTheBaseStackFromTheLowestWhichTakesTheSupports) {
  const CylindricalFrame f = Generate(Params("10", "0, 2@90", "-12, 4", 2));
  ASSERT_EQ(f.nodes.size(), 9u);
  const double levels[] = {-12, -8, 0};
  for (size_t i = 0; i < 9; ++i) EXPECT_EQ(f.nodes[i].y, levels[i / 3]) << i;
  ASSERT_EQ(f.supports.size(), 3u);
  for (const GeneratedSupport& s : f.supports) EXPECT_EQ(f.nodes[s.node - 1].y, -12) << s.node;
}

TEST(CylindricalFrame, PlacesAndNumbersTheNodesAndMembers) {
  CylindricalFrameParameters open;  // the dialog's defaults: rings 20 and 30 at 0, 30, 60 degrees
  open.supports = 1;
  const CylindricalFrame f = Generate(open, 101, 7);
  const double c30 = std::sqrt(3.0) / 2;
  const double at[][3] = {{20, 0, 0}, {20 * c30, 0, -10}, {10, 0, -20 * c30},
                          {30, 0, 0}, {30 * c30, 0, -15}, {15, 0, -30 * c30}};
  ASSERT_EQ(f.nodes.size(), 6u);
  for (size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(f.nodes[i].id, 101 + i);
    EXPECT_NEAR(f.nodes[i].x, at[i][0], 1e-12) << i;
    EXPECT_NEAR(f.nodes[i].y, at[i][1], 1e-12) << i;
    EXPECT_NEAR(f.nodes[i].z, at[i][2], 1e-12) << i;
    EXPECT_FALSE(std::signbit(f.nodes[i].x) && f.nodes[i].x == 0) << "a -0 coordinate";
    // A single level is the base: every node is supported.
    EXPECT_EQ(f.supports.at(i), (GeneratedSupport{101u + uint32_t(i), SupportKind::Pinned}));
  }
  EXPECT_EQ(f.members, (std::vector<GeneratedMember>{{7, 101, 102}, {8, 102, 103}, {9, 104, 105}, {10, 105, 106},
                                                     {11, 101, 104}, {12, 102, 105}, {13, 103, 106}}));
}

TEST(CylindricalFrame, RotatesAboutAGlobalAxisThenMovesToTheInsertionPoint) {
  // Where the local point (10, 5, 0) lands: about X, Y turns to Z; about Y, X to -Z; about Z, X to Y and Y to -X.
  const struct { int axis; double x, y, z; } cases[] = {{0, 10, 0, 5}, {1, 0, 5, -10}, {2, -5, 10, 0}};
  for (const auto& c : cases) {
    CylindricalFrameParameters p = Params("10", "0, 90", "5");
    p.rotationAxis = c.axis;
    p.rotationAngle = 90;
    p.insertX = 100, p.insertY = 200, p.insertZ = 300;
    const CylindricalFrame f = Generate(p);
    ASSERT_EQ(f.nodes.size(), 4u);
    const fmNd& n = f.nodes[2];  // level 1, angle 0
    EXPECT_NEAR(n.x, 100 + c.x, 1e-12) << c.axis;
    EXPECT_NEAR(n.y, 200 + c.y, 1e-12) << c.axis;
    EXPECT_NEAR(n.z, 300 + c.z, 1e-12) << c.axis;
  }
}

TEST(CylindricalFrame, RefusesWhatItCannotBuild) {
  CylindricalFrameParameters axis, supports, nan, huge = Params("1e308", "0, 90", "");
  axis.rotationAxis = 3;
  supports.supports = -1;
  nan.insertX = std::nan("");
  huge.insertX = 1e308;  // the ring at x = 1e308 moved by 1e308 more
  const std::pair<CylindricalFrameParameters, std::string> cases[] = {
      {Params("20,10", "0, 200, 200", ""), kTotalAngleAbove360},
      {axis, "Invalid rotation axis 3 (0 global X, 1 global Y, 2 global Z)"},
      {supports, "Invalid support kind -1 (0 none, 1 pinned, 2 fixed)"},
      {nan, "Insertion point and rotation angle must be finite numbers"},
      {huge, kCoordinatesTooLarge},
  };
  for (const auto& [p, error] : cases) EXPECT_EQ(GenerateCylindricalFrame(p, 1, 1).error, error);
  const auto full = GenerateCylindricalFrame({}, 2147483642u, 1);  // 6 nodes end at 2147483647
  EXPECT_TRUE(full.ok() && full.frame.nodes.back().id == 2147483647u);
  EXPECT_EQ(GenerateCylindricalFrame({}, 2147483643u, 1).error, kIdsUsedUp);
}

// Ids out of order; the first section is the rigid link, which generated members must not get.
model::ModelDocument SmallModel() {
  model::ModelDocument doc;
  doc.nodes = {{12, 0, 0, 0, 0}, {5, 0, 1, 0, 0}};
  doc.members = {{{30, 0, 2}, {12, 5}, 1, 0, fmNonlinear::Linear}, {{7, 0, 1}, {5, 12}, 3, 0, fmNonlinear::Linear}};
  doc.supports = {fmSupport::Pinned(5)};
  doc.materials = {fmMat(1), fmMat(2)};
  doc.sections = {fmSect(1), fmSect(2), fmSect(3)};
  doc.sections[0].label = "rigid_link";
  return doc;
}

TEST(CylindricalFrameInModel, AppendsAfterTheHighestIdsWithMaterialSectionAndBaseSupports) {
  const struct { const char *angles, *axial; int supports; size_t nodes, memberCount, supportCount; } cases[] = {
      {"0, 4@90", "5", 2, 8, 12, 4}, {"0, 2@30", "12, 3", 1, 9, 12, 3}};  // closed with a fixed base; open, pinned
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.angles) + " | " + c.axial);
    const model::ModelDocument before = SmallModel();
    model::ModelDocument doc = before;
    CylindricalFrameParameters p = Params("10", c.angles, c.axial, c.supports);
    p.insertY = 2;  // the base level lies at y = 2
    ASSERT_TRUE(AddCylindricalFrameToDocument(doc, p).ok());
    // What was there stays in front; the new records follow, numbered after the highest ids.
    ASSERT_EQ(doc.nodes.size(), 2 + c.nodes);
    ASSERT_EQ(doc.members.size(), 2 + c.memberCount);
    ASSERT_EQ(doc.supports.size(), 1 + c.supportCount);
    EXPECT_TRUE(std::equal(before.nodes.begin(), before.nodes.end(), doc.nodes.begin()) &&
                std::equal(before.members.begin(), before.members.end(), doc.members.begin()) &&
                doc.supports[0] == before.supports[0]);
    std::set<uint32_t> base, supported;
    for (size_t i = 0; i < c.nodes; ++i) {
      EXPECT_EQ(doc.nodes[2 + i].id, 13u + i);
      if (doc.nodes[2 + i].y == 2.0) base.insert(doc.nodes[2 + i].id);
    }
    for (size_t i = 0; i < c.memberCount; ++i) {
      const fmBm& m = doc.members[2 + i];
      EXPECT_EQ(m.id, 31u + i);
      EXPECT_TRUE(m.nodes[0] >= 13 && m.nodes[1] >= 13) << m.id;
      EXPECT_TRUE(m.mat == 1 && m.sect == 2) << m.id << ": the first material, the first section not the rigid link";
    }
    for (size_t i = 1; i < doc.supports.size(); ++i) {
      supported.insert(doc.supports[i].node);
      EXPECT_TRUE(c.supports == 2 ? doc.supports[i].IsFixed() : doc.supports[i].IsPinned());
    }
    EXPECT_EQ(supported, base);
  }
}

TEST(CylindricalFrameInModel, RefusalsLeaveTheModelUntouched) {
  const struct { const char* angles; uint32_t highestNode, highestMember; const char* error; } cases[] = {
      {"0, 360", 12, 30, kClosedFrameNeedsTwoIncrements}, {"0, 4@90", 2147483647u, 30, kIdsUsedUp},
      {"0, 4@90", 12, 2147483635u, ""}};  // the last member takes the highest id there is
  for (const auto& c : cases) {
    model::ModelDocument doc = SmallModel();
    doc.nodes[0].id = c.highestNode;
    doc.members[0].id = c.highestMember;
    const model::ModelDocument before = doc;
    EXPECT_EQ(AddCylindricalFrameToDocument(doc, Params("20,10", c.angles, "", 2)).error, c.error)
        << c.angles << " " << c.highestMember;
    if (*c.error)
      EXPECT_TRUE(doc.nodes == before.nodes && doc.members == before.members && doc.supports == before.supports);
    else EXPECT_EQ(doc.members.back().id, 2147483647u);
  }
}

}  // namespace
