#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "dialogs/results/display_format.h"
#include "tools/format.h"

using results::DisplayFormatString;
using results::FormatDisplay;

TEST(DisplayFormat, FixedForZeroToFiveAndExponentialForSixToEleven) {
  const std::pair<int, const char*> cases[] = {
      {0, "1.5"},      {2, "1.500"},          {5, "1.500000"}, {6, "1.5e+00"}, {7, "1.50e+00"},
      {11, "1.500000e+00"}, {-3, "1.5"}, {12, "1.500000e+00"},  // out of range: taken as the nearest
  };
  for (const auto& [index, printed] : cases) EXPECT_EQ(FormatDisplay(1.5, index), printed) << index;
  EXPECT_EQ(results::LineFormatPiece(7), "%.2e");
  EXPECT_EQ(tools::FormatInt(-2147483648LL), "-2147483648");
}

TEST(DisplayFormat, AgreesWithPrintfOnManyValuesTiesAndExtremesIncluded) {
  // Magnitudes from 1e-9 to 1e17, exact binary ties (k / 2^n), decimal halves that are not exact in
  // binary (2.675), the extremes of a double; both signs, every fixed and exponential index.
  const double inf = std::numeric_limits<double>::infinity();
  std::vector<double> values = {0.0,  2.675, 1.005, 0.0005, 0.00015, 1e15 + 0.5, 9007199254740993.0, 123456789.0625,
                                4503599627370495.5, 0.1 + 0.2, 9.9995, 1e21, 1e308, 1e-300,
                                2.2250738585072014e-308, 4.9e-324, inf};
  std::mt19937_64 rng(0x9E3779B97F4A7C15ull);
  for (int i = 0; i < 5000; ++i) {
    const double unit = static_cast<double>(rng() >> 11) / 9007199254740992.0;  // [0, 1)
    values.push_back(unit * std::pow(10.0, static_cast<int>(rng() % 27) - 9));
    values.push_back(static_cast<double>(rng() % 100000) / static_cast<double>(1u << (rng() % 20)));
  }
  const size_t count = values.size();
  for (size_t i = 0; i < count; ++i) values.push_back(-values[i]);
  for (int index = 0; index < 12; ++index) {
    const int precision = index < 6 ? index + 1 : index - 5;
    int mismatches = 0;
    for (double v : values)
      if (FormatDisplay(v, index) != tools::Format(DisplayFormatString(index).c_str(), precision, v) && ++mismatches < 5)
        ADD_FAILURE() << "index " << index << " value " << tools::Format("%.17g", v) << ": " << FormatDisplay(v, index);
  }
}
