#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "dialogs/loads/load_combinations.h"
#include "tools/format.h"

using namespace loads;

namespace {

using CaseList = std::vector<std::pair<const char*, const char*>>;  // label, type

std::vector<fmLoadCase> Cases(const CaseList& labelsAndTypes) {
  std::vector<fmLoadCase> cases;
  int n = 1;
  for (const auto& [label, type] : labelsAndTypes) cases.emplace_back(n++, label, type);
  return cases;
}

const StdCombCode& Code(int index) { return *FindStandardCombinationCode(index); }

// One flag per row of the code; no rows given means every row.
std::vector<int32_t> Checked(int code, std::vector<size_t> rows = {}) {
  std::vector<int32_t> checks(Code(code).rows.size(), rows.empty() ? 1 : 0);
  for (size_t r : rows) checks[r] = 1;
  return checks;
}

GenerateResult Generate(const CaseList& cases, std::vector<fmLoadComb>& combs, int code,
                        std::vector<size_t> rows = {}, bool pdelta = false) {
  return GenerateStandardCombinations(Cases(cases), combs, Code(code), Checked(code, rows), pdelta);
}

// "name: 1.2*Dead 1.6*Live"
std::string Describe(const fmLoadComb& c) {
  std::string s = c.name + ":";
  for (const auto& item : c.items) s += tools::Format(" %g*%s", item.factor, item.caseName.c_str());
  return s;
}

std::vector<std::string> Describe(const std::vector<fmLoadComb>& combs, size_t from = 0) {
  std::vector<std::string> out;
  for (size_t i = from; i < combs.size(); ++i) out.push_back(Describe(combs[i]));
  return out;
}

}  // namespace

TEST(GenerateStandardCombinations, OneItemPerCaseOfEachTypeInCaseOrder) {
  struct Case { const char* name; CaseList cases; int code; std::vector<size_t> rows; std::vector<std::string> expected; };
  const Case cases[] = {
      {"types without cases are left out", {{"DL", "Dead-D"}, {"LL", "Live-L"}}, 0, {0, 1, 13, 34},
       {"IBC-2015_Eq16-1: 1.4*DL", "IBC-2015_Eq16-2a: 1.2*DL 1.6*LL", "IBC-2015_Eq16-3g: 1.2*DL",
        "IBC-2015_Eq16-7a: 0.9*DL"}},
      {"two Dead cases give two Dead items",
       {{"Self weight", "Dead"}, {"W1", "Wind-W"}, {"Finishes", "D"}, {"W2", "w"}}, 0, {0, 33},
       {"IBC-2015_Eq16-1: 1.4*Self weight 1.4*Finishes",
        "IBC-2015_Eq16-6b: 0.9*Self weight 0.9*Finishes -1*W1 -1*W2"}},
      {"any spelling of Dead", {{"G1", "d"}, {"G2", "DEAD"}, {"G3", "dead-d"}}, 0, {0},
       {"IBC-2015_Eq16-1: 1.4*G1 1.4*G2 1.4*G3"}},
      {"other and unknown types take no part", {{"Temp", "Other"}, {"Odd", "Temperature"}, {"Empty", ""}}, 7, {}, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::vector<fmLoadComb> combs;
    const GenerateResult result = Generate(c.cases, combs, c.code, c.rows);
    EXPECT_FALSE(result.refused);
    EXPECT_EQ(result.message, "");
    EXPECT_EQ(result.added, c.expected.size());
    EXPECT_EQ(Describe(combs), c.expected);
  }
}

TEST(GenerateStandardCombinations, SecondRunRefusedButOtherVariantAllowed) {
  const CaseList cases = {{"DL", "Dead-D"}, {"LL", "Live-L"}};
  std::vector<fmLoadComb> combs;
  ASSERT_EQ(Generate(cases, combs, 0).added, 36u);
  const auto before = combs;
  const GenerateResult again = Generate(cases, combs, 0);
  EXPECT_TRUE(again.refused);
  EXPECT_EQ(again.message,
            "Please rename or delete the existing standard load combinations before running this command.");
  EXPECT_EQ(combs, before);

  // The LRFD prefix ends in an underscore, so ASD after LRFD is allowed.
  EXPECT_EQ(Generate(cases, combs, 1).added, 24u);
}

TEST(GenerateStandardCombinations, RefusalIgnoresCaseAndNamesTheCodeFamily) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {0, "ibc-2015_mine", ""}, {5, "aci-1999 old", "ACI 1999 "}, {6, "AISC-LRFD93", "AISC-LRFD93 "},
      {7, "aisc-asd89_A", "AISC-ASD89 "}};
  for (const auto& [code, existing, family] : cases) {
    SCOPED_TRACE(existing);
    std::vector<fmLoadComb> combs = {fmLoadComb(existing)};
    const GenerateResult result = Generate({{"DL", "Dead-D"}}, combs, code, {}, true);
    EXPECT_TRUE(result.refused);
    EXPECT_EQ(result.message, std::string("Please rename or delete the existing standard ") + family +
                                  "load combinations before running this command.");
    EXPECT_EQ(combs.size(), 1u);
  }
}

// ACI marks concrete design with the row's Dead factor as sustained factor and no spectrum;
// AISC marks steel design; IBC neither. P-Delta only when asked for.
TEST(GenerateStandardCombinations, DesignFlagsFollowTheCode) {
  struct Case { int code; bool pdelta; int32_t concrete, steel; double spectrum; size_t count; };
  const Case cases[] = {{4, false, 1, 0, 0.0, 25}, {6, true, 0, 1, 1.0, 25}, {1, false, 0, 0, 1.0, 24}};
  for (const Case& c : cases) {
    SCOPED_TRACE(Code(c.code).title);
    std::vector<fmLoadComb> combs;
    Generate({{"DL", "Dead-D"}, {"LL", "Live-L"}, {"EQ", "Earthquake-E"}}, combs, c.code, {}, c.pdelta);
    ASSERT_EQ(combs.size(), c.count);
    for (const fmLoadComb& comb : combs) {
      SCOPED_TRACE(comb.name);
      EXPECT_EQ(comb.concreteDesign, c.concrete);
      EXPECT_EQ(comb.steelDesign, c.steel);
      EXPECT_EQ(comb.pdelta, c.pdelta ? 1 : 0);
      EXPECT_EQ(comb.spectrumFactor, c.spectrum);
      EXPECT_EQ(comb.sustainedFactor, c.concrete ? comb.items.front().factor : 0.0);
    }
  }
}

TEST(GenerateStandardCombinations, NothingCheckedGivesNothingAndNoMessage) {
  const auto cases = Cases({{"DL", "Dead-D"}});
  std::vector<fmLoadComb> combs = {fmLoadComb("Mine")};
  for (const std::vector<int32_t>& checks : {std::vector<int32_t>(36, 0), std::vector<int32_t>()}) {
    const GenerateResult result = GenerateStandardCombinations(cases, combs, Code(0), checks, false);
    EXPECT_FALSE(result.refused);
    EXPECT_EQ(result.message, "");
    EXPECT_EQ(combs.size(), 1u);
  }
}

TEST(UnitCases, OneCombinationPerCaseAndNothingTheSecondTime) {
  const auto cases = Cases({{"Default", "Dead-D"}, {"LL", "Live-L"}, {"WL", "Wind-W"}});
  std::vector<fmLoadComb> combs = {fmLoadComb("comb_ll")};
  EXPECT_EQ(AddUnitCaseCombinations(cases, combs), 2u);
  EXPECT_EQ(Describe(combs, 1), (std::vector<std::string>{"Comb_Default: 1*Default", "Comb_WL: 1*WL"}));
  EXPECT_EQ(combs[1].spectrumFactor, 1.0);
  EXPECT_EQ(AddUnitCaseCombinations(cases, combs), 0u);
  EXPECT_EQ(combs.size(), 3u);
}

TEST(ProposeCombinationLabel, SmallestFreeNumber) {
  EXPECT_EQ(ProposeCombinationLabel({}), "Combination_1");
  EXPECT_EQ(ProposeCombinationLabel({fmLoadComb("Combination_1"), fmLoadComb("combination_2")}), "Combination_3");
  EXPECT_EQ(ProposeCombinationLabel({fmLoadComb("Combination_2")}), "Combination_1");
}

// The text itself is shown end to end by the list dialog's test.
TEST(SustainedLoadReminder, ExactlyOneConcreteCombination) {
  std::vector<fmLoadComb> combs(3);
  for (int concrete : {0, 1, 2}) {
    if (concrete) combs[concrete].concreteDesign = 1;
    EXPECT_EQ(SustainedLoadReminder(combs).empty(), concrete != 1) << concrete;
  }
}

TEST(CombinationEditor, SaveRulesInOrder) {
  const std::vector<fmLoadComb> combs = {fmLoadComb("Default"), fmLoadComb("Service"), fmLoadComb("Ultimate")};
  CombinationEdit good;
  good.label = "Ultimate", good.sustainedFactor = 0.5, good.concreteDesign = 1;
  good.spectrumFactor = -2;  // not checked
  good.rows = {{"Dead", "1.2"}, {"Live", "abc"}, {"Wind", " -0.5 "}, {"Snow", "0"}, {"Rain", ""}};
  const std::string badLabel = "Load combination label can only contain letters, digits, blanks between words and "
                               "the characters _ - . ( ) + /";
  struct Case { const char* name; std::string label; double sustained; int index; EditCheck::Field field; std::string message; };
  const Case cases[] = {
      {"empty label", "", -1, 2, EditCheck::Field::Label, badLabel + ", and may not be empty."},
      {"label of another", "service", -1, 2, EditCheck::Field::Label, "Load combination label already used."},
      {"new one with a used label", "ULTIMATE", 0.5, -1, EditCheck::Field::Label, "Load combination label already used."},
      {"negative sustained", "Ultimate", -0.01, 2, EditCheck::Field::SustainedFactor,
       "Sustained load factor must not be less than 0.0"},
      {"renamed", " Ultimate 2 ", 0, 2, EditCheck::Field::None, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    CombinationEdit edit = good;
    edit.label = c.label;
    edit.sustainedFactor = c.sustained;
    fmLoadComb out("untouched");
    const EditCheck check = SaveCombinationEdit(edit, combs, c.index, out);
    EXPECT_EQ(check.field, c.field);
    EXPECT_EQ(check.message, c.message);
    if (!check.ok()) { EXPECT_EQ(out.name, "untouched"); }
  }

  fmLoadComb out;
  ASSERT_TRUE(SaveCombinationEdit(good, combs, 2, out).ok());
  EXPECT_EQ(Describe(out), "Ultimate: 1.2*Dead -0.5*Wind");  // "abc", "0" and "" leave their cases out
  good.label = std::string(200, 'c');
  ASSERT_TRUE(SaveCombinationEdit(good, combs, -1, out).ok());
  EXPECT_EQ(out.name, std::string(127, 'c'));
}
