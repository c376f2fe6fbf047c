#include <gtest/gtest.h>

#include "dialogs/loads/load_cases.h"

using namespace loads;

TEST(BuildLoadCases, FirstBadRowStopsTheSaveAndLeavesTheCases) {
  const std::string allowed = "contain letters, digits, blanks between words and the characters _ - . ( ) + /";
  struct Case { std::vector<LoadCaseRow> rows; int row; std::string message; };
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
}
