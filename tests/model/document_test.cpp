#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "model/convert_units.h"
#include "model/document.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "tools/atomic_file.h"

namespace {

const char* kHeader = R"("format": "norvane-model", "schemaVersion": 1)";

std::string Doc(const std::string& body) { return std::string("{") + kHeader + (body.empty() ? "" : ", " + body) + "}"; }

std::string FourNodesWithBadX() {
  return Doc(R"("nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 1, "y": 0, "z": 0},
                          {"id": 3, "x": 2, "y": 0, "z": 0}, {"id": 4, "x": "ten", "y": 0, "z": 0}])");
}

model::ModelDocument SampleDocument() {
  model::ModelDocument doc;
  doc.title = "Bay \"A\" \xE2\x80\x94 level 2";  // quotes and a non-ASCII dash survive
  doc.units.SetMetric();
  doc.units.convert[fmUnit::Force] = 1;
  doc.display.modelLocked = true;
  doc.display.alternateRowColor = 0x123456;
  doc.display.format[fmUnit::Length] = 7;
  doc.nodes = {{1, 0, 0.0, 0.0, 0.0}, {2, fmNd::kSelected, 6.1, -2.5e-3, 1e20}, {70000, fmNd::kFrozen, 0.1, 0.2, 0.3}};
  return doc;
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
      {"empty file", "", "line 1, column 1", "syntax error"},
      {"missing comma points at the next key", "{\"format\": \"norvane-model\"\n  \"schemaVersion\": 1}",
       "line 2, column 3", "syntax error"},
      {"unquoted text", "{\"format\": \"norvane-model\", \"schemaVersion\": 1, \"title\": frame}", "line 1, column 58",
       "syntax error"},
      {"wrong type deep inside", FourNodesWithBadX(), "/nodes/3/x", "expected a number"},
      {"missing coordinate", Doc(R"("nodes": [{"id": 1, "x": 0, "y": 0}])"), "/nodes/0", "missing \"z\""},
      {"negative node id", Doc(R"("nodes": [{"id": -1, "x": 0, "y": 0, "z": 0}])"), "/nodes/0/id",
       "expected a whole number from 0 to 4294967295"},
      {"nodes not a list", Doc(R"("nodes": {"id": 1})"), "/nodes", "expected an array"},
      {"newer schema", R"({"format": "norvane-model", "schemaVersion": 2})", "/schemaVersion",
       "schema version 2 is newer than this program reads (1)"},
      {"schema version as text", R"({"format": "norvane-model", "schemaVersion": "1"})", "/schemaVersion",
       "expected a whole number"},
      {"no schema version", R"({"format": "norvane-model"})", "/", "missing \"schemaVersion\""},
      {"another program's JSON", R"({"type": "FeatureCollection"})", "/", "not a Norvane model document"},
      {"not an object", "[1, 2, 3]", "/", "expected an object"},
      {"units of the wrong length", Doc(R"("units": {"unit": [1, 0, 16]})"), "/units/unit", "expected 18 entries"},
      {"unit of another kind", Doc(R"("units": {"unit": [1, 0, 1, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]})"),
       "/units/unit/2", "unit not of the kind of \"Force:\""},
      {"precision out of range", Doc(R"("units": {"precision": [2, 2, 2, 2, 2, 2, 2, 3, 8, 1, 1, 2, 2, 2, 2, 2, 2, 12]})"),
       "/units/precision/17", "value out of range"},
      {"flag not a boolean", Doc(R"("display": {"modelLocked": 1})"), "/display/modelLocked", "expected true or false"},
      {"number beyond a double", Doc(R"("nodes": [{"id": 1, "x": 1e400, "y": 0, "z": 0}])"), "", "number overflow"},
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
      const std::string what = e.what();
      EXPECT_NE(what.find("frame.json"), std::string::npos) << what;
      EXPECT_NE(what.find(c.place), std::string::npos) << what;
    }
  }
}

TEST(ModelDocument, MessageReadsAsOneSentence) {
  try {
    model::ParseModelDocument(FourNodesWithBadX(), "/tmp/frame.json");
    FAIL();
  } catch (const model::DocumentLoadError& e) {
    EXPECT_STREQ(e.what(), "Cannot open model \"/tmp/frame.json\" at /nodes/3/x: expected a number");
  }
}

TEST(ModelDocument, MissingFileNamesTheFileAndTheReason) {
  const std::string path = "/nonexistent-folder/model.json";
  try {
    model::LoadModelDocument(path);
    FAIL();
  } catch (const model::DocumentLoadError& e) {
    EXPECT_EQ(e.file(), path);
    EXPECT_EQ(e.place(), "");
    EXPECT_EQ(e.problem(), std::string("No such file or directory"));
    EXPECT_EQ(std::string(e.what()), "Cannot open model \"" + path + "\": " + std::string("No such file or directory"));
  }
}

TEST(ModelDocument, RoundTripKeepsEveryValue) {
  const model::ModelDocument doc = SampleDocument();
  const model::ModelDocument back = model::ParseModelDocument(model::SerializeModelDocument(doc), "memory");
  EXPECT_EQ(back.title, doc.title);
  EXPECT_EQ(back.units, doc.units);
  EXPECT_EQ(back.display, doc.display);
  EXPECT_EQ(back.nodes, doc.nodes);

  TempDir dir;
  model::SaveModelDocument(doc, dir / "model.json");
  const model::ModelDocument loaded = model::LoadModelDocument(dir / "model.json");
  EXPECT_EQ(loaded.nodes, doc.nodes);
  EXPECT_EQ(loaded.units, doc.units);
}

TEST(ModelDocument, WrittenDocumentStartsWithItsHeader) {
  const std::string text = model::SerializeModelDocument(SampleDocument());
  EXPECT_EQ(text.rfind("{\n\t\"format\": \"norvane-model\",\n\t\"schemaVersion\": 1,\n\t\"title\": ", 0), 0u) << text;
}

TEST(ModelDocument, OlderAndRicherDocumentsStillLoad) {
  // The first documents had only the header; later ones may carry sections this program does not know.
  const model::ModelDocument minimal = model::ParseModelDocument(Doc(""), "old.json");
  EXPECT_EQ(minimal.title, "");
  EXPECT_EQ(minimal.units, fmUnit());
  EXPECT_EQ(minimal.display, DisplaySettings());
  EXPECT_TRUE(minimal.nodes.empty());

  const model::ModelDocument richer = model::ParseModelDocument(
      Doc(R"("title": "t", "futureSection": {"anything": [1, 2]}, "nodes": [{"id": 5, "x": 1, "y": 2, "z": 3, "tag": "new"}])"),
      "new.json");
  ASSERT_EQ(richer.nodes.size(), 1u);
  EXPECT_EQ(richer.nodes[0], (fmNd{5, 0, 1.0, 2.0, 3.0}));
}

TEST(ModelDocument, BundledExampleLoads) {
  const model::ModelDocument doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  EXPECT_FALSE(doc.title.empty());
  EXPECT_EQ(doc.nodes.size(), 44u);  // the frame's 18, the floor slab's and the footing's mesh
  EXPECT_EQ(doc.units.Label(fmUnit::Length), "ft");
}

TEST(ModelDocument, ChangingUnitsConvertsOnlyWhatIsAskedFor) {
  model::ModelDocument doc;
  doc.units.SetEnglish();  // lengths in ft
  doc.nodes = {{1, 0, 10.0, 0.0, -1.0}};
  fmUnit metric;
  metric.SetMetric();

  fmUnit keepNumbers = metric;  // no convert flags: the numbers stay and are read in metres
  model::ModelDocument kept = doc;
  model::ChangeDocumentUnits(kept, keepNumbers);
  EXPECT_EQ(kept.nodes[0].x, 10.0);
  EXPECT_EQ(kept.units.unit, metric.unit);

  fmUnit convert = metric;
  convert.convert[fmUnit::Length] = 1;
  model::ChangeDocumentUnits(doc, convert);
  EXPECT_DOUBLE_EQ(doc.nodes[0].x, 3.048);
  EXPECT_DOUBLE_EQ(doc.nodes[0].z, -0.3048);
  EXPECT_EQ(doc.units.convert[fmUnit::Length], 0) << "the flag asks for one conversion and is not kept";
}
