#include <gtest/gtest.h>

#include "model/document.h"

namespace {

const char* kHeader = R"({"format": "norvane-model", "schemaVersion": 1)";

model::ModelDocument Parse(const std::string& body) {
  return model::ParseModelDocument(std::string(kHeader) + body + "}", "test.json");
}

}  // namespace

TEST(ElementTables, OldDocumentWithoutElementsLoadsEmpty) {
  const auto doc = Parse(R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}])");
  EXPECT_TRUE(doc.members.empty());
  EXPECT_TRUE(doc.shells.empty());
  EXPECT_TRUE(doc.bricks.empty());
}

TEST(ElementTables, RoundTripKeepsEveryField) {
  model::ModelDocument doc;
  doc.members.push_back({{3, fmElementBase::kSelected | fmElementBase::kInactive, 2}, {4, 9}, 5, 33.333333333333, fmNonlinear::CompressionOnly});
  doc.members.push_back({{4, 0, 0}, {4294967295u, 0}, 0, -90, fmNonlinear::TensionOnly});
  doc.shells.push_back({{8, fmElementBase::kNoSelfWeight | fmElementBase::kFrozen, 1}, {1, 2, 3, 4}, 2, 12.5});
  doc.bricks.push_back({{11, 0, 1}, {1, 2, 3, 4, 5, 6, 7, 8}});
  const auto back = model::ParseModelDocument(model::SerializeModelDocument(doc), "x");
  EXPECT_EQ(back.members, doc.members);
  EXPECT_EQ(back.shells, doc.shells);
  EXPECT_EQ(back.bricks, doc.bricks);
}

TEST(ElementTables, OptionalFieldsTakeTheirDefaults) {
  const auto doc = Parse(R"(, "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 2}],
      "shells": [{"id": 2, "nodes": [1, 2, 3, 4], "material": 1, "thickness": 1}])");
  ASSERT_EQ(doc.members.size(), 1u);
  EXPECT_EQ(doc.members[0], (fmBm{{1, 0, 1}, {1, 2}, 2, 0.0, fmNonlinear::Linear}));
  ASSERT_EQ(doc.shells.size(), 1u);
  EXPECT_EQ(doc.shells[0].angle, 0);
  EXPECT_EQ(doc.shells[0].flags, 0u);
}

TEST(ElementTables, FaultsNameTheirPlace) {
  const struct {
    const char* body;
    const char* place;
  } cases[] = {
      {R"(, "members": [{"id": 1, "nodes": [1], "material": 1, "section": 1}])", "/members/0/nodes"},
      {R"(, "members": [{"id": 1, "nodes": [1, -2], "material": 1, "section": 1}])", "/members/0/nodes/1"},
      {R"(, "shells": [{"id": 1, "nodes": [1, 2, 3, 4294967296], "material": 1, "thickness": 1}])",
       "/shells/0/nodes/3"},
      {R"(, "bricks": [{"id": 1, "nodes": [1, 2, 3, 4, 5, 6, 7, "8"], "material": 1}])", "/bricks/0/nodes/7"},
      {R"(, "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 1, "nonlinear": 3}])",
       "/members/0/nonlinear"},
      {R"(, "bricks": [{"id": 1, "nodes": [1, 2, 3, 4, 5, 6, 7, 8]}])", "/bricks/0"},
  };
  for (const auto& c : cases) {
    try {
      Parse(c.body);
      ADD_FAILURE() << "accepted: " << c.body;
    } catch (const model::DocumentLoadError& e) {
      EXPECT_EQ(e.place(), c.place) << c.body << "\n" << e.what();
    }
  }
}

TEST(ElementTables, ExampleModelHasABuildingsElements) {
  const auto doc = model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
  EXPECT_EQ(doc.members.size(), 28u);
  EXPECT_EQ(doc.shells.size(), 8u);
  EXPECT_EQ(doc.bricks.size(), 4u);
  // Every element names nodes that exist and references within the lists.
  auto hasNode = [&](uint32_t id) {
    for (const fmNd& nd : doc.nodes)
      if (nd.id == id) return true;
    return false;
  };
  auto inList = [](int32_t ref, size_t size) { return ref >= 1 && static_cast<size_t>(ref) <= size; };
  for (const fmBm& bm : doc.members) {
    for (uint32_t n : bm.nodes) EXPECT_TRUE(hasNode(n)) << "member " << bm.id;
    EXPECT_TRUE(inList(bm.mat, doc.materials.size()) && inList(bm.sect, doc.sections.size())) << bm.id;
  }
  for (const fmShell4& s : doc.shells) {
    for (uint32_t n : s.nodes) EXPECT_TRUE(hasNode(n)) << "shell " << s.id;
    EXPECT_TRUE(inList(s.mat, doc.materials.size()) && inList(s.thick, doc.thicknesses.size())) << s.id;
  }
  for (const fmBrick& b : doc.bricks) {
    for (uint32_t n : b.nodes) EXPECT_TRUE(hasNode(n)) << "brick " << b.id;
    EXPECT_TRUE(inList(b.mat, doc.materials.size())) << b.id;
  }
}
