#include <gtest/gtest.h>

#include "model/fm_load.h"

TEST(GetLoadCaseTypeIndex, AnySpellingWithoutCaseAndOtherForTheRest) {
  const std::pair<const char*, int> cases[] = {
      {"Dead", 0},     {"d", 0},      {"dead-d", 0}, {"LR", 2},     {"rooflive-lr", 2}, {"WIND-W", 4},
      {"e", 5},        {"Rain-R", 6}, {"Other", 7},  {"", 7},       {"Roof live", 7},   {"Dead-L", 7},
      {" Dead", 7},    {"Temperature", 7},
  };
  for (const auto& [text, index] : cases) EXPECT_EQ(GetLoadCaseTypeIndex(text), index) << '"' << text << '"';
  EXPECT_FALSE(MatchesLoadType("Dead", -1));
}

TEST(FindCaseIndex, ByLabelWithoutCase) {
  const std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead"), fmLoadCase(2, "Wind X"), fmLoadCase(3, "Überlast")};
  EXPECT_EQ(FindCaseIndex(cases, "WIND X"), 1);
  EXPECT_EQ(FindCaseIndex(cases, "überlast"), 2);
  EXPECT_EQ(FindCaseIndex(cases, "Wind"), -1);
}
