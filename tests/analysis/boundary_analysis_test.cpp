#include <gtest/gtest.h>

#include "analysis/document_analysis.h"
#include "model/document_helpers.h"

// The model's boundary records as the analysis reads them, checked against hand formulas.
// Units of the building example: lengths in ft, displacements in in, forces in kip, moments
// in kip-ft, E in ksi. Columns of E = 29000 ksi and I = 1000 in^4 (to 2e-7), 10 ft = 120 in high.
namespace {

using doc_test::Parse;

// Two cantilever columns fixed at their bases (nodes 1 and 3), their tops 2 and 4; the top of
// column A is pushed 1 in along X by a support that holds only Dx there. What ties the tops
// comes after.
std::string TwoColumns(const std::string& ties) {
  return R"(, "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
    "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 0, "y": 10, "z": 0},
              {"id": 3, "x": 20, "y": 0, "z": 0}, {"id": 4, "x": 20, "y": 10, "z": 0}],
    "loadCases": [{"number": 1, "label": "Push", "type": "Other"}],
    "materials": [{"id": 1, "label": "Steel", "E": 29000, "nu": 0.3, "density": 0, "Tc": 0, "fc": 3, "fy": 50, "fys": 65}],
    "sections": [{"id": 1, "label": "C", "A": 0.2, "Iz": 0.0482253, "Iy": 0.0482253, "J": 0.01}],
    "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 1}, {"id": 2, "nodes": [3, 4], "material": 1, "section": 1}],
    "supports": [{"node": 1, "restraints": "111111"}, {"node": 3, "restraints": "111111"},
                 {"node": 2, "restraints": "100000", "displacements": [1, 0, 0, 0, 0, 0]}])" +
         ties;
}

const fmResult6Val& ReactionAt(const model::ModelDocument& doc, int32_t node) {
  for (const fmResult6Val& r : doc.results.results[0].reactions)
    if (r.number == node) return r;
  static const fmResult6Val none{};
  ADD_FAILURE() << "no reaction at node " << node;
  return none;
}

// 3 E I / h^3 = 3 x 29000 x 1000 / 120^3 = 50.347 kip per inch of sway; the moment at the
// base 3 E I / h^2 = 6041.7 kip-in = 503.47 kip-ft. I is the section's 0.0482253 ft^4 in in^4.
constexpr double kI = 0.0482253 * 20736;
constexpr double kSwayShear = 3.0 * 29000 * kI / (120.0 * 120 * 120);
constexpr double kSwayMoment = 3.0 * 29000 * kI / (120.0 * 120) / 12;

}  // namespace

TEST(BoundaryAnalysis, ARigidDiaphragmCarriesThePushToTheOtherColumn) {
  model::ModelDocument doc = Parse(TwoColumns(R"(, "diaphragms": [{"id": 1, "master": 2, "level": 10}])"));
  analysis::AnalyseDocument(doc, {});
  // The tie is exact: node 4 follows node 2 and its column bends as much.
  EXPECT_NEAR(doc.results.results[0].displacements[3].v[0], 1.0, 1e-12);
  EXPECT_NEAR(ReactionAt(doc, 3).v[0], -kSwayShear, 1e-9 * kSwayShear);
  EXPECT_NEAR(std::abs(ReactionAt(doc, 3).v[5]), kSwayMoment, 1e-9 * kSwayMoment);
  // The support that pushes node 2 pushes both columns through the diaphragm, and the two
  // bases give it back.
  EXPECT_NEAR(ReactionAt(doc, 2).v[0], 2 * kSwayShear, 1e-9 * kSwayShear);
  EXPECT_NEAR(ReactionAt(doc, 1).v[0] + ReactionAt(doc, 3).v[0] + ReactionAt(doc, 2).v[0], 0.0, 1e-9 * kSwayShear);
}

TEST(BoundaryAnalysis, AConstraintTiesTheTwoDegreesOfFreedom) {
  model::ModelDocument doc =
      Parse(TwoColumns(R"(, "constraints": [{"id": 1, "node1": 2, "dof1": "X", "node2": 4, "dof2": "X"}])"));
  analysis::AnalyseDocument(doc, {});
  EXPECT_NEAR(doc.results.results[0].displacements[3].v[0], 1.0, 1e-12);
  EXPECT_NEAR(ReactionAt(doc, 3).v[0], -kSwayShear, 1e-9 * kSwayShear);
  // The tie pulls node 4 along with the shear its column takes, and node 2 back as much: the
  // constraint-force report's record.
  const auto& forces = doc.results.results[0].constraintForces;
  ASSERT_EQ(forces.size(), 1u);
  EXPECT_EQ(forces[0].id, 1);
  EXPECT_EQ(forces[0].node, (std::array<int32_t, 2>{2, 4}));
  EXPECT_EQ(forces[0].dof, (std::array<int32_t, 2>{0, 0}));
  EXPECT_NEAR(forces[0].value[0], -kSwayShear, 1e-9 * kSwayShear);
  EXPECT_NEAR(forces[0].value[1], kSwayShear, 1e-9 * kSwayShear);
}

TEST(BoundaryAnalysis, WithoutTiesTheOtherColumnStaysAndAPinnedEndCarriesNoMoment) {
  model::ModelDocument free = Parse(TwoColumns(""));
  analysis::AnalyseDocument(free, {});
  EXPECT_NEAR(free.results.results[0].displacements[3].v[0], 0.0, 1e-12);
  // Column A alone: the pushed top is free to turn, so the base shear is 3 E I / h^3 too.
  EXPECT_NEAR(std::abs(ReactionAt(free, 1).v[0]), kSwayShear, 1e-6 * kSwayShear);

  // Its base released in bending about local z (global -Z): pinned for the sway along X, it
  // sways without any force.
  model::ModelDocument pinned = Parse(TwoColumns(R"(, "releases": [{"member": 1, "start": "000001"}])"));
  analysis::AnalyseDocument(pinned, {});
  EXPECT_NEAR(ReactionAt(pinned, 1).v[0], 0.0, 1e-9);
  EXPECT_NEAR(ReactionAt(pinned, 1).v[5], 0.0, 1e-9);
}

// A nodal spring of 25 kip/in along X at the top of column A, pushed 1 in: the spring takes
// 25 kip and the base the cantilever's 50.347 kip; together they hold the push.
TEST(BoundaryAnalysis, ANodalSpringFromTheModelTakesItsShare) {
  model::ModelDocument doc = Parse(TwoColumns(R"(, "nodalSprings": [{"node": 2, "k": [25, 0, 0, 0, 0, 0]}])"));
  analysis::AnalyseDocument(doc, {});
  const auto& springs = doc.results.results[0].nodalSpringReactions;
  ASSERT_EQ(springs.size(), 1u);
  EXPECT_NEAR(std::abs(springs[0].v[0]), 25.0, 1e-9);
  EXPECT_NEAR(std::abs(ReactionAt(doc, 2).v[0]), 25.0 + kSwayShear, 1e-6 * kSwayShear);
}
