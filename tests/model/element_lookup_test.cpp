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
  const struct {
    const char* name;
    std::vector<fmNd> nodes;
  } cases[] = {
      {"1, 2, 3 ...", Nodes({1, 2, 3, 4, 5})},
      {"starting at 100", Nodes({100, 101, 102, 103, 104})},
      {"gaps and disorder", Nodes({40, 7, 4294967295u, 0, 12})},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const model::NodeIndex index(c.nodes);
    for (size_t i = 0; i < c.nodes.size(); ++i) EXPECT_EQ(index.Find(c.nodes[i].id), i);
    for (uint32_t missing : {6u, 99u, 105u, 13u, 4294967294u}) {
      bool present = false;
      for (const fmNd& nd : c.nodes) present |= nd.id == missing;
      if (!present) {
        EXPECT_FALSE(index.Find(missing).has_value()) << missing;
      }
    }
  }
}

TEST(NodeIndex, RepeatedIdsFindTheFirstAndEmptyFindsNothing) {
  const auto nodes = Nodes({5, 3, 5, 3});
  const model::NodeIndex index(nodes);
  EXPECT_EQ(index.Find(5), 0u);
  EXPECT_EQ(index.Find(3), 1u);
  EXPECT_FALSE(model::NodeIndex(std::vector<fmNd>{}).Find(0));
  // A dense run that would pass the largest id must not wrap around.
  const auto top = Nodes({4294967294u, 4294967295u});
  EXPECT_EQ(model::NodeIndex(top).Find(4294967295u), 1u);
  EXPECT_FALSE(model::NodeIndex(top).Find(0));
}

TEST(NodeIndex, RequireNamesTheMissingNode) {
  const auto nodes = Nodes({1, 2, 3});
  const model::NodeIndex index(nodes);
  EXPECT_EQ(index.Require(2), 1u);
  EXPECT_EQ(Thrown([&] { index.Require(17); }), "Node 17 does not exist.");
}

TEST(ReferenceLookUp, ReferencesArePositionsPlusOne) {
  std::vector<fmMat> materials = {fmMat(7), fmMat(9)};
  std::vector<fmSect> sections = {fmSect(1)};
  std::vector<fmThick> thicknesses;
  EXPECT_EQ(model::LookUpMaterial(materials, 2).id, 9);
  EXPECT_EQ(model::LookUpSection(sections, 1).id, 1);

  const struct {
    const char* name;
    std::function<void()> call;
    const char* message;
  } cases[] = {
      {"none chosen", [&] { model::LookUpMaterial(materials, 0); }, "No material is chosen."},
      {"negative", [&] { model::LookUpMaterial(materials, -1); }, "No material is chosen."},
      {"past the end", [&] { model::LookUpMaterial(materials, 3); }, "Material 3 does not exist: the list holds 2 materials."},
      {"one section", [&] { model::LookUpSection(sections, 4); }, "Section 4 does not exist: the list holds 1 section."},
      {"no thicknesses", [&] { model::LookUpThickness(thicknesses, 1); },
       "No thickness can be chosen: the model has no thicknesses."},
  };
  for (const auto& c : cases) EXPECT_EQ(Thrown(c.call), c.message) << c.name;
}
