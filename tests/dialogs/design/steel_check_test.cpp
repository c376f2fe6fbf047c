#include "dialogs/design/steel_check.h"

#include <gtest/gtest.h>

#include "steel/steel_examples.h"

namespace {

TEST(SteelCheckRun, LoadCellsReadAsTheGridReadsThem) {
  std::string message;
  int column = -1;
  const auto set = design::ParseLoadSet({" 400", "250", "", "", "10", "", " "}, 1, &message);
  ASSERT_TRUE(set);
  EXPECT_EQ(set->Pu, 400);
  EXPECT_EQ(set->Muy, 0) << "an empty force is 0";
  EXPECT_EQ(set->Vuy, 10);
  EXPECT_EQ(set->Cmx, 1.0) << "an empty Cm is 1.0";
  EXPECT_EQ(set->Cmy, 1.0);
  EXPECT_FALSE(design::ParseLoadSet({"1", "2", "3", "x4"}, 2, &message, &column));
  EXPECT_EQ(message, "Invalid Vux for load 2.");
  EXPECT_EQ(column, 3);
  EXPECT_FALSE(design::ParseLoadSet({"inf"}, 1, &message));
}

// One run over two load sets gives one result each, in the order of the grid.
TEST(SteelCheckRun, RunsEveryLoadSetAndRefusesAnUnknownShape) {
  design::SteelMember member;
  member.shape = "W14X99";
  member.lux = member.luy = member.luz = member.lb = 14;
  std::vector<design::SteelResult> results;
  std::string message;
  ASSERT_TRUE(design::RunSteelCheck(member, {{.Pu = 400, .Mux = 250, .Muy = 80}, {}}, nullptr, results, &message,
                                    &steel_test::Bundled()));
  ASSERT_EQ(results.size(), 2u);
  EXPECT_NEAR(results[0].ratio, 0.929, 0.003) << "Example H.1A";
  EXPECT_EQ(results[1].ratio, 0.0);
  member.shape = "W14X999";
  EXPECT_FALSE(design::RunSteelCheck(member, {{}}, nullptr, results, &message, &steel_test::Bundled()));
  EXPECT_EQ(message, "Invalid AISC section");
}

}  // namespace
