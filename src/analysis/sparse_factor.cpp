#include "analysis/sparse_factor.h"

#include <vector>

namespace analysis {

void StiffnessFactor::Factor(const SparseMatrix& upper, const std::function<std::string(Eigen::Index)>& label) {
  if (upper.rows() == 0) return;
  ldlt_.compute(upper);
  // The factorisation stops at the first pivot that is not positive; find it in elimination
  // order and name the equation eliminated there.
  const Eigen::VectorXd d = ldlt_.vectorD();
  const auto& perm = ldlt_.permutationP().indices();
  std::vector<Eigen::Index> eliminatedAt(static_cast<size_t>(upper.rows()));
  for (Eigen::Index i = 0; i < upper.rows(); ++i) eliminatedAt[static_cast<size_t>(perm[i])] = i;
  Eigen::Index worst = -1;
  for (Eigen::Index step = 0; step < upper.rows() && worst < 0; ++step) {
    const Eigen::Index i = eliminatedAt[static_cast<size_t>(step)];
    if (!(d[step] > kMechanismPivotRatio * upper.coeff(i, i))) worst = i;
  }
  if (worst >= 0)
    throw AnalysisError(label(worst) + " is free to move: the model is unstable (a mechanism) there.");
}

}  // namespace analysis
