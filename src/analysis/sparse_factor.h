#pragma once
#include <Eigen/Dense>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "analysis/assembly.h"

// The Cholesky factorisation of a stiffness matrix (upper triangle): CHOLMOD's supernodal
// LLᵀ, its dense blocks done by the system's BLAS. The fill-reducing ordering is METIS's
// nested dissection of the nodes' graph, each node's equations kept together: six times
// fewer vertices to order than equations, and less fill than ordering the equations.
// A pivot that is not clearly positive is a mechanism: the factorisation refuses it and
// names the degree of freedom, instead of leaving NaN in the results.
namespace analysis {

class StiffnessFactor {
 public:
  StiffnessFactor();
  ~StiffnessFactor();
  StiffnessFactor(const StiffnessFactor&) = delete;
  StiffnessFactor& operator=(const StiffnessFactor&) = delete;

  // `freeDofs` gives each equation's global degree of freedom (so its node); `label` names an
  // equation for the message. Throws AnalysisError.
  void Factor(const SparseMatrix& upper, const std::vector<size_t>& freeDofs,
              const std::function<std::string(Eigen::Index)>& label);
  // Solutions of several right-hand sides (columns) at once.
  Eigen::MatrixXd Solve(const Eigen::MatrixXd& b) const;
  Eigen::VectorXd Solve(const Eigen::VectorXd& b) const;
  Eigen::Index Size() const;
  // Entries of the factor, to report its size.
  Eigen::Index FactorNonZeros() const;

 private:
  struct Cholmod;
  std::unique_ptr<Cholmod> cholmod_;
};

// A pivot at most this fraction of its diagonal marks a free degree of freedom.
inline constexpr double kMechanismPivotRatio = 1e-11;

}  // namespace analysis
