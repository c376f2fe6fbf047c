#include <gtest/gtest.h>

#include <limits>

#include "tools/numeric.h"
#include "tools/parse_list.h"

namespace {

const std::string kBadCount = "has a repeat count that is not a whole number from 1 to 100000";

TEST(ParseList, ReadsValuesAndRepetitions) {
  const struct {
    const char* text;
    std::vector<double> values;
  } cases[] = {
      {"  \t ", {}},
      {"0, 2@30", {0, 30, 30}},
      {"12, 3@20, 2@15", {12, 20, 20, 20, 15, 15}},
      {" 2 @ 7.5 ,\t-1 ", {7.5, 7.5, -1}},
      {"+5, -0.25, .5, 5., 1e3, 1.5E-2", {5, -0.25, 0.5, 5, 1000, 0.015}},
      {"2@-10", {-10, -10}},
      {"03@1", {1, 1, 1}},
  };
  for (const auto& c : cases) {
    const auto r = tools::ParseList(c.text);
    EXPECT_TRUE(r.ok()) << c.text << ": " << (r.error ? r.error->Message() : "");
    EXPECT_EQ(r.values, c.values) << c.text;
  }
  EXPECT_EQ(tools::ParseList("100000@1.5").values.size(), tools::kMaxListValues);
}

TEST(ParseList, RefusesBadItemsNamingThem) {
  const struct {
    const char* text;
    std::string message;
  } cases[] = {
      {"abc", "\"abc\" (item 1) is not a number"},
      {"10, abc", "\"abc\" (item 2) is not a number"},
      {"3@", "\"3@\" (item 1) has no value after @"},
      {"@5", "\"@5\" (item 1) has no repeat count before @"},
      {"1e999", "\"1e999\" (item 1) is out of range"},
      {"2@1e999", "\"2@1e999\" (item 1) is out of range"},
      {"-2@10", "\"-2@10\" (item 1) " + kBadCount},
      {"2.5@10", "\"2.5@10\" (item 1) " + kBadCount},
      {"100001@1", "\"100001@1\" (item 1) " + kBadCount},
      {"2@3@4", "\"2@3@4\" (item 1) has more than one @"},
      {"10,,20", "item 2 is empty"},
      {"10, 20,", "item 3 is empty"},
      {"inf", "\"inf\" (item 1) is not a number"},
      {"10 ft", "\"10 ft\" (item 1) is not a number"},
      {"60000@1, 50000@2", "\"50000@2\" (item 2) makes the list longer than 100000 values"},
      // A long item is cut on a character boundary: 39 letters, then a two-byte letter across byte 40.
      {"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\xC3\xA9tail",
       "\"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa...\" (item 1) is not a number"},
  };
  for (const auto& c : cases) {
    const auto r = tools::ParseList(c.text);
    ASSERT_FALSE(r.ok()) << c.text;
    EXPECT_EQ(r.error->Message(), c.message) << c.text;
    EXPECT_TRUE(r.values.empty()) << c.text;
  }
}

TEST(IsEqual, ComparesWithinTheTolerance) {
  const struct {
    double a, b;
    bool equal;
  } cases[] = {
      {360.0000001, 360.0, true},
      {360.0, 360.0000005, true},
      {360.000001, 360.0, false},
      {-1e-7, 0.0, true},
      {std::numeric_limits<double>::quiet_NaN(), 0.0, false},
  };
  for (const auto& c : cases) EXPECT_EQ(tools::is_equal(c.a, c.b), c.equal) << c.a << " vs " << c.b;
  EXPECT_TRUE(tools::is_equal(1.0, 1.4, 0.5));
}

}  // namespace
