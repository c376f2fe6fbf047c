#pragma once
#include <array>
#include <Eigen/Dense>
#include <cmath>
#include <string>
#include <vector>

#include "analysis/model.h"

// Small models for the analysis tests, built node by node.
namespace analysis_test {

using namespace analysis;

inline size_t AddNode(Model& m, double x, double y, double z) {
  m.nodes.push_back({static_cast<uint32_t>(m.nodes.size() + 1), x, y, z});
  return m.nodes.size() - 1;
}

inline size_t AddMember(Model& m, size_t a, size_t b, size_t section = 0, double angle = 0) {
  Member mb;
  mb.id = static_cast<uint32_t>(m.members.size() + 1);
  mb.nodes = {a, b};
  mb.section = section;
  mb.angleDeg = angle;
  m.members.push_back(mb);
  return m.members.size() - 1;
}

inline void Hold(Model& m, size_t node, std::array<bool, 6> dofs) { m.supports.push_back({node, dofs, {}}); }
inline void Fix(Model& m, size_t node) { Hold(m, node, {true, true, true, true, true, true}); }

inline LoadCase& AddCase(Model& m, const std::string& name) {
  m.cases.push_back({});
  m.cases.back().name = name;
  return m.cases.back();
}

// A steel-like material and a section without shear deformation.
inline Model FrameModel(double E = 29000, double nu = 0.3, Section s = {10, 0, 0, 200, 400, 50}) {
  Model m;
  m.materials.push_back({E, nu, 0, 0});
  m.sections.push_back(s);
  return m;
}

// A straight line of n members from (0,0,0) to (length,0,0); returns the node positions.
inline std::vector<size_t> Line(Model& m, double length, int n) {
  std::vector<size_t> nodes;
  for (int i = 0; i <= n; ++i) nodes.push_back(AddNode(m, length * i / n, 0, 0));
  for (int i = 0; i < n; ++i) AddMember(m, nodes[static_cast<size_t>(i)], nodes[static_cast<size_t>(i) + 1]);
  return nodes;
}

// A square plate of side a in the horizontal X-Z plane, n × n shells, its membrane held and
// its edges hard simply supported (the deflection and the rotation along the edge held) or
// clamped.
struct Plate {
  Model model;
  std::vector<std::vector<size_t>> grid;  // [i along X][j along Z]
  size_t Centre() const { return grid[grid.size() / 2][grid.size() / 2]; }
};

inline Plate SquarePlate(int n, double a, double t, const Material& material, bool clamped) {
  Plate p;
  Model& m = p.model;
  m.materials.push_back(material);
  p.grid.assign(static_cast<size_t>(n) + 1, std::vector<size_t>(static_cast<size_t>(n) + 1));
  for (int i = 0; i <= n; ++i)
    for (int j = 0; j <= n; ++j) p.grid[static_cast<size_t>(i)][static_cast<size_t>(j)] = AddNode(m, a * i / n, 0, a * j / n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      Shell s;
      s.id = static_cast<uint32_t>(m.shells.size() + 1);
      const auto I = static_cast<size_t>(i), J = static_cast<size_t>(j);
      s.nodes = {p.grid[I][J], p.grid[I][J + 1], p.grid[I + 1][J + 1], p.grid[I + 1][J]};
      s.thickness = t;
      m.shells.push_back(s);
    }
  for (int i = 0; i <= n; ++i)
    for (int j = 0; j <= n; ++j) {
      const bool edgeX = i == 0 || i == n, edgeZ = j == 0 || j == n;
      std::array<bool, 6> held = {true, edgeX || edgeZ, true, false, true, false};
      if (edgeX) held[Rx] = true;
      if (edgeZ) held[Rz] = true;
      if (clamped && (edgeX || edgeZ)) held[Rx] = held[Rz] = true;
      Hold(m, p.grid[static_cast<size_t>(i)][static_cast<size_t>(j)], held);
    }
  return p;
}

inline double U(const Eigen::VectorXd& v, size_t node, int dof) { return v[static_cast<Eigen::Index>(6 * node + static_cast<size_t>(dof))]; }

inline double Relative(double got, double want) { return std::abs(got - want) / std::abs(want); }

}  // namespace analysis_test
