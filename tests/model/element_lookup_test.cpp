#include <gtest/gtest.h>

#include <functional>

#include "model/element_lookup.h"
#include "tools/fm_exception.h"

namespace {

std::string Thrown(const std::function<void()>& f) {
  try {
    f();
  } catch (const fmException& e) {
    return e.what();
  }
  return "(nothing thrown)";
}

std::vector<fmNd> Nodes(std::initializer_list<uint32_t> ids) {
  std::vector<fmNd> nodes;
  for (uint32_t id : ids) nodes.push_back({id, 0, 0, 0, 0});
  return nodes;
}

}  // namespace

TEST(NodeIndex, FindsPositionsWhateverTheNumbering) {
  const std::pair<const char*, std::vector<fmNd>> cases[] = {
      {"starting at 100", Nodes({100, 101, 102, 103, 104})},
      {"gaps and disorder", Nodes({40, 7, 4294967295u, 0, 12})},
      {"repeated ids find the first", Nodes({5, 3, 5, 3})},
      // A dense run that would pass the largest id must not wrap around.
      {"at the top", Nodes({4294967294u, 4294967295u})},
  };
  for (const auto& [name, nodes] : cases) {
    SCOPED_TRACE(name);
    const model::NodeIndex index(nodes);
    for (size_t i = 0; i < nodes.size(); ++i) {
      if (i < 2 || nodes[i].id != nodes[i - 2].id) {
        EXPECT_EQ(index.Find(nodes[i].id), i);
      }
    }
    for (uint32_t missing : {1u, 6u, 99u, 105u, 13u})
      EXPECT_FALSE(index.Find(missing).has_value()) << missing;
  }
  EXPECT_FALSE(model::NodeIndex(cases[3].second).Find(0) || model::NodeIndex(std::vector<fmNd>{}).Find(0));
  EXPECT_EQ(model::NodeIndex(Nodes({1, 2, 3})).Require(2), 1u);
  EXPECT_EQ(Thrown([] { model::NodeIndex(Nodes({1, 2, 3})).Require(17); }), "Node 17 does not exist.");
}

TEST(ReferenceLookUp, ReferencesArePositionsPlusOne) {
  std::vector<fmMat> materials = {fmMat(7), fmMat(9)};
  std::vector<fmSect> sections = {fmSect(1)};
  std::vector<fmThick> thicknesses;
  EXPECT_EQ(model::LookUpMaterial(materials, 2).id, 9);
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[&] { model::LookUpMaterial(materials, 0); }, "No material is chosen."},
      {[&] { model::LookUpMaterial(materials, 3); }, "Material 3 does not exist: the list holds 2 materials."},
      {[&] { model::LookUpSection(sections, 4); }, "Section 4 does not exist: the list holds 1 section."},
      {[&] { model::LookUpThickness(thicknesses, 1); }, "No thickness can be chosen: the model has no thicknesses."},
  };
  for (const auto& [call, message] : cases) EXPECT_EQ(Thrown(call), message);
}
