#include "dialogs/design/regular_section.h"

#include <gtest/gtest.h>

using design::ComputeRegularSection;

TEST(RegularSection, FormulasMatchHandComputedValues) {
  const struct {
    const char* name;
    int type;
    std::array<double, 4> dims;
    const char* label;
    std::array<double, 10> expected;  // A, Ay, Az, Iz, Iy, J, b, d, tf, tw
  } cases[] = {
      // clang-format off
      {"rectangle", design::kRectangle, {10, 20, 0.0001, 0.0001}, "Rect10x20",
       {200, 166.666667, 166.666667, 6666.666667, 1666.666667, 4573.633543, 10, 20, 0, 0}},
      {"round", design::kRound, {10, 0.0001, 0.0001, 0.0001}, "Round10",
       {78.53981635, 70.68583472, 70.68583472, 490.8738523, 490.8738523, 981.7477046, 10, 10, 0, 0}},
      {"wide flange", design::kWideFlange, {10, 20, 0.5, 0.3}, "WideF10x20x0.5x0.3",
       {15.7, 6, 8.333333, 1122.308333, 83.376083, 0.976371, 10, 20, 0.5, 0.3}},
      // tf = d: the clear web height d - 2 tf = -2 takes 0.6 off the flanges' 40.
      {"wide flange with tf = d", design::kWideFlange, {10, 2, 2, 0.3}, "WideF10x2x2x0.3",
       {39.4, 0.6, 33.333333, 13.133333, 333.328833, 46.610681, 10, 2, 2, 0.3}},
      // The tee's Iz also by the parallel-axis theorem: 455.0613.
      {"tee", design::kTee, {10, 20, 0.5, 0.3}, "Tee10x20x0.5x0.3",
       {10.85, 6, 5, 455.061295, 41.710542, 0.577335, 10, 20, 0.5, 0.3}},
      // clang-format on
  };
  const char* names[] = {"A", "Ay", "Az", "Iz", "Iy", "J", "b", "d", "tf", "tw"};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const fmSect s = ComputeRegularSection(c.type, c.dims);
    EXPECT_EQ(s.id, -1);
    EXPECT_EQ(s.label, c.label);
    const double got[] = {s.A, s.Ay, s.Az, s.Iz, s.Iy, s.J, s.b, s.d, s.tf, s.tw};
    for (size_t i = 0; i < std::size(got); ++i)
      EXPECT_NEAR(got[i], c.expected[i], 1e-6 * std::max(1.0, std::abs(c.expected[i]))) << names[i];
  }
  EXPECT_EQ(ComputeRegularSection(design::kRectangle, {1.5, 1e7, 0, 0}).label, "Rect1.5x1e+07");
  EXPECT_EQ(ComputeRegularSection(design::kRound, {0.333333333, 0, 0, 0}).label, "Round0.333333");
}

TEST(RegularSection, FlangeChecksInOrderForFlangedShapesOnly) {
  const struct {
    int type;
    std::array<double, 4> dims;
    const char* refusal;
  } cases[] = {
      {design::kWideFlange, {5, 10, 1, 6}, "Flange width must be greater than or equal to web width"},
      {design::kTee, {5, 10, 11, 6}, "Flange width must be greater than or equal to web width"},  // before depth
      {design::kWideFlange, {5, 10, 10.0001, 5}, "Section depth must be greater than or equal to flange thickness"},
      {design::kWideFlange, {10, 2, 2, 0.3}, ""},
      {design::kRectangle, {5, 10, 11, 6}, ""},
  };
  for (const auto& c : cases) EXPECT_EQ(design::CheckRegularSection(c.type, c.dims), c.refusal);
}
