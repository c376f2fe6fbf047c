#include <gtest/gtest.h>

#include <string>

#include "model/document.h"

namespace {

std::string Document(const std::string& sections) {
  return R"({"format": "norvane-model", "schemaVersion": 1, "title": "t")" + sections + "}";
}

}  // namespace

TEST(DocumentLoads, OldDocumentsWithoutTheSectionLoadWithNoCases) {
  const model::ModelDocument doc = model::ParseModelDocument(Document(""), "old.json");
  EXPECT_TRUE(doc.loadCases.empty());
  EXPECT_TRUE(doc.loadCombs.empty());
}

TEST(DocumentLoads, RoundTripKeepsEveryField) {
  model::ModelDocument doc;
  doc.loadCases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(-1, "Überlast", "Other")};
  fmLoadComb comb("ACI-2014_Eq5_3_1_a");
  comb.pdelta = 1;
  comb.concreteDesign = 1;
  comb.liveDeflection = 1;
  comb.sustainedFactor = 1.4;
  comb.spectrumFactor = 0.0;
  comb.items = {{"Dead", 1.4}, {"Überlast", -0.1}};
  doc.loadCombs = {comb, fmLoadComb("Default")};
  const model::ModelDocument back = model::ParseModelDocument(model::SerializeModelDocument(doc), "x.json");
  EXPECT_EQ(back.loadCases, doc.loadCases);
  EXPECT_EQ(back.loadCombs, doc.loadCombs);
}

TEST(DocumentLoads, DefaultsAndLabelsCutOnReading) {
  const std::string longLabel(200, 'a');
  const model::ModelDocument doc = model::ParseModelDocument(
      Document(R"(, "loadCases": [{"label": ")" + longLabel + R"("}],
                 "loadCombinations": [{"label": "C", "items": [{"case": ")" + longLabel + R"(", "factor": 2}]}])"),
      "x.json");
  ASSERT_EQ(doc.loadCases.size(), 1u);
  EXPECT_EQ(doc.loadCases[0].number, -1);
  EXPECT_EQ(doc.loadCases[0].name, std::string(127, 'a'));
  EXPECT_EQ(doc.loadCases[0].type, "Other");
  ASSERT_EQ(doc.loadCombs.size(), 1u);
  EXPECT_EQ(doc.loadCombs[0].spectrumFactor, 1.0);
  EXPECT_EQ(doc.loadCombs[0].items[0].caseName, std::string(127, 'a'));
}

TEST(DocumentLoads, FaultsNameTheirPlace) {
  struct Case {
    const char* sections;
    const char* place;
    const char* problem;
  };
  const Case cases[] = {
      {R"(, "loadCases": {})", "/loadCases", "expected an array"},
      {R"(, "loadCases": [{"type": "Dead"}])", "/loadCases/0", "missing \"label\""},
      {R"(, "loadCombinations": [{"label": "C", "pdelta": 1}])", "/loadCombinations/0/pdelta", "expected true or false"},
      {R"(, "loadCombinations": [{"label": "C", "sustainedFactor": -1}])", "/loadCombinations/0/sustainedFactor",
       "must not be less than 0.0"},
      {R"(, "loadCombinations": [{"label": "C", "items": [{"case": "D", "factor": "x"}]}])",
       "/loadCombinations/0/items/0/factor", "expected a number"},
  };
  for (const Case& c : cases) {
    try {
      model::ParseModelDocument(Document(c.sections), "bad.json");
      ADD_FAILURE() << c.sections;
    } catch (const model::DocumentLoadError& e) {
      EXPECT_EQ(e.place(), c.place) << c.sections;
      EXPECT_EQ(e.problem(), c.problem) << c.sections;
    }
  }
}

TEST(DocumentLoads, ExampleModelHasCasesOfEveryKindAndCombinations) {
  const model::ModelDocument doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  std::vector<int> types;
  for (const fmLoadCase& lc : doc.loadCases) types.push_back(GetLoadCaseTypeIndex(lc.type));
  EXPECT_EQ(types, (std::vector<int>{0, 1, 2, 3, 4, 5, 7}));
  EXPECT_FALSE(doc.loadCombs.empty());
  for (const fmLoadComb& c : doc.loadCombs)
    for (const fmLoadCombItem& item : c.items) EXPECT_GE(FindCaseIndex(doc.loadCases, item.caseName), 0) << c.name;
}
