#pragma once
#include <array>
#include <cstdint>

// Result records of the solved structure.

// One node's (or element's) six values: X, Y, Z translation or force, then X, Y, Z
// rotation or moment.
struct fmResult6Val {
  int32_t number = 0;
  std::array<double, 6> v{};

  bool operator==(const fmResult6Val&) const = default;
};

// A node's envelope over the load cases and combinations taking part: per value its
// maximum and minimum and the 0-based index of the case that gives each.
struct fmEnvelopeValue6 {
  int32_t number = 0;
  std::array<double, 6> max{};
  std::array<double, 6> min{};
  std::array<int32_t, 6> maxCase{};
  std::array<int32_t, 6> minCase{};
};

// The force of a two-node multi-DOF constraint: for each of its nodes the degree of
// freedom (0 to 5: X, Y, Z, OX, OY, OZ) and the force or moment there.
struct fmConstraintForce {
  int32_t id = 0;
  std::array<int32_t, 2> node{};
  std::array<int32_t, 2> dof{};
  std::array<double, 2> value{};

  bool operator==(const fmConstraintForce&) const = default;
};
