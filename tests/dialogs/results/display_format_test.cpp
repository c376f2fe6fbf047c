#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "dialogs/results/display_format.h"
#include "tools/format.h"

using results::DisplayFormatString;
using results::FormatDisplay;

TEST(DisplayFormat, FixedForZeroToFiveAndExponentialForSixToEleven) {
  struct Case {
    int index;
    const char* format;
    const char* piece;
    const char* printed;  // 1.5
  };
  const Case cases[] = {
      {0, "%.*f", "%.1f", "1.5"},        {1, "%.*f", "%.2f", "1.50"},        {2, "%.*f", "%.3f", "1.500"},
      {5, "%.*f", "%.6f", "1.500000"},   {6, "%.*e", "%.1e", "1.5e+00"},     {7, "%.*e", "%.2e", "1.50e+00"},
      {11, "%.*e", "%.6e", "1.500000e+00"},
      {-3, "%.*f", "%.1f", "1.5"},       {12, "%.*e", "%.6e", "1.500000e+00"},  // taken as the nearest
  };
  for (const Case& c : cases) {
    EXPECT_EQ(DisplayFormatString(c.index), c.format) << c.index;
    EXPECT_EQ(results::LineFormatPiece(c.index), c.piece) << c.index;
    EXPECT_EQ(FormatDisplay(1.5, c.index), c.printed) << c.index;
  }
}

TEST(DisplayFormat, PrintsExactlyWhatPrintfPrintsWithTheBuiltFormat) {
  const double values[] = {0.0,      -0.0,     0.125,   0.0625,    2.5,        -1.0005,   1e-7,
                           123456.7, 9.9995,   1e21,    -3.14e-300, 0.1 + 0.2, 1e308,     5e-324,
                           std::numeric_limits<double>::infinity(),   -std::numeric_limits<double>::infinity()};
  for (int index = 0; index < 12; ++index)
    for (double v : values) {
      const int precision = index < 6 ? index + 1 : index - 5;
      EXPECT_EQ(FormatDisplay(v, index), tools::Format(DisplayFormatString(index).c_str(), precision, v))
          << "index " << index << " value " << v;
    }
  EXPECT_EQ(results::FormatId(-2147483648LL), "-2147483648");
  EXPECT_EQ(results::FormatId(0), "0");
}
