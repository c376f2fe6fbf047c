#include <gtest/gtest.h>

#include "analysis/area_loads.h"
#include "analysis/document_analysis.h"
#include "analysis/model.h"
#include "model/document_helpers.h"

using analysis::DistributeAreaLoad;
using analysis::EdgeLoad;

namespace {

using Profile = std::vector<std::pair<double, double>>;

void ExpectProfile(const Profile& got, const Profile& want) {
  ASSERT_EQ(got.size(), want.size());
  for (size_t i = 0; i < got.size(); ++i) {
    EXPECT_NEAR(got[i].first, want[i].first, 1e-12) << i;
    EXPECT_NEAR(got[i].second, want[i].second, 1e-12) << i;
  }
}

double Total(const EdgeLoad& e) {
  double sum = e.beforeStart + e.afterEnd;
  for (size_t k = 0; k + 1 < e.profile.size(); ++k)
    sum += (e.profile[k].second + e.profile[k + 1].second) / 2 * (e.profile[k + 1].first - e.profile[k].first);
  return sum;
}

// A 6 × 4 floor at height 10, pressure -2 along Y.
const std::vector<Eigen::Vector3d> kRectangle = {{0, 10, 0}, {6, 10, 0}, {6, 10, 4}, {0, 10, 4}};

}  // namespace

// Two-way, the 45° lines from the corners meet along a ridge 2 from the long edges: each
// long edge carries a trapezoid of area (6 + 2) / 2 × 2 = 8, each short one a triangle of 4.
TEST(AreaLoads, TwoWayGivesTheLongEdgesTrapezoidsAndTheShortOnesTriangles) {
  const auto loads = DistributeAreaLoad(kRectangle, -2, false, "Area load 1");
  ASSERT_EQ(loads.size(), 4u);
  ExpectProfile(loads[0].profile, {{0, 0}, {2, -4}, {4, -4}, {6, 0}});
  ExpectProfile(loads[1].profile, {{0, 0}, {2, -4}, {4, 0}});
  EXPECT_NEAR(Total(loads[0]), -2 * 8, 1e-12);
  EXPECT_NEAR(Total(loads[1]), -2 * 4, 1e-12);
  EXPECT_NEAR(Total(loads[2]), -2 * 8, 1e-12);
  EXPECT_NEAR(Total(loads[3]), -2 * 4, 1e-12);
}

// One-way along the first (long) edge: the two long edges carry half the 4 span each,
// uniformly; the short edges nothing. A trapezoid whose far parallel edge is longer: the
// near edge takes the part below the midline (area 7.5), 0.75 of it beyond each end.
TEST(AreaLoads, OneWayLoadsOnlyTheEdgesParallelToTheFirst) {
  const auto loads = DistributeAreaLoad(kRectangle, -2, true, "Area load 1");
  ASSERT_EQ(loads.size(), 2u);
  EXPECT_EQ(loads[0].edge, 0u);
  EXPECT_EQ(loads[1].edge, 2u);
  ExpectProfile(loads[0].profile, {{0, -4}, {6, -4}});
  ExpectProfile(loads[1].profile, {{0, -4}, {6, -4}});

  const std::vector<Eigen::Vector3d> trapezoid = {{0, 0, 0}, {4, 0, 0}, {6, 0, -3}, {-2, 0, -3}};
  const auto t = DistributeAreaLoad(trapezoid, 1, true, "Area load 2");
  ASSERT_EQ(t.size(), 2u);
  ExpectProfile(t[0].profile, {{0, 1.5}, {4, 1.5}});
  EXPECT_NEAR(t[0].beforeStart, 0.75, 1e-12);
  EXPECT_NEAR(t[0].afterEnd, 0.75, 1e-12);
  ExpectProfile(t[1].profile, {{0, 0}, {1, 1.5}, {7, 1.5}, {8, 0}});
  EXPECT_NEAR(Total(t[0]) + Total(t[1]), 18, 1e-12);  // (4 + 8) / 2 × 3
}

TEST(AreaLoads, PolygonsThatAreNotConvexOrHaveNoAreaAreRefused) {
  const std::vector<Eigen::Vector3d> dart = {{0, 0, 0}, {4, 0, 0}, {1, 0, 1}, {0, 0, 4}};
  const std::vector<Eigen::Vector3d> line = {{0, 0, 0}, {4, 0, 0}, {8, 0, 0}};
  for (const auto& [corners, text] : {std::pair{dart, "Area load 3 is not a convex polygon."},
                                      std::pair{line, "Area load 3 encloses no area."}}) {
    try {
      DistributeAreaLoad(corners, 1, false, "Area load 3");
      ADD_FAILURE() << text;
    } catch (const analysis::AnalysisError& e) {
      EXPECT_STREQ(e.what(), text);
    }
  }
}

// The floor on four beams held at its corners, in the example's units (ft, kip, ksf): the
// supports carry 2 ksf × 24 ft² = 48 kip, 12 at each corner; with the beam along one short
// edge taken away, that edge's share goes to its two nodes and the total stays.
TEST(AreaLoads, TheDocumentsAreaLoadReachesTheSupports) {
  const std::string frame = R"(, "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
    "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 6, "y": 0, "z": 0},
              {"id": 3, "x": 6, "y": 0, "z": 4}, {"id": 4, "x": 0, "y": 0, "z": 4}],
    "loadCases": [{"number": 1, "label": "Floor", "type": "Live-L"}],
    "materials": [{"id": 1, "label": "Steel", "E": 29000, "nu": 0.3, "density": 0, "Tc": 0, "fc": 3, "fy": 50, "fys": 65}],
    "sections": [{"id": 1, "label": "B", "A": 0.2, "Iz": 0.05, "Iy": 0.05, "J": 0.01}],
    "supports": [{"node": 1, "restraints": "111000"}, {"node": 2, "restraints": "111000"},
                 {"node": 3, "restraints": "111000"}, {"node": 4, "restraints": "111000"}],
    "caseLoads": [{"case": "Floor", "area": [{"nodes": [1, 2, 3, 4], "direction": "Y", "magnitude": -2}]}],
    "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 1}, {"id": 3, "nodes": [4, 3], "material": 1, "section": 1},
                {"id": 4, "nodes": [4, 1], "material": 1, "section": 1})";
  for (bool allEdges : {true, false}) {
    model::ModelDocument doc =
        doc_test::Parse(frame + (allEdges ? R"(, {"id": 2, "nodes": [2, 3], "material": 1, "section": 1}])" : "]"));
    const auto summary = analysis::AnalyseDocument(doc, {});
    for (const std::string& line : summary.lines) EXPECT_EQ(line.find("area"), std::string::npos) << line;
    double total = 0;
    for (const fmResult6Val& r : doc.results.results[0].reactions) {
      total += r.v[1];
      if (allEdges) {
        EXPECT_NEAR(r.v[1], 12, 1e-9) << "node " << r.number;
      }
    }
    EXPECT_NEAR(total, 48, 1e-9) << (allEdges ? "all edges" : "no member along the short edge");
  }
}
