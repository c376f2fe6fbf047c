#include "tools/section_torsion.h"

#include <gtest/gtest.h>

// J = beta a t^3 for a solid rectangle with long side a and short side t; the classic
// table of beta by aspect ratio a/t.
TEST(RectangleTorsion, AgreesWithTheClassicBetaTableWithinOnePercent) {
  const struct {
    double ratio, beta;
  } table[] = {{1.0, 0.141}, {1.2, 0.166}, {1.5, 0.196}, {2.0, 0.229}, {2.5, 0.249}, {3.0, 0.263},
               {4.0, 0.281}, {5.0, 0.291}, {6.0, 0.299}, {8.0, 0.307}, {10.0, 0.312}};
  for (const auto& row : table) {
    const double t = 2.0, a = row.ratio * t;
    const double expected = row.beta * a * t * t * t;
    EXPECT_NEAR(tools::calc_rect_J(a, t), expected, 0.01 * expected) << "a/t = " << row.ratio;
    EXPECT_DOUBLE_EQ(tools::calc_rect_J(t, a), tools::calc_rect_J(a, t)) << "either order of the sides";
  }
}

TEST(RectangleTorsion, ThinStripTendsToOneThirdBT3) {
  const double b = 1000, t = 1;
  EXPECT_NEAR(tools::calc_rect_J(b, t) / (b * t * t * t / 3), 1.0, 1e-3);
  EXPECT_GT(tools::calc_rect_J(10, 1), tools::calc_rect_J(5, 1));
}

TEST(RectangleTorsion, NonPositiveSideGivesZero) {
  EXPECT_EQ(tools::calc_rect_J(0, 5), 0);
  EXPECT_EQ(tools::calc_rect_J(-2, 0.3), 0);
}
