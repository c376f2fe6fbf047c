#pragma once
#include <Eigen/Dense>
#include <array>

#include "analysis/model.h"

// Four-node shells and eight-node bricks: stiffness in global axes and equivalent nodal loads.
namespace analysis {

using Matrix24 = Eigen::Matrix<double, 24, 24>;
using Vector24 = Eigen::Matrix<double, 24, 1>;

// Rows are the shell's local x, y, z (its normal) in global coordinates.
Eigen::Matrix3d ShellAxes(const Model& model, const Shell& shell);
// Over the shell's 4 nodes × 6 degrees of freedom.
Matrix24 ShellStiffness(const Model& model, const Shell& shell);
// The area each node carries (∫ N_a dA).
std::array<double, 4> ShellNodalAreas(const Model& model, const Shell& shell);
// ∫ N_a N_b dA over the shell (2 × 2 Gauss): its consistent mass per unit mass per area.
Eigen::Matrix4d ShellAreaProducts(const Model& model, const Shell& shell);
// A uniform pressure given as a global vector (force per area).
Vector24 ShellPressureLoads(const Model& model, const Shell& shell, const Eigen::Vector3d& pressure);
// A free in-plane strain held by the nodes.
Vector24 ShellThermalLoads(const Model& model, const Shell& shell, double strain);

// Over the brick's 8 nodes × 3 translations.
Matrix24 BrickStiffness(const Model& model, const Brick& brick);
std::array<double, 8> BrickNodalVolumes(const Model& model, const Brick& brick);
// ∫ N_a N_b dV over the brick (2 × 2 × 2 Gauss): its consistent mass per unit density.
Eigen::Matrix<double, 8, 8> BrickVolumeProducts(const Model& model, const Brick& brick);
Vector24 BrickThermalLoads(const Model& model, const Brick& brick, double strain);

// A shell's forces per length at its centre and nodes (shell axes) from its nodes' global
// displacements (6 per node): Fxx, Fyy, Fxy, then Mxx, Myy, Mxy (positive where the bottom,
// local -z, face is in tension), then the transverse shears Vxx, Vyy. thermalStrain is the
// free membrane strain of the result's thermal loads.
using ShellPointForces = std::array<std::array<double, 8>, 5>;
ShellPointForces ShellForcesAt(const Model& model, const Shell& shell, const Vector24& displacement,
                               double thermalStrain);
// A brick's stresses at its centre and nodes (global axes: Sx, Sy, Sz, Sxy, Syz, Sxz) from its
// nodes' translations (3 per node).
using BrickPointStresses = std::array<std::array<double, 6>, 9>;
BrickPointStresses BrickStressesAt(const Model& model, const Brick& brick, const Vector24& displacement,
                                   double thermalStrain);

}  // namespace analysis
