#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "model/response_spectrum_codes.h"

using model::GenerateResponseSpectrum;
using model::SpectrumField;
using model::SpectrumInput;

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

SpectrumInput Input(int code, double v1, double v2, double tl = 8.0) {
  SpectrumInput in;
  in.code = code;
  in.value1 = v1;
  in.value2 = v2;
  in.tl = tl;
  return in;
}

SpectrumInput Ec8(int type, char ground, double ag, double importance, double damping) {
  SpectrumInput in;
  in.code = model::kEurocode8;
  in.ec8Type = type;
  in.ground = ground;
  in.ag = ag;
  in.importance = importance;
  in.damping = damping;
  return in;
}

// One run of a curve as its formula gives it: `count` points from `first`, `step` apart,
// with Sa from `sa`.
struct Run {
  size_t count;
  double first, step;
  std::function<double(double)> sa;
};

void ExpectRuns(const fmResponseSpectrum& s, const std::vector<Run>& runs) {
  size_t i = 0, expected = 0;
  for (const Run& r : runs) expected += r.count;
  ASSERT_EQ(s.points.size(), expected);
  for (size_t k = 0; k < runs.size(); ++k) {
    const Run& r = runs[k];
    EXPECT_EQ(s.points[i].period, r.first) << "run " << k << " starts on its own first period";
    for (size_t j = 0; j < r.count; ++j, ++i) {
      const double t = r.first + static_cast<double>(j) * r.step;
      EXPECT_NEAR(s.points[i].period, t, 1e-12 * (1 + t)) << "run " << k << " point " << j;
      EXPECT_NEAR(s.points[i].acceleration, r.sa(t), 1e-12) << "run " << k << " point " << j;
    }
  }
}

}  // namespace

// SDS 1.0, SD1 0.6, TL 8: T0 = 0.12, Ts = 0.6. 20 points rise from 0.4 g at T 0, five hold
// 1.0 g from 0.12, SD1/T runs from 0.6 below 8 and TL SD1/T^2 from 8 below 80; adding 1.8
// forty times leaves 79.99999999999994, so that run has a 41st point just below its end.
TEST(ResponseSpectrumCodes, Asce2010PointByPoint) {
  const auto r = GenerateResponseSpectrum(Input(model::kAsce2010, 1.0, 0.6, 8.0));
  ASSERT_TRUE(r.ok()) << r.message;
  EXPECT_EQ(r.spectrum.name, "ASCE_2010_SDS_1_SD1_0.6_TL_8");
  ExpectRuns(r.spectrum, {{20, 0.0, 0.006, [](double t) { return 0.4 + 0.6 * t / 0.12; }},
                          {5, 0.12, 0.096, [](double) { return 1.0; }},
                          {20, 0.6, 0.37, [](double t) { return 0.6 / t; }},
                          {41, 8.0, 1.8, [](double t) { return 4.8 / (t * t); }}});
  EXPECT_EQ(r.spectrum.points.front().acceleration, 0.4);
  EXPECT_LT(r.spectrum.points.back().period, 80.0);
  EXPECT_GT(r.spectrum.points.back().period, 79.9999);

  // The older and the newer ASCE codes give the same curve under their own names.
  for (const auto& [code, name] : {std::pair{model::kAsce2005, "ASCE_2005_SDS_1_SD1_0.6_TL_8"},
                                   std::pair{model::kAsce2016, "ASCE_2016_SDS_1_SD1_0.6_TL_8"}}) {
    const auto other = GenerateResponseSpectrum(Input(code, 1.0, 0.6, 8.0));
    EXPECT_EQ(other.spectrum.name, name);
    EXPECT_EQ(other.spectrum.points, r.spectrum.points) << name;
  }
}

// Ca 0.4, Cv 0.56: Ts = 0.56, T0 = 0.112, plateau 2.5 Ca = 1.0, 0.4 g at T 0 on the rising
// branch Ca + 1.5 Ca T (not divided by T0). Twenty steps of T0/20 stop at 0.11199999999999996,
// below T0 = 0.11200000000000002, so the rise has 21 points and the plateau still starts on T0.
TEST(ResponseSpectrumCodes, Ubc97KeepsItsRisingBranchAndTheExtraPointBeforeThePlateau) {
  const auto r = GenerateResponseSpectrum(Input(model::kUbc97, 0.4, 0.56));
  ASSERT_TRUE(r.ok()) << r.message;
  EXPECT_EQ(r.spectrum.name, "UBC_97_CA_0.4_CV_0.56");
  const double t0 = 0.2 * (0.56 / (2.5 * 0.4));
  ExpectRuns(r.spectrum, {{21, 0.0, 0.0056, [](double t) { return 0.4 + 0.6 * t; }},
                          {5, t0, (0.56 - 0.112) / 5, [](double) { return 1.0; }},
                          {101, 0.56, 0.2744, [](double t) { return 0.56 / t; }}});
  EXPECT_EQ(r.spectrum.points[0].acceleration, 0.4);
  EXPECT_LT(r.spectrum.points[20].period, t0);
  EXPECT_EQ(r.spectrum.points[21].period, t0);
}

TEST(ResponseSpectrumCodes, Ibc2000) {
  const auto r = GenerateResponseSpectrum(Input(model::kIbc2000, 1.0, 0.6));
  ASSERT_TRUE(r.ok()) << r.message;
  EXPECT_EQ(r.spectrum.name, "IBC_2000_SDS_1_SD1_0.6");
  ExpectRuns(r.spectrum, {{20, 0.0, 0.006, [](double t) { return 0.6 * t / 0.12 + 0.4; }},
                          {5, 0.12, 0.096, [](double) { return 1.0; }},
                          {100, 0.6, 0.294, [](double t) { return 0.6 / t; }}});
}

// Hand values from EN 1998-1 3.2.2.2 (expressions 3.2 to 3.5) and Table 3.2, Type 1,
// ground C: S = 1.15, TB = 0.2 s, TC = 0.6 s, TD = 2.0 s. ag = gammaI agR = 1.0 x 0.25 g,
// xi = 5 % so eta = sqrt(10 / (5 + 5)) = 1.
//   T = 0:    ag S = 0.25 x 1.15                         = 0.2875 g
//   T = 0.1:  ag S (1 + 0.1/0.2 (2.5 - 1)) = 0.2875 x 1.75 = 0.503125 g
//   TB..TC:   ag S 2.5 eta = 0.2875 x 2.5                = 0.71875 g
//   T = 1.3:  0.71875 x 0.6 / 1.3                        = 0.331730769 g
//   T = 2.0:  0.71875 x 0.6 / 2.0                        = 0.215625 g
//   T = 3.0:  0.71875 x 0.6 x 2.0 / 3.0^2                = 0.0958333 g
//   T = 4.0:  0.71875 x 1.2 / 16                         = 0.05390625 g
// Se is then already in g (Se in m/s^2 over 9.80665 with ag in m/s^2 = 9.80665 x ag in g).
// Type 2, ground D (Table 3.3): S = 1.8, TB = 0.1, TC = 0.3, TD = 1.2; gammaI 1.2 x 0.1 g,
// xi = 30 % gives sqrt(10/35) = 0.5345, held at 0.55:
//   T = 0: 0.12 x 1.8 = 0.216 g; plateau 0.216 x 2.5 x 0.55 = 0.297 g; T = 4: 0.297 x 0.36 / 16 = 0.0066825 g
TEST(ResponseSpectrumCodes, Eurocode8AgainstHandValues) {
  const auto r = GenerateResponseSpectrum(Ec8(1, 'C', 0.25, 1.0, 5.0));
  ASSERT_TRUE(r.ok()) << r.message;
  EXPECT_EQ(r.spectrum.name, "EC8_T1_C_AG_0.25_GI_1_XI_5");
  auto at = [&](const fmResponseSpectrum& s, double t) {
    for (const fmSpectrumPoint& p : s.points)
      if (std::abs(p.period - t) < 1e-9) return p.acceleration;
    ADD_FAILURE() << "no point at T = " << t;
    return kNaN;
  };
  const std::pair<double, double> hand[] = {{0.0, 0.2875},        {0.1, 0.503125}, {0.2, 0.71875},
                                            {0.6, 0.71875},       {1.3, 0.331730769}, {2.0, 0.215625},
                                            {3.0, 0.0958333333}, {4.0, 0.05390625}};
  for (const auto& [t, sa] : hand) EXPECT_NEAR(at(r.spectrum, t), sa, 1e-9) << "T = " << t;
  // 20 rising, 6 on the plateau (the sixth just below TC by rounding), 20 and 20 falling, and 4 s itself.
  EXPECT_EQ(r.spectrum.points.size(), 67u);
  EXPECT_EQ(r.spectrum.points.back().period, 4.0);
  EXPECT_LT(r.spectrum.points[25].period, 0.6);
  EXPECT_EQ(r.spectrum.points[26].period, 0.6);

  const auto d = GenerateResponseSpectrum(Ec8(2, 'd', 0.1, 1.2, 30.0));
  ASSERT_TRUE(d.ok()) << d.message;
  EXPECT_EQ(d.spectrum.name, "EC8_T2_D_AG_0.1_GI_1.2_XI_30");
  EXPECT_NEAR(at(d.spectrum, 0.0), 0.216, 1e-12);
  EXPECT_NEAR(at(d.spectrum, 0.1), 0.297, 1e-12);
  EXPECT_NEAR(at(d.spectrum, 4.0), 0.0066825, 1e-12);
  EXPECT_NEAR(model::Ec8DampingCorrection(2.0), std::sqrt(10.0 / 7.0), 1e-15);
}

TEST(ResponseSpectrumCodes, RefusalsInTheirOrder) {
  using F = SpectrumField;
  const struct {
    SpectrumInput input;
    const char* message;
    SpectrumField field;
  } cases[] = {
      {Input(0, 0, 0), "Ca value must be greater than 0.0", F::Value1},
      {Input(0, 0.4, -1), "Cv value must be greater than 0.0", F::Value2},
      {Input(1, -kInf, 0.6), "SDS value must be greater than 0.0", F::Value1},
      {Input(1, 1, 0), "SD1 value must be greater than 0.0", F::Value2},
      {Input(2, 0, 0, 0), "SDS value must be greater than 0.0", F::Value1},
      {Input(3, 1, 0.6, 0.6), "TL value must be greater than SD1 / SDS", F::Tl},
      {Input(4, 1, 0.6, -8), "TL value must be greater than SD1 / SDS", F::Tl},
      // Not finite: refused after every check of the code, with its own text.
      {Input(0, kNaN, 0), "Cv value must be greater than 0.0", F::Value2},
      {Input(0, kInf, 0.5), "Ca value must be a finite number", F::Value1},
      {Input(1, 1, kNaN), "SD1 value must be a finite number", F::Value2},
      {Input(3, 1, 0.6, kNaN), "TL value must be a finite number", F::Tl},
      {Input(3, kInf, 0.6, 8), "SDS value must be a finite number", F::Value1},
      {Ec8(1, 'C', 0, 0, 0), "ag value must be greater than 0.0", F::Ag},
      {Ec8(1, 'C', 0.25, -1, 0), "Importance factor must be greater than 0.0", F::Importance},
      {Ec8(1, 'C', 0.25, 1, 0), "Damping ratio must be greater than 0.0", F::Damping},
      {Ec8(1, 'C', kInf, 1, 5), "ag value must be a finite number", F::Ag},
      {Ec8(1, 'C', 0.25, 1, kNaN), "Damping ratio must be a finite number", F::Damping},
      {Ec8(3, 'C', 0.25, 1, 5), "Spectrum type must be 1 or 2", F::Type},
      {Ec8(1, 'F', 0.25, 1, 5), "Ground type must be one of A, B, C, D and E", F::Ground},
      {Input(6, 1, 0.6), "Please select a design code from the list.", F::Code},
      {Input(-1, 1, 0.6), "Please select a design code from the list.", F::Code},
      // Finite inputs whose periods overflow or whose values do: no curve of a point or two.
      {Input(0, 1e-310, 1e300), "These values are too large or too small for the curve to be computed.", F::Value1},
      {Input(3, 1e308, 1e308, 8), "These values are too large or too small for the curve to be computed.", F::Value1},
  };
  for (const auto& c : cases) {
    const auto r = GenerateResponseSpectrum(c.input);
    EXPECT_EQ(r.message, c.message) << c.input.code << " " << c.input.value1 << " " << c.input.value2;
    EXPECT_EQ(r.field, c.field) << c.message;
    EXPECT_TRUE(r.spectrum.points.empty() && r.spectrum.name.empty()) << c.message;
  }
}
