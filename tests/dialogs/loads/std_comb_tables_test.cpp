#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

#include "dialogs/loads/std_comb_tables.h"
#include "tools/format.h"

namespace {

// The tables as the design codes publish them, typed in again here so the compiled tables are
// checked against the codes rather than against themselves: the name after the code's prefix
// (so a second run finds it), then every non-zero factor with its load type.
struct Code { const char *title, *prefix; std::vector<std::string> rows; };

const Code kPublished[] = {
    {"IBC-2015 LRFD", "IBC-2015_", {
        "Eq16-1 1.4D", "Eq16-2a 1.2D 1.6L 0.5Lr", "Eq16-2b 1.2D 1.6L 0.5S", "Eq16-2c 1.2D 1.6L 0.5R",
        "Eq16-3a 1.2D 1L 1.6Lr", "Eq16-3b 1.2D 1L 1.6S", "Eq16-3c 1.2D 1L 1.6R", "Eq16-3a_f1 1.2D 0.5L 1.6Lr",
        "Eq16-3b_f1 1.2D 0.5L 1.6S", "Eq16-3c_f1 1.2D 0.5L 1.6R", "Eq16-3d 1.2D 1.6Lr 0.5W", "Eq16-3e 1.2D 1.6S 0.5W",
        "Eq16-3f 1.2D 0.5W 1.6R", "Eq16-3g 1.2D 1.6Lr -0.5W", "Eq16-3h 1.2D 1.6S -0.5W", "Eq16-3i 1.2D -0.5W 1.6R",
        "Eq16-4a 1.2D 1L 0.5Lr 1W", "Eq16-4b 1.2D 1L 0.5S 1W", "Eq16-4c 1.2D 1L 1W 0.5R", "Eq16-4d 1.2D 1L 0.5Lr -1W",
        "Eq16-4e 1.2D 1L 0.5S -1W", "Eq16-4f 1.2D 1L -1W 0.5R", "Eq16-4a_f1 1.2D 0.5L 0.5Lr 1W",
        "Eq16-4b_f1 1.2D 0.5L 0.5S 1W", "Eq16-4c_f1 1.2D 0.5L 1W 0.5R", "Eq16-4d_f1 1.2D 0.5L 0.5Lr -1W",
        "Eq16-4e_f1 1.2D 0.5L 0.5S -1W", "Eq16-4f_f1 1.2D 0.5L -1W 0.5R", "Eq16-5a 1.2D 1L 0.2S 1E",
        "Eq16-5b 1.2D 1L 0.2S -1E", "Eq16-5a_f1 1.2D 0.5L 0.2S 1E", "Eq16-5b_f1 1.2D 0.5L 0.2S -1E",
        "Eq16-6a 0.9D 1W", "Eq16-6b 0.9D -1W", "Eq16-7a 0.9D 1E", "Eq16-7b 0.9D -1E",
    }},
    {"IBC-2015 ASD", "IBC-2015ASD", {
        "_Eq16-8 1D", "_Eq16-9 1D 1L", "_Eq16-10a 1D 1Lr", "_Eq16-10b 1D 1S", "_Eq16-10c 1D 1R",
        "_Eq16-11a 1D 0.75L 0.75Lr", "_Eq16-11b 1D 0.75L 0.75S", "_Eq16-11c 1D 0.75L 0.75R", "_Eq16-12a 1D 0.6W",
        "_Eq16-12b 1D -0.6W", "_Eq16-12c 1D 0.7E", "_Eq16-12d 1D -0.7E", "_Eq16-13a 1D 0.75L 0.5Lr 0.45W",
        "_Eq16-13b 1D 0.75L 0.5S 0.45W", "_Eq16-13c 1D 0.75L 0.45W 0.5R", "_Eq16-13d 1D 0.75L 0.5Lr -0.45W",
        "_Eq16-13e 1D 0.75L 0.5S -0.45W", "_Eq16-13f 1D 0.75L -0.45W 0.5R", "_Eq16-14a 1D 0.75L 0.75S 0.525E",
        "_Eq16-14b 1D 0.75L 0.75S -0.525E", "_Eq16-15a 0.6D 0.6W", "_Eq16-15b 0.6D -0.6W", "_Eq16-16a 0.6D 0.7E",
        "_Eq16-16b 0.6D -0.7E",
    }},
    {"ACI 318-11/14", "ACI-2014_", {
        "Eq5_3_1_a 1.4D", "Eq5_3_1_b_a 1.2D 1.6L 0.5Lr", "Eq5_3_1_b_b 1.2D 1.6L 0.5S", "Eq5_3_1_b_c 1.2D 1.6L 0.5R",
        "Eq5_3_1_c_a 1.2D 1L 1.6Lr", "Eq5_3_1_c_b 1.2D 1L 1.6S", "Eq5_3_1_c_c 1.2D 1L 1.6R",
        "Eq5_3_1_c_d 1.2D 1.6Lr 0.5W", "Eq5_3_1_c_e 1.2D 1.6S 0.5W", "Eq5_3_1_c_f 1.2D 0.5W 1.6R",
        "Eq5_3_1_c_g 1.2D 1.6Lr -0.5W", "Eq5_3_1_c_h 1.2D 1.6S -0.5W", "Eq5_3_1_c_i 1.2D -0.5W 1.6R",
        "Eq5_3_1_d_a 1.2D 1L 0.5Lr 1W", "Eq5_3_1_d_b 1.2D 1L 0.5S 1W", "Eq5_3_1_d_c 1.2D 1L 1W 0.5R",
        "Eq5_3_1_d_d 1.2D 1L 0.5Lr -1W", "Eq5_3_1_d_e 1.2D 1L 0.5S -1W", "Eq5_3_1_d_f 1.2D 1L -1W 0.5R",
        "Eq5_3_1_e_a 1.2D 1L 0.2S 1E", "Eq5_3_1_e_b 1.2D 1L 0.2S -1E", "Eq5_3_1_f_a 0.9D 1W", "Eq5_3_1_f_b 0.9D -1W",
        "Eq5_3_1_g_a 0.9D 1E", "Eq5_3_1_g_b 0.9D -1E",
    }},
    {"ACI 318-11/14 (Service Wind)", "ACI-2014ServiceW", {
        "_Eq5_3_1_a 1.4D", "_Eq5_3_1_b_a 1.2D 1.6L 0.5Lr", "_Eq5_3_1_b_b 1.2D 1.6L 0.5S",
        "_Eq5_3_1_b_c 1.2D 1.6L 0.5R", "_Eq5_3_1_c_a 1.2D 1L 1.6Lr", "_Eq5_3_1_c_b 1.2D 1L 1.6S",
        "_Eq5_3_1_c_c 1.2D 1L 1.6R", "_Eq5_3_1_c_d 1.2D 1.6Lr 0.8W", "_Eq5_3_1_c_e 1.2D 1.6S 0.8W",
        "_Eq5_3_1_c_f 1.2D 0.8W 1.6R", "_Eq5_3_1_c_g 1.2D 1.6Lr -0.8W", "_Eq5_3_1_c_h 1.2D 1.6S -0.8W",
        "_Eq5_3_1_c_i 1.2D -0.8W 1.6R", "_Eq5_3_1_d_a 1.2D 1L 0.5Lr 1.6W", "_Eq5_3_1_d_b 1.2D 1L 0.5S 1.6W",
        "_Eq5_3_1_d_c 1.2D 1L 1.6W 0.5R", "_Eq5_3_1_d_d 1.2D 1L 0.5Lr -1.6W", "_Eq5_3_1_d_e 1.2D 1L 0.5S -1.6W",
        "_Eq5_3_1_d_f 1.2D 1L -1.6W 0.5R", "_Eq5_3_1_e_a 1.2D 1L 0.2S 1E", "_Eq5_3_1_e_b 1.2D 1L 0.2S -1E",
        "_Eq5_3_1_f_a 0.9D 1.6W", "_Eq5_3_1_f_b 0.9D -1.6W", "_Eq5_3_1_g_a 0.9D 1E", "_Eq5_3_1_g_b 0.9D -1E",
    }},
    {"ACI 318-02/05/08", "ACI-2002_2008", {
        "_Eq9-1 1.4D", "_Eq9-2a 1.2D 1.6L 0.5Lr", "_Eq9-2b 1.2D 1.6L 0.5S", "_Eq9-2c 1.2D 1.6L 0.5R",
        "_Eq9-3a 1.2D 1L 1.6Lr", "_Eq9-3b 1.2D 1L 1.6S", "_Eq9-3c 1.2D 1L 1.6R", "_Eq9-3d 1.2D 1.6Lr 0.8W",
        "_Eq9-3e 1.2D 1.6S 0.8W", "_Eq9-3f 1.2D 0.8W 1.6R", "_Eq9-3g 1.2D 1.6Lr -0.8W", "_Eq9-3h 1.2D 1.6S -0.8W",
        "_Eq9-3i 1.2D -0.8W 1.6R", "_Eq9-4a 1.2D 1L 0.5Lr 1.6W", "_Eq9-4b 1.2D 1L 0.5S 1.6W",
        "_Eq9-4c 1.2D 1L 1.6W 0.5R", "_Eq9-4d 1.2D 1L 0.5Lr -1.6W", "_Eq9-4e 1.2D 1L 0.5S -1.6W",
        "_Eq9-4f 1.2D 1L -1.6W 0.5R", "_Eq9-5a 1.2D 1L 0.2S 1E", "_Eq9-5b 1.2D 1L 0.2S -1E", "_Eq9-6a 0.9D 1.6W",
        "_Eq9-6b 0.9D -1.6W", "_Eq9-7a 0.9D 1E", "_Eq9-7b 0.9D -1E",
    }},
    {"ACI 318-1999", "ACI-1999", {
        "_Eq9-1 1.4D 1.7L", "_Eq9-2a 1.05D 1.275L 1.275W", "_Eq9-2b 1.05D 1.275L -1.275W",
        "_Eq9-2c 1.05D 1.275L 1.4025E", "_Eq9-2d 1.05D 1.275L -1.4025E", "_Eq9-3a 0.9D 1.3W", "_Eq9-3b 0.9D -1.3W",
        "_Eq9-3c 0.9D 1.43E", "_Eq9-3d 0.9D -1.43E",
    }},
    {"AISC-LRFD93", "AISC-LRFD93", {
        "_A4-1 1.4D", "_A4-2a 1.2D 1.6L 0.5Lr", "_A4-2b 1.2D 1.6L 0.5S", "_A4-2c 1.2D 1.6L 0.5R",
        "_A4-3a 1.2D 0.5L 1.6Lr", "_A4-3b 1.2D 0.5L 1.6S", "_A4-3c 1.2D 0.5L 1.6R", "_A4-3d 1.2D 1.6Lr 0.8W",
        "_A4-3e 1.2D 1.6S 0.8W", "_A4-3f 1.2D 0.8W 1.6R", "_A4-3g 1.2D 1.6Lr -0.8W", "_A4-3h 1.2D 1.6S -0.8W",
        "_A4-3i 1.2D -0.8W 1.6R", "_A4-4a 1.2D 0.5L 0.5Lr 1.3W", "_A4-4b 1.2D 0.5L 0.5S 1.3W",
        "_A4-4c 1.2D 0.5L 1.3W 0.5R", "_A4-4d 1.2D 0.5L 0.5Lr -1.3W", "_A4-4e 1.2D 0.5L 0.5S -1.3W",
        "_A4-4f 1.2D 0.5L -1.3W 0.5R", "_A4-5a 1.2D 0.5L 0.2S 1E", "_A4-5b 1.2D 0.5L 0.2S -1E", "_A4-6a 0.9D 1.3W",
        "_A4-6b 0.9D -1.3W", "_A4-7a 0.9D 1E", "_A4-7b 0.9D -1E",
    }},
    {"AISC-ASD89", "AISC-ASD89", {
        "_A4-1a 1D", "_A4-1b 1D 1L 1Lr 1S 1R", "_A4-1c 1D 1W", "_A4-1d 1D -1W", "_A4-1e 1D 1L 1Lr 1S 1W 1R",
        "_A4-1f 1D 1L 1Lr 1S -1W 1R", "_A4-1g 1D 1E", "_A4-1h 1D -1E", "_A4-1i 1D 1L 1Lr 1S -1E 1R",
        "_A4-1j 1D 1L 1Lr 1S -1E 1R",
    }},
};

}  // namespace

TEST(StandardCombinationTables, MatchThePublishedTablesRowByRow) {
  const char* const types[] = {"D", "L", "Lr", "S", "W", "E", "R"};
  const auto codes = loads::StandardCombinationCodes();
  ASSERT_EQ(codes.size(), std::size(kPublished));
  for (size_t i = 0; i < codes.size(); ++i) {
    const Code& p = kPublished[i];
    SCOPED_TRACE(p.title);
    EXPECT_EQ(loads::FindStandardCombinationCode(static_cast<int>(i)), &codes[i]);
    EXPECT_STREQ(codes[i].title, p.title);
    EXPECT_STREQ(codes[i].prefix, p.prefix);
    std::vector<std::string> rows;
    for (const loads::StdComb& row : codes[i].rows) {
      std::string name = row.name;
      if (name.rfind(p.prefix, 0) == 0) name.erase(0, std::string(p.prefix).size());
      for (int t = 0; t < 7; ++t)
        if (row.factors[t] != 0) name += tools::Format(" %g%s", row.factors[t], types[t]);
      rows.push_back(name);
    }
    EXPECT_EQ(rows, p.rows);
  }
  EXPECT_EQ(loads::FindStandardCombinationCode(-1), nullptr);
  EXPECT_EQ(loads::FindStandardCombinationCode(8), nullptr);
}

// Signs join the terms, a factor of 1 is still written, zero factors are left out.
TEST(StandardCombinationTables, CheckListLines) {
  const std::pair<size_t, size_t> at[] = {{0, 15}, {5, 4}, {7, 9}};
  const char* lines[] = {"IBC-2015_Eq16-3i:  1.2D - 0.5W + 1.6R", "ACI-1999_Eq9-2d:  1.05D + 1.275L - 1.4025E",
                         "AISC-ASD89_A4-1j:  1D + 1L + 1Lr + 1S - 1E + 1R"};
  const auto codes = loads::StandardCombinationCodes();
  for (size_t i = 0; i < std::size(at); ++i) EXPECT_EQ(loads::StdCombLine(codes[at[i].first].rows[at[i].second]), lines[i]);
}
