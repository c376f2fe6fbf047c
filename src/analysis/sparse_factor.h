#pragma once
#include <Eigen/Dense>
#include <Eigen/SparseCholesky>
#include <functional>
#include <string>

#include "analysis/assembly.h"

// The LDLᵀ factorisation of a stiffness matrix (upper triangle) with a fill-reducing ordering.
// A pivot that is not clearly positive is a mechanism: the factorisation refuses it and
// names the degree of freedom, instead of leaving NaN in the results.
namespace analysis {

class StiffnessFactor {
 public:
  // `label` names an equation for the message. Throws AnalysisError.
  void Factor(const SparseMatrix& upper, const std::function<std::string(Eigen::Index)>& label);
  Eigen::VectorXd Solve(const Eigen::VectorXd& b) const { return ldlt_.solve(b); }
  Eigen::MatrixXd Solve(const Eigen::MatrixXd& b) const { return ldlt_.solve(b); }
  Eigen::Index Size() const { return ldlt_.rows(); }
  // Entries of the factor, to report its size.
  Eigen::Index FactorNonZeros() const { return ldlt_.matrixL().nestedExpression().nonZeros(); }

 private:
  Eigen::SimplicialLDLT<SparseMatrix, Eigen::Upper, Eigen::AMDOrdering<int>> ldlt_;
};

// A pivot at most this fraction of its diagonal marks a free degree of freedom.
inline constexpr double kMechanismPivotRatio = 1e-11;

}  // namespace analysis
