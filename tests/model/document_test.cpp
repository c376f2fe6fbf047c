#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <set>
#include <string>

#include "model/document_helpers.h"
#include "model/solved_structure.h"
#include "model/json_reader.h"
#include "support/TempDir.h"
#include "support/files.h"

using namespace doc_test;

namespace {

const std::string kBadSecondX =
    Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 4, "x": "ten", "y": 0, "z": 0}])");

std::string What(const std::function<void()>& load) {
  try {
    load();
  } catch (const model::DocumentLoadError& e) {
    return e.what();
  }
  return "loaded";
}

}  // namespace

TEST(ModelDocument, BadDocumentsNameThePlaceAndTheProblem) {
  const std::pair<std::string, std::string> cases[] = {  // the text, the start of "place: problem"
      {"{\n  \"format\": \"norvane-model\",\n  \"schemaVersion\": 1,,\n}", "line 3, column 22: syntax error"},
      {kBadSecondX, "/nodes/1/x: expected a number"},
      {Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0}])"), "/nodes/0: missing \"z\""},
      {R"({"format": "norvane-model", "schemaVersion": 2})",
       "/schemaVersion: schema version 2 is newer than this program reads (1)"},
      {R"({"type": "FeatureCollection"})", "/: not a Norvane model document"},
      {Doc(R"(, "units": {"unit": [1, 0, 1, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]})"),
       "/units/unit/2: unit not of the kind of \"Force:\""},
      {Doc(R"(, "units": {"precision": [2, 2, 2, 2, 2, 2, 2, 3, 8, 1, 1, 2, 2, 2, 2, 2, 2, 12]})"),
       "/units/precision/17: value out of range"},
      {Doc(R"(, "display": {"modelLocked": 1})"), "/display/modelLocked: expected true or false"},
      {Doc(R"(, "nodes": [{"id": 1, "x": 1e400, "y": 0, "z": 0}])"), "line 1, column 74: number overflow parsing '1e400'"},
      {Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0,
"x": 5}])"), "line 2, column 1: duplicate key \"x\""},
      {Doc(R"(, "title": "a", "title": "b")"), "line 1, column 63: duplicate key \"title\""},
      // A label read from a file keeps the rule a grid applies: never "=..." or "@..." for a spreadsheet to run.
      {Doc(R"(, "loadCases": [{"number": 1, "label": "=1+1"}])"),
       "/loadCases/0/label: Load case label can only contain letters"},
      {Doc(R"(, "materials": [{"label": "@SUM", "E": 1, "nu": 0.2, "density": 0, "Tc": 1e-5}])"),
       "/materials/0/label: Material label can only contain letters"},
      {Doc(", \"nodes\": " + std::string(300, '[') + std::string(300, ']')), "line 1, column 257: nested deeper than 200 levels"},
  };
  for (const auto& [text, refusal] : cases) EXPECT_EQ(RefusalOf(text).substr(0, refusal.size()), refusal) << text;
}

TEST(ModelDocument, MessagesReadAsOneSentence) {
  EXPECT_EQ(What([] { model::ParseModelDocument(kBadSecondX, "/tmp/frame.json"); }),
            "Cannot open model \"/tmp/frame.json\" at /nodes/1/x: expected a number");
  EXPECT_EQ(What([] { model::LoadModelDocument("/nonexistent-folder/model.json"); }),
            "Cannot open model \"/nonexistent-folder/model.json\": No such file or directory");
}

TEST(ModelDocument, RoundTripThroughAFileKeepsEveryValue) {
  // The example holds every section; awkward values are put on top of it.
  model::ModelDocument doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  ASSERT_TRUE(!doc.loadCases.empty() && !doc.loadCombs.empty() && !doc.materials.empty() && !doc.sections.empty() &&
              !doc.thicknesses.empty() && !doc.members.empty() && !doc.shells.empty() && !doc.bricks.empty() &&
              !doc.supports.empty() && !doc.results.IsEmpty());
  doc.title = "Bay \"A\" \xE2\x80\x94 level 2";  // quotes and a non-ASCII dash survive
  // The results keep only their unit indices; the flags are the document's.
  doc.units.convert[fmUnit::Force] = doc.results.units.convert[fmUnit::Force] = 1;
  doc.display.modelLocked = true;
  doc.display.alternateRowColor = 0x123456;
  doc.display.format[fmUnit::Length] = 7;
  doc.nodes.push_back({70000, fmNd::kFrozen | fmNd::kSelected, 0.1, -2.5e-3, 1e20});
  doc.spectrumAnalysis.enabled = true;
  doc.spectrumAnalysis.spectrum[0] = "IBC 2000";
  doc.spectrumAnalysis.factor = {1.0, 0.3, 0.0};
  TempDir dir;
  model::SaveModelDocument(doc, dir / "model.json");
  const model::ModelDocument back = model::LoadModelDocument(dir / "model.json");
  EXPECT_TRUE(back == doc) << "a section lost or changed a value; saved:\n" << ReadFileText(dir / "model.json");

  EXPECT_EQ(model::SerializeModelDocument(back), model::SerializeModelDocument(doc));
}

TEST(ModelDocument, ANumberThatIsNotFiniteIsNotSavedAndTheOldFileStays) {
  TempDir dir;
  const std::string path = dir / "model.json";
  model::ModelDocument doc;
  doc.nodes = {{1, 0, 0.0, 0.0, 0.0}, {2, 0, 1.0, 2.0, 3.0}};
  model::SaveModelDocument(doc, path);
  const std::string saved = ReadFileText(path);
  for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")}) {
    doc.nodes[1].y = bad;
    try {
      model::SaveModelDocument(doc, path);
      ADD_FAILURE() << "saved " << bad;
    } catch (const model::DocumentError& e) {
      EXPECT_EQ(e.place(), "/nodes/1/y");
      EXPECT_STREQ(e.what(), "Cannot save the model: the value at /nodes/1/y is not a finite number, and the file "
                             "would not open again.");
    }
    EXPECT_EQ(ReadFileText(path), saved);
  }
}

TEST(ModelDocument, OlderAndRicherDocumentsStillLoad) {
  // The first documents had only the header; later ones may carry sections this program does not know.
  const model::ModelDocument minimal = Parse("");
  EXPECT_EQ(model::SerializeModelDocument(minimal), model::SerializeModelDocument(model::ModelDocument()));

  const model::ModelDocument richer =
      Parse(R"(, "futureSection": {"anything": [1, 2]}, "nodes": [{"id": 5, "x": 1, "y": 2, "z": 3, "tag": "new"}])");
  EXPECT_EQ(richer.nodes, (std::vector<fmNd>{{5, 0, 1.0, 2.0, 3.0}}));
}

TEST(ModelDocument, BundledExampleIsSupportedWhereItsResultsHaveReactions) {
  const model::ModelDocument doc = Example();
  std::set<uint32_t> supported, reacting;
  for (const fmSupport& s : doc.supports) supported.insert(s.node);
  for (const fmCaseResults& r : doc.results.results)
    for (const fmResult6Val& v : r.reactions) reacting.insert(static_cast<uint32_t>(v.number));
  ASSERT_FALSE(reacting.empty());
  EXPECT_EQ(supported, reacting);
  EXPECT_TRUE(model::CheckSolution(doc).empty());
}
