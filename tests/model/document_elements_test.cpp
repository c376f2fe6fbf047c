#include <gtest/gtest.h>

#include "model/document_helpers.h"

using namespace doc_test;

TEST(ElementTables, RoundTripKeepsEveryFieldAndOptionalFieldsTakeTheirDefaults) {
  model::ModelDocument doc;
  doc.members.push_back({{3, fmElementBase::kSelected | fmElementBase::kInactive, 2}, {4, 9}, 5, 33.333333333333,
                         fmNonlinear::CompressionOnly});
  doc.members.push_back({{4, 0, 0}, {2147483647u, 0}, 0, -90, fmNonlinear::TensionOnly});
  doc.shells.push_back({{8, fmElementBase::kNoSelfWeight | fmElementBase::kFrozen, 1}, {1, 2, 3, 4}, 2, 12.5});
  doc.bricks.push_back({{11, 0, 1}, {1, 2, 3, 4, 5, 6, 7, 8}});
  const auto back = RoundTrip(doc);
  EXPECT_EQ(back.members, doc.members);
  EXPECT_EQ(back.shells, doc.shells);
  EXPECT_EQ(back.bricks, doc.bricks);

  const auto bare = Parse(R"(, "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 2}])");
  EXPECT_EQ(bare.members, (std::vector<fmBm>{{{1, 0, 1}, {1, 2}, 2, 0.0, fmNonlinear::Linear}}));
}

TEST(ElementTables, FaultsNameTheirPlaceAndReason) {
  const std::string notAnId = ": expected a node id, a whole number from 0 to 2147483647";
  const std::pair<const char*, std::string> cases[] = {
      {R"(, "members": [{"id": 1, "nodes": [1], "material": 1, "section": 1}])",
       "/members/0/nodes: expected 2 node ids"},
      {R"(, "members": [{"id": 1, "nodes": [1, -2], "material": 1, "section": 1}])", "/members/0/nodes/1" + notAnId},
      {R"(, "bricks": [{"id": 1, "nodes": [1, 2, 3, 4, 5, 6, 7, "8"], "material": 1}])", "/bricks/0/nodes/7" + notAnId},
      {R"(, "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 1, "nonlinear": 3}])",
       "/members/0/nonlinear: expected a whole number from 0 to 2"},
      {R"(, "bricks": [{"id": 1, "nodes": [1, 2, 3, 4, 5, 6, 7, 8]}])", "/bricks/0: missing \"material\""},
      // Results and queries number nodes and elements as signed 32-bit.
      {R"(, "members": [{"id": 1, "nodes": [1, 2147483648], "material": 1, "section": 1}])",
       "/members/0/nodes/1: node id 2147483648 is above 2147483647, the highest id"},
      {R"(, "shells": [{"id": 4294967295, "nodes": [1, 2, 3, 4], "material": 1, "thickness": 1}])",
       "/shells/0/id: id 4294967295 is above 2147483647, the highest id"},
      {R"(, "nodes": [{"id": 3000000000, "x": 0, "y": 0, "z": 0}])",
       "/nodes/0/id: node id 3000000000 is above 2147483647, the highest id"},
  };
  for (const auto& [body, refusal] : cases) EXPECT_EQ(Refusal(body), refusal) << body;
}
