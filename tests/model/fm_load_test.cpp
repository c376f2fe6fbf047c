#include <gtest/gtest.h>

#include "model/fm_load.h"

TEST(LoadTypes, TableInDropDownOrder) {
  const char* combined[] = {"Dead-D", "Live-L", "RoofLive-Lr", "Snow-S", "Wind-W", "Earthquake-E", "Rain-R", "Other"};
  const char* letters[] = {"D", "L", "Lr", "S", "W", "E", "R", ""};
  for (int i = 0; i < 8; ++i) {
    EXPECT_STREQ(LoadTypes()[i].combined, combined[i]);
    EXPECT_STREQ(LoadTypes()[i].letter, letters[i]);
  }
}

TEST(GetLoadCaseTypeIndex, AnySpellingWithoutCaseAndOtherForTheRest) {
  struct Case {
    const char* text;
    int index;
  };
  const Case cases[] = {
      {"Dead", 0}, {"D", 0}, {"Dead-D", 0}, {"d", 0}, {"DEAD", 0}, {"dead-d", 0},
      {"Live", 1}, {"l", 1}, {"LIVE-L", 1},
      {"RoofLive", 2}, {"LR", 2}, {"rooflive-lr", 2},
      {"Snow", 3}, {"s", 3}, {"Snow-S", 3},
      {"Wind", 4}, {"w", 4}, {"WIND-W", 4},
      {"Earthquake", 5}, {"e", 5}, {"Earthquake-E", 5},
      {"Rain", 6}, {"r", 6}, {"Rain-R", 6},
      {"Other", 7}, {"", 7}, {"Roof live", 7}, {"Dead-L", 7}, {" Dead", 7}, {"Temperature", 7},
  };
  for (const Case& c : cases) EXPECT_EQ(GetLoadCaseTypeIndex(c.text), c.index) << '"' << c.text << '"';
  EXPECT_FALSE(MatchesLoadType("Other", 7));
  EXPECT_FALSE(MatchesLoadType("Dead", -1));
}

TEST(FindCaseIndex, ByLabelWithoutCase) {
  const std::vector<fmLoadCase> cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Wind X", "Wind-W"),
                                         fmLoadCase(3, "Überlast", "Other")};
  EXPECT_EQ(FindCaseIndex(cases, "dead"), 0);
  EXPECT_EQ(FindCaseIndex(cases, "WIND X"), 1);
  EXPECT_EQ(FindCaseIndex(cases, "überlast"), 2);
  EXPECT_EQ(FindCaseIndex(cases, "Wind"), -1);
  EXPECT_EQ(FindCaseIndex({}, "Dead"), -1);
}

TEST(LoadRecords, DefaultsAndLabelsCutTo127Characters) {
  const fmLoadComb comb;
  EXPECT_EQ(comb.name, "Default");
  EXPECT_EQ(comb.pdelta + comb.steelDesign + comb.totalDeflection + comb.liveDeflection + comb.concreteDesign, 0);
  EXPECT_EQ(comb.sustainedFactor, 0.0);
  EXPECT_EQ(comb.spectrumFactor, 1.0);
  EXPECT_TRUE(comb.items.empty());

  const std::string longLabel(200, 'L');
  EXPECT_EQ(fmLoadCase(-1, longLabel).name.size(), 127u);
  EXPECT_EQ(fmLoadCase(-1, "x", longLabel).type.size(), 127u);
  EXPECT_EQ(fmLoadComb(longLabel).name.size(), 127u);
  EXPECT_EQ(fmLoadCombItem(longLabel, 1.0).caseName.size(), 127u);
  fmLoadComb renamed;
  renamed.SetName(longLabel);
  EXPECT_EQ(renamed.name.size(), 127u);
  EXPECT_EQ(fmLoadCase().number, -1);
}
