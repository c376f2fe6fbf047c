#include <gtest/gtest.h>

#include "dialogs/results/sample_struct.h"
#include "model/document.h"
#include "model/solved_structure.h"

namespace {

std::string Document(const std::string& results) {
  return R"({"format": "norvane-model", "schemaVersion": 1,
             "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 0, "y": 12, "z": 0}])" +
         (results.empty() ? std::string() : ", \"results\": " + results) + "}";
}

std::string LoadError(const std::string& results) {
  try {
    model::ParseModelDocument(Document(results), "m.json");
  } catch (const model::DocumentLoadError& e) {
    return e.place() + ": " + e.problem();
  }
  return "loaded";
}

}  // namespace

TEST(DocumentResults, ADocumentWithoutResultsLoadsUnsolvedAndWritesNoSection) {
  model::ModelDocument doc = model::ParseModelDocument(Document(""), "m.json");
  EXPECT_TRUE(doc.results.IsEmpty());
  EXPECT_EQ(doc.results.units, doc.units);
  EXPECT_EQ(model::SerializeModelDocument(doc).find("\"results\""), std::string::npos);
  const CfmStruct s = model::SolvedStructure(doc);
  EXPECT_EQ(s.GetNumLoadCases(), 0);
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
  sol.nodalSprings = {{3, "110000", {1, 2, 3, 4, 5, 6}}};
  fmSolution::CoupledSpring coupled;
  coupled.node = 4;
  for (int i = 0; i < 21; ++i) coupled.k[static_cast<size_t>(i)] = i + 0.5;
  sol.coupledSprings = {coupled};
  sol.nodalLoads = {{3, "Wind X", 0, 4.5}, {4, "Dead", 4, -1}};
  sol.nodalMasses = {{3, 5, 0.25}};
  sol.supports[0].value = {0.1, 0, 0, 0, 0.002, 0};

  const model::ModelDocument back = model::ParseModelDocument(model::SerializeModelDocument(doc), "m.json");
  EXPECT_EQ(back.results, doc.results);
  EXPECT_EQ(back.results.cases[2].name, "D+W");
  EXPECT_EQ(back.results.cases[2].number, 3);
  EXPECT_EQ(back.results.cases[0].type, "Dead-D");
}

TEST(DocumentResults, ResultUnitsDefaultToTheDocumentsAndAreChecked) {
  model::ModelDocument doc = model::ParseModelDocument(Document(R"({"cases": [{"label": "Dead"}]})"), "m.json");
  EXPECT_EQ(doc.results.units, doc.units);
  ASSERT_EQ(doc.results.results.size(), 1u);
  EXPECT_TRUE(doc.results.results[0].displacements.empty());

  EXPECT_EQ(LoadError(R"({"units": {"unit": [1, 0, 16, 40, 24, 56, 72, 15, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]}})"),
            "/results/units/unit/7: unit not of the kind of \"Displacement:\"");
}

TEST(DocumentResults, MalformedResultsAreRefusedWithThePlaceAndTheReason) {
  struct Case {
    const char* results;
    const char* error;
  };
  const Case cases[] = {
      {R"({"cases": [{"label": "D", "displacements": [[1, 0, 0, 0, 0, 0, 0], [2, 0.5, 0]]}]})",
       "/results/cases/0/displacements/1: expected 7 numbers: the node or element number and six values"},
      {R"({"cases": [{"label": "D", "reactions": [[1.5, 0, 0, 0, 0, 0, 0]]}]})",
       "/results/cases/0/reactions/0/0: expected a whole number from -2147483648 to 2147483647"},
      {R"({"cases": [{"label": "D", "displacements": [[1, 0, "x", 0, 0, 0, 0]]}]})",
       "/results/cases/0/displacements/0/2: expected a number"},
      {R"({"cases": [{"displacements": []}]})", "/results/cases/0: missing \"label\""},
      {R"({"cases": [{"label": "D", "constraintForces": [[1, 1, 6, 0.5, 2, 0, 0.5]]}]})",
       "/results/cases/0/constraintForces/0/2: expected a whole number from 0 to 5"},
      {R"({"nodalLoads": [{"node": 1, "case": "D", "direction": "W", "magnitude": 1}]})",
       "/results/nodalLoads/0/direction: expected one of X, Y, Z, OX, OY, OZ"},
      {R"({"coupledSprings": [{"node": 1, "k": [1, 2, 3]}]})", "/results/coupledSprings/0/k: expected 21 numbers"},
      {R"({"eigenModes": [{"shape": []}]})", "/results/eigenModes/0: missing \"omega2\""},
      {R"({"driftNodes": [1, "two"]})", "/results/driftNodes/1: expected a whole number from -2147483648 to 2147483647"},
      {R"([1, 2])", "/results: expected an object"},
  };
  for (const Case& c : cases) EXPECT_EQ(LoadError(c.results), c.error) << c.results;
}

TEST(DocumentResults, ResultsThatDoNotFitTheNodesLoadAndAreReported) {
  const model::ModelDocument doc = model::ParseModelDocument(
      Document(R"({"cases": [{"label": "Dead", "displacements": [[1, 0, 0, 0, 0, 0, 0]],
                              "reactions": [[9, 0, 1, 0, 0, 0, 0]]}],
                   "driftNodes": [2, 44]})"),
      "m.json");
  const std::vector<std::string> problems = model::CheckSolution(doc);
  const std::vector<std::string> expected = {
      "results of \"Dead\": support reactions name node 9, which the model does not have",
      "results of \"Dead\": displacements of 1 of the model's 2 nodes",
      "drift node 44 is not a node of the model",
  };
  EXPECT_EQ(problems, expected);
  EXPECT_EQ(model::CheckSolution(doc, 1), (std::vector<std::string>{expected[0], "... and 2 more"}));
}

TEST(DocumentResults, TheSolvedStructureCarriesTheModelsTablesAndFlag) {
  model::ModelDocument doc = model::ParseModelDocument(Document(R"({"cases": [{"label": "Dead"}]})"), "m.json");
  doc.display.showSelectedOnly = true;
  doc.display.format[fmUnit::Force] = 7;
  const CfmStruct s = model::SolvedStructure(doc);
  EXPECT_EQ(s.m_nShowSelected, 1);
  EXPECT_EQ(s.DisplayFormat(fmUnit::Force), 7);
  EXPECT_EQ(s.m_Nodes, doc.nodes);
  EXPECT_EQ(s.GetCaseName(0), "Dead");
}

TEST(DocumentResults, TheSolvedStructureTakesTheModelsElements) {
  model::ModelDocument doc = model::ParseModelDocument(Document(""), "m.json");
  doc.nodes.push_back({3, 0, 20, 0, 0});
  fmBm column;
  column.id = 7;
  column.nodes = {1, 2};
  column.mat = 1;
  column.sect = 2;
  column.angle = 90;
  column.nonlinear = fmNonlinear::CompressionOnly;
  column.flags = fmElementBase::kSelected | fmElementBase::kNoSelfWeight;
  fmBm beam = column;
  beam.id = 8;
  beam.nodes = {1, 3};
  doc.members = {column, beam};
  fmShell4 shell;
  shell.id = 4;
  shell.nodes = {1, 3, 2, 2};
  shell.thick = 1;
  doc.shells = {shell};
  fmBrick brick;
  brick.id = 5;
  brick.nodes = {1, 2, 3, 1, 2, 3, 1, 2};
  brick.flags = fmElementBase::kInactive;
  doc.bricks = {brick};
  const CfmStruct s = model::SolvedStructure(doc);
  const CfmStruct::Member* m = s.FindMember(7);
  ASSERT_NE(m, nullptr);
  EXPECT_EQ(m->node, (std::array<uint32_t, 2>{1, 2}));
  EXPECT_EQ(m->section, 2);
  EXPECT_EQ(m->angle, 90.0);
  EXPECT_EQ(m->nonlinearity, 2);
  EXPECT_TRUE(m->column);  // vertical
  EXPECT_TRUE(s.IsMemberSelected(7));
  EXPECT_EQ(m->flags & CfmStruct::kSelfWeightExcluded, CfmStruct::kSelfWeightExcluded);
  EXPECT_FALSE(s.FindMember(8)->column);  // horizontal
  EXPECT_EQ(s.FindShell(4)->thickness, 1);
  EXPECT_EQ(s.FindBrick(5)->flags, CfmStruct::kInactive);
}
