#pragma once
#include <Eigen/Dense>
#include <array>
#include <utility>
#include <vector>

#include "analysis/assembly.h"
#include "analysis/continuum.h"
#include "analysis/model.h"

// Element results of a solved displacement field: member forces and deflections at stations,
// shell forces, nodal resultants and face stresses, brick stresses.
namespace analysis {

using Terms = std::vector<std::pair<size_t, double>>;  // load case, factor

// One station of a member, in its local axes: internal forces N (tension positive), Vy, Vz,
// T, My, Mz (Mz positive where local -y is in tension) and the axis' displacements along
// local y and z (the nodes' movement included).
struct MemberStation {
  double s = 0;
  std::array<double, 6> force{};
  double dy = 0, dz = 0;
};

// `count` (at least 2) stations evenly spaced from the first node to the second, for the
// displacement u (per global degree of freedom) under the loads of `terms`. A member that
// `active` leaves out (a slack tension-only member) carries no force.
std::vector<MemberStation> MemberStations(const Model& model, const Eigen::VectorXd& u, const Terms& terms,
                                          const MemberActivity& active, size_t member, int count);

// The free thermal strain of an element under the terms' thermal loads.
double ThermalStrain(const Model& model, ThermalLoad::Kind kind, size_t element, const Terms& terms);

ShellPointForces ShellForces(const Model& model, const Eigen::VectorXd& u, const Terms& terms, size_t shell);
// What the shell's nodes carry, in the shell's axes: per node Fx, Fy, Fz, Mx, My, the forces
// the node exerts on the shell beyond the shell's own loads (K u less the equivalent loads).
std::array<std::array<double, 5>, 4> ShellNodalResultants(const Model& model, const Eigen::VectorXd& u,
                                                          const Terms& terms, size_t shell);
// The face stresses of a shell at its five points, shell axes: Sxx, Syy, Szz (0), Sxy and the
// transverse shears Sxz, Syz as their mean over the thickness. face 0 is the top (local +z).
std::array<std::array<double, 6>, 5> ShellFaceStresses(const Model& model, const ShellPointForces& forces, size_t shell,
                                                       int face);
BrickPointStresses BrickStresses(const Model& model, const Eigen::VectorXd& u, const Terms& terms, size_t brick);

}  // namespace analysis

#include "model/fm_solution.h"

namespace analysis {

// Writes the element results of a displacement field into a case's records, in `units`:
// member stations (`stations` per member), shell forces, nodal resultants and face stresses,
// brick stresses.
void WriteElementResults(const Model& model, const Eigen::VectorXd& u, const Terms& terms, const MemberActivity& active,
                         const fmUnit& units, int stations, fmCaseResults& out);

// The response-spectrum combination of element results: each mode's results per direction
// (from its modal displacements, no loads), combined over the modes by SRSS (or ABSSUM with
// `absoluteSum`), then the directions added with their factors.
void WriteSpectrumElementResults(const Model& model, const std::vector<std::array<Eigen::VectorXd, 3>>& modal,
                                 const std::array<double, 3>& factor, bool absoluteSum, const fmUnit& units,
                                 int stations, fmCaseResults& out);

}  // namespace analysis
