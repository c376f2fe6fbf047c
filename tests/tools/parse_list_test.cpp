#include <gtest/gtest.h>

#include "tools/parse_list.h"

namespace {

const std::string kBadCount = "has a repeat count that is not a whole number from 1 to 100000";

TEST(ParseList, ReadsValuesAndRepetitions) {
  const struct { const char* text; std::vector<double> values; } cases[] = {
      {"  \t ", {}},
      {"0, 2@30", {0, 30, 30}},
      {"12, 3@20, 2@15", {12, 20, 20, 20, 15, 15}},
      {" 2 @ 7.5 ,\t-1 ", {7.5, 7.5, -1}},
      {"+5, -0.25, .5, 5., 1e3, 1.5E-2", {5, -0.25, 0.5, 5, 1000, 0.015}},
      {"2@-10", {-10, -10}},
  };
  for (const auto& c : cases) {
    const auto r = tools::ParseList(c.text);
    EXPECT_TRUE(r.ok()) << c.text << ": " << (r.error ? r.error->Message() : "");
    EXPECT_EQ(r.values, c.values) << c.text;
  }
  EXPECT_EQ(tools::ParseList("100000@1.5").values.size(), tools::kMaxListValues);
}

TEST(ParseList, RefusesBadItemsNamingThem) {
  const struct { const char* text; std::string message; } cases[] = {
      {"abc", "\"abc\" (item 1) is not a number"},
      {"3@", "\"3@\" (item 1) has no value after @"},
      {"@5", "\"@5\" (item 1) has no repeat count before @"},
      {"1e999", "\"1e999\" (item 1) is out of range"},
      {"-2@10", "\"-2@10\" (item 1) " + kBadCount},
      {"100001@1", "\"100001@1\" (item 1) " + kBadCount},
      {"2@3@4", "\"2@3@4\" (item 1) has more than one @"},
      {"10,,20", "item 2 is empty"},
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

}  // namespace
