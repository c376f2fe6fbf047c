#pragma once
#include <Eigen/Dense>
#include <string>
#include <vector>

#include "analysis/assembly.h"
#include "analysis/model.h"

// Linear static analysis: every load case on one factorisation, combinations as the factored
// sums of their cases. With tension-only or compression-only members each case and each
// combination is solved on its own, switching those members until none changes.
namespace analysis {

struct StaticResult {
  std::string name;
  std::vector<std::pair<size_t, double>> terms;  // the load cases it sums, with factors
  Eigen::VectorXd load;          // applied, per global degree of freedom
  Eigen::VectorXd displacement;  // per global degree of freedom
  Eigen::VectorXd reaction;      // of the supports on the structure; zero where nothing is held
  // Forces of the springs on the structure, per record of the model's spring lists (the six
  // values at its node; for line and surface springs the sum over the element's nodes).
  std::vector<std::array<double, 6>> nodalSprings, coupledSprings, lineSprings, surfaceSprings;
  // Per constraint of the model, the force (or moment) of the tie on its first and second
  // degree of freedom: equal and opposite (zero when both are held, where it carries nothing).
  std::vector<std::array<double, 2>> constraints;
  MemberActivity activeMembers;  // empty: all
};

struct StaticResults {
  std::vector<StaticResult> results;  // the load cases in model order, then the combinations
  std::vector<size_t> autoHeld;        // global degrees of freedom held because nothing stiffens them
  Eigen::Index equations = 0;
  Eigen::Index factorNonZeros = 0;
};

StaticResults SolveLinearStatic(const Model& model, const Progress& progress = {});

// A member's end forces in its local axes (the forces of the nodes on the member: [end][N,
// Vy, Vz, T, My, Mz]) for a result.
Vector12 MemberEndForces(const Model& model, const StaticResult& result, size_t member);

}  // namespace analysis
