#include <gtest/gtest.h>

#include "dialogs/loads/load_cases.h"

using namespace loads;

TEST(BuildLoadCases, RebuildsEveryRowWithNumberMinusOne) {
  std::vector<fmLoadCase> out = {fmLoadCase(1, "Old", "Dead-D")};
  const LoadCaseCheck check =
      BuildLoadCases({{"Dead", "Dead-D"}, {" Wind X ", "Wind-W"}, {std::string(200, 'q'), "Other"}}, out);
  ASSERT_TRUE(check.ok()) << check.message;
  ASSERT_EQ(out.size(), 3u);
  EXPECT_EQ(out[0], fmLoadCase(-1, "Dead", "Dead-D"));
  EXPECT_EQ(out[1].name, "Wind X");
  EXPECT_EQ(out[2].name, std::string(127, 'q'));
  EXPECT_EQ(out[2].type, "Other");
}

TEST(BuildLoadCases, FirstBadRowStopsTheSaveAndLeavesTheCases) {
  const std::string allowed = "contain letters, digits, blanks between words and the characters _ - . ( ) + /";
  struct Case {
    std::vector<LoadCaseRow> rows;
    int row;
    std::string message;
  };
  const Case cases[] = {
      {{{"Dead", "D"}, {"", "L"}, {"x#", "L"}}, 1, "Load case label can only " + allowed + ", and may not be empty."},
      {{{"Dead", "D"}, {"Live;", "L"}}, 1,
       "Load case label can only " + allowed + "; the character \";\" at position 5 is not allowed."},
      {{{"Dead", "D"}, {"Live", "L"}, {"DEAD", "D"}}, 2, "Duplicate label [DEAD] can not be used."},
  };
  for (const Case& c : cases) {
    std::vector<fmLoadCase> out = {fmLoadCase(1, "Keep", "Dead-D")};
    const LoadCaseCheck check = BuildLoadCases(c.rows, out);
    EXPECT_EQ(check.row, c.row);
    EXPECT_EQ(check.message, c.message);
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].name, "Keep");
  }
}

TEST(LoadCaseRules, DeleteNeverTheFirstAndCopyChecksInOrder) {
  EXPECT_EQ(CheckDeleteLoadCases({2, 0}), "You may not delete the first load case");
  EXPECT_EQ(CheckDeleteLoadCases({1, 2}), "");
  EXPECT_EQ(CheckCopyCaseLoad(1, 1, 0.0), "Can not copy loads from the same load case.");
  EXPECT_EQ(CheckCopyCaseLoad(0, 1, 0.0), "Multiplication factor can not be 0.");
  EXPECT_EQ(CheckCopyCaseLoad(0, 1, -1.5), "");
  const std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead"), fmLoadCase(2, "Wind X")};
  EXPECT_EQ(CopyCaseLoadChoices(cases), (std::vector<std::string>{"1: Dead", "2: Wind X"}));
}
