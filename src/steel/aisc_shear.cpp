#include <algorithm>
#include <cmath>

#include "steel/aisc_design.h"
#include "tools/format.h"

// Chapter G: shear. Each function returns the design strength φv·Vn (kip).
using steel::Num;
using steel::ShapeFamily;
using tools::Format;

double CAiscDesign::WebShear(double Aw, double ratio, double kv, bool rolledIWeb, const char* clause, double* phi) const {
  const double E = kE, Fy = m_Fy;
  double Cv = 1;
  *phi = 0.9;
  if (rolledIWeb && ratio <= Root(2.24)) {
    *phi = 1.0;
    rep_.Step("G2.1(a)", "G2-2", "h/tw ≤ 2.24√(E/Fy): φv = 1.00, Cv = 1.0", Num(ratio) + " ≤ " + Num(Root(2.24)), "Cv = 1.0");
  } else {
    const double limit1 = 1.10 * std::sqrt(kv * E / Fy), limit2 = 1.37 * std::sqrt(kv * E / Fy);
    if (ratio <= limit1) {
      rep_.Step(clause, "G2-3", Format("h/tw ≤ 1.10√(kv·E/Fy), kv = %g", kv), Num(ratio) + " ≤ " + Num(limit1), "Cv = 1.0");
    } else if (ratio <= limit2) {
      Cv = limit1 / ratio;
      rep_.Step(clause, "G2-4", Format("Cv = 1.10√(kv·E/Fy)/(h/tw), kv = %g", kv), Num(limit1) + "/" + Num(ratio), Num(Cv));
    } else {
      Cv = 1.51 * kv * E / (ratio * ratio * Fy);
      rep_.Step(clause, "G2-5", Format("Cv = 1.51·kv·E/((h/tw)²·Fy), kv = %g", kv),
                Format("1.51·%g·%s/(%s²·%s)", kv, Num(E).c_str(), Num(ratio).c_str(), Num(Fy).c_str()), Num(Cv));
    }
  }
  const double Vn = 0.6 * Fy * Aw * Cv;
  rep_.Step(clause, "G2-1", "Vn = 0.6·Fy·Aw·Cv", Format("0.6·%s·%s·%s", Num(Fy).c_str(), Num(Aw).c_str(), Num(Cv).c_str()),
            Num(Vn) + " kip");
  const double phiVn = *phi * Vn;
  rep_.Step("G1", "", "φv·Vn", Num(*phi) + "·" + Num(Vn), Num(phiVn) + " kip");
  return phiVn;
}

double CAiscDesign::AngleLegShear(double leg, const char* which) const {
  const double n = s_.family == ShapeFamily::DoubleAngle ? 2 : 1;
  const double Aw = n * leg * s_.t;
  rep_.Step("G4", "", Format("Aw = b·t of the %s leg(s), h/tw = b/t, kv = 1.2", which),
            Format("%g·%s·%s", n, Num(leg).c_str(), Num(s_.t).c_str()), Num(Aw) + " in²");
  double phi = 0.9;
  return WebShear(Aw, leg / s_.t, 1.2, false, "G4", &phi);
}

namespace {
double RoundShear(const steel::Report& rep, const steel::AiscSection& s, double Fy, double Lv) {
  const double E = CAiscDesign::kE, D = s.OD, Dt = s.DOverT;
  rep.Text("Lv is half the longer of the unbraced lengths Lx and Ly: the distance from the end shear to zero "
           "shear of a uniformly loaded span.");
  rep.Step("G6", "", "Lv = max(Lx, Ly)/2", "", Num(Lv) + " in");
  const double F1 = Lv > 0 ? 1.60 * E / (std::sqrt(Lv / D) * std::pow(Dt, 1.25)) : INFINITY;
  const double F2 = 0.78 * E / std::pow(Dt, 1.5);
  const double Fcr = std::min(std::max(F1, F2), 0.6 * Fy);
  rep.Step("G6", "G6-2a, G6-2b", "Fcr = max(1.60E/(√(Lv/D)·(D/t)^(5/4)), 0.78E/(D/t)^(3/2)) ≤ 0.6Fy",
           Format("max(%s, %s) ≤ %s", Num(F1).c_str(), Num(F2).c_str(), Num(0.6 * Fy).c_str()), Num(Fcr) + " ksi");
  const double Vn = Fcr * s.A / 2;
  rep.Step("G6", "G6-1", "Vn = Fcr·Ag/2", Num(Fcr) + "·" + Num(s.A) + "/2", Num(Vn) + " kip");
  rep.Step("G1", "", "φv·Vn", "0.9·" + Num(Vn), Num(0.9 * Vn) + " kip");
  return 0.9 * Vn;
}
}  // namespace

double CAiscDesign::ShearY() const {
  rep_.Heading("Shear along y (Chapter G)");
  double phi = 0.9;
  switch (s_.family) {
    case ShapeFamily::IShape:
      rep_.Step("G2.1", "", "Aw = d·tw", Num(s_.d) + "·" + Num(s_.tw), Num(s_.d * s_.tw) + " in²");
      return WebShear(s_.d * s_.tw, s_.webRatio, 5.0, true, "G2.1", &phi);
    case ShapeFamily::Channel:
      rep_.Step("G2.1", "", "Aw = d·tw", Num(s_.d) + "·" + Num(s_.tw), Num(s_.d * s_.tw) + " in²");
      return WebShear(s_.d * s_.tw, s_.webRatio, 5.0, false, "G2.1(b)", &phi);
    case ShapeFamily::Tee:
      rep_.Step("G2.1(b)", "", "stem of a tee: Aw = d·tw, h/tw = d/tw, kv = 1.2", Num(s_.d) + "·" + Num(s_.tw),
                Num(s_.d * s_.tw) + " in²");
      return WebShear(s_.d * s_.tw, s_.webRatio, 1.2, false, "G2.1(b)", &phi);
    case ShapeFamily::Angle:
    case ShapeFamily::DoubleAngle: return AngleLegShear(s_.legVertical, "vertical");
    case ShapeFamily::RectHss: {
      const double h = s_.hOverT * s_.tdes, Aw = 2 * h * s_.tdes;
      rep_.Step("G5", "", "Aw = 2·h·t, kv = 5", Format("2·%s·%s", Num(h).c_str(), Num(s_.tdes).c_str()), Num(Aw) + " in²");
      return WebShear(Aw, s_.hOverT, 5.0, false, "G5", &phi);
    }
    case ShapeFamily::RoundHss: return RoundShear(rep_, s_, m_Fy, std::max(m_Lx, m_Ly) / 2);
  }
  return 0;
}

double CAiscDesign::ShearX() const {
  rep_.Heading("Shear along x (Chapter G)");
  double phi = 0.9;
  switch (s_.family) {
    case ShapeFamily::IShape:
    case ShapeFamily::Channel: {
      const double Aw = 2 * s_.bf * s_.tf;
      rep_.Step("G7", "", Format("weak-axis shear: Aw = 2·bf·tf, h/tw = %s, kv = 1.2",
                                 s_.family == ShapeFamily::Channel ? "bf/tf" : "(bf/2)/tf"),
                Format("2·%s·%s", Num(s_.bf).c_str(), Num(s_.tf).c_str()), Num(Aw) + " in²");
      return WebShear(Aw, s_.flangeRatio, 1.2, false, "G7", &phi);
    }
    case ShapeFamily::Tee: {
      const double Aw = s_.bf * s_.tf;
      rep_.Step("G7", "", "flange of the tee: Aw = bf·tf, h/tw = (bf/2)/tf, kv = 1.2",
                Num(s_.bf) + "·" + Num(s_.tf), Num(Aw) + " in²");
      return WebShear(Aw, s_.flangeRatio, 1.2, false, "G7", &phi);
    }
    case ShapeFamily::Angle:
    case ShapeFamily::DoubleAngle: return AngleLegShear(s_.legHorizontal, "horizontal");
    case ShapeFamily::RectHss: {
      const double b = s_.bOverT * s_.tdes, Aw = 2 * b * s_.tdes;
      rep_.Step("G5", "", "Aw = 2·b·t, kv = 5", Format("2·%s·%s", Num(b).c_str(), Num(s_.tdes).c_str()), Num(Aw) + " in²");
      return WebShear(Aw, s_.bOverT, 5.0, false, "G5", &phi);
    }
    case ShapeFamily::RoundHss: return RoundShear(rep_, s_, m_Fy, std::max(m_Lx, m_Ly) / 2);
  }
  return 0;
}
