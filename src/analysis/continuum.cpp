#include "analysis/continuum.h"

#include <cmath>

// Shells: a flat four-node element on the shell's mean plane. Plate bending is MITC4 (Bathe
// and Dvorkin: Reissner-Mindlin bending with the transverse shear strains tied at the edge
// mid-points, so a thin plate does not lock); the membrane is the bilinear quadrilateral with
// Wilson's incompatible modes in Taylor's form (QM6), and the drilling rotation is tied to the
// in-plane rotation of the membrane by the Hughes-Brezzi penalty.
//
// Bricks: the trilinear hexahedron with Wilson's nine incompatible modes in Taylor's form,
// condensed per element, which removes the shear locking of the plain element in bending.
namespace analysis {
namespace {

using Vector3 = Eigen::Vector3d;
using Matrix3 = Eigen::Matrix3d;

constexpr double kGauss = 0.57735026918962576;  // 1/√3
constexpr double kSign[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
constexpr double kShearCorrection = 5.0 / 6.0;
constexpr double kDrillingFactor = 1e-3;  // of the membrane shear stiffness

Vector3 At(const Model& m, size_t node) { return {m.nodes[node].x, m.nodes[node].y, m.nodes[node].z}; }

void Check(const Model& model, size_t material, const char* what, uint32_t id) {
  if (material >= model.materials.size() || !(model.materials[material].E > 0))
    throw AnalysisError(std::string(what) + " " + std::to_string(id) + " has no material.");
}

// Bilinear shape functions and their derivatives on the square [-1, 1]².
struct Quad {
  double n[4], dxi[4], deta[4];
  Quad(double xi, double eta) {
    for (int a = 0; a < 4; ++a) {
      n[a] = 0.25 * (1 + xi * kSign[a][0]) * (1 + eta * kSign[a][1]);
      dxi[a] = 0.25 * kSign[a][0] * (1 + eta * kSign[a][1]);
      deta[a] = 0.25 * kSign[a][1] * (1 + xi * kSign[a][0]);
    }
  }
};

// The shell's plane: axes and the nodes' coordinates in it.
struct ShellGeometry {
  Matrix3 axes;
  double x[4], y[4];
};

ShellGeometry Geometry(const Model& model, const Shell& s) {
  ShellGeometry g;
  Vector3 p[4];
  for (int a = 0; a < 4; ++a) p[a] = At(model, s.nodes[static_cast<size_t>(a)]);
  const Vector3 normal = (p[2] - p[0]).cross(p[3] - p[1]);
  if (!(normal.norm() > 0)) throw AnalysisError("Shell " + std::to_string(s.id) + " has no area.");
  const Vector3 e3 = normal.normalized();
  Vector3 e1 = (p[1] - p[0]) + (p[2] - p[3]);
  e1 = (e1 - e1.dot(e3) * e3).normalized();
  const Vector3 e2 = e3.cross(e1);
  g.axes.row(0) = e1;
  g.axes.row(1) = e2;
  g.axes.row(2) = e3;
  const Vector3 c = 0.25 * (p[0] + p[1] + p[2] + p[3]);
  for (int a = 0; a < 4; ++a) {
    g.x[a] = (p[a] - c).dot(e1);
    g.y[a] = (p[a] - c).dot(e2);
  }
  return g;
}

Eigen::Matrix2d Jacobian(const ShellGeometry& g, const Quad& q) {
  Eigen::Matrix2d j = Eigen::Matrix2d::Zero();
  for (int a = 0; a < 4; ++a) {
    j(0, 0) += q.dxi[a] * g.x[a];
    j(0, 1) += q.dxi[a] * g.y[a];
    j(1, 0) += q.deta[a] * g.x[a];
    j(1, 1) += q.deta[a] * g.y[a];
  }
  return j;
}

// Row over the local dofs (u v w θx θy θz per node) of the covariant transverse shear strain
// along ξ (dir 0) or η (dir 1) at a point: w,ξ + β·x,ξ with β = (θy, -θx).
Eigen::Matrix<double, 1, 24> CovariantShear(const ShellGeometry& g, double xi, double eta, int dir) {
  const Quad q(xi, eta);
  const double* d = dir == 0 ? q.dxi : q.deta;
  double xd = 0, yd = 0;
  for (int a = 0; a < 4; ++a) {
    xd += d[a] * g.x[a];
    yd += d[a] * g.y[a];
  }
  Eigen::Matrix<double, 1, 24> row = Eigen::Matrix<double, 1, 24>::Zero();
  for (int a = 0; a < 4; ++a) {
    row(6 * a + 2) = d[a];
    row(6 * a + 4) = q.n[a] * xd;   // β1 = θy
    row(6 * a + 3) = -q.n[a] * yd;  // β2 = -θx
  }
  return row;
}

Matrix24 Rotation24(const Matrix3& axes, int blocks) {
  Matrix24 t = Matrix24::Zero();
  for (int b = 0; b < blocks; ++b) t.block<3, 3>(3 * b, 3 * b) = axes;
  return t;
}

Matrix3 MembraneElasticity(const Material& m, double t) {
  Matrix3 d;
  const double c = m.E * t / (1 - m.nu * m.nu);
  d << c, c * m.nu, 0, c * m.nu, c, 0, 0, 0, c * (1 - m.nu) / 2;
  return d;
}

}  // namespace

Eigen::Matrix3d ShellAxes(const Model& model, const Shell& shell) { return Geometry(model, shell).axes; }

std::array<double, 4> ShellNodalAreas(const Model& model, const Shell& shell) {
  const ShellGeometry g = Geometry(model, shell);
  std::array<double, 4> out{};
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss}) {
      const Quad q(xi, eta);
      const double det = std::abs(Jacobian(g, q).determinant());
      for (int a = 0; a < 4; ++a) out[static_cast<size_t>(a)] += q.n[a] * det;
    }
  return out;
}

Eigen::Matrix4d ShellAreaProducts(const Model& model, const Shell& shell) {
  const ShellGeometry g = Geometry(model, shell);
  Eigen::Matrix4d out = Eigen::Matrix4d::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss}) {
      const Quad q(xi, eta);
      const Eigen::Vector4d n(q.n[0], q.n[1], q.n[2], q.n[3]);
      out += std::abs(Jacobian(g, q).determinant()) * n * n.transpose();
    }
  return out;
}

Matrix24 ShellStiffness(const Model& model, const Shell& s) {
  Check(model, s.material, "Shell", s.id);
  if (!(s.thickness > 0)) throw AnalysisError("Shell " + std::to_string(s.id) + " has no thickness.");
  const Material& mat = model.materials[s.material];
  const double t = s.thickness;
  const ShellGeometry g = Geometry(model, s);
  const Matrix3 dm = MembraneElasticity(mat, t);
  const Matrix3 db = dm * (t * t / 12);
  const double ds = kShearCorrection * mat.G() * t;
  const double drilling = kDrillingFactor * mat.G() * t;

  // Tied shear strains at the edge mid-points A (0, 1), C (0, -1) for ξ and D (1, 0), B (-1, 0) for η.
  const auto gA = CovariantShear(g, 0, 1, 0), gC = CovariantShear(g, 0, -1, 0);
  const auto gD = CovariantShear(g, 1, 0, 1), gB = CovariantShear(g, -1, 0, 1);

  const Quad centre(0, 0);
  const Eigen::Matrix2d j0 = Jacobian(g, centre);
  const Eigen::Matrix2d j0inv = j0.inverse();
  const double det0 = j0.determinant();

  Matrix24 k = Matrix24::Zero();
  Eigen::Matrix<double, 24, 4> kci = Eigen::Matrix<double, 24, 4>::Zero();
  Eigen::Matrix4d kii = Eigen::Matrix4d::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss}) {
      const Quad q(xi, eta);
      const Eigen::Matrix2d j = Jacobian(g, q);
      const double det = j.determinant();
      const double dA = std::abs(det);
      const Eigen::Matrix2d jinv = j.inverse();
      double nx[4], ny[4];
      for (int a = 0; a < 4; ++a) {
        nx[a] = jinv(0, 0) * q.dxi[a] + jinv(0, 1) * q.deta[a];
        ny[a] = jinv(1, 0) * q.dxi[a] + jinv(1, 1) * q.deta[a];
      }
      Eigen::Matrix<double, 3, 24> bm = Eigen::Matrix<double, 3, 24>::Zero(), bb = bm;
      Eigen::Matrix<double, 1, 24> drill = Eigen::Matrix<double, 1, 24>::Zero();
      for (int a = 0; a < 4; ++a) {
        bm(0, 6 * a) = nx[a];
        bm(1, 6 * a + 1) = ny[a];
        bm(2, 6 * a) = ny[a];
        bm(2, 6 * a + 1) = nx[a];
        bb(0, 6 * a + 4) = nx[a];   // β1,x
        bb(1, 6 * a + 3) = -ny[a];  // β2,y
        bb(2, 6 * a + 4) = ny[a];
        bb(2, 6 * a + 3) = -nx[a];
        drill(6 * a + 5) = q.n[a];
        drill(6 * a + 1) -= 0.5 * nx[a];
        drill(6 * a) += 0.5 * ny[a];
      }
      Eigen::Matrix<double, 2, 24> covariant;
      covariant.row(0) = 0.5 * (1 + eta) * gA + 0.5 * (1 - eta) * gC;
      covariant.row(1) = 0.5 * (1 + xi) * gD + 0.5 * (1 - xi) * gB;
      const Eigen::Matrix<double, 2, 24> bs = jinv * covariant;

      k += dA * (bm.transpose() * dm * bm + bb.transpose() * db * bb + ds * bs.transpose() * bs +
                 drilling * drill.transpose() * drill);

      // Incompatible membrane modes 1 - ξ², 1 - η² for u and v, differentiated with the
      // centre's Jacobian so that the element passes the patch test.
      const double pxi[2] = {-2 * xi, 0}, peta[2] = {0, -2 * eta};
      Eigen::Matrix<double, 3, 4> bi = Eigen::Matrix<double, 3, 4>::Zero();
      for (int m = 0; m < 2; ++m) {
        const double px = (j0inv(0, 0) * pxi[m] + j0inv(0, 1) * peta[m]) * det0 / det;
        const double py = (j0inv(1, 0) * pxi[m] + j0inv(1, 1) * peta[m]) * det0 / det;
        bi(0, 2 * m) = px;
        bi(1, 2 * m + 1) = py;
        bi(2, 2 * m) = py;
        bi(2, 2 * m + 1) = px;
      }
      kci += dA * bm.transpose() * dm * bi;
      kii += dA * bi.transpose() * dm * bi;
    }
  k -= kci * kii.ldlt().solve(kci.transpose());
  const Matrix24 rot = Rotation24(g.axes, 8);
  return rot.transpose() * k * rot;
}

Vector24 ShellPressureLoads(const Model& model, const Shell& shell, const Eigen::Vector3d& pressure) {
  const auto share = ShellNodalAreas(model, shell);
  Vector24 f = Vector24::Zero();
  for (int a = 0; a < 4; ++a) f.segment<3>(6 * a) = share[static_cast<size_t>(a)] * pressure;
  return f;
}

Vector24 ShellThermalLoads(const Model& model, const Shell& s, double strain) {
  Check(model, s.material, "Shell", s.id);
  const ShellGeometry g = Geometry(model, s);
  const Vector3 stress = MembraneElasticity(model.materials[s.material], s.thickness) * Vector3(strain, strain, 0);
  Vector24 f = Vector24::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss}) {
      const Quad q(xi, eta);
      const Eigen::Matrix2d j = Jacobian(g, q);
      const Eigen::Matrix2d jinv = j.inverse();
      const double dA = std::abs(j.determinant());
      for (int a = 0; a < 4; ++a) {
        const double nx = jinv(0, 0) * q.dxi[a] + jinv(0, 1) * q.deta[a];
        const double ny = jinv(1, 0) * q.dxi[a] + jinv(1, 1) * q.deta[a];
        f[6 * a] += dA * (nx * stress[0] + ny * stress[2]);
        f[6 * a + 1] += dA * (ny * stress[1] + nx * stress[2]);
      }
    }
  return Rotation24(g.axes, 8).transpose() * f;
}

namespace {

constexpr double kHexSign[8][3] = {{-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1},
                                   {-1, -1, 1},  {1, -1, 1},  {1, 1, 1},  {-1, 1, 1}};

struct Hex {
  double n[8];
  Eigen::Matrix<double, 3, 8> dn;  // derivatives along ξ, η, ζ
  Hex(double xi, double eta, double zeta) {
    const double p[3] = {xi, eta, zeta};
    for (int a = 0; a < 8; ++a) {
      double f[3];
      for (int d = 0; d < 3; ++d) f[d] = 1 + p[d] * kHexSign[a][d];
      n[a] = 0.125 * f[0] * f[1] * f[2];
      dn(0, a) = 0.125 * kHexSign[a][0] * f[1] * f[2];
      dn(1, a) = 0.125 * kHexSign[a][1] * f[0] * f[2];
      dn(2, a) = 0.125 * kHexSign[a][2] * f[0] * f[1];
    }
  }
};

Eigen::Matrix<double, 8, 3> HexCoordinates(const Model& model, const Brick& b) {
  Eigen::Matrix<double, 8, 3> x;
  for (int a = 0; a < 8; ++a) x.row(a) = At(model, b.nodes[static_cast<size_t>(a)]).transpose();
  return x;
}

Eigen::Matrix<double, 6, 6> SolidElasticity(const Material& m) {
  const double l = m.E * m.nu / ((1 + m.nu) * (1 - 2 * m.nu)), g = m.G();
  Eigen::Matrix<double, 6, 6> d = Eigen::Matrix<double, 6, 6>::Zero();
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) d(i, j) = l;
    d(i, i) = l + 2 * g;
    d(3 + i, 3 + i) = g;
  }
  return d;
}

// Strain rows εxx εyy εzz γxy γyz γzx of a displacement field with gradient dn (3 × count).
template <int Count>
Eigen::Matrix<double, 6, 3 * Count> StrainRows(const Eigen::Matrix<double, 3, Count>& d) {
  Eigen::Matrix<double, 6, 3 * Count> b = Eigen::Matrix<double, 6, 3 * Count>::Zero();
  for (int a = 0; a < Count; ++a) {
    b(0, 3 * a) = d(0, a);
    b(1, 3 * a + 1) = d(1, a);
    b(2, 3 * a + 2) = d(2, a);
    b(3, 3 * a) = d(1, a);
    b(3, 3 * a + 1) = d(0, a);
    b(4, 3 * a + 1) = d(2, a);
    b(4, 3 * a + 2) = d(1, a);
    b(5, 3 * a) = d(2, a);
    b(5, 3 * a + 2) = d(0, a);
  }
  return b;
}

double Volume(const Brick& b, double det) {
  if (!(std::abs(det) > 0)) throw AnalysisError("Brick " + std::to_string(b.id) + " has no volume.");
  return std::abs(det);
}

}  // namespace

Matrix24 BrickStiffness(const Model& model, const Brick& b) {
  Check(model, b.material, "Brick", b.id);
  const Eigen::Matrix<double, 6, 6> d = SolidElasticity(model.materials[b.material]);
  const auto x = HexCoordinates(model, b);
  const Matrix3 j0 = Hex(0, 0, 0).dn * x;
  const Matrix3 j0inv = j0.inverse();
  const double det0 = j0.determinant();
  Matrix24 k = Matrix24::Zero();
  Eigen::Matrix<double, 24, 9> kci = Eigen::Matrix<double, 24, 9>::Zero();
  Eigen::Matrix<double, 9, 9> kii = Eigen::Matrix<double, 9, 9>::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss})
      for (double zeta : {-kGauss, kGauss}) {
        const Hex h(xi, eta, zeta);
        const Matrix3 j = h.dn * x;
        const double det = j.determinant();
        const double dv = Volume(b, det);
        const Eigen::Matrix<double, 3, 8> dx = j.inverse() * h.dn;
        const auto bc = StrainRows<8>(dx);
        // Incompatible modes 1 - ξ², 1 - η², 1 - ζ² for each displacement component.
        Eigen::Matrix<double, 3, 3> pn = Eigen::Matrix<double, 3, 3>::Zero();
        pn(0, 0) = -2 * xi;
        pn(1, 1) = -2 * eta;
        pn(2, 2) = -2 * zeta;
        const Eigen::Matrix<double, 3, 3> px = (det0 / det) * j0inv * pn;
        const auto bi = StrainRows<3>(px);
        k += dv * bc.transpose() * d * bc;
        kci += dv * bc.transpose() * d * bi;
        kii += dv * bi.transpose() * d * bi;
      }
  k -= kci * kii.ldlt().solve(kci.transpose());
  return k;
}

std::array<double, 8> BrickNodalVolumes(const Model& model, const Brick& b) {
  const auto x = HexCoordinates(model, b);
  std::array<double, 8> out{};
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss})
      for (double zeta : {-kGauss, kGauss}) {
        const Hex h(xi, eta, zeta);
        const double dv = Volume(b, (h.dn * x).determinant());
        for (int a = 0; a < 8; ++a) out[static_cast<size_t>(a)] += h.n[a] * dv;
      }
  return out;
}

Eigen::Matrix<double, 8, 8> BrickVolumeProducts(const Model& model, const Brick& b) {
  const auto x = HexCoordinates(model, b);
  Eigen::Matrix<double, 8, 8> out = Eigen::Matrix<double, 8, 8>::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss})
      for (double zeta : {-kGauss, kGauss}) {
        const Hex h(xi, eta, zeta);
        const Eigen::Map<const Eigen::Matrix<double, 8, 1>> n(h.n);
        out += Volume(b, (h.dn * x).determinant()) * n * n.transpose();
      }
  return out;
}

Vector24 BrickThermalLoads(const Model& model, const Brick& b, double strain) {
  Check(model, b.material, "Brick", b.id);
  Eigen::Matrix<double, 6, 1> e0 = Eigen::Matrix<double, 6, 1>::Zero();
  e0.head<3>().setConstant(strain);
  const Eigen::Matrix<double, 6, 1> stress = SolidElasticity(model.materials[b.material]) * e0;
  const auto x = HexCoordinates(model, b);
  Vector24 f = Vector24::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss})
      for (double zeta : {-kGauss, kGauss}) {
        const Hex h(xi, eta, zeta);
        const Matrix3 j = h.dn * x;
        const double dv = Volume(b, j.determinant());
        f += dv * StrainRows<8>(Eigen::Matrix<double, 3, 8>(j.inverse() * h.dn)).transpose() * stress;
      }
  return f;
}

}  // namespace analysis

// Results of shells and bricks at their centre and nodes, recovered from the nodes'
// displacements with the same fields the stiffness was built from (the incompatible modes
// condensed from the element's own displacements).
namespace analysis {
namespace {

// The centre, then the nodes in order.
constexpr double kShellPoint[5][2] = {{0, 0}, {-1, -1}, {1, -1}, {1, 1}, {-1, 1}};

}  // namespace

ShellPointForces ShellForcesAt(const Model& model, const Shell& s, const Vector24& global, double thermalStrain) {
  Check(model, s.material, "Shell", s.id);
  const Material& mat = model.materials[s.material];
  const double t = s.thickness;
  const ShellGeometry g = Geometry(model, s);
  const Matrix3 dm = MembraneElasticity(mat, t);
  const Matrix3 db = dm * (t * t / 12);
  const double ds = kShearCorrection * mat.G() * t;
  const Vector24 u = Rotation24(g.axes, 8) * global;
  const auto gA = CovariantShear(g, 0, 1, 0), gC = CovariantShear(g, 0, -1, 0);
  const auto gD = CovariantShear(g, 1, 0, 1), gB = CovariantShear(g, -1, 0, 1);
  const Eigen::Matrix2d j0 = Jacobian(g, Quad(0, 0));
  const Eigen::Matrix2d j0inv = j0.inverse();
  const double det0 = j0.determinant();

  struct Fields {
    Eigen::Matrix<double, 3, 24> bm, bb;
    Eigen::Matrix<double, 2, 24> bs;
    Eigen::Matrix<double, 3, 4> bi;
  };
  auto fields = [&](double xi, double eta) {
    Fields f;
    const Quad q(xi, eta);
    const Eigen::Matrix2d j = Jacobian(g, q);
    const double det = j.determinant();
    const Eigen::Matrix2d jinv = j.inverse();
    f.bm.setZero();
    f.bb.setZero();
    for (int a = 0; a < 4; ++a) {
      const double nx = jinv(0, 0) * q.dxi[a] + jinv(0, 1) * q.deta[a];
      const double ny = jinv(1, 0) * q.dxi[a] + jinv(1, 1) * q.deta[a];
      f.bm(0, 6 * a) = nx;
      f.bm(1, 6 * a + 1) = ny;
      f.bm(2, 6 * a) = ny;
      f.bm(2, 6 * a + 1) = nx;
      f.bb(0, 6 * a + 4) = nx;
      f.bb(1, 6 * a + 3) = -ny;
      f.bb(2, 6 * a + 4) = ny;
      f.bb(2, 6 * a + 3) = -nx;
    }
    Eigen::Matrix<double, 2, 24> covariant;
    covariant.row(0) = 0.5 * (1 + eta) * gA + 0.5 * (1 - eta) * gC;
    covariant.row(1) = 0.5 * (1 + xi) * gD + 0.5 * (1 - xi) * gB;
    f.bs = jinv * covariant;
    const double pxi[2] = {-2 * xi, 0}, peta[2] = {0, -2 * eta};
    f.bi.setZero();
    for (int m = 0; m < 2; ++m) {
      const double px = (j0inv(0, 0) * pxi[m] + j0inv(0, 1) * peta[m]) * det0 / det;
      const double py = (j0inv(1, 0) * pxi[m] + j0inv(1, 1) * peta[m]) * det0 / det;
      f.bi(0, 2 * m) = px;
      f.bi(1, 2 * m + 1) = py;
      f.bi(2, 2 * m) = py;
      f.bi(2, 2 * m + 1) = px;
    }
    return std::make_pair(f, std::abs(det));
  };
  Eigen::Matrix<double, 4, 1> fci = Eigen::Matrix<double, 4, 1>::Zero();
  Eigen::Matrix4d kii = Eigen::Matrix4d::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss}) {
      const auto [f, dA] = fields(xi, eta);
      fci += dA * f.bi.transpose() * dm * (f.bm * u);
      kii += dA * f.bi.transpose() * dm * f.bi;
    }
  const Eigen::Vector4d alpha = -kii.ldlt().solve(fci);
  const Vector3 free(thermalStrain, thermalStrain, 0);

  ShellPointForces out{};
  for (size_t p = 0; p < 5; ++p) {
    const auto [f, dA] = fields(kShellPoint[p][0], kShellPoint[p][1]);
    const Vector3 n = dm * (f.bm * u + f.bi * alpha - free);
    // Moments positive where they put the bottom face (local -z) in tension.
    const Vector3 m = -db * (f.bb * u);
    const Eigen::Vector2d v = ds * (f.bs * u);
    out[p] = {n[0], n[1], n[2], m[0], m[1], m[2], v[0], v[1]};
  }
  return out;
}

BrickPointStresses BrickStressesAt(const Model& model, const Brick& b, const Vector24& u, double thermalStrain) {
  Check(model, b.material, "Brick", b.id);
  const Eigen::Matrix<double, 6, 6> d = SolidElasticity(model.materials[b.material]);
  const auto x = HexCoordinates(model, b);
  const Matrix3 j0 = Hex(0, 0, 0).dn * x;
  const Matrix3 j0inv = j0.inverse();
  const double det0 = j0.determinant();
  auto fields = [&](double xi, double eta, double zeta) {
    const Hex h(xi, eta, zeta);
    const Matrix3 j = h.dn * x;
    const double det = j.determinant();
    const Eigen::Matrix<double, 3, 8> dx = j.inverse() * h.dn;
    Eigen::Matrix<double, 3, 3> pn = Eigen::Matrix<double, 3, 3>::Zero();
    pn(0, 0) = -2 * xi;
    pn(1, 1) = -2 * eta;
    pn(2, 2) = -2 * zeta;
    const Eigen::Matrix<double, 3, 3> px = (det0 / det) * j0inv * pn;
    return std::make_tuple(StrainRows<8>(dx), StrainRows<3>(px), Volume(b, det));
  };
  Eigen::Matrix<double, 9, 1> fci = Eigen::Matrix<double, 9, 1>::Zero();
  Eigen::Matrix<double, 9, 9> kii = Eigen::Matrix<double, 9, 9>::Zero();
  for (double xi : {-kGauss, kGauss})
    for (double eta : {-kGauss, kGauss})
      for (double zeta : {-kGauss, kGauss}) {
        const auto [bc, bi, dv] = fields(xi, eta, zeta);
        fci += dv * bi.transpose() * d * (bc * u);
        kii += dv * bi.transpose() * d * bi;
      }
  const Eigen::Matrix<double, 9, 1> alpha = -kii.ldlt().solve(fci);
  Eigen::Matrix<double, 6, 1> free = Eigen::Matrix<double, 6, 1>::Zero();
  free.head<3>().setConstant(thermalStrain);
  BrickPointStresses out{};
  for (size_t p = 0; p < 9; ++p) {
    const double* at = p == 0 ? nullptr : kHexSign[p - 1];
    const auto [bc, bi, dv] = fields(at ? at[0] : 0, at ? at[1] : 0, at ? at[2] : 0);
    const Eigen::Matrix<double, 6, 1> stress = d * (bc * u + bi * alpha - free);
    for (int k = 0; k < 6; ++k) out[p][static_cast<size_t>(k)] = stress[k];
  }
  return out;
}

}  // namespace analysis
