#pragma once
#include <Eigen/Dense>
#include <array>
#include <memory>
#include <vector>

#include "analysis/assembly.h"
#include "analysis/model.h"

// Modal analysis: the lowest natural modes of K φ = ω² M φ, with the elements' self weight over
// g lumped at the nodes (translations only) or as consistent element masses, and the
// additional masses on their own degrees of freedom. Solved by Lanczos iteration (Spectra) in
// shift-invert mode on the factorised stiffness, so a singular mass matrix (massless
// rotations) does no harm. When the iteration would need every degree of freedom with mass
// (few masses, or nearly as many modes as they allow), the stiffness is condensed exactly
// onto those degrees of freedom and the problem solved densely, every mode included.
namespace analysis {

struct Mode {
  double omega2 = 0;
  Eigen::VectorXd shape;  // per global degree of freedom, φᵀ M φ = 1
  double error = 0;       // ‖K φ − ω² M φ‖ / ‖K φ‖
};

struct ModalResults {
  std::vector<Mode> modes;
  MassModel masses = MassModel::Lumped;
  SparseMatrix mass;  // over all degrees of freedom, upper triangle (diagonal when lumped)
  std::shared_ptr<const GlobalStiffness> stiffness;
  // M v for a vector over all degrees of freedom.
  Eigen::VectorXd MassTimes(const Eigen::VectorXd& v) const;
};

// At most `count` modes (fewer when fewer degrees of freedom carry mass). Tension-only and
// compression-only members all take part. Throws AnalysisError for a model without mass or
// a mechanism, and when the iteration does not converge.
ModalResults SolveModes(const Model& model, int count, MassModel masses = MassModel::Lumped,
                        const Progress& progress = {});

inline double PeriodOf(double omega2) { return 2 * 3.14159265358979323846 / std::sqrt(omega2); }

// Response spectrum analysis over the modes: per excitation direction X, Y, Z a spectrum
// (period in s against Sa/g, linear between points, the end values beyond them) and a
// contribution factor. The participation factor of mode n in direction d is
// Γ = φᵀ M r / φᵀ M φ with r the unit translation along d. A mode's inertial forces are
// Γ Sa M φ, and its reactions hold the structure against them: with consistent masses the
// elements at a support put part of their inertia on it directly, and the reactions take that
// too, so that they balance the inertial forces whatever the masses.
struct SpectrumCurve {
  std::vector<std::pair<double, double>> points;  // increasing period
  double At(double period) const;
};
struct SpectrumSettings {
  std::array<SpectrumCurve, 3> curves;  // a curve without points excites nothing
  std::array<double, 3> factor = {1, 1, 0};
  bool absoluteSum = false;  // ABSSUM, else SRSS
};
struct SpectrumMode {
  double omega2 = 0;
  std::array<double, 3> participation{};
  std::array<Eigen::VectorXd, 3> displacement, inertialForce;  // per direction, per global DOF
  std::array<Eigen::VectorXd, 3> reaction;
};
struct SpectrumResults {
  std::vector<SpectrumMode> modes;
  // Over the modes by the chosen rule, then the directions added with their factors.
  Eigen::VectorXd displacement, reaction;
};
SpectrumResults SolveResponseSpectrum(const Model& model, const ModalResults& modal, const SpectrumSettings& settings);

}  // namespace analysis
