#include <array>

#include "model/document_sections.h"
#include "tools/format.h"

// Members, four-node shells and bricks. Each list is optional, so documents written
// before elements were stored still load (with no elements). Elements hold no lengths:
// a change of units leaves them as they are.
namespace model {
namespace {

template <size_t N>
std::array<uint32_t, N> ReadNodeIds(const JsonReader& item) {
  const JsonReader list = item.Member("nodes");
  if (list.ArraySize() != N) list.Fail(tools::Format("expected %zu node ids", N));
  std::array<uint32_t, N> ids{};
  for (size_t k = 0; k < N; ++k) {
    ids[k] = list.At(k).AsId("node id");
  }
  return ids;
}

// What every element has: id, flags and material reference.
void ReadBase(const JsonReader& item, fmElementBase& e) {
  item.RequireObject();
  e.id = item.Id("id");
  e.flags = static_cast<uint32_t>(item.Int("flags", 0, UINT32_MAX, 0));
  e.mat = static_cast<int32_t>(item.Int("material", 0, INT32_MAX));
}

nlohmann::ordered_json WriteBase(const fmElementBase& e, const auto& nodes) {
  return {{"id", e.id}, {"nodes", nodes}, {"material", e.mat}};
}

void WriteFlags(const fmElementBase& e, nlohmann::ordered_json& item) {
  if (e.flags) item["flags"] = e.flags;
}

}  // namespace

void ReadElements(const JsonReader& root, ModelDocument& doc) {
  doc.members.clear();
  doc.shells.clear();
  doc.bricks.clear();
  if (root.Has("members")) {
    const JsonReader list = root.Member("members");
    const size_t n = list.ArraySize();
    doc.members.reserve(n);
    for (size_t i = 0; i < n; ++i) {
      const JsonReader item = list.At(i);
      fmBm bm;
      ReadBase(item, bm);
      bm.nodes = ReadNodeIds<fmBm::kNodeCount>(item);
      bm.sect = static_cast<int32_t>(item.Int("section", 0, INT32_MAX));
      bm.angle = item.Double("angle", 0);
      bm.nonlinear = static_cast<fmNonlinear>(item.Int("nonlinear", 0, 2, 0));
      doc.members.push_back(bm);
    }
  }
  if (root.Has("shells")) {
    const JsonReader list = root.Member("shells");
    const size_t n = list.ArraySize();
    doc.shells.reserve(n);
    for (size_t i = 0; i < n; ++i) {
      const JsonReader item = list.At(i);
      fmShell4 shell;
      ReadBase(item, shell);
      shell.nodes = ReadNodeIds<fmShell4::kNodeCount>(item);
      shell.thick = static_cast<int32_t>(item.Int("thickness", 0, INT32_MAX));
      shell.angle = item.Double("angle", 0);
      doc.shells.push_back(shell);
    }
  }
  if (root.Has("bricks")) {
    const JsonReader list = root.Member("bricks");
    const size_t n = list.ArraySize();
    doc.bricks.reserve(n);
    for (size_t i = 0; i < n; ++i) {
      const JsonReader item = list.At(i);
      fmBrick brick;
      ReadBase(item, brick);
      brick.nodes = ReadNodeIds<fmBrick::kNodeCount>(item);
      doc.bricks.push_back(brick);
    }
  }
}

void WriteElements(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json members = nlohmann::ordered_json::array();
  for (const fmBm& bm : doc.members) {
    nlohmann::ordered_json item = WriteBase(bm, bm.nodes);
    item["section"] = bm.sect;
    item["angle"] = bm.angle;
    item["nonlinear"] = static_cast<int32_t>(bm.nonlinear);
    WriteFlags(bm, item);
    members.push_back(std::move(item));
  }
  root["members"] = std::move(members);

  nlohmann::ordered_json shells = nlohmann::ordered_json::array();
  for (const fmShell4& shell : doc.shells) {
    nlohmann::ordered_json item = WriteBase(shell, shell.nodes);
    item["thickness"] = shell.thick;
    item["angle"] = shell.angle;
    WriteFlags(shell, item);
    shells.push_back(std::move(item));
  }
  root["shells"] = std::move(shells);

  nlohmann::ordered_json bricks = nlohmann::ordered_json::array();
  for (const fmBrick& brick : doc.bricks) {
    nlohmann::ordered_json item = WriteBase(brick, brick.nodes);
    WriteFlags(brick, item);
    bricks.push_back(std::move(item));
  }
  root["bricks"] = std::move(bricks);
}

}  // namespace model
