#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <string>

#include "support/comma_locale.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace {

struct FormatCase { std::string written, expected; };

// Built when called, so that a test can put a locale in force first.
std::vector<FormatCase> FormatCases() {
  return {
      {tools::Format("%g", 1.5), "1.5"},        {tools::Format("%.3f %%", 12.25), "12.250 %"},
      {tools::Format("%.7g", 1.3558179483314004), "1.355818"},
      {tools::Format("%g", 1234567.0), "1.23457e+06"}, {tools::FormatG(0.1), "0.1"},
      {tools::FormatInt(-9223372036854775807LL - 1), "-9223372036854775808"},
      {tools::Format("[%s]", std::string(1000, 'x').c_str()), "[" + std::string(1000, 'x') + "]"},  // long
  };
}

void ExpectFormatCases() {
  for (const auto& c : FormatCases()) EXPECT_EQ(c.written, c.expected);
}

}  // namespace

TEST(Format, WritesPrintfTextWithAPointWhateverTheLocale) {
  ExpectFormatCases();
  testsupport::ScopedCommaNumeric comma;
  if (!comma.ok()) GTEST_SKIP() << "no de_DE.UTF-8 locale and it could not be compiled with localedef";
  char raw[32];
  std::snprintf(raw, sizeof raw, "%g", 1.5);
  ASSERT_STREQ(raw, "1,5") << "the locale should be in force for the C library";
  ExpectFormatCases();
  EXPECT_EQ(tools::ParseDouble("2.5"), 2.5);
  EXPECT_EQ(tools::ParseDouble("2,5"), std::nullopt);
}

TEST(ParseDouble, ReadsNumbersAndRefusesEverythingElse) {
  const struct { const char* text; std::optional<double> expected; } cases[] = {
      {" 2.5 ", 2.5}, {"\t7\r\n", 7.0}, {"-3", -3.0},  {"+4", 4.0},   {"1E-3", 0.001}, {".5", 0.5},
      {"5.", 5.0},    {"abc", {}},      {"", {}},      {"   ", {}},   {"1,5", {}},     {"1.5ft", {}},
      {"1 2", {}},    {"1e400", {}},    {"-1e400", {}}, {"inf", {}}, {"nan", {}},     {"0x10", {}},
      {"+-1", {}},    {"-", {}},        {"1e", {}},    {"1.2.3", {}}, {"\xff", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(tools::ParseDouble(c.text), c.expected) << '"' << c.text << '"';
}

TEST(ParseInteger, ChecksTheRangeOfTheTarget) {
  const struct { const char* text; std::optional<int32_t> asInt32; std::optional<uint32_t> asUInt32; } cases[] = {
      {" 12 ", 12, 12u},          {"-1", -1, {}},                   {"2147483648", {}, 2147483648u},
      {"-2147483648", INT32_MIN, {}}, {"4294967295", {}, 4294967295u}, {"4294967296", {}, {}}, {"1.0", {}, {}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(tools::ParseInt32(c.text), c.asInt32) << '"' << c.text << '"';
    EXPECT_EQ(tools::ParseUInt32(c.text), c.asUInt32) << '"' << c.text << '"';
  }
}
