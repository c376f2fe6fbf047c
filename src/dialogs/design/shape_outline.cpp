#include "dialogs/design/shape_outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "dialogs/design/regular_section.h"
#include "tools/format.h"

namespace design {
namespace {

std::string Text(const char* name, double value, const std::string& unit) {
  return tools::Format("%s = %g", name, value) + (unit.empty() ? "" : " " + unit);
}

bool Positive(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v) && v > 0; });
}

std::vector<Point> Circle(double cx, double cy, double r) {
  std::vector<Point> loop;
  constexpr int kSteps = 96;
  for (int i = 0; i < kSteps; ++i) {
    const double a = 2 * std::numbers::pi * i / kSteps;
    loop.push_back({cx + r * std::cos(a), cy + r * std::sin(a)});
  }
  return loop;
}

Outline Box(double w, double h) {
  Outline o;
  o.width = w;
  o.height = h;
  return o;
}

// Dimension marks offset from the shape by a fraction of its size.
double Gap(const Outline& o) { return 0.12 * std::max(o.width, o.height); }

void MarkWidth(Outline& o, const char* name, double b, const std::string& unit) {
  o.marks.push_back({{b, o.height}, {0, o.height}, -Gap(o), Text(name, b, unit)});
}
void MarkDepth(Outline& o, const char* name, double d, const std::string& unit) {
  o.marks.push_back({{o.width, 0}, {o.width, d}, -Gap(o), Text(name, d, unit)});
}

}  // namespace

Outline RectangleOutline(double b, double d, const std::string& unit) {
  if (!Positive({b, d})) return {};
  Outline o = Box(b, d);
  o.loops.push_back({{0, 0}, {b, 0}, {b, d}, {0, d}});
  MarkWidth(o, "b", b, unit);
  MarkDepth(o, "d", d, unit);
  return o;
}

Outline RoundOutline(double D, const std::string& unit) {
  if (!Positive({D})) return {};
  Outline o = Box(D, D);
  o.loops.push_back(Circle(D / 2, D / 2, D / 2));
  MarkWidth(o, "D", D, unit);
  return o;
}

Outline WideFlangeOutline(double b, double d, double tf, double tw, const std::string& unit) {
  if (!Positive({b, d, tf, tw})) return {};
  Outline o = Box(b, d);
  const double h = d - 2 * tf;
  if (h <= 0 || tw >= b) {
    // The flanges meet or overlap: what is left to draw is the solid block.
    o.loops.push_back({{0, 0}, {b, 0}, {b, d}, {0, d}});
  } else {
    const double x1 = (b - tw) / 2, x2 = (b + tw) / 2;
    o.loops.push_back({{0, 0},
                       {b, 0},
                       {b, tf},
                       {x2, tf},
                       {x2, d - tf},
                       {b, d - tf},
                       {b, d},
                       {0, d},
                       {0, d - tf},
                       {x1, d - tf},
                       {x1, tf},
                       {0, tf}});
  }
  MarkWidth(o, "b", b, unit);
  MarkDepth(o, "d", d, unit);
  o.marks.push_back({{0, d}, {0, d - std::min(tf, d)}, -Gap(o) / 2, Text("tf", tf, unit)});
  o.marks.push_back({{(b - tw) / 2, d / 2}, {(b + tw) / 2, d / 2}, 0, Text("tw", tw, unit)});
  return o;
}

Outline TeeOutline(double b, double d, double tf, double tw, const std::string& unit) {
  if (!Positive({b, d, tf, tw})) return {};
  Outline o = Box(b, d);
  const double x1 = (b - tw) / 2, x2 = (b + tw) / 2;
  if (tf >= d || tw >= b)
    o.loops.push_back({{0, 0}, {b, 0}, {b, d}, {0, d}});
  else
    o.loops.push_back({{x1, 0}, {x2, 0}, {x2, d - tf}, {b, d - tf}, {b, d}, {0, d}, {0, d - tf}, {x1, d - tf}});
  MarkWidth(o, "b", b, unit);
  MarkDepth(o, "d", d, unit);
  o.marks.push_back({{0, d}, {0, d - std::min(tf, d)}, -Gap(o) / 2, Text("tf", tf, unit)});
  o.marks.push_back({{x1, (d - tf) / 2}, {x2, (d - tf) / 2}, 0, Text("tw", tw, unit)});
  return o;
}

Outline ChannelOutline(double b, double d, double tf, double tw, const std::string& unit) {
  if (!Positive({b, d, tf, tw}) || tw >= b || 2 * tf >= d) return {};
  Outline o = Box(b, d);
  o.loops.push_back({{0, 0}, {b, 0}, {b, tf}, {tw, tf}, {tw, d - tf}, {b, d - tf}, {b, d}, {0, d}});
  MarkWidth(o, "bf", b, unit);
  MarkDepth(o, "d", d, unit);
  return o;
}

Outline AngleOutline(double b, double d, double t, const std::string& unit, const char* bName, const char* dName) {
  if (!Positive({b, d, t}) || t >= b || t >= d) return {};
  Outline o = Box(b, d);
  o.loops.push_back({{0, 0}, {b, 0}, {b, t}, {t, t}, {t, d}, {0, d}});
  o.marks.push_back({{0, 0}, {b, 0}, -Gap(o), Text(bName, b, unit)});
  o.marks.push_back({{0, d}, {0, 0}, -Gap(o), Text(dName, d, unit)});
  o.marks.push_back({{b, 0}, {b, t}, -Gap(o) / 2, Text("t", t, unit)});
  return o;
}

Outline TubeOutline(double b, double d, double t, const std::string& unit) {
  if (!Positive({b, d, t}) || 2 * t >= b || 2 * t >= d) return {};
  Outline o = Box(b, d);
  o.loops.push_back({{0, 0}, {b, 0}, {b, d}, {0, d}});
  o.loops.push_back({{t, t}, {t, d - t}, {b - t, d - t}, {b - t, t}});
  MarkWidth(o, "B", b, unit);
  MarkDepth(o, "H", d, unit);
  return o;
}

Outline RingOutline(double D, double t, const std::string& unit) {
  if (!Positive({D, t}) || 2 * t >= D) return {};
  Outline o = Box(D, D);
  o.loops.push_back(Circle(D / 2, D / 2, D / 2));
  o.loops.push_back(Circle(D / 2, D / 2, D / 2 - t));
  MarkWidth(o, "OD", D, unit);
  return o;
}

Outline RegularSectionOutline(int type, const double dims[4], const std::string& unit) {
  switch (type) {
    case kRectangle:
      return RectangleOutline(dims[0], dims[1], unit);
    case kRound:
      return RoundOutline(dims[0], unit);
    case kWideFlange:
      return WideFlangeOutline(dims[0], dims[1], dims[2], dims[3], unit);
    case kTee:
      return TeeOutline(dims[0], dims[1], dims[2], dims[3], unit);
    default:
      return {};
  }
}

Outline SteelShapeOutline(const tools::fmSect_AISC& s, double unitInInches, const std::string& in) {
  namespace a = tools::aisc;
  const auto v = [&](int i) { return s.Value(i) / unitInInches; };
  const std::string& t = s.type;
  if (t == "W" || t == "M" || t == "S" || t == "HP")
    return WideFlangeOutline(v(a::bf), v(a::d), v(a::tf), v(a::tw), in);
  if (t == "WT" || t == "MT" || t == "ST") return TeeOutline(v(a::bf), v(a::d), v(a::tf), v(a::tw), in);
  if (t == "C" || t == "MC") return ChannelOutline(v(a::bf), v(a::d), v(a::tf), v(a::tw), in);
  if (t == "L") {
    // Ix bends about the axis across the long leg: the long leg stands, as in the section
    // the shape becomes; each leg keeps its column's name so the picture reads with the list.
    const bool bIsLong = v(a::b) >= v(a::d);
    return bIsLong ? AngleOutline(v(a::d), v(a::b), v(a::t), in, "d", "b") : AngleOutline(v(a::b), v(a::d), v(a::t), in);
  }
  if (t == "PIPE" || (t == "HSS" && s.Has(a::OD))) return RingOutline(v(a::OD), v(a::tdes), in);
  if (t == "HSS") return TubeOutline(v(a::B), v(a::Ht), v(a::tdes), in);
  if (t == "2L") {
    // Two angles back to back, long legs vertical, without the separation.
    Outline one = AngleOutline(v(a::b), v(a::d), v(a::t), in);
    if (one.IsEmpty()) return one;
    Outline o = Box(2 * one.width, one.height);
    for (const auto& p : one.loops) {
      std::vector<Point> left, right;
      for (const Point& q : p) {
        right.push_back({one.width + q.x, q.y});
        left.push_back({one.width - q.x, q.y});
      }
      o.loops.push_back(right);
      o.loops.push_back(left);
    }
    o.marks.push_back({{0, 0}, {o.width, 0}, -Gap(o), Text("2 x b", 2 * one.width, in)});
    o.marks.push_back({{o.width, 0}, {o.width, o.height}, -Gap(o), Text("d", o.height, in)});
    return o;
  }
  return {};
}

Outline LumberOutline(const tools::fmSect_NDS& s, double unitInInches, const std::string& unit) {
  return RectangleOutline(s.b / unitInInches, s.d / unitInInches, unit);
}

}  // namespace design
