#include "model/response_spectrum_codes.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "tools/format.h"

namespace model {
namespace {

// More points than any run of these curves can give unless its step has become too small
// to move the period on.
constexpr size_t kMaxRunPoints = 1000;

struct Curve {
  std::vector<fmSpectrumPoint> points;
  bool ok = true;

  // Emits a, a + h, a + 2h, ... while below b, the step added each time (so rounding may
  // leave one more point just below b). Each run starts at its own a.
  void Run(double a, double b, double h, const std::function<double(double)>& sa) {
    // Bounds or steps that overflowed or vanished would give a curve of a point or two.
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(h) || (a < b && !(h > 0))) {
      ok = false;
      return;
    }
    size_t count = 0;
    for (double t = a; t < b; t += h) {
      if (!(t + h > t) || ++count > kMaxRunPoints) {
        ok = false;
        return;
      }
      points.push_back({t, sa(t)});
    }
  }
};

struct Check {
  std::string message;
  SpectrumField field = SpectrumField::None;
  // Keeps the first refusal only.
  void Refuse(bool failed, SpectrumField f, const char* text) {
    if (failed && message.empty()) {
      message = text;
      field = f;
    }
  }
};

// Zero and negative values (and minus infinity) get the "greater than 0.0" refusal; NaN
// and plus infinity pass it and are refused afterwards as not finite.
bool NotPositive(double v) { return v <= 0.0; }
bool NotFinite(double v) { return !std::isfinite(v); }

Curve UbcCurve(double ca, double cv) {
  const double ts = cv / (2.5 * ca), t0 = 0.2 * ts;
  Curve c;
  // The rising branch is Ca + 1.5 Ca T, without division by T0, as the program has always drawn it.
  c.Run(0.0, t0, t0 / 20, [&](double t) { return ca + 1.5 * ca * t; });
  c.Run(t0, ts, (ts - t0) / 5, [&](double) { return 2.5 * ca; });
  c.Run(ts, 50 * ts, 49 * ts / 100, [&](double t) { return cv / t; });
  return c;
}

Curve IbcCurve(double sds, double sd1) {
  const double ts = sd1 / sds, t0 = 0.2 * sd1 / sds;
  Curve c;
  c.Run(0.0, t0, t0 / 20, [&](double t) { return 0.6 * sds * t / t0 + 0.4 * sds; });
  c.Run(t0, ts, (ts - t0) / 5, [&](double) { return sds; });
  c.Run(ts, 50 * ts, 49 * ts / 100, [&](double t) { return sd1 / t; });
  return c;
}

Curve AsceCurve(double sds, double sd1, double tl) {
  const double ts = sd1 / sds, t0 = 0.2 * sd1 / sds;
  Curve c;
  c.Run(0.0, t0, t0 / 20, [&](double t) { return sds * (0.4 + 0.6 * t / t0); });
  c.Run(t0, ts, (ts - t0) / 5, [&](double) { return sds; });
  c.Run(ts, tl, (tl - ts) / 20, [&](double t) { return sd1 / t; });
  c.Run(tl, 10 * tl, 9 * tl / 40, [&](double t) { return tl * sd1 / (t * t); });
  return c;
}

// EN 1998-1 3.2.2.2, horizontal elastic spectrum. With ag in g the expressions give Se/g
// directly: Se in m/s^2 divided by 9.80665 with ag in m/s^2 equal to 9.80665 times ag in g.
constexpr double kEc8LastPeriod = 4.0;

Curve Ec8Curve(const Ec8Ground& g, double agDesign, double eta) {
  const double peak = agDesign * g.s * 2.5 * eta;
  Curve c;
  c.Run(0.0, g.tb, g.tb / 20, [&](double t) { return agDesign * g.s * (1 + t / g.tb * (eta * 2.5 - 1)); });
  c.Run(g.tb, g.tc, (g.tc - g.tb) / 5, [&](double) { return peak; });
  c.Run(g.tc, g.td, (g.td - g.tc) / 20, [&](double t) { return peak * g.tc / t; });
  c.Run(g.td, kEc8LastPeriod, (kEc8LastPeriod - g.td) / 20, [&](double t) { return peak * g.tc * g.td / (t * t); });
  // The curve ends on 4 s itself, so it covers the whole range the code defines.
  c.points.push_back({kEc8LastPeriod, peak * g.tc * g.td / (kEc8LastPeriod * kEc8LastPeriod)});
  return c;
}

// Recommended values of EN 1998-1 Tables 3.2 (Type 1) and 3.3 (Type 2), ground types A to E.
constexpr Ec8Ground kEc8Type1[5] = {
    {1.0, 0.15, 0.4, 2.0}, {1.2, 0.15, 0.5, 2.0}, {1.15, 0.20, 0.6, 2.0}, {1.35, 0.20, 0.8, 2.0}, {1.4, 0.15, 0.5, 2.0},
};
constexpr Ec8Ground kEc8Type2[5] = {
    {1.0, 0.05, 0.25, 1.2}, {1.35, 0.05, 0.25, 1.2}, {1.5, 0.10, 0.25, 1.2}, {1.8, 0.10, 0.30, 1.2}, {1.6, 0.05, 0.25, 1.2},
};

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

const char* SpectrumCodeName(int code) {
  static const char* const kNames[kSpectrumCodeCount] = {"UBC 97",    "IBC 2000",  "ASCE 2005",
                                                         "ASCE 2010", "ASCE 7-16", "Eurocode 8"};
  return code >= 0 && code < kSpectrumCodeCount ? kNames[code] : "";
}

const Ec8Ground* FindEc8Ground(int type, char ground) {
  const int row = Upper(ground) - 'A';
  if (row < 0 || row > 4) return nullptr;
  if (type == 1) return &kEc8Type1[row];
  if (type == 2) return &kEc8Type2[row];
  return nullptr;
}

double Ec8DampingCorrection(double dampingPercent) { return std::max(std::sqrt(10.0 / (5.0 + dampingPercent)), 0.55); }

SpectrumResult GenerateResponseSpectrum(const SpectrumInput& in) {
  using F = SpectrumField;
  SpectrumResult result;
  Check check;
  Curve curve;
  const double v1 = in.value1, v2 = in.value2, tl = in.tl;
  switch (in.code) {
    case kUbc97:
      check.Refuse(NotPositive(v1), F::Value1, "Ca value must be greater than 0.0");
      check.Refuse(NotPositive(v2), F::Value2, "Cv value must be greater than 0.0");
      check.Refuse(NotFinite(v1), F::Value1, "Ca value must be a finite number");
      check.Refuse(NotFinite(v2), F::Value2, "Cv value must be a finite number");
      if (check.message.empty()) {
        curve = UbcCurve(v1, v2);
        result.spectrum.name = tools::Format("UBC_97_CA_%g_CV_%g", v1, v2);
      }
      break;
    case kIbc2000:
      check.Refuse(NotPositive(v1), F::Value1, "SDS value must be greater than 0.0");
      check.Refuse(NotPositive(v2), F::Value2, "SD1 value must be greater than 0.0");
      check.Refuse(NotFinite(v1), F::Value1, "SDS value must be a finite number");
      check.Refuse(NotFinite(v2), F::Value2, "SD1 value must be a finite number");
      if (check.message.empty()) {
        curve = IbcCurve(v1, v2);
        result.spectrum.name = tools::Format("IBC_2000_SDS_%g_SD1_%g", v1, v2);
      }
      break;
    case kAsce2005:
    case kAsce2010:
    case kAsce2016: {
      check.Refuse(NotPositive(v1), F::Value1, "SDS value must be greater than 0.0");
      check.Refuse(NotPositive(v2), F::Value2, "SD1 value must be greater than 0.0");
      // Only between finite values: an infinite or NaN input is refused as such below.
      check.Refuse(std::isfinite(v1) && std::isfinite(v2) && v2 / v1 >= tl, F::Tl,
                   "TL value must be greater than SD1 / SDS");
      check.Refuse(NotFinite(v1), F::Value1, "SDS value must be a finite number");
      check.Refuse(NotFinite(v2), F::Value2, "SD1 value must be a finite number");
      check.Refuse(NotFinite(tl), F::Tl, "TL value must be a finite number");
      if (check.message.empty()) {
        curve = AsceCurve(v1, v2, tl);
        const char* year = in.code == kAsce2005 ? "2005" : in.code == kAsce2010 ? "2010" : "2016";
        result.spectrum.name = tools::Format("ASCE_%s_SDS_%g_SD1_%g_TL_%g", year, v1, v2, tl);
      }
      break;
    }
    case kEurocode8: {
      const Ec8Ground* ground = FindEc8Ground(in.ec8Type, in.ground);
      check.Refuse(in.ec8Type != 1 && in.ec8Type != 2, F::Type, "Spectrum type must be 1 or 2");
      check.Refuse(!ground, F::Ground, "Ground type must be one of A, B, C, D and E");
      check.Refuse(NotPositive(in.ag), F::Ag, "ag value must be greater than 0.0");
      check.Refuse(NotPositive(in.importance), F::Importance, "Importance factor must be greater than 0.0");
      check.Refuse(NotPositive(in.damping), F::Damping, "Damping ratio must be greater than 0.0");
      check.Refuse(NotFinite(in.ag), F::Ag, "ag value must be a finite number");
      check.Refuse(NotFinite(in.importance), F::Importance, "Importance factor must be a finite number");
      check.Refuse(NotFinite(in.damping), F::Damping, "Damping ratio must be a finite number");
      if (check.message.empty()) {
        curve = Ec8Curve(*ground, in.importance * in.ag, Ec8DampingCorrection(in.damping));
        result.spectrum.name = tools::Format("EC8_T%d_%c_AG_%g_GI_%g_XI_%g", in.ec8Type, Upper(in.ground), in.ag,
                                             in.importance, in.damping);
      }
      break;
    }
    default:
      check.Refuse(true, F::Code, "Please select a design code from the list.");
  }
  if (check.message.empty() && (!curve.ok || curve.points.empty() || FirstBadSpectrumPoint(curve.points) >= 0))
    check.Refuse(true, in.code == kEurocode8 ? F::Ag : F::Value1,
                 "These values are too large or too small for the curve to be computed.");
  if (!check.message.empty()) {
    result.message = check.message;
    result.field = check.field;
    result.spectrum = {};
    return result;
  }
  result.spectrum.points = std::move(curve.points);
  return result;
}

}  // namespace model
