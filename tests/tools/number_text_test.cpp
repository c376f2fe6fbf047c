#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <optional>
#include <string>

#include "support/comma_locale.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace {

struct FormatCase {
  std::string written;
  const char* expected;
};

std::vector<FormatCase> FormatCases() {
  return {
      {tools::Format("%g", 1.5), "1.5"},
      {tools::Format("%.3f", 1234.5), "1234.500"},
      {tools::Format("%.7g", 1.3558179483314004), "1.355818"},
      {tools::Format("%g", 1234567.0), "1.23457e+06"},
      {tools::Format("%.3f %%", 12.25), "12.250 %"},
      {tools::Format("%d", -42), "-42"},
      {tools::Format("%s  Version %s (Build %s)", "Norvane", "1.0.0", "7"), "Norvane  Version 1.0.0 (Build 7)"},
      {tools::FormatG(0.1), "0.1"},
      {tools::Format("%.15g", 0.01), "0.01"},
      {tools::FormatInt(0), "0"},
      {tools::FormatInt(-42), "-42"},
      {tools::FormatInt(4294967295LL), "4294967295"},
      {tools::FormatInt(-9223372036854775807LL - 1), "-9223372036854775808"},
  };
}

}  // namespace

TEST(Format, WritesPrintfTextWithAPoint) {
  for (const auto& c : FormatCases()) EXPECT_EQ(c.written, c.expected);
}

TEST(Format, IgnoresACommaDecimalLocale) {
  testsupport::ScopedCommaNumeric comma;
  if (!comma.ok()) GTEST_SKIP() << "no de_DE.UTF-8 locale and it could not be compiled with localedef";
  char raw[32];
  std::snprintf(raw, sizeof raw, "%g", 1.5);
  ASSERT_STREQ(raw, "1,5") << "the locale should be in force for the C library";
  for (const auto& c : FormatCases()) EXPECT_EQ(c.written, c.expected);
  EXPECT_EQ(tools::Format("%.2f", 2.25), "2.25");
  EXPECT_EQ(tools::ParseDouble("2.5"), 2.5);
  EXPECT_EQ(tools::ParseDouble("2,5"), std::nullopt);
}

TEST(Format, LongTextsAreWrittenWhole) {
  const std::string long_text(1000, 'x');
  EXPECT_EQ(tools::Format("[%s]", long_text.c_str()), "[" + long_text + "]");
}

TEST(ParseDouble, ReadsNumbersAndRefusesEverythingElse) {
  struct Case {
    const char* text;
    std::optional<double> expected;
  };
  const Case cases[] = {
      {"2.5", 2.5},      {" 2.5 ", 2.5},  {"\t7\r\n", 7.0}, {"-3", -3.0},     {"+4", 4.0},       {"1e3", 1000.0},
      {"1E-3", 0.001},   {".5", 0.5},     {"5.", 5.0},      {"0", 0.0},       {"-0.0", -0.0},
      {"abc", {}},       {"", {}},        {"   ", {}},      {"1,5", {}},      {"1.5ft", {}},     {"1 2", {}},
      {"1e400", {}},     {"-1e400", {}},  {"inf", {}},      {"-inf", {}},     {"nan", {}},       {"0x10", {}},
      {"+-1", {}},       {"--1", {}},     {"++1", {}},      {"+", {}},        {"-", {}},         {"1e", {}},
      {"1.2.3", {}},     {"\xff", {}},
  };
  for (const Case& c : cases) EXPECT_EQ(tools::ParseDouble(c.text), c.expected) << '"' << c.text << '"';
}

TEST(ParseInteger, ChecksTheRangeOfTheTarget) {
  struct Case {
    const char* text;
    std::optional<int32_t> asInt32;
    std::optional<uint32_t> asUInt32;
  };
  const Case cases[] = {
      {"0", 0, 0u},
      {" 12 ", 12, 12u},
      {"+7", 7, 7u},
      {"-1", -1, {}},
      {"2147483647", 2147483647, 2147483647u},
      {"2147483648", {}, 2147483648u},
      {"-2147483648", INT32_MIN, {}},
      {"4294967295", {}, 4294967295u},
      {"4294967296", {}, {}},
      {"99999999999999999999", {}, {}},
      {"1.0", {}, {}},
      {"1e3", {}, {}},
      {"12abc", {}, {}},
      {"", {}, {}},
      {"+-3", {}, {}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(tools::ParseInt32(c.text), c.asInt32) << '"' << c.text << '"';
    EXPECT_EQ(tools::ParseUInt32(c.text), c.asUInt32) << '"' << c.text << '"';
  }
}

TEST(ParseText, TrimAndCaselessKeywords) {
  EXPECT_EQ(tools::Trim("  a b \t"), "a b");
  EXPECT_EQ(tools::Trim(" \r\n"), "");
  EXPECT_TRUE(tools::EqualsNoCase("Frozen", "fROZEN"));
  EXPECT_FALSE(tools::EqualsNoCase("htm", "html"));
}
