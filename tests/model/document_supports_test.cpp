#include <gtest/gtest.h>

#include "model/document_helpers.h"

using namespace doc_test;

namespace {

const char* kNodes = R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 4, "x": 1, "y": 0, "z": 0},
                                   {"id": 9, "x": 2, "y": 0, "z": 0}])";

}  // namespace

TEST(SupportTable, RoundTripKeepsNodesAndRestraints) {
  model::ModelDocument doc = Parse(kNodes);
  fmSupport roller{9, {}};
  roller.restrained[fmSupport::Dy] = true;
  roller.restrained[fmSupport::Rz] = true;
  doc.supports = {fmSupport::Fixed(4), fmSupport::Pinned(1), roller};
  const std::string text = model::SerializeModelDocument(doc);
  EXPECT_NE(text.find(R"("restraints": "010001")"), std::string::npos) << text;
  const auto back = model::ParseModelDocument(text, "x");
  EXPECT_EQ(back.supports, doc.supports);
  EXPECT_TRUE(back.supports[0].IsFixed());
  EXPECT_TRUE(back.supports[1].IsPinned());
  EXPECT_FALSE(back.supports[2].IsPinned() || back.supports[2].IsFixed());
}

TEST(SupportTable, RefusesSupportsItCannotPlace) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(, "supports": [{"node": 5, "restraints": "111000"}])", "/supports/0/node: node 5 is not in \"nodes\""},
      {R"(, "supports": [{"node": 4, "restraints": "111000"}, {"node": 1, "restraints": "111111"},
                         {"node": 4, "restraints": "111111"}])",
       "/supports/2/node: node 4 already has a support (/supports/0)"},
      {R"(, "supports": [{"node": 1, "restraints": "11100x"}])",
       "/supports/0/restraints: expected six digits 0 or 1 for Dx, Dy, Dz, Rx, Ry, Rz (1 restrained), not \"11100x\""},
      {R"(, "supports": [{"node": 1, "restraints": "000000"}])",
       "/supports/0/restraints: a support must restrain at least one of Dx, Dy, Dz, Rx, Ry, Rz"},
  };
  for (const auto& [body, refusal] : cases) EXPECT_EQ(Refusal(kNodes + std::string(body)), refusal) << body;
}
