#include "steel/aisc_design.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tools/format.h"

using steel::Num;
using tools::Format;

namespace {
// B1 when αPr reaches Pe1: the member is unstable; a finite value that fails every check.
constexpr double kUnstableB1 = 1000.0;
}  // namespace

CAiscDesign::CAiscDesign(steel::AiscSection section) : s_(std::move(section)) {}

double CAiscDesign::Tension() const {
  rep_.Heading("Tension (Chapter D), φt = 0.90");
  const double Pn = m_Fy * s_.A;
  rep_.Step("D2(a)", "D2-1", "Pn = Fy·Ag", Num(m_Fy) + "·" + Num(s_.A), Num(Pn) + " kip");
  rep_.Text("Tensile rupture (D2(b)) depends on the net area at the connections, which this check is not given.");
  return Pn;
}

double CAiscDesign::Amplification(double Cm, double I, double L, const char* axis) const {
  if (!m_bMagnify) return 1;
  if (m_Pu <= 0) {
    rep_.Step("A-8.2", "", Format("B1%s: the member is not in compression", axis), "", "B1 = 1.0");
    return 1;
  }
  const double Pr = m_Pu, Py = m_Fy * s_.A;
  double EI = kE * I;
  if (m_bDirectDesign) {
    const double r = Pr / Py;
    const double tau = r <= 0.5 ? 1.0 : 4 * r * (1 - r);
    rep_.Step("C2.3", r <= 0.5 ? "C2-2a" : "C2-2b", "τb (αPr/Py ≤ 0.5: 1.0; else 4(αPr/Py)(1 − αPr/Py))",
              Format("αPr/Py = %s/%s = %s", Num(Pr).c_str(), Num(Py).c_str(), Num(r).c_str()), Num(tau));
    EI = 0.8 * tau * kE * I;
    rep_.Step("A-8.2", "", "EI* = 0.8·τb·E·I (direct analysis method)",
              Format("0.8·%s·%s·%s", Num(tau).c_str(), Num(kE).c_str(), Num(I).c_str()), Num(EI) + " kip-in²");
  } else {
    rep_.Step("A-8.2", "", "EI* = E·I", Num(kE) + "·" + Num(I), Num(EI) + " kip-in²");
  }
  const double Pe1 = L > 0 ? std::numbers::pi * std::numbers::pi * EI / (L * L) : INFINITY;
  rep_.Step("A-8.2", "A-8-5", Format("Pe1%s = π²·EI*/(K1·L)², K1 = 1.0", axis), "π²·" + Num(EI) + "/(1.0·" + Num(L) + ")²",
            Num(Pe1) + " kip");
  if (Pr >= Pe1) {
    rep_.Result(Format("αPr ≥ Pe1%s: the member is unstable; B1%s is taken as %g so that the check fails.", axis, axis,
                       kUnstableB1));
    return kUnstableB1;
  }
  const double B1 = std::max(1.0, Cm / (1 - Pr / Pe1));
  rep_.Step("A-8.2", "A-8-3", Format("B1%s = Cm/(1 − αPr/Pe1) ≥ 1, α = 1.0", axis),
            Format("%s/(1 − %s/%s)", Num(Cm).c_str(), Num(Pr).c_str(), Num(Pe1).c_str()), Format("%.4f", B1));
  return B1;
}

void CAiscDesign::CheckMember() {
  rep_ = steel::Report(m_bPrint ? m_pPrintFile : nullptr);
  rep_.Heading("Member and loads");
  rep_.Text(Format("Shape %s (%s, %s); Fy = %s ksi, E = %s ksi, G = %s ksi.", s_.label.c_str(), s_.type.c_str(),
                   steel::FamilyName(s_.family), Num(m_Fy).c_str(), Num(kE).c_str(), Num(kG).c_str()));
  rep_.Text(Format("Kx = %s, Lx = %s in; Ky = %s, Ly = %s in; Kz = %s, Lz = %s in; Lb = %s in, Cb = %s%s.",
                   Num(m_Kx).c_str(), Num(m_Lx).c_str(), Num(m_Ky).c_str(), Num(m_Ly).c_str(), Num(m_Kz).c_str(),
                   Num(m_Lz).c_str(), Num(m_Lb).c_str(), Num(m_Cb).c_str(),
                   s_.family == steel::ShapeFamily::DoubleAngle ? Format("; connector distance a = %s in", Num(m_a).c_str()).c_str()
                                                                : ""));
  rep_.Text(Format("Pu = %s kip (%s), Mux = %s kip-ft, Muy = %s kip-ft, Vux = %s kip, Vuy = %s kip, Cmx = %s, Cmy = %s.",
                   Num(m_Pu).c_str(), m_Pu < 0 ? "tension" : "compression", Num(m_Mux).c_str(), Num(m_Muy).c_str(),
                   Num(m_Vux).c_str(), Num(m_Vuy).c_str(), Num(m_Cmx).c_str(), Num(m_Cmy).c_str()));

  const double Pn = m_Pu < 0 ? Tension() : Compression();
  m_phiPn = 0.9 * Pn;
  rep_.Result(Format("φPn = 0.90·%s = %s kip", Num(Pn).c_str(), Num(m_phiPn).c_str()));
  const double Mnx = FlexureX();
  m_phiMnx = 0.9 * Mnx / 12;
  rep_.Result(Format("φMnx = 0.90·%s/12 = %s kip-ft", Num(Mnx).c_str(), Num(m_phiMnx).c_str()));
  const double Mny = FlexureY();
  m_phiMny = 0.9 * Mny / 12;
  rep_.Result(Format("φMny = 0.90·%s/12 = %s kip-ft", Num(Mny).c_str(), Num(m_phiMny).c_str()));
  m_phiVny = ShearY();
  rep_.Result(Format("φVny = %s kip", Num(m_phiVny).c_str()));
  m_phiVnx = ShearX();
  rep_.Result(Format("φVnx = %s kip", Num(m_phiVnx).c_str()));

  rep_.Heading("Moment amplification (Appendix 8)");
  if (!m_bMagnify)
    rep_.Text("Moment magnification is not considered: B1x = B1y = 1.0 (the moments are taken as second-order moments).");
  else
    rep_.Text(m_bDirectDesign ? "Direct analysis method: EI* = 0.8·τb·E·I (Chapter C)."
                              : "EI* = E·I (effective length method).");
  m_B1x = Amplification(m_Cmx, s_.Ix, m_Lx, "x");
  m_B1y = Amplification(m_Cmy, s_.Iy, m_Ly, "y");

  rep_.Heading("Interaction (Chapter H) and critical ratio");
  const double Pr = std::abs(m_Pu), Pc = m_phiPn;
  const double Mrx = m_B1x * std::abs(m_Mux), Mry = m_B1y * std::abs(m_Muy);
  const double rp = Pr / Pc;
  const double rx = Mrx / m_phiMnx, ry = Mry / m_phiMny;
  double inter;
  if (rp >= 0.2) {
    inter = rp + 8.0 / 9.0 * (rx + ry);
    rep_.Step("H1.1", "H1-1a", "Pr/Pc + 8/9·(Mrx/Mcx + Mry/Mcy)",
              Format("%s/%s + 8/9·(%s/%s + %s/%s)", Num(Pr).c_str(), Num(Pc).c_str(), Num(Mrx).c_str(),
                     Num(m_phiMnx).c_str(), Num(Mry).c_str(), Num(m_phiMny).c_str()),
              Format("%.4f", inter));
  } else {
    inter = rp / 2 + rx + ry;
    rep_.Step("H1.1", "H1-1b", "Pr/(2Pc) + (Mrx/Mcx + Mry/Mcy)",
              Format("%s/(2·%s) + (%s/%s + %s/%s)", Num(Pr).c_str(), Num(Pc).c_str(), Num(Mrx).c_str(),
                     Num(m_phiMnx).c_str(), Num(Mry).c_str(), Num(m_phiMny).c_str()),
              Format("%.4f", inter));
  }
  const struct {
    const char* what;
    double ratio;
  } ratios[] = {{m_Pu < 0 ? "tension" : "compression", rp},
                {"flexure about x", rx},
                {"flexure about y", ry},
                {"shear along x", std::abs(m_Vux) / m_phiVnx},
                {"shear along y", std::abs(m_Vuy) / m_phiVny},
                {rp >= 0.2 ? "interaction H1-1a" : "interaction H1-1b", inter}};
  m_CriticalRatio = 0;
  m_Governing = ratios[0].what;
  for (const auto& r : ratios) {
    rep_.Step("", "", Format("ratio of %s", r.what), "", Format("%.4f", r.ratio));
    if (r.ratio > m_CriticalRatio) {
      m_CriticalRatio = r.ratio;
      m_Governing = r.what;
    }
  }
  rep_.Result(Format("Critical ratio = %.4f (%s): %s", m_CriticalRatio, m_Governing.c_str(),
                     m_CriticalRatio <= 1.0 ? "the member is adequate" : "the member is NOT adequate"));
}
