#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "model/document_sections.h"
#include "tools/format.h"

// Supports: one record per supported node, with the displacements it prescribes (written only
// when one is not zero). Optional, so documents written before supports
// were stored load without any. Unlike element node ids, a support's node is checked on
// loading: a support at no node would hold nothing, and nothing else would ever show it.
namespace model {
namespace {

std::unordered_set<uint32_t> NodeIds(const ModelDocument& doc) {
  std::unordered_set<uint32_t> ids;
  ids.reserve(doc.nodes.size());
  for (const fmNd& nd : doc.nodes) ids.insert(nd.id);
  return ids;
}

}  // namespace

void ReadSupports(const JsonReader& root, ModelDocument& doc) {
  doc.supports.clear();
  if (!root.Has("supports")) return;
  const JsonReader list = root.Member("supports");
  const size_t n = list.ArraySize();
  const std::unordered_set<uint32_t> nodes = NodeIds(doc);
  std::unordered_map<uint32_t, size_t> supported;  // node id to its support's index
  doc.supports.reserve(n);
  for (size_t i = 0; i < n; ++i) {
    const JsonReader item = list.At(i);
    item.RequireObject();
    fmSupport s;
    s.node = item.Id("node", "node id");
    if (!nodes.count(s.node)) item.Member("node").Fail(tools::Format("node %u is not in \"nodes\"", s.node));
    const auto [at, added] = supported.emplace(s.node, i);
    if (!added)
      item.Member("node").Fail(tools::Format("node %u already has a support (/supports/%zu)", s.node, at->second));
    const std::string text = item.String("restraints");
    const auto flags = fmSupport::ParseRestraintText(text);
    if (!flags)
      item.Member("restraints")
          .Fail("expected six digits 0 or 1 for Dx, Dy, Dz, Rx, Ry, Rz (1 restrained), not \"" + text + "\"");
    s.restrained = *flags;
    if (!s.RestrainsAnything())
      item.Member("restraints").Fail("a support must restrain at least one of Dx, Dy, Dz, Rx, Ry, Rz");
    if (item.Has("displacements")) {
      const JsonReader values = item.Member("displacements");
      if (values.ArraySize() != size_t{fmSupport::kDofCount})
        values.Fail("expected 6 numbers: the displacements Dx, Dy, Dz and rotations Dox, Doy, Doz it prescribes");
      for (size_t k = 0; k < size_t{fmSupport::kDofCount}; ++k) {
        const JsonReader v = values.At(k);
        if (!v.value().is_number() || !std::isfinite(v.value().get<double>())) v.Fail("expected a finite number");
        s.displacement[k] = v.value().get<double>();
        // A free degree of freedom goes where the structure takes it.
        if (s.displacement[k] != 0 && !s.restrained[k])
          v.Fail("a displacement is prescribed only where the support restrains the node");
      }
    }
    doc.supports.push_back(s);
  }
}

void WriteSupports(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const fmSupport& s : doc.supports) {
    nlohmann::ordered_json item = {{"node", s.node}, {"restraints", s.RestraintText()}};
    if (s.displacement != std::array<double, fmSupport::kDofCount>{}) item["displacements"] = s.displacement;
    list.push_back(std::move(item));
  }
  root["supports"] = std::move(list);
}

std::vector<uint32_t> RemoveSupportsAtMissingNodes(ModelDocument& doc) {
  const std::unordered_set<uint32_t> nodes = NodeIds(doc);
  std::vector<uint32_t> removed;
  std::erase_if(doc.supports, [&](const fmSupport& s) {
    if (nodes.count(s.node)) return false;
    removed.push_back(s.node);
    return true;
  });
  return removed;
}

}  // namespace model
