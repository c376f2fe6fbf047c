#include "tools/section_torsion.h"

#include <gtest/gtest.h>

// J = beta a t^3 for a solid rectangle with long side a and short side t; beta by aspect ratio a/t.
TEST(RectangleTorsion, AgreesWithTheClassicBetaTableWithinOnePercent) {
  const struct { double ratio, beta; } table[] = {
      {1.0, 0.141}, {1.5, 0.196}, {2.0, 0.229}, {3.0, 0.263}, {5.0, 0.291}, {10.0, 0.312}};
  for (const auto& row : table) {
    const double t = 2.0, a = row.ratio * t, expected = row.beta * a * t * t * t;
    EXPECT_NEAR(tools::calc_rect_J(a, t), expected, 0.01 * expected) << "a/t = " << row.ratio;
    EXPECT_DOUBLE_EQ(tools::calc_rect_J(t, a), tools::calc_rect_J(a, t)) << "either order of the sides";
  }
  EXPECT_NEAR(tools::calc_rect_J(1000, 1) / (1000.0 / 3), 1.0, 1e-3) << "a thin strip tends to a t^3 / 3";
  EXPECT_EQ(tools::calc_rect_J(0, 5), 0);
  EXPECT_EQ(tools::calc_rect_J(-2, 0.3), 0);
}
