#pragma once
#include <Eigen/Dense>
#include <array>
#include <memory>
#include <vector>

#include "analysis/assembly.h"
#include "analysis/model.h"

// Modal analysis: the lowest natural modes of K φ = ω² M φ with masses lumped at the nodes
// (self weight over g on the translations, plus the additional masses; rotations massless
// unless a mass is given). Solved by Lanczos iteration (Spectra) in shift-invert mode on the
// factorised stiffness, so the singular mass matrix does no harm.
namespace analysis {

struct Mode {
  double omega2 = 0;
  Eigen::VectorXd shape;  // per global degree of freedom, φᵀ M φ = 1
  double error = 0;       // ‖K φ − ω² M φ‖ / ‖K φ‖
};

struct ModalResults {
  std::vector<Mode> modes;
  Eigen::VectorXd mass;  // lumped, per global degree of freedom
  std::shared_ptr<const GlobalStiffness> stiffness;
};

// At most `count` modes (fewer when fewer degrees of freedom carry mass). Tension-only and
// compression-only members all take part. Throws AnalysisError for a model without mass or
// a mechanism, and when the iteration does not converge.
ModalResults SolveModes(const Model& model, int count, const Progress& progress = {});

inline double PeriodOf(double omega2) { return 2 * 3.14159265358979323846 / std::sqrt(omega2); }

// Response spectrum analysis over the modes: per excitation direction X, Y, Z a spectrum
// (period in s against Sa/g, linear between points, the end values beyond them) and a
// contribution factor. The participation factor of mode n in direction d is
// Γ = φᵀ M r / φᵀ M φ with r the unit translation along d.
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
