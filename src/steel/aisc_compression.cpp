#include <algorithm>
#include <cmath>
#include <numbers>

#include "steel/aisc_design.h"
#include "tools/format.h"

// Chapter E: compression, with the width-to-thickness limits of Table B4.1a.
using steel::Num;
using steel::ShapeFamily;
using tools::Format;

namespace {
constexpr double kPi = std::numbers::pi;

double Euler(double KLr) { return KLr > 0 ? kPi * kPi * CAiscDesign::kE / (KLr * KLr) : INFINITY; }

// E4-5: flexural-torsional buckling of a singly symmetric member (Fs about the axis of symmetry).
double SinglySymmetric(double Fs, double Fez, double H) {
  if (!std::isfinite(Fs) || !std::isfinite(Fez)) return std::min(Fs, Fez);
  const double sum = Fs + Fez;
  return sum / (2 * H) * (1 - std::sqrt(std::max(0.0, 1 - 4 * Fs * Fez * H / (sum * sum))));
}

// E4-6: the least root of the cubic of an unsymmetric member, in principal axes.
double Unsymmetric(double Fex, double Fey, double Fez, double xo, double yo, double ro) {
  const auto f = [&](double F) {
    return (F - Fex) * (F - Fey) * (F - Fez) - F * F * (F - Fey) * (xo / ro) * (xo / ro) -
           F * F * (F - Fex) * (yo / ro) * (yo / ro);
  };
  double lo = 0, hi = std::min({Fex, Fey, Fez});
  if (!std::isfinite(hi)) return hi;
  for (int i = 0; i < 200 && hi - lo > 1e-9 * hi; ++i) {
    const double mid = 0.5 * (lo + hi);
    (f(mid) < 0 ? lo : hi) = mid;
  }
  return 0.5 * (lo + hi);
}
}  // namespace

double CAiscDesign::Root(double k) const { return k * std::sqrt(kE / m_Fy); }

double CAiscDesign::CriticalStress(double Fe, double Q, const char* clause) const {
  const double ratio = Q * m_Fy / Fe;
  const bool withQ = Q < 1;
  if (ratio <= 2.25) {
    const double Fcr = Q * std::pow(0.658, ratio) * m_Fy;
    rep_.Step(clause, withQ ? "E7-2" : "E3-2", withQ ? "Fcr = Q·0.658^(Q·Fy/Fe)·Fy" : "Fcr = 0.658^(Fy/Fe)·Fy",
              withQ ? Format("%s·0.658^(%s·%s/%s)·%s", Num(Q).c_str(), Num(Q).c_str(), Num(m_Fy).c_str(),
                             Num(Fe).c_str(), Num(m_Fy).c_str())
                    : Format("0.658^(%s/%s)·%s", Num(m_Fy).c_str(), Num(Fe).c_str(), Num(m_Fy).c_str()),
              Num(Fcr) + " ksi");
    return Fcr;
  }
  const double Fcr = 0.877 * Fe;
  rep_.Step(clause, withQ ? "E7-3" : "E3-3", "Fcr = 0.877·Fe", "0.877·" + Num(Fe), Num(Fcr) + " ksi");
  return Fcr;
}

double CAiscDesign::DoubleAngleSlenderness(double KLr) const {
  if (m_a <= 0 || s_.rz <= 0) {
    rep_.Text(m_a <= 0 ? "No connector distance is given: (KL/r)m = (KL/r)o."
                       : "The single angle's rz is not known: (KL/r)m = (KL/r)o.");
    return KLr;
  }
  // Connectors welded or pretensioned bolted: E6-2a and E6-2b with Ki = 0.50 for angles back to back.
  const double ari = m_a / s_.rz;
  rep_.Step("E6.1", "", "a/ri", Num(m_a) + "/" + Num(s_.rz), Num(ari));
  if (ari <= 40) {
    rep_.Step("E6.1", "E6-2a", "(KL/r)m = (KL/r)o", "", Num(KLr));
    return KLr;
  }
  const double m = std::sqrt(KLr * KLr + 0.25 * ari * ari);
  rep_.Step("E6.1", "E6-2b", "(KL/r)m = √((KL/r)o² + (Ki·a/ri)²)",
            Format("√(%s² + (0.50·%s)²)", Num(KLr).c_str(), Num(ari).c_str()), Num(m));
  return m;
}

double CAiscDesign::SlenderReduction(double f, double* Qs, double* Qa) const {
  const double E = kE, Fy = m_Fy;
  *Qs = 1;
  *Qa = 1;
  // Unstiffened elements, E7.1.
  const auto unstiffened = [&](const char* what, double lambda, double lo, double hi, double c1, double c2,
                               double c3, const char* e1, const char* e2, const char* e3) {
    double Q = 1;
    const double r = std::sqrt(Fy / E);
    if (lambda <= Root(lo)) {
      rep_.Step("E7.1", e1, Format("%s: λ ≤ %g√(E/Fy)", what, lo), Num(lambda) + " ≤ " + Num(Root(lo)), "Qs = 1.0");
    } else if (lambda <= Root(hi)) {
      Q = c1 - c2 * lambda * r;
      rep_.Step("E7.1", e2, Format("%s: Qs = %g − %g·λ·√(Fy/E)", what, c1, c2),
                Format("%g − %g·%s·√(%s/%s)", c1, c2, Num(lambda).c_str(), Num(Fy).c_str(), Num(E).c_str()), Num(Q));
    } else {
      Q = c3 * E / (Fy * lambda * lambda);
      rep_.Step("E7.1", e3, Format("%s: Qs = %g·E/(Fy·λ²)", what, c3),
                Format("%g·%s/(%s·%s²)", c3, Num(E).c_str(), Num(Fy).c_str(), Num(lambda).c_str()), Num(Q));
    }
    *Qs = std::min(*Qs, Q);
  };
  // Stiffened elements, E7.2: effective width with f = Fcr for Q = 1.
  const auto effectiveWidth = [&](const char* what, double b, double t, double c) {
    const double ratio = b / t, rf = std::sqrt(E / f);
    const double limit = (c == 0.34 ? 1.49 : 1.40) * rf;
    if (ratio < limit) {
      rep_.Step("E7.2", "", Format("%s: b/t < %g√(E/f)", what, c == 0.34 ? 1.49 : 1.40),
                Num(ratio) + " < " + Num(limit), "be = b = " + Num(b) + " in");
      return b;
    }
    const double be = std::min(b, 1.92 * t * rf * (1 - c / ratio * rf));
    rep_.Step("E7.2", c == 0.34 ? "E7-17" : "E7-18", Format("%s: be = 1.92t√(E/f)[1 − %g/(b/t)·√(E/f)] ≤ b", what, c),
              Format("1.92·%s·√(%s/%s)[1 − %g/%s·√(%s/%s)]", Num(t).c_str(), Num(E).c_str(), Num(f).c_str(), c,
                     Num(ratio).c_str(), Num(E).c_str(), Num(f).c_str()),
              Num(be) + " in");
    return be;
  };

  switch (s_.family) {
    case ShapeFamily::IShape:
    case ShapeFamily::Channel: {
      if (s_.flangeRatio > Root(0.56))
        unstiffened("flange", s_.flangeRatio, 0.56, 1.03, 1.415, 0.74, 0.69, "E7-4", "E7-5", "E7-6");
      if (s_.webRatio > Root(1.49)) {
        const double h = s_.webRatio * s_.tw;
        const double be = effectiveWidth("web", h, s_.tw, 0.34);
        const double Aeff = s_.A - (h - be) * s_.tw;
        *Qa = Aeff / s_.A;
        rep_.Step("E7.2", "E7-16", "Qa = Aeff/Ag", Num(Aeff) + "/" + Num(s_.A), Num(*Qa));
      }
      break;
    }
    case ShapeFamily::Tee:
      if (s_.flangeRatio > Root(0.56))
        unstiffened("flange", s_.flangeRatio, 0.56, 1.03, 1.415, 0.74, 0.69, "E7-4", "E7-5", "E7-6");
      if (s_.webRatio > Root(0.75))
        unstiffened("stem", s_.webRatio, 0.75, 1.03, 1.908, 1.22, 0.69, "E7-13", "E7-14", "E7-15");
      break;
    case ShapeFamily::Angle:
    case ShapeFamily::DoubleAngle: {
      const double ratio = std::max(s_.legVertical, s_.legHorizontal) / s_.t;
      if (ratio > Root(0.45))
        unstiffened("leg", ratio, 0.45, 0.91, 1.34, 0.76, 0.53, "E7-10", "E7-11", "E7-12");
      break;
    }
    case ShapeFamily::RectHss: {
      const double t = s_.tdes;
      double Aeff = s_.A;
      bool slender = false;
      for (const auto& [what, ratio] : {std::pair{"wall of width B", s_.bOverT}, std::pair{"wall of height H", s_.hOverT}}) {
        if (ratio <= Root(1.40)) continue;
        slender = true;
        const double b = ratio * t;
        Aeff -= 2 * (b - effectiveWidth(what, b, t, 0.38)) * t;
      }
      if (slender) {
        *Qa = Aeff / s_.A;
        rep_.Step("E7.2", "E7-16", "Qa = Aeff/Ag", Num(Aeff) + "/" + Num(s_.A), Num(*Qa));
      }
      break;
    }
    case ShapeFamily::RoundHss: {
      const double Dt = s_.DOverT;
      if (Dt > 0.11 * E / Fy) {
        *Qa = 0.038 * E / (Fy * Dt) + 2.0 / 3.0;
        rep_.Step("E7.2", "E7-19", "Q = Qa = 0.038E/(Fy·D/t) + 2/3",
                  Format("0.038·%s/(%s·%s) + 2/3", Num(E).c_str(), Num(Fy).c_str(), Num(Dt).c_str()), Num(*Qa));
        if (Dt >= 0.45 * E / Fy)
          rep_.Text("D/t is at least 0.45E/Fy, beyond the range of Section E7 (B4.1, Table B4.1a note): "
                    "the strength is an extrapolation.");
      }
      break;
    }
  }
  return *Qs * *Qa;
}

double CAiscDesign::Compression() const {
  const double E = kE, Fy = m_Fy, A = s_.A;
  rep_.Heading("Compression (Chapter E), φc = 0.90");

  // Table B4.1a: which elements are slender.
  const auto classify = [&](const char* what, double lambda, double k, const char* kase) {
    const double lr = Root(k);
    rep_.Step("B4.1a", kase, Format("%s: λ = %.4g, λr = %g√(E/Fy)", what, lambda, k), Num(lr),
              lambda > lr ? "slender" : "nonslender");
  };
  switch (s_.family) {
    case ShapeFamily::IShape:
      classify("flange bf/2tf", s_.flangeRatio, 0.56, "case 1");
      classify("web h/tw", s_.webRatio, 1.49, "case 5");
      break;
    case ShapeFamily::Channel:
      classify("flange b/t", s_.flangeRatio, 0.56, "case 1");
      classify("web h/tw", s_.webRatio, 1.49, "case 5");
      break;
    case ShapeFamily::Tee:
      classify("flange bf/2tf", s_.flangeRatio, 0.56, "case 1");
      classify("stem d/tw", s_.webRatio, 0.75, "case 4");
      break;
    case ShapeFamily::Angle:
    case ShapeFamily::DoubleAngle:
      classify("leg b/t", std::max(s_.legVertical, s_.legHorizontal) / s_.t, 0.45, "case 3");
      break;
    case ShapeFamily::RectHss:
      classify("wall b/t", s_.bOverT, 1.40, "case 6");
      classify("wall h/t", s_.hOverT, 1.40, "case 6");
      break;
    case ShapeFamily::RoundHss: {
      const double lr = 0.11 * E / Fy;
      rep_.Step("B4.1a", "case 9", Format("D/t = %.4g, λr = 0.11E/Fy", s_.DOverT), Num(lr),
                s_.DOverT > lr ? "slender" : "nonslender");
      break;
    }
  }

  // Slenderness about the geometric axes.
  const double KLx = m_Kx * m_Lx, KLy = m_Ky * m_Ly, KLz = m_Kz * m_Lz;
  const double KLrx = KLx / s_.rx, KLry = KLy / s_.ry;
  rep_.Step("E2", "", "Kx·Lx/rx", Format("%s·%s/%s", Num(m_Kx).c_str(), Num(m_Lx).c_str(), Num(s_.rx).c_str()),
            Num(KLrx));
  rep_.Step("E2", "", "Ky·Ly/ry", Format("%s·%s/%s", Num(m_Ky).c_str(), Num(m_Ly).c_str(), Num(s_.ry).c_str()),
            Num(KLry));
  if (std::max(KLrx, KLry) > 200) rep_.Text("KL/r exceeds 200, the limit the user note of Section E2 recommends.");

  const auto euler = [&](const char* what, double KLr) {
    const double Fe = Euler(KLr);
    rep_.Step("E3", "E3-4", Format("Fe%s = π²E/(KL/r)²", what), "π²·" + Num(E) + "/" + Num(KLr) + "²",
              Num(Fe) + " ksi");
    return Fe;
  };
  // Fez of E4-9 (with the warping term) for a singly symmetric or unsymmetric member.
  const auto torsional = [&](bool withWarping) {
    const double warping = withWarping && KLz > 0 ? kPi * kPi * E * s_.Cw / (KLz * KLz) : 0;
    const double Fez = (warping + kG * s_.J) / (A * s_.ro * s_.ro);
    if (withWarping)
      rep_.Step("E4", "E4-9", "Fez = (π²E·Cw/(Kz·Lz)² + GJ)/(Ag·ro²)",
                Format("(π²·%s·%s/%s² + %s·%s)/(%s·%s²)", Num(E).c_str(), Num(s_.Cw).c_str(), Num(KLz).c_str(),
                       Num(kG).c_str(), Num(s_.J).c_str(), Num(A).c_str(), Num(s_.ro).c_str()),
                Num(Fez) + " ksi");
    else
      rep_.Step("E4", "E4-3", "Fcrz = GJ/(Ag·ro²)",
                Format("%s·%s/(%s·%s²)", Num(kG).c_str(), Num(s_.J).c_str(), Num(A).c_str(), Num(s_.ro).c_str()),
                Num(Fez) + " ksi");
    return Fez;
  };

  double Fe = INFINITY;
  double Fex = INFINITY, Fey = INFINITY, Fez = INFINITY;
  const char* clause = "E3";
  switch (s_.family) {
    case ShapeFamily::IShape: {
      Fex = euler("x", KLrx);
      Fey = euler("y", KLry);
      // E4-4, torsional buckling of a doubly symmetric member.
      const double warping = KLz > 0 ? kPi * kPi * E * s_.Cw / (KLz * KLz) : INFINITY;
      Fez = (warping + kG * s_.J) / (s_.Ix + s_.Iy);
      rep_.Step("E4", "E4-4", "Fe = (π²E·Cw/(Kz·Lz)² + GJ)/(Ix + Iy)",
                Format("(π²·%s·%s/%s² + %s·%s)/(%s + %s)", Num(E).c_str(), Num(s_.Cw).c_str(), Num(KLz).c_str(),
                       Num(kG).c_str(), Num(s_.J).c_str(), Num(s_.Ix).c_str(), Num(s_.Iy).c_str()),
                Num(Fez) + " ksi");
      Fe = std::min({Fex, Fey, Fez});
      if (Fe == Fez && Fez < std::min(Fex, Fey)) clause = "E4";
      break;
    }
    case ShapeFamily::Channel: {
      Fex = euler("x", KLrx);
      Fey = euler("y", KLry);
      Fez = torsional(true);
      // The axis of symmetry of a channel is x.
      const double Fft = SinglySymmetric(Fex, Fez, s_.H);
      rep_.Step("E4", "E4-5", "Fe = (Fex + Fez)/(2H)·[1 − √(1 − 4·Fex·Fez·H/(Fex + Fez)²)]",
                Format("(%s + %s)/(2·%s)·[1 − √(1 − 4·%s·%s·%s/(%s + %s)²)]", Num(Fex).c_str(), Num(Fez).c_str(),
                       Num(s_.H).c_str(), Num(Fex).c_str(), Num(Fez).c_str(), Num(s_.H).c_str(), Num(Fex).c_str(),
                       Num(Fez).c_str()),
                Num(Fft) + " ksi");
      Fe = std::min(Fey, Fft);
      if (Fft < Fey) clause = "E4";
      break;
    }
    case ShapeFamily::RectHss:
    case ShapeFamily::RoundHss:
      Fex = euler("x", KLrx);
      Fey = euler("y", KLry);
      rep_.Text("A closed section: torsional buckling does not govern (user note of Section E4).");
      Fe = std::min(Fex, Fey);
      break;
    case ShapeFamily::Angle: {
      const double KL = std::max(KLx, KLy);
      const double ratio = std::max(s_.legVertical, s_.legHorizontal) / s_.t;
      rep_.Text("Section E5 is not used: it needs the connected leg and the end restraint, which this check "
                "is not given. The angle is checked by E3 and E4 on its principal axes with the larger of "
                "Kx·Lx and Ky·Ly.");
      const double KLrz = KL / s_.rz;
      rep_.Step("E3", "", "KL/rz", Num(KL) + "/" + Num(s_.rz), Num(KLrz));
      const double Fz = euler("z", KLrz);
      if (ratio <= Root(0.71)) {
        rep_.Step("E4", "", "b/t ≤ 0.71√(E/Fy): flexural buckling about z only (user note of E4)",
                  Num(ratio) + " ≤ " + Num(Root(0.71)), "Fe = " + Num(Fz) + " ksi");
        Fe = Fz;
      } else {
        // Principal axes: w (major), z (minor). Shear centre at the heel, mid-thickness.
        const double Iw = s_.Ix + s_.Iy - s_.Iz;
        const double rw = std::sqrt(Iw / A);
        const double Fw = euler("w", KL / rw);
        Fez = torsional(true);
        const double xo = s_.x - s_.t / 2, yo = s_.y - s_.t / 2;
        const double alpha = std::atan(s_.tanAlpha);
        const double wo = xo * std::sin(alpha) + yo * std::cos(alpha);
        const double zo = xo * std::cos(alpha) - yo * std::sin(alpha);
        Fe = Unsymmetric(Fw, Fz, Fez, wo, zo, s_.ro);
        rep_.Step("E4", "E4-6", "least root of (Fe−Few)(Fe−Fez')(Fe−Fez) − Fe²(Fe−Fez')(wo/ro)² − Fe²(Fe−Few)(zo/ro)²",
                  Format("Few = %s, Fez' = %s, Fez = %s, wo = %s, zo = %s", Num(Fw).c_str(), Num(Fz).c_str(),
                         Num(Fez).c_str(), Num(wo).c_str(), Num(zo).c_str()),
                  Num(Fe) + " ksi");
        clause = "E4";
      }
      break;
    }
    case ShapeFamily::Tee:
    case ShapeFamily::DoubleAngle: {
      Fex = euler("x", KLrx);
      const double KLrY = s_.family == ShapeFamily::DoubleAngle ? DoubleAngleSlenderness(KLry) : KLry;
      Fey = euler("y", KLrY);
      break;
    }
  }

  double Qs = 1, Qa = 1;
  double Fcr = 0;
  if (s_.family == ShapeFamily::Tee || s_.family == ShapeFamily::DoubleAngle) {
    // Tees and double angles have no stiffened elements: f of E7.2 is not needed.
    const double Q = SlenderReduction(m_Fy, &Qs, &Qa);
    if (Q >= 1) {
      // E4(a): double angles and tees without slender elements.
      const double Fcrx = CriticalStress(Fex, 1.0, "E3 (x)");
      const double Fcry = CriticalStress(Fey, 1.0, "E3 (y)");
      const double Fcrz = torsional(false);
      const double sum = Fcry + Fcrz;
      const double Fft = sum / (2 * s_.H) * (1 - std::sqrt(std::max(0.0, 1 - 4 * Fcry * Fcrz * s_.H / (sum * sum))));
      rep_.Step("E4", "E4-2", "Fcr = (Fcry + Fcrz)/(2H)·[1 − √(1 − 4·Fcry·Fcrz·H/(Fcry + Fcrz)²)]",
                Format("(%s + %s)/(2·%s)·[1 − √(1 − 4·%s·%s·%s/(%s)²)]", Num(Fcry).c_str(), Num(Fcrz).c_str(),
                       Num(s_.H).c_str(), Num(Fcry).c_str(), Num(Fcrz).c_str(), Num(s_.H).c_str(), Num(sum).c_str()),
                Num(Fft) + " ksi");
      Fcr = std::min(Fcrx, Fft);
    } else {
      Fez = torsional(true);
      const double Fft = SinglySymmetric(Fey, Fez, s_.H);
      rep_.Step("E4", "E4-5", "Fe = (Fey + Fez)/(2H)·[1 − √(1 − 4·Fey·Fez·H/(Fey + Fez)²)]",
                Format("(%s + %s)/(2·%s)·[1 − √(1 − 4·%s·%s·%s/(%s + %s)²)]", Num(Fey).c_str(), Num(Fez).c_str(),
                       Num(s_.H).c_str(), Num(Fey).c_str(), Num(Fez).c_str(), Num(s_.H).c_str(), Num(Fey).c_str(),
                       Num(Fez).c_str()),
                Num(Fft) + " ksi");
      Fe = std::min(Fex, Fft);
      Fcr = CriticalStress(Fe, Q, "E7");
    }
  } else {
    rep_.Step(clause, "", "Fe = least of the elastic buckling stresses above", "", Num(Fe) + " ksi");
    const bool anySlender = [&] {
      switch (s_.family) {
        case ShapeFamily::IShape:
        case ShapeFamily::Channel: return s_.flangeRatio > Root(0.56) || s_.webRatio > Root(1.49);
        case ShapeFamily::Angle: return std::max(s_.legVertical, s_.legHorizontal) / s_.t > Root(0.45);
        case ShapeFamily::RectHss: return s_.bOverT > Root(1.40) || s_.hOverT > Root(1.40);
        case ShapeFamily::RoundHss: return s_.DOverT > 0.11 * E / Fy;
        default: return false;
      }
    }();
    double Q = 1;
    if (anySlender) Q = SlenderReduction(CriticalStress(Fe, 1.0, clause), &Qs, &Qa);
    if (Q < 1) rep_.Step("E7", "", "Q = Qs·Qa", Num(Qs) + "·" + Num(Qa), Num(Q));
    Fcr = CriticalStress(Fe, Q, Q < 1 ? "E7" : clause);
  }
  const double Pn = Fcr * A;
  rep_.Step("E3", Qs * Qa < 1 ? "E7-1" : "E3-1", "Pn = Fcr·Ag", Num(Fcr) + "·" + Num(A), Num(Pn) + " kip");
  return Pn;
}
