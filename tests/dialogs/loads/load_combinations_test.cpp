#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogs/loads/load_combinations.h"
#include "dialogs/loads/load_messages.h"
#include "tools/format.h"

using namespace loads;

namespace {

std::vector<fmLoadCase> Cases(std::initializer_list<std::pair<const char*, const char*>> labelsAndTypes) {
  std::vector<fmLoadCase> cases;
  int n = 1;
  for (const auto& [label, type] : labelsAndTypes) cases.emplace_back(n++, label, type);
  return cases;
}

const StdCombCode& Code(int index) { return *FindStandardCombinationCode(index); }

std::vector<int32_t> AllChecked(const StdCombCode& code) { return std::vector<int32_t>(code.rows.size(), 1); }

std::vector<int32_t> Checked(const StdCombCode& code, std::initializer_list<size_t> rows) {
  std::vector<int32_t> checks(code.rows.size(), 0);
  for (size_t r : rows) checks[r] = 1;
  return checks;
}

// "name: 1.2*Dead 1.6*Live" for compact comparison.
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

TEST(GenerateStandardCombinations, DeadAndLiveOnlyModelGetsItemsForThoseTypes) {
  const auto cases = Cases({{"DL", "Dead-D"}, {"LL", "Live-L"}});
  std::vector<fmLoadComb> combs;
  const auto result = GenerateStandardCombinations(cases, combs, Code(0), Checked(Code(0), {0, 1, 13, 34}), false);
  EXPECT_FALSE(result.refused);
  EXPECT_EQ(result.message, "");
  EXPECT_EQ(result.added, 4u);
  EXPECT_EQ(Describe(combs), (std::vector<std::string>{
                                 "IBC-2015_Eq16-1: 1.4*DL",
                                 "IBC-2015_Eq16-2a: 1.2*DL 1.6*LL",
                                 "IBC-2015_Eq16-3g: 1.2*DL",
                                 "IBC-2015_Eq16-7a: 0.9*DL",
                             }));
}

TEST(GenerateStandardCombinations, EveryCaseOfATypeGivesAnItemInCaseOrder) {
  const auto cases = Cases({{"Self weight", "Dead"}, {"W1", "Wind-W"}, {"Finishes", "D"}, {"W2", "w"}});
  std::vector<fmLoadComb> combs;
  GenerateStandardCombinations(cases, combs, Code(0), Checked(Code(0), {0, 33}), false);
  EXPECT_EQ(Describe(combs), (std::vector<std::string>{
                                 "IBC-2015_Eq16-1: 1.4*Self weight 1.4*Finishes",
                                 "IBC-2015_Eq16-6b: 0.9*Self weight 0.9*Finishes -1*W1 -1*W2",
                             }));
}

TEST(GenerateStandardCombinations, TypeTextMatchesAnySpellingWithoutCase) {
  for (const char* type : {"d", "DEAD", "dead-d", "Dead-D", "D"}) {
    const auto cases = Cases({{"G", type}});
    std::vector<fmLoadComb> combs;
    GenerateStandardCombinations(cases, combs, Code(0), Checked(Code(0), {0}), false);
    EXPECT_EQ(Describe(combs), std::vector<std::string>{"IBC-2015_Eq16-1: 1.4*G"}) << type;
  }
}

TEST(GenerateStandardCombinations, OtherAndUnknownTypesTakeNoPart) {
  const auto cases = Cases({{"Temp", "Other"}, {"Odd", "Temperature"}, {"Empty", ""}});
  std::vector<fmLoadComb> combs;
  const auto result = GenerateStandardCombinations(cases, combs, Code(7), AllChecked(Code(7)), false);
  EXPECT_EQ(result.added, 0u);
  EXPECT_TRUE(combs.empty());
}

TEST(GenerateStandardCombinations, SecondRunRefusedButOtherVariantAllowed) {
  const auto cases = Cases({{"DL", "Dead-D"}, {"LL", "Live-L"}});
  std::vector<fmLoadComb> combs;
  ASSERT_EQ(GenerateStandardCombinations(cases, combs, Code(0), AllChecked(Code(0)), false).added, 36u);
  const auto before = combs;

  const auto again = GenerateStandardCombinations(cases, combs, Code(0), AllChecked(Code(0)), false);
  EXPECT_TRUE(again.refused);
  EXPECT_EQ(again.message,
            "Please rename or delete the existing standard load combinations before running this command.");
  EXPECT_EQ(combs, before);

  // The LRFD prefix ends in an underscore, so ASD after LRFD is allowed, and LRFD after ASD.
  const auto asd = GenerateStandardCombinations(cases, combs, Code(1), AllChecked(Code(1)), false);
  EXPECT_FALSE(asd.refused);
  EXPECT_EQ(asd.added, 24u);
  std::vector<fmLoadComb> asdFirst;
  GenerateStandardCombinations(cases, asdFirst, Code(1), AllChecked(Code(1)), false);
  EXPECT_FALSE(GenerateStandardCombinations(cases, asdFirst, Code(0), AllChecked(Code(0)), false).refused);
  // ACI 318-11/14 and its service-wind variant do not block each other either.
  std::vector<fmLoadComb> aci;
  GenerateStandardCombinations(cases, aci, Code(3), AllChecked(Code(3)), false);
  EXPECT_FALSE(GenerateStandardCombinations(cases, aci, Code(2), AllChecked(Code(2)), false).refused);
}

TEST(GenerateStandardCombinations, RefusalIgnoresCaseAndNamesTheCodeFamily) {
  const auto cases = Cases({{"DL", "Dead-D"}});
  struct Case {
    int code;
    const char* existing;
    const char* message;
  };
  const Case cases_[] = {
      {0, "ibc-2015_mine", "Please rename or delete the existing standard load combinations before running this command."},
      {4, "ACI-2002_2008x", "Please rename or delete the existing standard load combinations before running this command."},
      {5, "aci-1999 old", "Please rename or delete the existing standard ACI 1999 load combinations before running this command."},
      {6, "AISC-LRFD93", "Please rename or delete the existing standard AISC-LRFD93 load combinations before running this command."},
      {7, "aisc-asd89_A", "Please rename or delete the existing standard AISC-ASD89 load combinations before running this command."},
  };
  for (const Case& c : cases_) {
    std::vector<fmLoadComb> combs = {fmLoadComb(c.existing)};
    const auto result = GenerateStandardCombinations(cases, combs, Code(c.code), AllChecked(Code(c.code)), true);
    EXPECT_TRUE(result.refused) << c.existing;
    EXPECT_EQ(result.message, c.message);
    EXPECT_EQ(combs.size(), 1u);
  }
}

TEST(GenerateStandardCombinations, AciFlagsSustainedFactorAndSpectrum) {
  const auto cases = Cases({{"DL", "Dead-D"}, {"LL", "Live-L"}, {"EQ", "Earthquake-E"}});
  std::vector<fmLoadComb> combs;
  GenerateStandardCombinations(cases, combs, Code(4), AllChecked(Code(4)), false);
  ASSERT_FALSE(combs.empty());
  EXPECT_EQ(combs.front().name, "ACI-2002_2008_Eq9-1");
  for (const fmLoadComb& c : combs) {
    EXPECT_EQ(c.concreteDesign, 1) << c.name;
    EXPECT_EQ(c.steelDesign, 0);
    EXPECT_EQ(c.pdelta, 0);
    EXPECT_EQ(c.spectrumFactor, 0.0);
    EXPECT_EQ(c.sustainedFactor, c.items.front().factor) << c.name;  // the row's Dead factor
  }
  EXPECT_EQ(combs.front().sustainedFactor, 1.4);
  EXPECT_EQ(combs.back().name, "ACI-2002_2008_Eq9-7b");
  EXPECT_EQ(combs.back().sustainedFactor, 0.9);
}

TEST(GenerateStandardCombinations, AiscSetsSteelDesignIbcNeitherPDeltaOnRequest) {
  const auto cases = Cases({{"DL", "Dead-D"}});
  std::vector<fmLoadComb> aisc, ibc;
  GenerateStandardCombinations(cases, aisc, Code(6), AllChecked(Code(6)), true);
  GenerateStandardCombinations(cases, ibc, Code(1), AllChecked(Code(1)), false);
  ASSERT_EQ(aisc.size(), 25u);  // every AISC-LRFD93 row carries D
  for (const fmLoadComb& c : aisc) {
    EXPECT_EQ(c.steelDesign, 1);
    EXPECT_EQ(c.concreteDesign, 0);
    EXPECT_EQ(c.pdelta, 1);
    EXPECT_EQ(c.sustainedFactor, 0.0);
    EXPECT_EQ(c.spectrumFactor, 1.0);
  }
  ASSERT_EQ(ibc.size(), 24u);
  for (const fmLoadComb& c : ibc) {
    EXPECT_EQ(c.steelDesign + c.concreteDesign + c.pdelta + c.totalDeflection + c.liveDeflection, 0) << c.name;
    EXPECT_EQ(c.spectrumFactor, 1.0);
  }
}

TEST(GenerateStandardCombinations, NothingCheckedGivesNothingAndNoMessage) {
  const auto cases = Cases({{"DL", "Dead-D"}});
  std::vector<fmLoadComb> combs = {fmLoadComb("Mine")};
  for (const std::vector<int32_t>& checks : {std::vector<int32_t>(36, 0), std::vector<int32_t>()}) {
    const auto result = GenerateStandardCombinations(cases, combs, Code(0), checks, false);
    EXPECT_FALSE(result.refused);
    EXPECT_EQ(result.message, "");
    EXPECT_EQ(result.added, 0u);
    EXPECT_EQ(combs.size(), 1u);
  }
}

TEST(GenerateStandardCombinations, IdenticalAsd89RowsMakeTwoCombinations) {
  const auto cases = Cases({{"DL", "D"}, {"EQ", "E"}});
  std::vector<fmLoadComb> combs;
  GenerateStandardCombinations(cases, combs, Code(7), Checked(Code(7), {8, 9}), false);
  EXPECT_EQ(Describe(combs), (std::vector<std::string>{"AISC-ASD89_A4-1i: 1*DL -1*EQ", "AISC-ASD89_A4-1j: 1*DL -1*EQ"}));
}

TEST(UnitCases, OneCombinationPerCaseAndNothingTheSecondTime) {
  const auto cases = Cases({{"Default", "Dead-D"}, {"LL", "Live-L"}, {"WL", "Wind-W"}});
  std::vector<fmLoadComb> combs = {fmLoadComb("comb_ll")};
  EXPECT_EQ(AddUnitCaseCombinations(cases, combs), 2u);
  EXPECT_EQ(Describe(combs, 1), (std::vector<std::string>{"Comb_Default: 1*Default", "Comb_WL: 1*WL"}));
  EXPECT_EQ(combs[1].spectrumFactor, 1.0);
  EXPECT_EQ(AddUnitCaseCombinations(cases, combs), 0u);
  EXPECT_EQ(combs.size(), 3u);

  std::vector<fmLoadComb> fresh;
  EXPECT_EQ(AddUnitCaseCombinations(cases, fresh), 3u);
  EXPECT_EQ(Describe(fresh), (std::vector<std::string>{"Comb_Default: 1*Default", "Comb_LL: 1*LL", "Comb_WL: 1*WL"}));

  // A 127-character case label makes a label cut to 127 characters.
  const auto longCase = Cases({{std::string(127, 'x').c_str(), "Dead"}});
  std::vector<fmLoadComb> cut;
  AddUnitCaseCombinations(longCase, cut);
  EXPECT_EQ(cut[0].name, "Comb_" + std::string(122, 'x'));
  EXPECT_EQ(cut[0].items[0].caseName, std::string(127, 'x'));
}

TEST(ProposeCombinationLabel, SmallestFreeNumberCappedAt1000) {
  EXPECT_EQ(ProposeCombinationLabel({}), "Combination_1");
  EXPECT_EQ(ProposeCombinationLabel({fmLoadComb("Combination_1"), fmLoadComb("combination_2")}), "Combination_3");
  EXPECT_EQ(ProposeCombinationLabel({fmLoadComb("Combination_2")}), "Combination_1");
  std::vector<fmLoadComb> full;
  for (int i = 1; i <= 1000; ++i) full.emplace_back(tools::Format("Combination_%d", i));
  EXPECT_EQ(ProposeCombinationLabel(full), "Combination_1000");
  full.pop_back();
  EXPECT_EQ(ProposeCombinationLabel(full), "Combination_1000");
}

TEST(CopyCombination, AppendsCopyUnlessItsLabelIsUsed) {
  std::vector<fmLoadComb> combs = {fmLoadComb("Default"), fmLoadComb("Service")};
  combs[1].items = {{"Dead", 1.0}, {"Live", 1.0}};
  combs[1].totalDeflection = 1;
  EXPECT_EQ(CopyCombination(combs, 1), "");
  ASSERT_EQ(combs.size(), 3u);
  EXPECT_EQ(combs[2].name, "Service_Copy");
  EXPECT_EQ(combs[2].items, combs[1].items);
  EXPECT_EQ(combs[2].totalDeflection, 1);

  combs[2].SetName("SERVICE_COPY");
  EXPECT_EQ(CopyCombination(combs, 1), "Load combination label already used.");
  EXPECT_EQ(combs.size(), 3u);
}

TEST(DeleteCombinations, TheFirstStaysTheOthersGo) {
  std::vector<fmLoadComb> combs = {fmLoadComb("A"), fmLoadComb("B"), fmLoadComb("C"), fmLoadComb("D")};
  EXPECT_EQ(DeleteCombinations(combs, {3, 1}), "");
  EXPECT_EQ(Describe(combs), (std::vector<std::string>{"A:", "C:"}));
  EXPECT_EQ(DeleteCombinations(combs, {0, 1}), "The first load combination may not be deleted.");
  EXPECT_EQ(Describe(combs), std::vector<std::string>{"A:"});
  EXPECT_EQ(DeleteCombinations(combs, {0}), "The first load combination may not be deleted.");
  EXPECT_EQ(combs.size(), 1u);
  EXPECT_EQ(DeleteCombinations(combs, {7}), "");
  EXPECT_EQ(combs.size(), 1u);
}

TEST(EnsureDefaultCombination, OnlyOnAnEmptyList) {
  std::vector<fmLoadComb> combs;
  EXPECT_TRUE(EnsureDefaultCombination(combs, Cases({{"Default", "Dead"}, {"LL", "Live"}})));
  EXPECT_EQ(Describe(combs), std::vector<std::string>{"Default: 1*Default"});
  EXPECT_FALSE(EnsureDefaultCombination(combs, {}));
  EXPECT_EQ(combs.size(), 1u);

  std::vector<fmLoadComb> noCases;
  EnsureDefaultCombination(noCases, {});
  EXPECT_EQ(Describe(noCases), std::vector<std::string>{"Default: 1*Default"});
}

TEST(SustainedLoadReminder, ExactlyOneConcreteCombination) {
  std::vector<fmLoadComb> combs(3);
  EXPECT_EQ(SustainedLoadReminder(combs), "");
  combs[1].concreteDesign = 1;
  EXPECT_EQ(SustainedLoadReminder(combs),
            "You should create a unit load combination that contains only sustained (usually 1.0 x DEAD) loads.\n"
            "This load combination is needed to calculate Beta-d in the design for concrete columns.");
  combs[2].concreteDesign = 1;
  EXPECT_EQ(SustainedLoadReminder(combs), "");
}

TEST(CombinationEditor, RowsShowExistingCasesOnly) {
  const auto cases = Cases({{"Dead", "D"}, {"Live", "L"}, {"Wind", "W"}});
  fmLoadComb comb("C");
  comb.items = {{"wind", -0.5}, {"Gone", 2.0}, {"Dead", 1.2}};
  const auto rows = CombinationEditorRows(cases, comb);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].caseLabel, "Dead");
  EXPECT_EQ(rows[0].factorText, "1.2");
  EXPECT_EQ(rows[1].factorText, "0");
  EXPECT_EQ(rows[2].caseLabel, "Wind");
  EXPECT_EQ(rows[2].factorText, "-0.5");
}

TEST(CombinationEditor, SaveRulesInOrder) {
  const std::vector<fmLoadComb> combs = {fmLoadComb("Default"), fmLoadComb("Service"), fmLoadComb("Ultimate")};
  CombinationEdit good;
  good.label = "Ultimate";
  good.sustainedFactor = 0.5;
  good.spectrumFactor = -2;  // not checked
  good.concreteDesign = 1;
  good.rows = {{"Dead", "1.2"}, {"Live", "abc"}, {"Wind", " -0.5 "}, {"Snow", "0"}, {"Rain", ""}};

  struct Case {
    const char* name;
    std::string label;
    double sustained;
    int index;
    EditCheck::Field field;
    std::string message;
  };
  const std::string badLabel = "Load combination label can only contain letters, digits, blanks between words and "
                               "the characters _ - . ( ) + /";
  const Case cases[] = {
      {"empty label", "", -1, 2, EditCheck::Field::Label, badLabel + ", and may not be empty."},
      {"bad character first", "U#1", -1, 2, EditCheck::Field::Label,
       badLabel + "; the character \"#\" at position 2 is not allowed."},
      {"label of another", "service", -1, 2, EditCheck::Field::Label, "Load combination label already used."},
      {"new one with a used label", "ULTIMATE", 0.5, -1, EditCheck::Field::Label, "Load combination label already used."},
      {"negative sustained", "Ultimate", -0.01, 2, EditCheck::Field::SustainedFactor,
       "Sustained load factor must not be less than 0.0"},
      {"own label kept", "Ultimate", 0.5, 2, EditCheck::Field::None, ""},
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
    if (!check.ok()) {
      EXPECT_EQ(out.name, "untouched");
    }
  }

  fmLoadComb out;
  ASSERT_TRUE(SaveCombinationEdit(good, combs, 2, out).ok());
  EXPECT_EQ(Describe(out), "Ultimate: 1.2*Dead -0.5*Wind");  // "abc", "0" and "" leave their cases out
  EXPECT_EQ(out.concreteDesign, 1);
  EXPECT_EQ(out.sustainedFactor, 0.5);
  EXPECT_EQ(out.spectrumFactor, -2);

  CombinationEdit longLabel = good;
  longLabel.label = std::string(200, 'c');
  ASSERT_TRUE(SaveCombinationEdit(longLabel, combs, -1, out).ok());
  EXPECT_EQ(out.name, std::string(127, 'c'));
}
