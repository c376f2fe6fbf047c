#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "tools/labels.h"
#include "tools/parse.h"

// Labels of model records hold at most this many characters.
inline constexpr size_t kRecordLabelChars = 127;

// The label that marks the one rigid-link section (every property zero).
inline constexpr const char* kRigidLinkLabel = "RIGID_LINK";

inline bool IsRigidLinkLabel(std::string_view label) { return tools::LabelsEqual(label, kRigidLinkLabel); }

// A member section. Values are in the document's length unit and its powers.
struct fmSect {
  int32_t id = -1;      // section number: the grid row that holds it
  std::string label;    // UTF-8, at most 127 characters
  double A = 0;         // area (L^2)
  double Ay = 0;        // shear area for shear along local y (L^2); 0 ignores shear deformation
  double Az = 0;        // shear area for shear along local z (L^2)
  double Iz = 0;        // moment of inertia about local z (L^4)
  double Iy = 0;        // moment of inertia about local y (L^4)
  double J = 0;         // torsion constant (L^4)
  double reserved = 0;  // carried with the record; no dialog shows or edits it
  double b = 0;         // width: flange width of I and T shapes, diameter of a round bar (L)
  double d = 0;         // depth (L)
  double tf = 0;        // flange thickness (L)
  double tw = 0;        // web thickness (L)

  fmSect() = default;
  explicit fmSect(int32_t id_) : id(id_) {}
  static const char* name() { return "fmSect"; }

  void SetLabel(std::string_view text) { label = tools::CutLabel(text, kRecordLabelChars); }
  bool IsRigidLink() const { return IsRigidLinkLabel(label); }
  bool operator==(const fmSect&) const = default;
};

// A shell thickness, in the document's length unit.
struct fmThick {
  int32_t id = -1;
  std::string label;
  double thickness = 0;

  fmThick() = default;
  explicit fmThick(int32_t id_) : id(id_) {}
  static const char* name() { return "fmThick"; }

  void SetLabel(std::string_view text) { label = tools::CutLabel(text, kRecordLabelChars); }
  bool operator==(const fmThick&) const = default;
};
