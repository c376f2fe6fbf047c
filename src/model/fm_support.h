#pragma once
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// A support: the node it holds, which of the node's six degrees of freedom it restrains, in
// global axes (translations Dx, Dy, Dz, then rotations Rx, Ry, Rz), and the displacement it
// prescribes on each restrained one (a settlement: displacement unit, then rotation unit).
struct fmSupport {
  enum Dof { Dx, Dy, Dz, Rx, Ry, Rz };
  static constexpr int kDofCount = 6;

  uint32_t node = 0;
  std::array<bool, kDofCount> restrained{};
  std::array<double, kDofCount> displacement{};  // Dx, Dy, Dz, Dox, Doy, Doz; 0 on free ones

  // Pinned holds the three translations, fixed all six.
  static fmSupport Pinned(uint32_t node) { return {node, {true, true, true, false, false, false}, {}}; }
  static fmSupport Fixed(uint32_t node) { return {node, {true, true, true, true, true, true}, {}}; }
  bool IsPinned() const { return restrained == Pinned(node).restrained; }
  bool IsFixed() const { return restrained == Fixed(node).restrained; }
  bool RestrainsAnything() const { return restrained != std::array<bool, kDofCount>{}; }

  // Six digits in the order Dx Dy Dz Rx Ry Rz, 1 restrained and 0 free: "111000" is pinned.
  // The same form as a solver's support flag, so a document reads the same either way.
  std::string RestraintText() const {
    std::string text(kDofCount, '0');
    for (int k = 0; k < kDofCount; ++k)
      if (restrained[static_cast<size_t>(k)]) text[static_cast<size_t>(k)] = '1';
    return text;
  }
  static std::optional<std::array<bool, kDofCount>> ParseRestraintText(std::string_view text) {
    if (text.size() != kDofCount) return std::nullopt;
    std::array<bool, kDofCount> flags{};
    for (size_t k = 0; k < text.size(); ++k) {
      if (text[k] != '0' && text[k] != '1') return std::nullopt;
      flags[k] = text[k] == '1';
    }
    return flags;
  }

  bool operator==(const fmSupport&) const = default;
};
