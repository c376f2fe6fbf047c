#include <gtest/gtest.h>

#include <sys/resource.h>

#include <cmath>
#include <csignal>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "model/document_helpers.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "tools/atomic_file.h"

using namespace doc_test;

namespace {

// "line 1, column C" of the first `token` in `text`.
std::string At(const std::string& text, const std::string& token, size_t from = 0) {
  return "line 1, column " + std::to_string(text.find(token, from) + 1);
}

const char* kNode = R"({"id": 1, "x": 0, "y": 0, "z": 0})";

}  // namespace

// The nodes are built as the text is read; each rule of the node reader still names the place.
TEST(ModelDocumentNodes, EveryNodeRuleNamesItsPlace) {
  const std::pair<std::string, std::string> cases[] = {
      {std::string(", \"nodes\": [") + kNode + ", 5]", "/nodes/1: expected an object"},
      {R"(, "nodes": [{"x": 0, "y": 0, "z": 0}])", "/nodes/0: missing \"id\""},
      {R"(, "nodes": [{"id": 1, "x": 0, "z": 0}])", "/nodes/0: missing \"y\""},
      {R"(, "nodes": [{"id": -1, "x": 0, "y": 0, "z": 0}])",
       "/nodes/0/id: expected a node id, a whole number from 0 to 2147483647"},
      {R"(, "nodes": [{"id": 1.0, "x": 0, "y": 0, "z": 0}])",
       "/nodes/0/id: expected a node id, a whole number from 0 to 2147483647"},
      {R"(, "nodes": [{"id": 99999999999999999999, "x": 0, "y": 0, "z": 0}])",
       "/nodes/0/id: expected a node id, a whole number from 0 to 2147483647"},
      {R"(, "nodes": [{"id": 2147483648, "x": 0, "y": 0, "z": 0}])",
       "/nodes/0/id: node id 2147483648 is above 2147483647, the highest id"},
      // The id is checked before a coordinate is missed.
      {R"(, "nodes": [{"id": "a", "y": 0, "z": 0}])",
       "/nodes/0/id: expected a node id, a whole number from 0 to 2147483647"},
      {R"(, "nodes": [{"id": 1, "x": 0, "y": true, "z": 0}])", "/nodes/0/y: expected a number"},
      {R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": {"a": [1]}}])", "/nodes/0/z: expected a number"},
      {R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": null}])", "/nodes/0/z: expected a number"},
      {R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0, "flags": 1.5}])", "/nodes/0/flags: expected a whole number"},
      {R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0, "flags": -1}])",
       "/nodes/0/flags: expected a whole number from 0 to 4294967295"},
      {R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0, "flags": 18446744073709551615}])",
       "/nodes/0/flags: number out of range"},
      {R"(, "nodes": {"id": 1})", "/nodes: expected an array"},
      // A section read before the nodes is checked first, wherever it stands in the text.
      {R"(, "nodes": [{"id": 1, "x": "ten", "y": 0, "z": 0}], "display": {"modelLocked": 1})",
       "/display/modelLocked: expected true or false"},
  };
  for (const auto& [sections, refusal] : cases) EXPECT_EQ(Refusal(sections), refusal) << sections;
}

// Faults of the text are placed by line and column, before any rule of a record.
TEST(ModelDocumentNodes, FaultsOfTheTextComeFirstWithLineAndColumn) {
  const std::string duplicate = Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0, "id": 2}])");
  const std::string otherTwice = Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0, "tag": 1, "tag": 2}])");
  const std::string badOther = Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0, "tag": [1,,2]}])");
  const std::string overflow = Doc(R"(, "nodes": [{"id": 1, "x": 0, "y": -1e400, "z": 0}])");
  const std::string badNumber = Doc(R"(, "nodes": [{"id": 1, "x": 01, "y": 0, "z": 0}])");
  const std::string laterFault = Doc(R"(, "nodes": [{"id": 1, "x": "ten", "y": 0, "z": 0}], "title": tru)");
  const std::string trailing = Doc(R"(, "nodes": [])") + " {}";
  const std::string topTwice = Doc(R"(, "nodes": [], "nodes": [])");
  const std::pair<std::string, std::string> cases[] = {
      {duplicate, At(duplicate, "\"id\": 2") + ": duplicate key \"id\""},
      {otherTwice, At(otherTwice, "\"tag\": 2") + ": duplicate key \"tag\""},
      {badOther, At(badOther, ",2]") + ": syntax error"},
      {overflow, At(overflow, "-1e400") + ": number overflow parsing '-1e400'"},
      {badNumber, At(badNumber, "01") + ": syntax error"},
      {laterFault, At(laterFault, "}", laterFault.find("tru")) + ": syntax error"},
      {trailing, At(trailing, "{}") + ": syntax error"},
      {topTwice, At(topTwice, "\"nodes\": []", topTwice.find("\"nodes\"") + 1) + ": duplicate key \"nodes\""},
  };
  for (const auto& [text, refusal] : cases) EXPECT_EQ(RefusalOf(text).substr(0, refusal.size()), refusal) << text;
}

// A writer may put the sections in any order (supports before nodes, results first).
TEST(ModelDocumentNodes, SectionsReadInAnyOrder) {
  const model::ModelDocument example = Example();
  const nlohmann::ordered_json saved = nlohmann::ordered_json::parse(model::SerializeModelDocument(example));
  nlohmann::ordered_json reordered = nlohmann::ordered_json::object();
  for (const char* first : {"results", "supports", "caseLoads", "members"}) reordered[first] = saved[first];
  for (const auto& [key, value] : saved.items())
    if (!reordered.contains(key) && key != "nodes") reordered[key] = value;
  reordered["nodes"] = saved["nodes"];
  EXPECT_TRUE(model::ParseModelDocument(reordered.dump(), "m.json") == example);
}

// Numbers as the strict parser reads them; written back, each reads as the same double.
TEST(ModelDocumentNodes, NumbersKeepTheirValueBothWays) {
  const model::ModelDocument doc = Parse(
      R"(, "nodes": [{"id": 1, "x": -0.0, "y": 1e-400, "z": 18446744073709551616, "tag": {"a": [1, {"b": null}]}},
                     {"\u0069d": 2, "x": 123456789012345678, "y": 5e-324, "z": -7, "flags": 4294967295},
                     {"z": 2.5E+3, "y": 0.1, "x": 512345.678, "id": 0, "flags": 0}])");
  ASSERT_EQ(doc.nodes.size(), 3u);
  EXPECT_EQ(doc.nodes[0], (fmNd{1, 0, 0.0, 0.0, 18446744073709551616.0}));
  EXPECT_TRUE(std::signbit(doc.nodes[0].x));
  EXPECT_EQ(doc.nodes[1], (fmNd{2, 4294967295u, 123456789012345678.0, 4.9406564584124654e-324, -7.0}));
  EXPECT_EQ(doc.nodes[2], (fmNd{0, 0, 512345.678, 0.1, 2500.0}));

  model::ModelDocument odd;
  odd.nodes = {{1, 0, 512345.678, 1.0 / 3, -0.0}, {2, 3, 1e20, 100, 5e-324}};
  const std::string text = model::SerializeModelDocument(odd);
  EXPECT_NE(text.find("\t\"nodes\": [\n"
                      "\t\t{\n\t\t\t\"id\": 1,\n\t\t\t\"x\": 512345.678,\n\t\t\t\"y\": 0.3333333333333333,\n\t\t\t\"z\": -0.0\n\t\t},\n"
                      "\t\t{\n\t\t\t\"id\": 2,\n\t\t\t\"x\": 1e+20,\n\t\t\t\"y\": 100.0,\n\t\t\t\"z\": 5e-324,\n"
                      "\t\t\t\"flags\": 3\n\t\t}\n\t],\n"),
            std::string::npos)
      << text;
  const model::ModelDocument back = RoundTrip(odd);
  EXPECT_TRUE(back == odd);
  EXPECT_TRUE(std::signbit(back.nodes[0].z));
  EXPECT_EQ(model::SerializeModelDocument(model::ModelDocument()).find("\"nodes\": [],\n") != std::string::npos, true);
}

// A document larger than one part is written in parts beside the file; a failure half-way
// (here a file-size limit, as a full disk) leaves the old file and nothing beside it.
TEST(ModelDocumentNodes, SavedInPartsOrNotAtAll) {
  TempDir dir;
  const std::string path = dir / "model.json";
  model::ModelDocument doc;
  for (uint32_t i = 1; i <= 60000; ++i) doc.nodes.push_back({i, i % 3, i * 0.001, -1.0 / i, 1e6 + i});
  model::SaveModelDocument(doc, path);
  EXPECT_TRUE(model::LoadModelDocument(path) == doc);
  EXPECT_EQ(ReadFileText(path), model::SerializeModelDocument(doc));

  model::ModelDocument small;
  small.nodes = {{1, 0, 1.0, 2.0, 3.0}};
  model::SaveModelDocument(small, path);
  struct rlimit old {};
  getrlimit(RLIMIT_FSIZE, &old);
  const struct rlimit limit {1u << 20, old.rlim_max};
  const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
  std::string message = "saved";
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  try {
    model::SaveModelDocument(doc, path);
  } catch (const tools::FileError& e) {
    message = e.what();
  }
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, previousHandler);
  EXPECT_EQ(message, "Cannot write \"" + path + "\": File too large");
  EXPECT_TRUE(model::LoadModelDocument(path) == small);
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"model.json"});

  // A document larger than a model file may be is refused, whether it passes the limit in its
  // first part or later, and the old file stays.
  for (const size_t maxBytes : {size_t(100), size_t(3) << 20}) {
    try {
      model::SaveModelDocument(doc, path, maxBytes);
      ADD_FAILURE() << "saved past " << maxBytes;
    } catch (const model::DocumentTooLargeError& e) {
      EXPECT_EQ(std::string(e.what()), "Cannot save model \"" + path + "\": it would be larger than " +
                                           (maxBytes == 100 ? "9.53674e-05" : "3") +
                                           " MB, the most a model file may hold, and would not open again.");
    }
    EXPECT_TRUE(model::LoadModelDocument(path) == small);
    EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"model.json"});
  }
  EXPECT_GT(model::SerializeModelDocument(doc).size(), size_t(3) << 20) << "the second limit is passed after the first part";
}
