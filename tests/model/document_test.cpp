#include <gtest/gtest.h>

#include <set>
#include <string>

#include "model/document_helpers.h"
#include "model/solved_structure.h"
#include "support/TempDir.h"

using namespace doc_test;

namespace {

std::string FourNodesWithBadX() {
  return Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 1, "y": 0, "z": 0},
                            {"id": 3, "x": 2, "y": 0, "z": 0}, {"id": 4, "x": "ten", "y": 0, "z": 0}])");
}

}  // namespace

TEST(ModelDocument, BadDocumentsNameThePlaceAndTheProblem) {
  struct Case {
    const char* name;
    std::string text;
    std::string place;
    std::string problem;  // the start of the problem text
  };
  const Case cases[] = {
      {"malformed JSON", "{\n  \"format\": \"norvane-model\",\n  \"schemaVersion\": 1,,\n}", "line 3, column 22",
       "syntax error"},
      {"missing comma points at the next key", "{\"format\": \"norvane-model\"\n  \"schemaVersion\": 1}",
       "line 2, column 3", "syntax error"},
      {"wrong type deep inside", FourNodesWithBadX(), "/nodes/3/x", "expected a number"},
      {"missing coordinate", Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0}])"), "/nodes/0", "missing \"z\""},
      {"negative node id", Doc(R"(, "nodes": [{"id": -1, "x": 0, "y": 0, "z": 0}])"), "/nodes/0/id",
       "expected a whole number from 0 to 4294967295"},
      {"newer schema", R"({"format": "norvane-model", "schemaVersion": 2})", "/schemaVersion",
       "schema version 2 is newer than this program reads (1)"},
      {"another program's JSON", R"({"type": "FeatureCollection"})", "/", "not a Norvane model document"},
      {"not an object", "[1, 2, 3]", "/", "expected an object"},
      {"unit of another kind",
       Doc(R"(, "units": {"unit": [1, 0, 1, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]})"),
       "/units/unit/2", "unit not of the kind of \"Force:\""},
      {"precision out of range",
       Doc(R"(, "units": {"precision": [2, 2, 2, 2, 2, 2, 2, 3, 8, 1, 1, 2, 2, 2, 2, 2, 2, 12]})"),
       "/units/precision/17", "value out of range"},
      {"flag not a boolean", Doc(R"(, "display": {"modelLocked": 1})"), "/display/modelLocked", "expected true or false"},
      {"number beyond a double", Doc(R"(, "nodes": [{"id": 1, "x": 1e400, "y": 0, "z": 0}])"), "", "number overflow"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    try {
      model::ParseModelDocument(c.text, "frame.json");
      ADD_FAILURE() << "accepted";
    } catch (const model::DocumentLoadError& e) {
      EXPECT_EQ(e.file(), "frame.json");
      EXPECT_EQ(e.place(), c.place);
      EXPECT_EQ(e.problem().substr(0, c.problem.size()), c.problem) << e.problem();
    }
  }
}

TEST(ModelDocument, MessagesReadAsOneSentence) {
  try {
    model::ParseModelDocument(FourNodesWithBadX(), "/tmp/frame.json");
    ADD_FAILURE();
  } catch (const model::DocumentLoadError& e) {
    EXPECT_STREQ(e.what(), "Cannot open model \"/tmp/frame.json\" at /nodes/3/x: expected a number");
  }
  try {
    model::LoadModelDocument("/nonexistent-folder/model.json");
    ADD_FAILURE();
  } catch (const model::DocumentLoadError& e) {
    EXPECT_STREQ(e.what(), "Cannot open model \"/nonexistent-folder/model.json\": No such file or directory");
  }
}

TEST(ModelDocument, RoundTripThroughAFileKeepsEveryValue) {
  model::ModelDocument doc;
  doc.title = "Bay \"A\" \xE2\x80\x94 level 2";  // quotes and a non-ASCII dash survive
  doc.units.SetMetric();
  doc.units.convert[fmUnit::Force] = 1;
  doc.display.modelLocked = true;
  doc.display.alternateRowColor = 0x123456;
  doc.display.format[fmUnit::Length] = 7;
  doc.nodes = {{1, 0, 0.0, 0.0, 0.0}, {2, fmNd::kSelected, 6.1, -2.5e-3, 1e20}, {70000, fmNd::kFrozen, 0.1, 0.2, 0.3}};
  TempDir dir;
  model::SaveModelDocument(doc, dir / "model.json");
  const model::ModelDocument back = model::LoadModelDocument(dir / "model.json");
  EXPECT_EQ(back.title, doc.title);
  EXPECT_EQ(back.units, doc.units);
  EXPECT_EQ(back.display, doc.display);
  EXPECT_EQ(back.nodes, doc.nodes);
}

TEST(ModelDocument, OlderAndRicherDocumentsStillLoad) {
  // The first documents had only the header; later ones may carry sections this program does not know.
  const model::ModelDocument minimal = Parse("");
  EXPECT_EQ(minimal.units, fmUnit());
  EXPECT_EQ(minimal.display, DisplaySettings());
  EXPECT_TRUE(minimal.nodes.empty() && minimal.members.empty() && minimal.shells.empty() && minimal.bricks.empty());
  EXPECT_TRUE(minimal.materials.empty() && minimal.sections.empty() && minimal.thicknesses.empty());
  EXPECT_TRUE(minimal.loadCases.empty() && minimal.loadCombs.empty() && minimal.supports.empty());

  const model::ModelDocument richer =
      Parse(R"(, "futureSection": {"anything": [1, 2]}, "nodes": [{"id": 5, "x": 1, "y": 2, "z": 3, "tag": "new"}])");
  ASSERT_EQ(richer.nodes.size(), 1u);
  EXPECT_EQ(richer.nodes[0], (fmNd{5, 0, 1.0, 2.0, 3.0}));
}

TEST(ModelDocument, BundledExampleIsSupportedWhereItsResultsHaveReactions) {
  const model::ModelDocument doc = Example();
  EXPECT_EQ(doc.nodes.size(), 44u);  // the frame's 18, the floor slab's and the footing's mesh
  std::set<uint32_t> supported, reacting;
  for (const fmSupport& s : doc.supports)
    if (s.IsFixed()) supported.insert(s.node);
  for (const fmCaseResults& r : doc.results.results)
    for (const fmResult6Val& v : r.reactions) reacting.insert(static_cast<uint32_t>(v.number));
  EXPECT_EQ(supported.size(), doc.supports.size());
  ASSERT_FALSE(reacting.empty());
  EXPECT_EQ(supported, reacting);
  EXPECT_TRUE(model::CheckSolution(doc).empty());
}
