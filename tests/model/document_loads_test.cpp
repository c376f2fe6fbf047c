#include <gtest/gtest.h>

#include "model/document_helpers.h"

using namespace doc_test;

TEST(DocumentLoads, RoundTripKeepsEveryField) {
  model::ModelDocument doc;
  doc.loadCases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(-1, "Überlast", "Other")};
  fmLoadComb comb("ACI-2014_Eq5_3_1_a");
  comb.pdelta = comb.concreteDesign = comb.liveDeflection = 1;
  comb.sustainedFactor = 1.4, comb.spectrumFactor = 0.0;
  comb.items = {{"Dead", 1.4}, {"Überlast", -0.1}};
  doc.loadCombs = {comb, fmLoadComb("Default")};
  const model::ModelDocument back = RoundTrip(doc);
  EXPECT_EQ(back.loadCases, doc.loadCases);
  EXPECT_EQ(back.loadCombs, doc.loadCombs);
}

TEST(DocumentLoads, DefaultsAndLabelsCutOnReading) {
  const std::string longLabel(200, 'a');
  const model::ModelDocument doc = Parse(R"(, "loadCases": [{"label": ")" + longLabel + R"("}],
      "loadCombinations": [{"label": "C", "items": [{"case": ")" + longLabel + R"(", "factor": 2}]}])");
  EXPECT_EQ(doc.loadCases, (std::vector<fmLoadCase>{fmLoadCase(-1, std::string(127, 'a'), "Other")}));
  ASSERT_EQ(doc.loadCombs.size(), 1u);
  EXPECT_EQ(doc.loadCombs[0].spectrumFactor, 1.0);
  EXPECT_EQ(doc.loadCombs[0].items[0].caseName, std::string(127, 'a'));
}

TEST(DocumentLoads, FaultsNameTheirPlaceAndReason) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(, "loadCases": [{"type": "Dead"}])", "/loadCases/0: missing \"label\""},
      {R"(, "loadCombinations": [{"label": "C", "pdelta": 1}])", "/loadCombinations/0/pdelta: expected true or false"},
      {R"(, "loadCombinations": [{"label": "C", "sustainedFactor": -1}])",
       "/loadCombinations/0/sustainedFactor: must not be less than 0.0"},
      {R"(, "loadCombinations": [{"label": "C", "items": [{"case": "D", "factor": "x"}]}])",
       "/loadCombinations/0/items/0/factor: expected a number"},
      {R"(, "loadCases": [{"label": "Dead"}, {"label": "Live"}, {"label": "DEAD"}])",
       "/loadCases/2/label: \"DEAD\" is the label \"Dead\" of /loadCases/0 (labels are compared without regard to "
       "case)"},
      {R"(, "loadCombinations": [{"label": "Überlast"}, {"label": "ÜBERLAST"}])",
       "/loadCombinations/1/label: \"ÜBERLAST\" is the label \"Überlast\" of /loadCombinations/0 (labels are "
       "compared without regard to case)"},
  };
  for (const auto& [body, refusal] : cases) EXPECT_EQ(Refusal(body), refusal) << body;
}

TEST(DocumentLoads, ACaseAndACombinationMayShareALabel) {
  const model::ModelDocument doc =
      Parse(R"(, "loadCases": [{"label": "Dead"}], "loadCombinations": [{"label": "DEAD"}])");
  EXPECT_EQ(doc.loadCombs.size(), 1u);
}
