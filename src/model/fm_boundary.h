#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

// What holds the structure and ties its parts together, besides supports (fm_support.h):
// springs to ground, member end releases, constraints between two degrees of freedom and
// rigid floor diaphragms. Values are in the model's units.

// Six digits, 1 where the value is not zero: the flag the information sheets print.
template <size_t N>
std::string NonZeroFlag(const std::array<double, N>& values) {
  std::string flag(N, '0');
  for (size_t k = 0; k < N; ++k)
    if (values[k] != 0) flag[k] = '1';
  return flag;
}

// A spring to ground at a node, per global degree of freedom: Kx, Ky, Kz in the node spring
// unit (force per length), Kox, Koy, Koz in the rotational spring unit (moment per radian
// or degree). Zero: no spring on that one.
struct fmNodalSpring {
  uint32_t node = 0;
  std::array<double, 6> k{};
  std::string Flag() const { return NonZeroFlag(k); }
  bool operator==(const fmNodalSpring&) const = default;
};

// A node's full symmetric 6x6 spring stiffness: the 21 terms of its upper triangle, row by
// row (Kx_Kx, Kx_Ky, Kx_Kz, Kx_Kox, Kx_Koy, Kx_Koz, Ky_Ky ... Koz_Koz). Terms between two
// translations are in the node spring unit, between two rotations in the rotational spring
// unit, and the terms coupling a translation with a rotation in force per radian (the force
// unit; a moment per length is the same size).
struct fmCoupledSpring {
  static constexpr int kTermCount = 21;
  uint32_t node = 0;
  std::array<double, kTermCount> k{};
  // The unit of term t: 0 translation-translation, 1 rotation-rotation, 2 coupling.
  static int TermKind(int t);
  // Heading of term t, "Kx_Kx" ... "Koz_Koz".
  static const std::string& TermName(int t);
  bool operator==(const fmCoupledSpring&) const = default;
};

// Springs to ground along a member (line spring unit, force per length per length) or over
// a shell (area spring unit, force per area per length), in global X, Y, Z.
struct fmLineSpring {
  uint32_t member = 0;
  std::array<double, 3> k{};
  std::string Flag() const { return NonZeroFlag(k); }
  bool operator==(const fmLineSpring&) const = default;
};
struct fmSurfaceSpring {
  uint32_t shell = 0;
  std::array<double, 3> k{};
  std::string Flag() const { return NonZeroFlag(k); }
  bool operator==(const fmSurfaceSpring&) const = default;
};

// The end forces of a member that its ends do not pass on, in the member's local axes:
// per end (start, end) Fx, Fy, Fz, Mx, My, Mz. A pinned end releases My and Mz.
struct fmMemberRelease {
  uint32_t member = 0;
  std::array<std::array<bool, 6>, 2> released{};
  bool ReleasesAnything() const { return released != std::array<std::array<bool, 6>, 2>{}; }
  // Twelve digits, the start's six then the end's, 1 released.
  std::string Text() const;
  static bool ParseText(const std::string& text, std::array<std::array<bool, 6>, 2>& out);
  bool operator==(const fmMemberRelease&) const = default;
};

// Two degrees of freedom that move together: one per constrained pair, numbered; DOFs 0 to 5
// are X, Y, Z, OX, OY, OZ.
struct fmConstraint {
  uint32_t id = 0;
  std::array<uint32_t, 2> node{};
  std::array<int32_t, 2> dof{};
  bool operator==(const fmConstraint&) const = default;
};

// A floor rigid in its horizontal plane (Y is vertical): every node of it follows the master
// node in X, Z and the rotation about Y. Its nodes are those at a level (a Y in the length
// unit) or a set of node ids.
struct fmDiaphragm {
  uint32_t id = 0;
  uint32_t master = 0;
  bool byLevel = true;
  double level = 0;             // when byLevel
  std::vector<uint32_t> nodes;  // otherwise
  bool operator==(const fmDiaphragm&) const = default;
};

struct fmNd;
// The nodes a diaphragm ties, its master first, then the others in the order of the node
// table (by level) or of its set. A level takes
// every node whose Y lies within a millionth of the level's size (at least 1e-6) of it.
std::vector<uint32_t> DiaphragmNodes(const fmDiaphragm& d, const std::vector<fmNd>& nodes);
bool AtLevel(double y, double level);
