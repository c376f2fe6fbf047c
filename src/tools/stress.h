#pragma once
#include <array>
#include <cstddef>

// Principal values of plane and solid stress states.
namespace tools {

// The principal values s1 ≥ s2 of the plane tensor (sx, sy, sxy) and the direction of s1 in
// degrees from the local x axis, -90 < angle ≤ 90 (0 when the state has no shear and sx ≥ sy).
void Calc_Principal_Stress_2D(double& s1, double& s2, double& angle, double sx, double sy, double sxy);

// The length of the plane vector (vx, vy) and its direction in degrees from the local x axis,
// -180 < angle ≤ 180 (0 for the zero vector).
void Calc_Result_Stress_2D(double& resultant, double& angle, double vx, double vy);

// The von Mises stress of three principal values (plane stress: s3 = 0).
double VonMises(double s1, double s2, double s3);

// The principal stresses S1 ≥ S2 ≥ S3 of a solid's stress state, and their directions as
// unit vectors (direction[i] belongs to value[i]). The three directions form a right-handed
// set (direction[2] = direction[0] × direction[1]); the largest component of direction[0]
// and of direction[1] is positive, so the same state always gives the same vectors.
struct Principal3D {
  std::array<double, 3> value{};
  std::array<std::array<double, 3>, 3> direction{};
};
// stress: Sx, Sy, Sz, Sxy, Syz, Sxz.
Principal3D PrincipalStresses3D(const std::array<double, 6>& stress);
// Many points at once, shared among the cores.
void PrincipalStresses3D(const std::array<double, 6>* stresses, Principal3D* out, size_t count);

}  // namespace tools
