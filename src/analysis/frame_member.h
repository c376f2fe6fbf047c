#pragma once
#include <Eigen/Dense>
#include <vector>

#include "analysis/model.h"

// A 3-D frame member: stiffness (axial, torsion, bending about both axes with shear
// deformation), end releases, rigid links and the fixed-end forces of its loads.
//
// Everything comes from the flexibility of the member as a cantilever from its first node:
// the tip flexibility F and the tip displacement d of the loads are integrated by virtual
// work over the member's statically determined section forces, then K = Bᵀ F⁻¹ B and the
// end forces that hold both ends are Q_j = -F⁻¹ d with Q_i from equilibrium. One path thus
// gives the exact Timoshenko stiffness and the fixed-end forces of any load pattern.
namespace analysis {

using Matrix12 = Eigen::Matrix<double, 12, 12>;
using Vector12 = Eigen::Matrix<double, 12, 1>;
using Matrix3 = Eigen::Matrix3d;
using Vector3 = Eigen::Vector3d;

// Rows are the local x, y, z axes in global coordinates.
Matrix3 MemberAxes(const Model& model, const Member& member);
double MemberLength(const Model& model, const Member& member);

// Cross-section rigidities: EA, GAy, GAz, GJ, EIy, EIz; a shear rigidity of 0 stands for
// no shear deformation.
using Rigidities = std::array<double, 6>;
Rigidities MemberRigidities(const Model& model, const Member& member);

// Loads along a member in its local axes.
struct LocalMemberLoads {
  struct Point {
    double s = 0;
    Vector3 force = Vector3::Zero(), moment = Vector3::Zero();
  };
  // Force and moment per length, linear from s0 to s1.
  struct Line {
    double s0 = 0, s1 = 0;
    Vector3 force0 = Vector3::Zero(), force1 = Vector3::Zero();
    Vector3 moment0 = Vector3::Zero(), moment1 = Vector3::Zero();
  };
  std::vector<Point> points;
  std::vector<Line> lines;
  double axialStrain = 0;  // free thermal strain
  bool empty() const { return points.empty() && lines.empty() && axialStrain == 0; }
};

// The member in local axes: stiffness and, for the given loads, the forces the nodes exert
// on the member when both ends are held; released end forces are condensed out (zero rows).
// Throws AnalysisError when the releases leave the member free to move on its own.
struct LocalMember {
  Matrix12 k;
  Vector12 fixedEnd;
};
LocalMember LocalMemberMatrices(const Rigidities& r, double length, const std::array<std::array<bool, 6>, 2>& releases,
                                const LocalMemberLoads& loads, uint32_t memberId);

// The internal forces at distance s from the first node: N (tension positive), Vy, Vz, T,
// My, Mz of everything beyond s (the second node's end forces on the member and the loads
// past s) about the section. Mz is positive where it puts local -y in tension.
Eigen::Matrix<double, 6, 1> SectionForcesAt(const LocalMemberLoads& loads, double length, const Vector12& endForces,
                                            double s);

// The consistent mass of a member in local axes: linear axial and twist (the twist's inertia
// from the polar moment Iy + Iz), cubic bending in both planes without rotary inertia.
// massPerLength is ρA, polarPerLength ρ(Iy + Iz). Released end forces are condensed out as the
// stiffness condenses them (the released end's motion follows the rest as the member bends
// freely there), so a released member gets the mass of its own deflected shapes, with zero
// rows where the stiffness has them.
Matrix12 LocalMemberMass(const Rigidities& r, double length, const std::array<std::array<bool, 6>, 2>& releases,
                         double massPerLength, double polarPerLength, uint32_t memberId);

// Global 12×12 rotation of a member's end displacements: u_local = T u_global.
Matrix12 MemberRotation(const Matrix3& axes);

}  // namespace analysis
