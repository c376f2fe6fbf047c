#pragma once
#include <ostream>
#include <string>

#include "steel/aisc_section.h"
#include "steel/steel_report.h"

// The check of one steel member to ANSI/AISC 360-10 LRFD: design strengths in axial force,
// flexure about both axes and shear along both axes, moment amplification and the
// interaction of Chapter H. Units: kip, in, ksi; moments in kip-ft (loads and results).
class CAiscDesign {
 public:
  static constexpr double kE = 29000.0;  // ksi
  static constexpr double kG = 11200.0;  // ksi

  explicit CAiscDesign(steel::AiscSection section);
  virtual ~CAiscDesign() = default;

  void SetPrint(bool print) { m_bPrint = print; }
  // The report stream; an std::ofstream or any other stream.
  void SetPrintFile(std::ostream* file) { m_pPrintFile = file; }
  void SetMaterial(double Fy) { m_Fy = Fy; }
  void SetGeneralParameters(bool useDirectDesignMethod, bool considerMomentMagnification) {
    m_bDirectDesign = useDirectDesignMethod;
    m_bMagnify = considerMomentMagnification;
  }
  // Lengths in inches.
  void SetColumnSlenderness(double Kx, double Ky, double Lx, double Ly) {
    m_Kx = Kx;
    m_Ky = Ky;
    m_Lx = Lx;
    m_Ly = Ly;
  }
  void SetLateralTorsionalProperty(double Cb, double Lb) {
    m_Cb = Cb;
    m_Lb = Lb;
  }
  void SetColumnSlenderness_Torsional(double Kz, double Lz) {
    m_Kz = Kz;
    m_Lz = Lz;
  }
  void SetDoubleAngleConnnectorDistance(double a) { m_a = a; }
  // Pu > 0 compression, Pu < 0 tension (kip); moments in kip-ft; shears in kip.
  void SetLoads(double Pu, double Mux, double Muy, double Cmx, double Cmy, double Vux, double Vuy) {
    m_Pu = Pu;
    m_Mux = Mux;
    m_Muy = Muy;
    m_Cmx = Cmx;
    m_Cmy = Cmy;
    m_Vux = Vux;
    m_Vuy = Vuy;
  }

  // Checks the member for the loads last set; fills the results below.
  virtual void CheckMember();
  double GetCriticalRatio() const { return m_CriticalRatio; }
  // The check that gives the critical ratio ("H1-1a", "flexure about x", ...).
  const std::string& GoverningCheck() const { return m_Governing; }
  const steel::AiscSection& Section() const { return s_; }

  // Results of the last check (kip, kip-ft).
  double m_phiPn = 0;   // compression when Pu >= 0, tension when Pu < 0
  double m_phiMnx = 0;
  double m_phiMny = 0;
  double m_phiVnx = 0;  // shear along x
  double m_phiVny = 0;  // shear along y
  double m_B1x = 1;
  double m_B1y = 1;

 private:
  // Each returns a nominal strength (kip or kip-in) and writes its steps to the report.
  double Tension() const;
  double Compression() const;
  double FlexureX() const;
  double FlexureY() const;
  double ShearY() const;
  double ShearX() const;
  double Amplification(double Cm, double I, double L, const char* axis) const;

  // Compression helpers.
  double SlenderReduction(double FcrWithoutQ, double* Qs, double* Qa) const;
  double CriticalStress(double Fe, double Q, const char* clause) const;
  double DoubleAngleSlenderness(double KLr) const;
  // Flexure helpers.
  double IShapeMajor() const;
  double ChannelOrIMinor(double Z, double S, double lambda, const char* clause) const;
  double TeeMajor() const;
  // F9.1 and F9.2, shared by tees and double angles; depth is d of F9-5.
  double TeeYieldingAndLtb(double depth, bool stemInTension) const;
  double DoubleAngleMajor() const;
  double AngleGeometric(double S, double leg, double legOther, const char* axis) const;
  double HssRect(double Z, double S, double I, double flangeRatio, double webRatio, double depth,
                 const char* axis) const;
  double HssRound(double Z, double S) const;
  double LegLocalBuckling(double Sc, double ratio, const char* what) const;
  double AngleLegShear(double leg, const char* which) const;
  double WebShear(double Aw, double ratio, double kv, bool rolledIWeb, const char* clause, double* phi) const;

  double Root(double x) const;  // sqrt(E / Fy) * x

  steel::AiscSection s_;
  steel::Report rep_;

  bool m_bPrint = false;
  std::ostream* m_pPrintFile = nullptr;
  double m_Fy = 50;
  bool m_bDirectDesign = false;
  bool m_bMagnify = false;
  double m_Kx = 1, m_Ky = 1, m_Lx = 0, m_Ly = 0;
  double m_Cb = 1, m_Lb = 0;
  double m_Kz = 1, m_Lz = 0;
  double m_a = 0;
  double m_Pu = 0, m_Mux = 0, m_Muy = 0, m_Cmx = 1, m_Cmy = 1, m_Vux = 0, m_Vuy = 0;
  double m_CriticalRatio = 0;
  std::string m_Governing;
};
