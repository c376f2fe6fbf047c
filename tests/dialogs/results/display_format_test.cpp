#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

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
}

TEST(DisplayFormat, AgreesWithPrintfOnManyValuesTiesIncluded) {
  // Magnitudes from 1e-9 to 1e17, exact binary ties (k / 2^n) and decimal halves that are not
  // exact in binary (2.675), both signs; every fixed and exponential index.
  std::vector<double> values = {2.675, 1.005, 0.0005, 0.00015, 1e15 + 0.5, 9007199254740993.0, 123456789.0625,
                                4503599627370495.5, 0.1, 1e-300, 2.2250738585072014e-308, 4.9e-324};
  uint64_t state = 0x9E3779B97F4A7C15ull;
  auto next = [&] {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    return state;
  };
  for (int i = 0; i < 5000; ++i) {
    const double unit = static_cast<double>(next() >> 11) / 9007199254740992.0;  // [0, 1)
    values.push_back(unit * std::pow(10.0, static_cast<int>(next() % 27) - 9));
    values.push_back(static_cast<double>(next() % 100000) / static_cast<double>(1u << (next() % 20)));
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
  EXPECT_EQ(results::FormatId(0), "0");
}
