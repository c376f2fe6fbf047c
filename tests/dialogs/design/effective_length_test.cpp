#include "dialogs/design/effective_length.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tools/fm_exception.h"
#include "tools/format.h"

namespace {

using design::FrameKind;

std::string Shown(const design::KResult& r) { return r.k ? tools::Format("%.2f", *r.k) : r.error; }

TEST(EffectiveLength, SolvesTheAlignmentCharts) {
  const struct {
    double ga, gb;
    const char *braced, *unbraced;
  } cases[] = {
      {0.47, 0.47, "0.68", "1.15"},
      {1, 1, "0.77", "1.32"},
      {10, 0, "0.69", "1.67"},
      {1000, 0, "0.70", "2.00"},
      {100, 100, design::kNotBracketed, "9.11"},
      {0.03, 0.03, "0.51", design::kNotBracketed},
      {1000, 1000, design::kNotBracketed, design::kNotBracketed},
      // Braced root exactly 0.5; the sway equation divides by GA + GB = 0.
      {0, 0, design::kNotBracketed, design::kNotBracketed},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Shown(design::SolveK(FrameKind::Braced, c.ga, c.gb)), c.braced) << c.ga << ", " << c.gb;
    EXPECT_EQ(Shown(design::SolveK(FrameKind::Unbraced, c.ga, c.gb)), c.unbraced) << c.ga << ", " << c.gb;
  }
}

TEST(EffectiveLength, SwayEquationAtZeroStiffnessIsRefusedNotNaN) {
  EXPECT_TRUE(std::isinf(design::UnbracedEquation(1.5, 0, 0)));
  EXPECT_TRUE(design::SampleEquation(FrameKind::Unbraced, 0, 0, 50).empty());
}

TEST(Rtbis, FollowsTheHalvingRules) {
  EXPECT_NEAR(design::rtbis([](double x) { return x - 0.3; }, 0, 1, 1e-6), 0.3, 1e-6);  // from the lower end
  EXPECT_NEAR(design::rtbis([](double x) { return 0.3 - x; }, 0, 1, 1e-6), 0.3, 1e-6);  // from the upper end

  const struct {
    double lower, upper, accuracy;
    const char* error;
  } failures[] = {
      {0.5, 1.0, 1e-6, design::kNotBracketed},        // no sign change
      {0.3, 1.0, 1e-6, design::kNotBracketed},        // f is 0 at an end: f1 * f2 = 0
      {0.0, 1.0, 1e-30, design::kTooManyBisections},  // 40 halvings cannot reach 1e-30
  };
  for (const auto& c : failures) {
    try {
      design::rtbis([](double x) { return x - 0.3; }, c.lower, c.upper, c.accuracy);
      ADD_FAILURE() << "no error for [" << c.lower << ", " << c.upper << "]";
    } catch (const fmException& e) {
      EXPECT_STREQ(e.GetMessage(), c.error);
    }
  }
}

}  // namespace
