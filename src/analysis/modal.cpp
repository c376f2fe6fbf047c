#include "analysis/modal.h"

#include <Spectra/SymGEigsShiftSolver.h>

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <cmath>
#include <random>

#include "analysis/sparse_factor.h"

namespace analysis {
namespace {

// y = K⁻¹ x on the factorised stiffness: shift-invert about σ = 0, where K is positive definite.
class InverseStiffness {
 public:
  using Scalar = double;
  explicit InverseStiffness(const StiffnessFactor& factor) : factor_(factor) {}
  Eigen::Index rows() const { return factor_.Size(); }
  Eigen::Index cols() const { return factor_.Size(); }
  void set_shift(double) {}
  void perform_op(const double* x, double* y) const {
    Eigen::Map<Eigen::VectorXd>(y, rows()) = factor_.Solve(Eigen::Map<const Eigen::VectorXd>(x, rows()).eval());
  }

 private:
  const StiffnessFactor& factor_;
};

// y = M x for the masses of the free equations (upper triangle; not diagonal where ties
// carry the masses of slaves to what they follow).
class FreeMass {
 public:
  using Scalar = double;
  explicit FreeMass(const SparseMatrix& m) : m_(m) {}
  Eigen::Index rows() const { return m_.rows(); }
  Eigen::Index cols() const { return m_.cols(); }
  void perform_op(const double* x, double* y) const {
    Eigen::Map<Eigen::VectorXd>(y, rows()) = m_.selfadjointView<Eigen::Upper>() * Eigen::Map<const Eigen::VectorXd>(x, rows());
  }

 private:
  const SparseMatrix& m_;
};

// Lanczos iteration needs a Krylov space larger than the modes it finds; when that would take
// in every degree of freedom with mass, one vector cannot tell repeated modes apart, so the
// problem is solved densely on those degrees of freedom instead (up to this many).
constexpr Eigen::Index kDenseMasses = 3000;

// Every mode, on the degrees of freedom with mass: the rest carry no inertia, so K condenses
// exactly onto them as the flexibility F (their block of K⁻¹), and F M φ = μ φ with λ = 1 / μ.
// With F = L Lᵀ that is the symmetric Lᵀ M L y = μ y, φ = L y: F is never inverted (rigid
// links make it nearly singular), and a singular M only gives μ = 0 (no mode). The whole
// shape then follows from φ = λ K⁻¹ M φ. Columns by increasing λ.
void CondensedModes(const StiffnessFactor& factor, const SparseMatrix& mass, const std::vector<Eigen::Index>& massive,
                    Eigen::VectorXd& values, Eigen::MatrixXd& vectors) {
  const auto nm = static_cast<Eigen::Index>(massive.size());
  const Eigen::Index nf = mass.rows();
  const auto massTimes = [&](const Eigen::VectorXd& v) -> Eigen::VectorXd { return mass.selfadjointView<Eigen::Upper>() * v; };
  std::vector<Eigen::Index> at(static_cast<size_t>(nf), -1);
  for (Eigen::Index i = 0; i < nm; ++i) at[static_cast<size_t>(massive[static_cast<size_t>(i)])] = i;
  Eigen::MatrixXd m = Eigen::MatrixXd::Zero(nm, nm);
  for (Eigen::Index col = 0; col < nf; ++col)
    for (SparseMatrix::InnerIterator it(mass, col); it; ++it) {
      const Eigen::Index i = at[static_cast<size_t>(it.row())], j = at[static_cast<size_t>(col)];
      if (i < 0 || j < 0) continue;
      m(i, j) = m(j, i) = it.value();
    }
  Eigen::MatrixXd flexibility(nm, nm);
  Eigen::VectorXd unit = Eigen::VectorXd::Zero(nf);
  for (Eigen::Index j = 0; j < nm; ++j) {
    unit[massive[static_cast<size_t>(j)]] = 1;
    const Eigen::VectorXd x = factor.Solve(unit);
    unit[massive[static_cast<size_t>(j)]] = 0;
    for (Eigen::Index i = 0; i < nm; ++i) flexibility(i, j) = x[massive[static_cast<size_t>(i)]];
  }
  const Eigen::LLT<Eigen::MatrixXd> cholesky(0.5 * (flexibility + flexibility.transpose()));
  if (cholesky.info() != Eigen::Success) throw AnalysisError("The modes did not converge.");
  const Eigen::MatrixXd l = cholesky.matrixL();
  const Eigen::MatrixXd reduced = l.transpose() * m * l;
  Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> solver(0.5 * (reduced + reduced.transpose()));
  if (solver.info() != Eigen::Success) throw AnalysisError("The modes did not converge.");
  const Eigen::VectorXd& mu = solver.eigenvalues();  // increasing
  const double largest = nm > 0 ? mu.cwiseAbs().maxCoeff() : 0;
  Eigen::Index count = 0;
  while (count < nm && mu[nm - 1 - count] > 1e-12 * largest) ++count;
  values.resize(count);
  vectors.resize(nf, count);
  for (Eigen::Index j = 0; j < count; ++j) {
    values[j] = 1 / mu[nm - 1 - j];
    Eigen::VectorXd v = Eigen::VectorXd::Zero(nf);
    const Eigen::VectorXd shape = l * solver.eigenvectors().col(nm - 1 - j);
    for (Eigen::Index i = 0; i < nm; ++i) v[massive[static_cast<size_t>(i)]] = shape[i];
    vectors.col(j) = values[j] * factor.Solve(massTimes(v));
  }
}

}  // namespace

Eigen::VectorXd ModalResults::MassTimes(const Eigen::VectorXd& v) const { return mass.selfadjointView<Eigen::Upper>() * v; }

ModalResults SolveModes(const Model& model, int count, MassModel masses, const Progress& progress) {
  ModalResults out;
  out.masses = masses;
  if (progress) progress("Assembling and factoring the stiffness", 0.0);
  auto stiffness = std::make_shared<GlobalStiffness>(AssembleStiffness(model, {}));
  out.stiffness = stiffness;
  const DofNumbering& num = stiffness->numbering;
  StiffnessFactor factor;
  factor.Factor(
      stiffness->free, num.freeDofs, [&](Eigen::Index eq) { return DofLabel(model, num.freeDofs[static_cast<size_t>(eq)]); });

  out.mass = MassMatrix(model, masses);
  const auto all = out.mass.rows();
  const SparseMatrix mass = FreeBlock(Condense(out.mass, stiffness->ties), num);
  const auto massTimes = [&](const Eigen::VectorXd& v) -> Eigen::VectorXd { return mass.selfadjointView<Eigen::Upper>() * v; };
  // M is positive semi-definite, so a degree of freedom without mass on the diagonal has none
  // anywhere in its row: the others bound the number of modes.
  const Eigen::VectorXd m = mass.diagonal();
  const auto nf = static_cast<Eigen::Index>(num.freeDofs.size());
  std::vector<Eigen::Index> massive;
  for (Eigen::Index i = 0; i < nf; ++i)
    if (m[i] > 0) massive.push_back(i);
  const auto nm = static_cast<Eigen::Index>(massive.size());
  if (count < 1 || nm < 1) throw AnalysisError("The model has no mass on the degrees of freedom that can move: no modes.");

  if (progress) progress("Finding the modes", 0.3);
  Eigen::VectorXd values;
  Eigen::MatrixXd vectors;
  const Eigen::Index nev = std::min<Eigen::Index>(count, nm - 1);
  const Eigen::Index ncv = std::max<Eigen::Index>(2 * nev + 1, nev + 20);
  if (nev < 1 || (ncv >= nm && nm <= kDenseMasses)) {
    CondensedModes(factor, mass, massive, values, vectors);
    if (values.size() > count) {
      values.conservativeResize(count);
      vectors.conservativeResize(Eigen::NoChange, count);
    }
    if (values.size() == 0) throw AnalysisError("The model has no mass on the degrees of freedom that can move: no modes.");
  } else {
    InverseStiffness op(factor);
    FreeMass bop(mass);
    Spectra::SymGEigsShiftSolver<InverseStiffness, FreeMass, Spectra::GEigsMode::ShiftInvert> solver(op, bop, nev,
                                                                                                    std::min(ncv, nm), 0.0);
    // Start inside the range of K⁻¹ M, which is where the modes with mass live.
    std::mt19937 random(12345);
    std::uniform_real_distribution<double> uniform(-1, 1);
    Eigen::VectorXd start = Eigen::VectorXd::Zero(nf);
    for (Eigen::Index i : massive) start[i] = uniform(random);
    start = factor.Solve(massTimes(start));
    solver.init(start.data());
    solver.compute(Spectra::SortRule::LargestMagn, 1000, 1e-10, Spectra::SortRule::SmallestAlge);
    if (solver.info() != Spectra::CompInfo::Successful) throw AnalysisError("The modes did not converge.");
    values = solver.eigenvalues();
    vectors = solver.eigenvectors();
  }

  if (progress) progress("Checking the modes", 0.9);
  const SparseMatrix& k = stiffness->free;
  for (Eigen::Index j = 0; j < values.size(); ++j) {
    Mode mode;
    mode.omega2 = values[j];
    Eigen::VectorXd phi = vectors.col(j);
    phi /= std::sqrt(phi.dot(massTimes(phi)));
    const Eigen::VectorXd kphi = k.selfadjointView<Eigen::Upper>() * phi;
    mode.error = (kphi - mode.omega2 * massTimes(phi)).norm() / kphi.norm();
    Eigen::VectorXd q = Eigen::VectorXd::Zero(all);
    for (Eigen::Index i = 0; i < nf; ++i) q[static_cast<Eigen::Index>(num.freeDofs[static_cast<size_t>(i)])] = phi[i];
    mode.shape = stiffness->Expand(q);
    out.modes.push_back(std::move(mode));
  }
  if (progress) progress("Done", 1.0);
  return out;
}

double SpectrumCurve::At(double period) const {
  if (points.empty()) return 0;
  if (period <= points.front().first) return points.front().second;
  if (period >= points.back().first) return points.back().second;
  const auto hi = std::lower_bound(points.begin(), points.end(), period,
                                   [](const std::pair<double, double>& p, double t) { return p.first < t; });
  const auto lo = hi - 1;
  const double r = (period - lo->first) / (hi->first - lo->first);
  return lo->second + r * (hi->second - lo->second);
}

SpectrumResults SolveResponseSpectrum(const Model& model, const ModalResults& modal, const SpectrumSettings& settings) {
  SpectrumResults out;
  const Eigen::Index n = modal.mass.rows();
  std::array<Eigen::VectorXd, 3> dirDisp, dirReact;
  for (auto& v : dirDisp) v = Eigen::VectorXd::Zero(n);
  for (auto& v : dirReact) v = Eigen::VectorXd::Zero(n);
  auto accumulate = [&](Eigen::VectorXd& total, const Eigen::VectorXd& value) {
    total += settings.absoluteSum ? value.cwiseAbs().eval() : value.cwiseProduct(value).eval();
  };
  // Reactions: what the held degrees of freedom need beyond the inertial forces, K u - f.
  std::vector<char> held(static_cast<size_t>(n), 0);
  for (const Support& s : model.supports)
    for (int d = 0; d < 6; ++d)
      if (s.held[static_cast<size_t>(d)]) held[GlobalDof(s.node, d)] = 1;

  for (const Mode& mode : modal.modes) {
    SpectrumMode sm;
    sm.omega2 = mode.omega2;
    const Eigen::VectorXd mphi = modal.MassTimes(mode.shape);
    for (int d = 0; d < 3; ++d) {
      double mr = 0;
      for (Eigen::Index i = d; i < n; i += 6) mr += mphi[i];
      sm.participation[static_cast<size_t>(d)] = mr / mode.shape.dot(mphi);
      const double sa = settings.curves[static_cast<size_t>(d)].At(PeriodOf(mode.omega2)) * model.g;
      const double gamma = sm.participation[static_cast<size_t>(d)];
      sm.displacement[static_cast<size_t>(d)] = (gamma * sa / mode.omega2) * mode.shape;
      sm.inertialForce[static_cast<size_t>(d)] = (gamma * sa) * mphi;
      const Eigen::VectorXd needed = modal.stiffness->Gather(
          modal.stiffness->full.selfadjointView<Eigen::Upper>() * sm.displacement[static_cast<size_t>(d)] -
          sm.inertialForce[static_cast<size_t>(d)]);
      Eigen::VectorXd r = Eigen::VectorXd::Zero(n);
      for (Eigen::Index i = 0; i < n; ++i)
        if (held[static_cast<size_t>(i)]) r[i] = needed[i];
      sm.reaction[static_cast<size_t>(d)] = r;
      accumulate(dirDisp[static_cast<size_t>(d)], sm.displacement[static_cast<size_t>(d)]);
      accumulate(dirReact[static_cast<size_t>(d)], r);
    }
    out.modes.push_back(std::move(sm));
  }
  out.displacement = Eigen::VectorXd::Zero(n);
  out.reaction = Eigen::VectorXd::Zero(n);
  for (int d = 0; d < 3; ++d) {
    const Eigen::VectorXd u = settings.absoluteSum ? dirDisp[static_cast<size_t>(d)] : dirDisp[static_cast<size_t>(d)].cwiseSqrt().eval();
    const Eigen::VectorXd r = settings.absoluteSum ? dirReact[static_cast<size_t>(d)] : dirReact[static_cast<size_t>(d)].cwiseSqrt().eval();
    out.displacement += settings.factor[static_cast<size_t>(d)] * u;
    out.reaction += settings.factor[static_cast<size_t>(d)] * r;
  }
  return out;
}

}  // namespace analysis
