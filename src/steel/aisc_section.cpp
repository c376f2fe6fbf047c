#include "steel/aisc_section.h"

#include <algorithm>
#include <cmath>

namespace steel {

const char* FamilyName(ShapeFamily family) {
  switch (family) {
    case ShapeFamily::IShape: return "doubly symmetric I-shape";
    case ShapeFamily::Channel: return "channel";
    case ShapeFamily::Tee: return "tee";
    case ShapeFamily::Angle: return "single angle";
    case ShapeFamily::DoubleAngle: return "double angle";
    case ShapeFamily::RectHss: return "rectangular HSS";
    case ShapeFamily::RoundHss: return "round HSS";
  }
  return "";
}

namespace {

struct Reader {
  const tools::fmSect_AISC& shape;
  std::string missing;
  double operator()(const char* column) {
    const double v = shape.Value(column);
    if (!std::isfinite(v)) {
      missing += missing.empty() ? column : std::string(", ") + column;
      return 0;
    }
    return v;
  }
  double Optional(const char* column, double fallback = 0) const {
    const double v = shape.Value(column);
    return std::isfinite(v) ? v : fallback;
  }
};

std::string Upper(std::string s) {
  for (char& c : s)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return s;
}

}  // namespace

std::optional<AiscSection> MakeSection(const tools::fmSect_AISC& shape, const tools::fmSect_AISC* single,
                                       std::string* why) {
  AiscSection s;
  s.label = shape.label;
  s.type = Upper(shape.type);
  Reader r{shape, {}};
  s.A = r("A");
  s.Ix = r("Ix");
  s.Iy = r("Iy");
  s.Sx = r("Sx");
  s.Sy = r("Sy");
  s.Zx = r("Zx");
  s.Zy = r("Zy");
  s.rx = r("rx");
  s.ry = r("ry");
  const std::string& t = s.type;
  if (t == "W" || t == "M" || t == "S" || t == "HP" || t == "C" || t == "MC") {
    s.family = (t == "C" || t == "MC") ? ShapeFamily::Channel : ShapeFamily::IShape;
    s.d = r("d");
    s.bf = r("bf");
    s.tw = r("tw");
    s.tf = r("tf");
    s.J = r("J");
    s.Cw = r("Cw");
    s.rts = r("rts");
    s.ho = r("ho");
    s.webRatio = r("h/tw");
    if (s.family == ShapeFamily::Channel) {
      s.flangeRatio = r("b/t");
      s.x = r("x");
      s.ro = r("ro");
      s.H = r("H");
    } else {
      s.flangeRatio = r("bf/2tf");
    }
  } else if (t == "WT" || t == "MT" || t == "ST") {
    s.family = ShapeFamily::Tee;
    s.d = r("d");
    s.bf = r("bf");
    s.tw = r("tw");
    s.tf = r("tf");
    s.J = r("J");
    s.Cw = r.Optional("Cw");
    s.y = r("y");
    s.ro = r("ro");
    s.H = r("H");
    s.flangeRatio = r("bf/2tf");
    s.webRatio = s.tw > 0 ? s.d / s.tw : 0;
  } else if (t == "L" || t == "2L") {
    s.family = t == "L" ? ShapeFamily::Angle : ShapeFamily::DoubleAngle;
    s.t = r("t");
    s.x = r.Optional("x");
    s.y = r("y");
    if (s.family == ShapeFamily::Angle) {
      // The published Ix bends about the axis across the long leg: the long leg is vertical.
      const double b = r("b"), d = r("d");
      s.legVertical = std::max(b, d);
      s.legHorizontal = std::min(b, d);
      s.J = r("J");
      s.Cw = r.Optional("Cw");
      s.ro = r("ro");
      s.rz = r("rz");
      s.Iz = r("Iz");
      s.tanAlpha = r.Optional("tan(a)", 1.0);
    } else {
      // A double angle's d is the depth of its vertical legs, b the width of one outstanding leg.
      s.legVertical = r("d");
      s.legHorizontal = r("b");
      s.ro = r("ro");
      s.H = r("H");
      s.J = r.Optional("J", NAN);
      if (single) {
        s.rz = single->Value("rz");
        if (!std::isfinite(s.J)) {
          s.J = 2 * single->Value("J");
          s.jDerived = true;
        }
      }
      if (!std::isfinite(s.rz)) s.rz = 0;
      if (!std::isfinite(s.J)) {
        r.missing += r.missing.empty() ? "J" : ", J";
        s.J = 0;
      }
    }
  } else if (t == "HSS" || t == "PIPE") {
    s.tdes = r("tdes");
    s.J = r.Optional("J");
    if (std::isfinite(shape.Value("OD"))) {
      s.family = ShapeFamily::RoundHss;
      s.OD = r("OD");
      s.DOverT = r("D/t");
    } else {
      s.family = ShapeFamily::RectHss;
      s.Ht = r("Ht");
      s.B = r("B");
      s.bOverT = r("b/tdes");
      s.hOverT = r("h/tdes");
    }
  } else {
    if (why) *why = "the shape type " + shape.type + " is not one the check knows";
    return std::nullopt;
  }
  if (!r.missing.empty()) {
    if (why) *why = "the shape " + shape.label + " has no " + r.missing;
    return std::nullopt;
  }
  return s;
}

}  // namespace steel
