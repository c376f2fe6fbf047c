#pragma once
#include <optional>
#include <string>

#include "tools/shape_table.h"

// The properties of one shape of the shape library as the member check reads them
// (in, in^2, in^3, in^4, in^6), with the shape's family.
namespace steel {

enum class ShapeFamily {
  IShape,       // W, M, S, HP: doubly symmetric I-shapes
  Channel,      // C, MC: symmetric about x
  Tee,          // WT, MT, ST: symmetric about y
  Angle,        // L
  DoubleAngle,  // 2L: symmetric about y
  RectHss,      // rectangular and square HSS
  RoundHss      // round HSS and PIPE
};

const char* FamilyName(ShapeFamily family);

struct AiscSection {
  std::string label;
  std::string type;
  ShapeFamily family = ShapeFamily::IShape;

  double A = 0, d = 0, bf = 0, tw = 0, tf = 0;
  double Ix = 0, Zx = 0, Sx = 0, rx = 0;
  double Iy = 0, Zy = 0, Sy = 0, ry = 0;
  double J = 0, Cw = 0;
  double rts = 0, ho = 0;
  double x = 0, y = 0;   // centroid: channels from the back of the web, tees and angles from the flange or heel
  double ro = 0, H = 0;  // polar radius of gyration about the shear centre and the flexural constant
  double flangeRatio = 0;  // bf/2tf (I, tee), b/t (channel)
  double webRatio = 0;     // h/tw (I, channel), d/tw (tee)
  // Angles: legs and thickness; for 2L, the single angle's least radius of gyration.
  double legVertical = 0, legHorizontal = 0, t = 0, rz = 0, Iz = 0, tanAlpha = 0;
  // HSS: overall sizes, design wall thickness, flat widths over thickness.
  double Ht = 0, B = 0, tdes = 0, bOverT = 0, hOverT = 0, OD = 0, DOverT = 0;
  // True when J of a double angle was derived from its single angle.
  bool jDerived = false;
};

// The section of a shape, or nullopt with the reason when the shape lacks a property its
// family needs. For a double angle, `single` is its single angle from the same library (for
// the connector rule and, when the double angle has none, twice its torsional constant J, as
// the section transform takes it).
std::optional<AiscSection> MakeSection(const tools::fmSect_AISC& shape, const tools::fmSect_AISC* single,
                                       std::string* why = nullptr);

}  // namespace steel
