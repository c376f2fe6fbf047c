#include <algorithm>
#include <cmath>
#include <numbers>

#include "steel/aisc_design.h"
#include "tools/format.h"

// Chapter F: flexure, with the width-to-thickness limits of Table B4.1b. Moments in kip-in.
using steel::Num;
using steel::ShapeFamily;
using tools::Format;

namespace {
constexpr double kPi = std::numbers::pi;
const char* Kind(double lambda, double lp, double lr) {
  return lambda <= lp ? "compact" : lambda <= lr ? "noncompact" : "slender";
}
}  // namespace

double CAiscDesign::IShapeMajor() const {
  const double E = kE, Fy = m_Fy;
  const bool channel = s_.family == ShapeFamily::Channel;
  const double lf = s_.flangeRatio, lw = s_.webRatio;
  const double lpf = Root(0.38), lrf = Root(1.0), lpw = Root(3.76), lrw = Root(5.70);
  rep_.Step("B4.1b", channel ? "case 10" : "case 10",
            Format("flange %s = %.4g: λp = 0.38√(E/Fy), λr = 1.0√(E/Fy)", channel ? "b/t" : "bf/2tf", lf),
            Num(lpf) + ", " + Num(lrf), Kind(lf, lpf, lrf));
  rep_.Step("B4.1b", "case 15", Format("web h/tw = %.4g: λp = 3.76√(E/Fy), λr = 5.70√(E/Fy)", lw),
            Num(lpw) + ", " + Num(lrw), Kind(lw, lpw, lrw));
  const double Mp = Fy * s_.Zx;
  const double Lb = m_Lb, Cb = m_Cb;
  double Mn = INFINITY;

  if (lw <= lpw) {
    rep_.Step("F2.1", "F2-1", "Mn = Mp = Fy·Zx", Num(Fy) + "·" + Num(s_.Zx), Num(Mp) + " kip-in");
    Mn = Mp;
    // F2.2: lateral-torsional buckling.
    double c = 1;
    if (channel) {
      c = s_.ho / 2 * std::sqrt(s_.Iy / s_.Cw);
      rep_.Step("F2.2", "F2-8b", "c = (ho/2)·√(Iy/Cw)",
                Format("(%s/2)·√(%s/%s)", Num(s_.ho).c_str(), Num(s_.Iy).c_str(), Num(s_.Cw).c_str()), Num(c));
    }
    const double Lp = 1.76 * s_.ry * std::sqrt(E / Fy);
    rep_.Step("F2.2", "F2-5", "Lp = 1.76·ry·√(E/Fy)", Format("1.76·%s·√(%s/%s)", Num(s_.ry).c_str(), Num(E).c_str(), Num(Fy).c_str()),
              Num(Lp) + " in");
    const double jc = s_.J * c / (s_.Sx * s_.ho);
    const double Lr = 1.95 * s_.rts * E / (0.7 * Fy) *
                      std::sqrt(jc + std::sqrt(jc * jc + 6.76 * std::pow(0.7 * Fy / E, 2)));
    rep_.Step("F2.2", "F2-6", "Lr = 1.95·rts·E/(0.7Fy)·√(Jc/(Sx·ho) + √((Jc/(Sx·ho))² + 6.76(0.7Fy/E)²))",
              Format("1.95·%s·%s/(0.7·%s)·√(%s + √(%s² + 6.76(0.7·%s/%s)²))", Num(s_.rts).c_str(), Num(E).c_str(),
                     Num(Fy).c_str(), Num(jc).c_str(), Num(jc).c_str(), Num(Fy).c_str(), Num(E).c_str()),
              Num(Lr) + " in");
    if (Lb <= Lp) {
      rep_.Step("F2.2", "", "Lb ≤ Lp: lateral-torsional buckling does not apply", Num(Lb) + " ≤ " + Num(Lp), "");
    } else if (Lb <= Lr) {
      const double M = std::min(Mp, Cb * (Mp - (Mp - 0.7 * Fy * s_.Sx) * (Lb - Lp) / (Lr - Lp)));
      rep_.Step("F2.2", "F2-2", "Mn = Cb·[Mp − (Mp − 0.7Fy·Sx)·(Lb − Lp)/(Lr − Lp)] ≤ Mp",
                Format("%s·[%s − (%s − 0.7·%s·%s)·(%s − %s)/(%s − %s)]", Num(Cb).c_str(), Num(Mp).c_str(),
                       Num(Mp).c_str(), Num(Fy).c_str(), Num(s_.Sx).c_str(), Num(Lb).c_str(), Num(Lp).c_str(),
                       Num(Lr).c_str(), Num(Lp).c_str()),
                Num(M) + " kip-in");
      Mn = std::min(Mn, M);
    } else {
      const double lr = Lb / s_.rts;
      const double Fcr = Cb * kPi * kPi * E / (lr * lr) * std::sqrt(1 + 0.078 * jc * lr * lr);
      rep_.Step("F2.2", "F2-4", "Fcr = Cb·π²E/(Lb/rts)²·√(1 + 0.078·Jc/(Sx·ho)·(Lb/rts)²)",
                Format("%s·π²·%s/%s²·√(1 + 0.078·%s·%s²)", Num(Cb).c_str(), Num(E).c_str(), Num(lr).c_str(),
                       Num(jc).c_str(), Num(lr).c_str()),
                Num(Fcr) + " ksi");
      const double M = std::min(Mp, Fcr * s_.Sx);
      rep_.Step("F2.2", "F2-3", "Mn = Fcr·Sx ≤ Mp", Num(Fcr) + "·" + Num(s_.Sx), Num(M) + " kip-in");
      Mn = std::min(Mn, M);
    }
    // F3.2: compression flange local buckling.
    if (lf > lpf) {
      double M;
      if (lf <= lrf) {
        M = Mp - (Mp - 0.7 * Fy * s_.Sx) * (lf - lpf) / (lrf - lpf);
        rep_.Step("F3.2", "F3-1", "Mn = Mp − (Mp − 0.7Fy·Sx)·(λ − λpf)/(λrf − λpf)",
                  Format("%s − (%s − 0.7·%s·%s)·(%s − %s)/(%s − %s)", Num(Mp).c_str(), Num(Mp).c_str(), Num(Fy).c_str(),
                         Num(s_.Sx).c_str(), Num(lf).c_str(), Num(lpf).c_str(), Num(lrf).c_str(), Num(lpf).c_str()),
                  Num(M) + " kip-in");
      } else {
        const double kc = std::clamp(4 / std::sqrt(lw), 0.35, 0.76);
        M = 0.9 * E * kc * s_.Sx / (lf * lf);
        rep_.Step("F3.2", "F3-2", "Mn = 0.9E·kc·Sx/λ², kc = 4/√(h/tw)",
                  Format("0.9·%s·%s·%s/%s²", Num(E).c_str(), Num(kc).c_str(), Num(s_.Sx).c_str(), Num(lf).c_str()),
                  Num(M) + " kip-in");
      }
      if (channel) rep_.Text("The flange of the channel is not compact: flange local buckling is taken by F3.2.");
      Mn = std::min(Mn, M);
    }
    return Mn;
  }

  // Noncompact or slender web (F4, F5): the member is doubly symmetric, so Sxc = Sxt = Sx.
  const double hc = lw * s_.tw;
  const double aw = hc * s_.tw / (s_.bf * s_.tf);
  const double rt = s_.bf / std::sqrt(12 * (s_.ho / s_.d + aw / 6 * hc * hc / (s_.ho * s_.d)));
  rep_.Step("F4.2", "F4-11", "rt = bfc/√(12(ho/d + aw·h²/(6·ho·d)))",
            Format("%s/√(12(%s/%s + %s·%s²/(6·%s·%s)))", Num(s_.bf).c_str(), Num(s_.ho).c_str(), Num(s_.d).c_str(),
                   Num(aw).c_str(), Num(hc).c_str(), Num(s_.ho).c_str(), Num(s_.d).c_str()),
            Num(rt) + " in");
  const double Lp = 1.1 * rt * std::sqrt(E / Fy);
  rep_.Step("F4.2", "F4-7", "Lp = 1.1·rt·√(E/Fy)", Format("1.1·%s·√(%s/%s)", Num(rt).c_str(), Num(E).c_str(), Num(Fy).c_str()),
            Num(Lp) + " in");
  const double Myc = Fy * s_.Sx;
  if (lw <= lrw) {
    const double Mpc = std::min(Mp, 1.6 * Myc);
    const double Rpc = std::min(Mpc / Myc, Mpc / Myc - (Mpc / Myc - 1) * (lw - lpw) / (lrw - lpw));
    rep_.Step("F4.2", "F4-9b", "Rpc = Mp/Myc − (Mp/Myc − 1)·(λ − λpw)/(λrw − λpw)",
              Format("%s/%s − (%s/%s − 1)·(%s − %s)/(%s − %s)", Num(Mpc).c_str(), Num(Myc).c_str(), Num(Mpc).c_str(),
                     Num(Myc).c_str(), Num(lw).c_str(), Num(lpw).c_str(), Num(lrw).c_str(), Num(lpw).c_str()),
              Num(Rpc));
    const double RM = Rpc * Myc;
    rep_.Step("F4.1", "F4-1", "Mn = Rpc·Myc", Num(Rpc) + "·" + Num(Myc), Num(RM) + " kip-in");
    Mn = RM;
    const double FL = 0.7 * Fy;
    const double j = s_.J / (s_.Sx * s_.ho);
    const double Lr = 1.95 * rt * E / FL * std::sqrt(j + std::sqrt(j * j + 6.76 * std::pow(FL / E, 2)));
    rep_.Step("F4.2", "F4-8", "Lr = 1.95·rt·E/FL·√(J/(Sxc·ho) + √((J/(Sxc·ho))² + 6.76(FL/E)²))",
              Format("1.95·%s·%s/%s·√(%s + √(%s² + 6.76(%s/%s)²))", Num(rt).c_str(), Num(E).c_str(), Num(FL).c_str(),
                     Num(j).c_str(), Num(j).c_str(), Num(FL).c_str(), Num(E).c_str()),
              Num(Lr) + " in");
    if (Lb > Lp && Lb <= Lr) {
      const double M = std::min(RM, Cb * (RM - (RM - FL * s_.Sx) * (Lb - Lp) / (Lr - Lp)));
      rep_.Step("F4.2", "F4-2", "Mn = Cb·[Rpc·Myc − (Rpc·Myc − FL·Sxc)·(Lb − Lp)/(Lr − Lp)] ≤ Rpc·Myc",
                Format("%s·[%s − (%s − %s·%s)·(%s − %s)/(%s − %s)]", Num(Cb).c_str(), Num(RM).c_str(), Num(RM).c_str(),
                       Num(FL).c_str(), Num(s_.Sx).c_str(), Num(Lb).c_str(), Num(Lp).c_str(), Num(Lr).c_str(),
                       Num(Lp).c_str()),
                Num(M) + " kip-in");
      Mn = std::min(Mn, M);
    } else if (Lb > Lr) {
      const double lr = Lb / rt;
      const double Fcr = Cb * kPi * kPi * E / (lr * lr) * std::sqrt(1 + 0.078 * j * lr * lr);
      const double M = std::min(RM, Fcr * s_.Sx);
      rep_.Step("F4.2", "F4-3, F4-5", "Mn = Fcr·Sxc, Fcr = Cb·π²E/(Lb/rt)²·√(1 + 0.078·J/(Sxc·ho)·(Lb/rt)²)",
                Format("%s·%s", Num(Fcr).c_str(), Num(s_.Sx).c_str()), Num(M) + " kip-in");
      Mn = std::min(Mn, M);
    }
    if (lf > lpf) {
      double M;
      if (lf <= lrf) {
        M = RM - (RM - FL * s_.Sx) * (lf - lpf) / (lrf - lpf);
        rep_.Step("F4.3", "F4-13", "Mn = Rpc·Myc − (Rpc·Myc − FL·Sxc)·(λ − λpf)/(λrf − λpf)",
                  Format("%s − (%s − %s·%s)·(%s − %s)/(%s − %s)", Num(RM).c_str(), Num(RM).c_str(), Num(FL).c_str(),
                         Num(s_.Sx).c_str(), Num(lf).c_str(), Num(lpf).c_str(), Num(lrf).c_str(), Num(lpf).c_str()),
                  Num(M) + " kip-in");
      } else {
        const double kc = std::clamp(4 / std::sqrt(lw), 0.35, 0.76);
        M = 0.9 * E * kc * s_.Sx / (lf * lf);
        rep_.Step("F4.3", "F4-14", "Mn = 0.9E·kc·Sxc/λ²", Format("0.9·%s·%s·%s/%s²", Num(E).c_str(), Num(kc).c_str(),
                                                               Num(s_.Sx).c_str(), Num(lf).c_str()),
                  Num(M) + " kip-in");
      }
      Mn = std::min(Mn, M);
    }
    rep_.Text("Tension flange yielding (F4.4) does not apply: Sxt = Sxc.");
    return Mn;
  }

  // F5: slender web.
  const double Rpg = std::min(1.0, 1 - std::min(aw, 10.0) / (1200 + 300 * std::min(aw, 10.0)) * (lw - 5.7 * std::sqrt(E / Fy)));
  rep_.Step("F5.2", "F5-6", "Rpg = 1 − aw/(1200 + 300aw)·(hc/tw − 5.7√(E/Fy)) ≤ 1",
            Format("1 − %s/(1200 + 300·%s)·(%s − 5.7·√(%s/%s))", Num(aw).c_str(), Num(aw).c_str(), Num(lw).c_str(),
                   Num(E).c_str(), Num(Fy).c_str()),
            Num(Rpg));
  Mn = Rpg * Fy * s_.Sx;
  rep_.Step("F5.1", "F5-1", "Mn = Rpg·Fy·Sxc", Format("%s·%s·%s", Num(Rpg).c_str(), Num(Fy).c_str(), Num(s_.Sx).c_str()),
            Num(Mn) + " kip-in");
  const double Lr = kPi * rt * std::sqrt(E / (0.7 * Fy));
  rep_.Step("F5.2", "F5-5", "Lr = π·rt·√(E/(0.7Fy))", Format("π·%s·√(%s/(0.7·%s))", Num(rt).c_str(), Num(E).c_str(), Num(Fy).c_str()),
            Num(Lr) + " in");
  if (Lb > Lp) {
    double Fcr;
    if (Lb <= Lr) {
      Fcr = std::min(Fy, Cb * (Fy - 0.3 * Fy * (Lb - Lp) / (Lr - Lp)));
      rep_.Step("F5.2", "F5-3", "Fcr = Cb·[Fy − 0.3Fy·(Lb − Lp)/(Lr − Lp)] ≤ Fy",
                Format("%s·[%s − 0.3·%s·(%s − %s)/(%s − %s)]", Num(Cb).c_str(), Num(Fy).c_str(), Num(Fy).c_str(),
                       Num(Lb).c_str(), Num(Lp).c_str(), Num(Lr).c_str(), Num(Lp).c_str()),
                Num(Fcr) + " ksi");
    } else {
      Fcr = std::min(Fy, Cb * kPi * kPi * E / std::pow(Lb / rt, 2));
      rep_.Step("F5.2", "F5-4", "Fcr = Cb·π²E/(Lb/rt)² ≤ Fy",
                Format("%s·π²·%s/(%s/%s)²", Num(Cb).c_str(), Num(E).c_str(), Num(Lb).c_str(), Num(rt).c_str()),
                Num(Fcr) + " ksi");
    }
    const double M = Rpg * Fcr * s_.Sx;
    rep_.Step("F5.2", "F5-2", "Mn = Rpg·Fcr·Sxc", Format("%s·%s·%s", Num(Rpg).c_str(), Num(Fcr).c_str(), Num(s_.Sx).c_str()),
              Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  }
  if (lf > lpf) {
    const double Fcr = lf <= lrf ? Fy - 0.3 * Fy * (lf - lpf) / (lrf - lpf)
                                 : 0.9 * E * std::clamp(4 / std::sqrt(lw), 0.35, 0.76) / (lf * lf);
    rep_.Step("F5.3", lf <= lrf ? "F5-8" : "F5-9", lf <= lrf ? "Fcr = Fy − 0.3Fy·(λ − λpf)/(λrf − λpf)" : "Fcr = 0.9E·kc/λ²",
              lf <= lrf ? Format("%s − 0.3·%s·(%s − %s)/(%s − %s)", Num(Fy).c_str(), Num(Fy).c_str(), Num(lf).c_str(),
                                 Num(lpf).c_str(), Num(lrf).c_str(), Num(lpf).c_str())
                        : Format("0.9·%s·%s/%s²", Num(E).c_str(), Num(std::clamp(4 / std::sqrt(lw), 0.35, 0.76)).c_str(),
                                 Num(lf).c_str()),
              Num(Fcr) + " ksi");
    const double M = Rpg * Fcr * s_.Sx;
    rep_.Step("F5.3", "F5-7", "Mn = Rpg·Fcr·Sxc", Format("%s·%s·%s", Num(Rpg).c_str(), Num(Fcr).c_str(), Num(s_.Sx).c_str()),
              Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  }
  return Mn;
}

double CAiscDesign::ChannelOrIMinor(double Z, double S, double lambda, const char* clause) const {
  const double E = kE, Fy = m_Fy;
  const double lp = Root(0.38), lr = Root(1.0);
  rep_.Step("B4.1b", "case 13", Format("flange λ = %.4g: λp = 0.38√(E/Fy), λr = 1.0√(E/Fy)", lambda),
            Num(lp) + ", " + Num(lr), Kind(lambda, lp, lr));
  const double Mp = std::min(Fy * Z, 1.6 * Fy * S);
  rep_.Step(clause, "F6-1", "Mn = Mp = Fy·Zy ≤ 1.6Fy·Sy",
            Format("min(%s·%s, 1.6·%s·%s)", Num(Fy).c_str(), Num(Z).c_str(), Num(Fy).c_str(), Num(S).c_str()),
            Num(Mp) + " kip-in");
  double Mn = Mp;
  if (lambda > lp && lambda <= lr) {
    Mn = Mp - (Mp - 0.7 * Fy * S) * (lambda - lp) / (lr - lp);
    rep_.Step(clause, "F6-2", "Mn = Mp − (Mp − 0.7Fy·Sy)·(λ − λpf)/(λrf − λpf)",
              Format("%s − (%s − 0.7·%s·%s)·(%s − %s)/(%s − %s)", Num(Mp).c_str(), Num(Mp).c_str(), Num(Fy).c_str(),
                     Num(S).c_str(), Num(lambda).c_str(), Num(lp).c_str(), Num(lr).c_str(), Num(lp).c_str()),
              Num(Mn) + " kip-in");
  } else if (lambda > lr) {
    const double Fcr = 0.69 * E / (lambda * lambda);
    Mn = std::min(Mp, Fcr * S);
    rep_.Step(clause, "F6-3, F6-4", "Mn = Fcr·Sy, Fcr = 0.69E/λ²",
              Format("0.69·%s/%s²·%s", Num(E).c_str(), Num(lambda).c_str(), Num(S).c_str()), Num(Mn) + " kip-in");
  }
  return Mn;
}

double CAiscDesign::TeeYieldingAndLtb(double depth, bool stemInTension) const {
  const double E = kE, Fy = m_Fy;
  const double My = Fy * s_.Sx;
  const double Mp = std::min(Fy * s_.Zx, (stemInTension ? 1.6 : 1.0) * My);
  rep_.Step("F9.1", stemInTension ? "F9-2" : "F9-3", stemInTension ? "Mn = Mp = Fy·Zx ≤ 1.6My" : "Mn = Mp ≤ My",
            Format("min(%s·%s, %s·%s·%s)", Num(Fy).c_str(), Num(s_.Zx).c_str(), stemInTension ? "1.6" : "1.0",
                   Num(Fy).c_str(), Num(s_.Sx).c_str()),
            Num(Mp) + " kip-in");
  if (!(m_Lb > 0) || !(s_.J > 0)) return Mp;
  const double B = (stemInTension ? 2.3 : -2.3) * (depth / m_Lb) * std::sqrt(s_.Iy / s_.J);
  rep_.Step("F9.2", "F9-5", "B = ±2.3·(d/Lb)·√(Iy/J)",
            Format("%s2.3·(%s/%s)·√(%s/%s)", stemInTension ? "" : "−", Num(depth).c_str(), Num(m_Lb).c_str(),
                   Num(s_.Iy).c_str(), Num(s_.J).c_str()),
            Num(B));
  const double Mcr = kPi * std::sqrt(E * s_.Iy * kG * s_.J) / m_Lb * (B + std::sqrt(1 + B * B));
  rep_.Step("F9.2", "F9-4", "Mn = Mcr = π√(E·Iy·G·J)/Lb·[B + √(1 + B²)]",
            Format("π√(%s·%s·%s·%s)/%s·[%s + √(1 + %s²)]", Num(E).c_str(), Num(s_.Iy).c_str(), Num(kG).c_str(),
                   Num(s_.J).c_str(), Num(m_Lb).c_str(), Num(B).c_str(), Num(B).c_str()),
            Num(Mcr) + " kip-in");
  return std::min(Mp, Mcr);
}

double CAiscDesign::TeeMajor() const {
  const double E = kE, Fy = m_Fy;
  const bool stemInTension = m_Mux >= 0;
  rep_.Text(stemInTension ? "Mux ≥ 0: the flange is in compression, the tip of the stem in tension."
                          : "Mux < 0: the tip of the stem is in compression.");
  double Mn = TeeYieldingAndLtb(s_.d, stemInTension);
  if (stemInTension) {
    const double l = s_.flangeRatio, lp = Root(0.38), lr = Root(1.0);
    rep_.Step("B4.1b", "case 10", Format("flange bf/2tf = %.4g", l), Num(lp) + ", " + Num(lr), Kind(l, lp, lr));
    if (l > lp) {
      const double Sxc = s_.Ix / s_.y;
      const double Fcr = l <= lr ? Fy * (1.19 - 0.50 * l * std::sqrt(Fy / E)) : 0.69 * E / (l * l);
      rep_.Step("F9.3", l <= lr ? "F9-7" : "F9-8", l <= lr ? "Fcr = Fy·(1.19 − 0.50·(bf/2tf)·√(Fy/E))" : "Fcr = 0.69E/(bf/2tf)²",
                l <= lr ? Format("%s·(1.19 − 0.50·%s·√(%s/%s))", Num(Fy).c_str(), Num(l).c_str(), Num(Fy).c_str(),
                                 Num(E).c_str())
                        : Format("0.69·%s/%s²", Num(E).c_str(), Num(l).c_str()),
                Num(Fcr) + " ksi");
      const double M = Fcr * Sxc;
      rep_.Step("F9.3", "F9-6", "Mn = Fcr·Sxc, Sxc = Ix/y", Format("%s·%s/%s", Num(Fcr).c_str(), Num(s_.Ix).c_str(), Num(s_.y).c_str()),
                Num(M) + " kip-in");
      Mn = std::min(Mn, M);
    }
  } else {
    const double l = s_.webRatio;
    double Fcr;
    const char* eq;
    if (l <= Root(0.84)) {
      Fcr = Fy;
      eq = "F9-10";
    } else if (l <= Root(1.03)) {
      Fcr = (2.55 - 1.84 * l * std::sqrt(Fy / E)) * Fy;
      eq = "F9-11";
    } else {
      Fcr = 0.69 * E / (l * l);
      eq = "F9-12";
    }
    const std::string numbers =
        l <= Root(0.84) ? Format("d/tw ≤ 0.84√(E/Fy) = %s: Fcr = Fy", Num(Root(0.84)).c_str())
        : l <= Root(1.03)
            ? Format("(2.55 − 1.84·%s·√(%s/%s))·%s", Num(l).c_str(), Num(Fy).c_str(), Num(E).c_str(), Num(Fy).c_str())
            : Format("0.69·%s/%s²", Num(E).c_str(), Num(l).c_str());
    rep_.Step("F9.4", eq, Format("stem d/tw = %.4g: Fcr", l), numbers, Num(Fcr) + " ksi");
    const double M = Fcr * s_.Sx;
    rep_.Step("F9.4", "F9-9", "Mn = Fcr·Sx", Num(Fcr) + "·" + Num(s_.Sx), Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  }
  return Mn;
}

double CAiscDesign::LegLocalBuckling(double Sc, double ratio, const char* what) const {
  const double E = kE, Fy = m_Fy;
  if (ratio <= Root(0.54)) {
    rep_.Step("F10.3", "", Format("%s b/t ≤ 0.54√(E/Fy): leg local buckling does not apply", what),
              Num(ratio) + " ≤ " + Num(Root(0.54)), "");
    return INFINITY;
  }
  double M;
  if (ratio <= Root(0.91)) {
    M = Fy * Sc * (2.43 - 1.72 * ratio * std::sqrt(Fy / E));
    rep_.Step("F10.3", "F10-6", "Mn = Fy·Sc·(2.43 − 1.72·(b/t)·√(Fy/E))",
              Format("%s·%s·(2.43 − 1.72·%s·√(%s/%s))", Num(Fy).c_str(), Num(Sc).c_str(), Num(ratio).c_str(),
                     Num(Fy).c_str(), Num(E).c_str()),
              Num(M) + " kip-in");
  } else {
    const double Fcr = 0.71 * E / (ratio * ratio);
    M = Fcr * Sc;
    rep_.Step("F10.3", "F10-7, F10-8", "Mn = Fcr·Sc, Fcr = 0.71E/(b/t)²",
              Format("0.71·%s/%s²·%s", Num(E).c_str(), Num(ratio).c_str(), Num(Sc).c_str()), Num(M) + " kip-in");
  }
  return M;
}

double CAiscDesign::DoubleAngleMajor() const {
  const bool tipsInTension = m_Mux >= 0;
  rep_.Text(tipsInTension ? "Mux ≥ 0: the outstanding legs are in compression, the tips of the vertical legs in tension."
                          : "Mux < 0: the tips of the vertical legs are in compression.");
  if (s_.jDerived) rep_.Text("J of the double angle is twice the J of its single angle.");
  double Mn = TeeYieldingAndLtb(s_.legVertical, tipsInTension);
  rep_.Text("Local buckling of the legs in compression is taken by F10.3 (Section F9 has no rule for the legs of double angles).");
  if (tipsInTension)
    Mn = std::min(Mn, LegLocalBuckling(s_.Ix / s_.y, s_.legHorizontal / s_.t, "outstanding leg"));
  else
    Mn = std::min(Mn, LegLocalBuckling(s_.Sx, s_.legVertical / s_.t, "vertical leg"));
  return Mn;
}

double CAiscDesign::AngleGeometric(double S, double leg, double legOther, const char* axis) const {
  const double E = kE, Fy = m_Fy;
  (void)legOther;
  const double My = Fy * S;
  double Mn = 1.5 * My;
  rep_.Step("F10.1", "F10-1", "Mn = 1.5My = 1.5·Fy·S", Format("1.5·%s·%s", Num(Fy).c_str(), Num(S).c_str()),
            Num(Mn) + " kip-in");
  rep_.Text(Format("Bending about the geometric %s axis without lateral-torsional restraint, the toe of the leg in "
                   "compression (the more critical case). The equations of F10.2(ii) for equal legs are used with "
                   "the leg in the plane of bending.",
                   axis));
  if (m_Lb > 0) {
    const double b = leg, t = s_.t, Lb = m_Lb, Cb = m_Cb;
    const double Me = 0.66 * E * std::pow(b, 4) * t * Cb / (Lb * Lb) * (std::sqrt(1 + 0.78 * std::pow(Lb * t / (b * b), 2)) - 1);
    rep_.Step("F10.2", "F10-4a", "Me = 0.66E·b⁴·t·Cb/Lb²·[√(1 + 0.78(Lb·t/b²)²) − 1]",
              Format("0.66·%s·%s⁴·%s·%s/%s²·[√(1 + 0.78(%s·%s/%s²)²) − 1]", Num(E).c_str(), Num(b).c_str(),
                     Num(t).c_str(), Num(Cb).c_str(), Num(Lb).c_str(), Num(Lb).c_str(), Num(t).c_str(), Num(b).c_str()),
              Num(Me) + " kip-in");
    const double My8 = 0.8 * My;
    rep_.Step("F10.2", "", "My = 0.80·Fy·S", Format("0.80·%s·%s", Num(Fy).c_str(), Num(S).c_str()), Num(My8) + " kip-in");
    double M;
    if (Me <= My8) {
      M = (0.92 - 0.17 * Me / My8) * Me;
      rep_.Step("F10.2", "F10-2", "Mn = (0.92 − 0.17·Me/My)·Me",
                Format("(0.92 − 0.17·%s/%s)·%s", Num(Me).c_str(), Num(My8).c_str(), Num(Me).c_str()), Num(M) + " kip-in");
    } else {
      M = std::min(1.5 * My8, (1.92 - 1.17 * std::sqrt(My8 / Me)) * My8);
      rep_.Step("F10.2", "F10-3", "Mn = (1.92 − 1.17√(My/Me))·My ≤ 1.5My",
                Format("(1.92 − 1.17√(%s/%s))·%s", Num(My8).c_str(), Num(Me).c_str(), Num(My8).c_str()), Num(M) + " kip-in");
    }
    Mn = std::min(Mn, M);
  }
  Mn = std::min(Mn, LegLocalBuckling(0.8 * S, leg / s_.t, "leg"));
  return Mn;
}

double CAiscDesign::HssRect(double Z, double S, double I, double lf, double lw, double depth, const char* axis) const {
  const double E = kE, Fy = m_Fy, t = s_.tdes;
  const double lpf = Root(1.12), lrf = Root(1.40), lpw = Root(2.42), lrw = Root(5.70);
  rep_.Step("B4.1b", "case 17", Format("flange b/t = %.4g (bending about %s)", lf, axis), Num(lpf) + ", " + Num(lrf),
            Kind(lf, lpf, lrf));
  rep_.Step("B4.1b", "case 19", Format("web h/t = %.4g", lw), Num(lpw) + ", " + Num(lrw), Kind(lw, lpw, lrw));
  const double Mp = Fy * Z;
  rep_.Step("F7.1", "F7-1", "Mn = Mp = Fy·Z", Num(Fy) + "·" + Num(Z), Num(Mp) + " kip-in");
  double Mn = Mp;
  if (lf > lpf && lf <= lrf) {
    const double M = std::min(Mp, Mp - (Mp - Fy * S) * (3.57 * lf * std::sqrt(Fy / E) - 4.0));
    rep_.Step("F7.2", "F7-2", "Mn = Mp − (Mp − Fy·S)·(3.57·(b/t)·√(Fy/E) − 4.0) ≤ Mp",
              Format("%s − (%s − %s·%s)·(3.57·%s·√(%s/%s) − 4.0)", Num(Mp).c_str(), Num(Mp).c_str(), Num(Fy).c_str(),
                     Num(S).c_str(), Num(lf).c_str(), Num(Fy).c_str(), Num(E).c_str()),
              Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  } else if (lf > lrf) {
    const double b = lf * t;
    const double be = std::min(b, 1.92 * t * std::sqrt(E / Fy) * (1 - 0.38 / lf * std::sqrt(E / Fy)));
    rep_.Step("F7.2", "F7-4", "be = 1.92t√(E/Fy)·[1 − 0.38/(b/t)·√(E/Fy)] ≤ b",
              Format("1.92·%s·√(%s/%s)·[1 − 0.38/%s·√(%s/%s)]", Num(t).c_str(), Num(E).c_str(), Num(Fy).c_str(),
                     Num(lf).c_str(), Num(E).c_str(), Num(Fy).c_str()),
              Num(be) + " in");
    // Effective section: the ineffective width is taken from both flanges so that the neutral axis
    // stays at mid-depth, the simplification of the published design examples (conservative).
    const double Ar = (b - be) * t, yc = depth / 2 - t / 2;
    const double Ieff = I - 2 * (Ar * yc * yc + (b - be) * t * t * t / 12);
    const double Se = Ieff / (depth / 2);
    rep_.Step("F7.2", "", "Se = Ieff/(H/2), Ieff = I − 2·(b − be)·t·(H/2 − t/2)²",
              Format("[%s − 2·%s·%s·%s²]/(%s/2)", Num(I).c_str(), Num(b - be).c_str(), Num(t).c_str(), Num(yc).c_str(),
                     Num(depth).c_str()),
              Num(Se) + " in³");
    const double M = Fy * Se;
    rep_.Step("F7.2", "F7-3", "Mn = Fy·Se", Num(Fy) + "·" + Num(Se), Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  }
  if (lw > lpw) {
    const double M = std::min(Mp, Mp - (Mp - Fy * S) * (0.305 * lw * std::sqrt(Fy / E) - 0.738));
    rep_.Step("F7.3", "F7-5", "Mn = Mp − (Mp − Fy·S)·(0.305·(h/t)·√(Fy/E) − 0.738) ≤ Mp",
              Format("%s − (%s − %s·%s)·(0.305·%s·√(%s/%s) − 0.738)", Num(Mp).c_str(), Num(Mp).c_str(), Num(Fy).c_str(),
                     Num(S).c_str(), Num(lw).c_str(), Num(Fy).c_str(), Num(E).c_str()),
              Num(M) + " kip-in");
    if (lw > lrw) rep_.Text("The web is slender: Section F7 has no rule for it; F7-5 is extrapolated.");
    Mn = std::min(Mn, M);
  }
  return Mn;
}

double CAiscDesign::HssRound(double Z, double S) const {
  const double E = kE, Fy = m_Fy, Dt = s_.DOverT;
  const double lp = 0.07 * E / Fy, lr = 0.31 * E / Fy;
  rep_.Step("B4.1b", "case 20", Format("D/t = %.4g: λp = 0.07E/Fy, λr = 0.31E/Fy", Dt), Num(lp) + ", " + Num(lr),
            Kind(Dt, lp, lr));
  if (Dt >= 0.45 * E / Fy) rep_.Text("D/t is at least 0.45E/Fy, beyond the range of Section F8.");
  const double Mp = Fy * Z;
  rep_.Step("F8.1", "F8-1", "Mn = Mp = Fy·Z", Num(Fy) + "·" + Num(Z), Num(Mp) + " kip-in");
  double Mn = Mp;
  if (Dt > lp && Dt <= lr) {
    const double M = (0.021 * E / Dt + Fy) * S;
    rep_.Step("F8.2", "F8-2", "Mn = (0.021E/(D/t) + Fy)·S",
              Format("(0.021·%s/%s + %s)·%s", Num(E).c_str(), Num(Dt).c_str(), Num(Fy).c_str(), Num(S).c_str()),
              Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  } else if (Dt > lr) {
    const double Fcr = 0.33 * E / Dt;
    const double M = Fcr * S;
    rep_.Step("F8.2", "F8-3, F8-4", "Mn = Fcr·S, Fcr = 0.33E/(D/t)",
              Format("0.33·%s/%s·%s", Num(E).c_str(), Num(Dt).c_str(), Num(S).c_str()), Num(M) + " kip-in");
    Mn = std::min(Mn, M);
  }
  return Mn;
}

double CAiscDesign::FlexureX() const {
  rep_.Heading("Flexure about x (Chapter F), φb = 0.90");
  switch (s_.family) {
    case ShapeFamily::IShape:
    case ShapeFamily::Channel: return IShapeMajor();
    case ShapeFamily::Tee: return TeeMajor();
    case ShapeFamily::DoubleAngle: return DoubleAngleMajor();
    case ShapeFamily::Angle: return AngleGeometric(s_.Sx, s_.legVertical, s_.legHorizontal, "x");
    case ShapeFamily::RectHss: return HssRect(s_.Zx, s_.Sx, s_.Ix, s_.bOverT, s_.hOverT, s_.Ht, "x");
    case ShapeFamily::RoundHss: return HssRound(s_.Zx, s_.Sx);
  }
  return 0;
}

double CAiscDesign::FlexureY() const {
  rep_.Heading("Flexure about y (Chapter F), φb = 0.90");
  switch (s_.family) {
    case ShapeFamily::IShape: return ChannelOrIMinor(s_.Zy, s_.Sy, s_.flangeRatio, "F6");
    case ShapeFamily::Channel: return ChannelOrIMinor(s_.Zy, s_.Sy, s_.flangeRatio, "F6");
    case ShapeFamily::Tee:
      rep_.Text("Section F9 covers bending in the plane of symmetry only; the flange of the tee is checked by F6.");
      return ChannelOrIMinor(s_.Zy, s_.Sy, s_.flangeRatio, "F6");
    case ShapeFamily::DoubleAngle: {
      rep_.Text("Bending about the axis of symmetry: yielding as F6-1 and local buckling of the outstanding legs by F10.3.");
      const double Mp = std::min(m_Fy * s_.Zy, 1.6 * m_Fy * s_.Sy);
      rep_.Step("F6.1", "F6-1", "Mn = Fy·Zy ≤ 1.6Fy·Sy",
                Format("min(%s·%s, 1.6·%s·%s)", Num(m_Fy).c_str(), Num(s_.Zy).c_str(), Num(m_Fy).c_str(), Num(s_.Sy).c_str()),
                Num(Mp) + " kip-in");
      return std::min(Mp, LegLocalBuckling(s_.Sy, s_.legHorizontal / s_.t, "outstanding leg"));
    }
    case ShapeFamily::Angle: return AngleGeometric(s_.Sy, s_.legHorizontal, s_.legVertical, "y");
    case ShapeFamily::RectHss: return HssRect(s_.Zy, s_.Sy, s_.Iy, s_.hOverT, s_.bOverT, s_.B, "y");
    case ShapeFamily::RoundHss: return HssRound(s_.Zy, s_.Sy);
  }
  return 0;
}
