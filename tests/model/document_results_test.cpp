#include <gtest/gtest.h>

#include <tuple>

#include "dialogs/results/sample_struct.h"
#include "model/document_helpers.h"
#include "model/solved_structure.h"

using namespace doc_test;

namespace {

std::string TwoNodesAnd(const std::string& results) {
  return R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 0, "y": 12, "z": 0}])" +
         (results.empty() ? std::string() : ", \"results\": " + results);
}

model::ModelDocument WithResults(const std::string& results) { return Parse(TwoNodesAnd(results)); }

}  // namespace

TEST(DocumentResults, ADocumentWithoutResultsLoadsUnsolvedAndWritesNoSection) {
  const model::ModelDocument doc = WithResults("");
  EXPECT_TRUE(doc.results.IsEmpty());
  EXPECT_EQ(model::SerializeModelDocument(doc).find("\"results\""), std::string::npos);
  EXPECT_EQ(model::SolvedStructure(doc).GetNumLoadCases(), 0);
  EXPECT_TRUE(model::CheckSolution(doc).empty());
}

TEST(DocumentResults, EverySolutionTableSurvivesWritingAndReading) {
  model::ModelDocument doc;
  doc.nodes = SampleStruct().m_Nodes;
  doc.results = SampleStruct().m_Solution;
  fmSolution& sol = doc.results;
  sol.units.unit[fmUnit::Displacement] = 2;  // mm
  sol.results[1].nodalSpringReactions = {{3, {1, 2, 3, 4, 5, 6}}};
  sol.results[1].coupledSpringReactions = {{4, {6, 5, 4, 3, 2, 1}}};
  sol.results[1].lineSpringReactions = {{7, {1, 0, 0, 0, 0, 0}}};
  sol.results[1].surfaceSpringReactions = {{8, {0, 1, 0, 0, 0, 0}}};
  sol.results[2].constraintForces = {{5, {3, 4}, {0, 5}, {1.25, -2.5}}};
  sol.spectrum.constraintForces = {{6, {1, 2}, {2, 3}, {1, 2}}};
  EXPECT_EQ(RoundTrip(doc).results, doc.results);
}

TEST(DocumentResults, MalformedResultsAreRefusedWithThePlaceAndTheReason) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"cases": [{"label": "D", "displacements": [[1, 0, 0, 0, 0, 0, 0], [2, 0.5, 0]]}]})",
       "/results/cases/0/displacements/1: expected 7 numbers: the node or element number and six values"},
      {R"({"cases": [{"label": "D", "reactions": [[1.5, 0, 0, 0, 0, 0, 0]]}]})",
       "/results/cases/0/reactions/0/0: expected a whole number from -2147483648 to 2147483647"},
      {R"({"nodalLoads": [{"node": 1, "case": "D", "direction": "W", "magnitude": 1}]})",
       "/results/nodalLoads/0/direction: expected one of X, Y, Z, OX, OY, OZ"},
      {R"({"coupledSprings": [{"node": 1, "k": [1, 2, 3]}]})", "/results/coupledSprings/0/k: expected 21 numbers: the upper triangle of the 6x6 stiffness, row by row"},
      {R"({"cases": [{"label": "D", "reactions": [[1, 0, 1, 0, 0, 0, 0], [2, 0, 1, 0, 0, 0, 0], [1, 0, 1, 0, 0, 0, 0]]}]})",
       "/results/cases/0/reactions/2: a second record of node 1 (the first is /results/cases/0/reactions/0)"},
      {R"({"cases": [{"label": "D", "lineSpringReactions": [[7, 0, 1, 0, 0, 0, 0], [7, 0, 1, 0, 0, 0, 0]]}]})",
       "/results/cases/0/lineSpringReactions/1: a second record of member 7 (the first is "
       "/results/cases/0/lineSpringReactions/0)"},
      {R"({"spectrum": {"constraintForces": [[5, 1, 0, 1, 2, 0, -1], [5, 1, 1, 1, 2, 1, -1]]}})",
       "/results/spectrum/constraintForces/1: a second record of constraint 5 (the first is "
       "/results/spectrum/constraintForces/0)"},
      {R"({"eigenModes": [{"omega2": 100}, {"omega2": -3}]})",
       "/results/eigenModes/1/omega2: a negative eigenvalue (-3) is no vibration mode; the analysis that wrote it "
       "failed"},
      {R"({"spectrumModes": [{"omega2": -0.5}]})",
       "/results/spectrumModes/0/omega2: a negative eigenvalue (-0.5) is no vibration mode; the analysis that wrote "
       "it failed"},
      {R"({"units": {"unit": [1, 0, 16, 40, 24, 56, 72, 15, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]}})",
       "/results/units/unit/7: unit not of the kind of \"Displacement:\""},
  };
  for (const auto& [results, refusal] : cases) EXPECT_EQ(Refusal(TwoNodesAnd(results)), refusal) << results;
}

TEST(DocumentResults, ResultsThatDoNotFitTheNodesLoadAndAreReported) {
  const model::ModelDocument doc = WithResults(R"({"cases": [{"label": "Dead", "displacements": [[1, 0, 0, 0, 0, 0, 0]],
                              "reactions": [[9, 0, 1, 0, 0, 0, 0]], "lineSpringReactions": [[7, 0, 1, 0, 0, 0, 0]],
                              "surfaceSpringReactions": [[8, 0, 1, 0, 0, 0, 0]],
                              "constraintForces": [[5, 1, 0, 1, 2, 0, -1], [6, 2, 0, 1, 33, 0, -1]]}]})");
  const std::vector<std::string> expected = {
      "results of \"Dead\": support reactions name node 9, which the model does not have",
      "results of \"Dead\": line spring reactions name member 7, which the model does not have",
      "results of \"Dead\": surface spring reactions name shell 8, which the model does not have",
      "results of \"Dead\": constraint forces name node 33, which the model does not have",
      "results of \"Dead\": displacements of 1 of the model's 2 nodes",
  };
  EXPECT_EQ(model::CheckSolution(doc), expected);
  EXPECT_EQ(model::CheckSolution(doc, 1), (std::vector<std::string>{expected[0], "... and 4 more"}));
}

TEST(DocumentResults, TheSolvedStructureCarriesTheModelsTablesAndFlag) {
  model::ModelDocument doc = WithResults(R"({"cases": [{"label": "Dead"}]})");
  EXPECT_EQ(doc.results.units, doc.units);  // result units default to the document's
  doc.display.showSelectedOnly = true;
  doc.nodes.push_back({3, 0, 20, 0, 0});
  const uint32_t flags = fmElementBase::kSelected | fmElementBase::kNoSelfWeight;
  doc.members = {{{7, flags, 1}, {1, 2}, 2, 90, fmNonlinear::CompressionOnly},
                 {{8, 0, 1}, {1, 3}, 2, 0, fmNonlinear::Linear}};
  const CfmStruct s = model::SolvedStructure(doc);
  EXPECT_EQ(s.m_nShowSelected, 1);
  EXPECT_EQ(s.GetCaseName(0), "Dead");
  const CfmStruct::Member* m = s.FindMember(7);
  ASSERT_NE(m, nullptr);
  EXPECT_EQ(std::tuple(m->section, m->angle, m->nonlinearity, m->column), std::tuple(2, 90.0, 2, true));  // vertical
  EXPECT_TRUE(s.IsMemberSelected(7));
  EXPECT_EQ(m->flags & CfmStruct::kSelfWeightExcluded, CfmStruct::kSelfWeightExcluded);
  EXPECT_FALSE(s.FindMember(8)->column);  // horizontal
}
