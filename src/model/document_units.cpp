#include "model/document_sections.h"
#include "tools/units.h"

namespace model {
namespace {

void ReadIntArray(const JsonReader& parent, const char* key, std::array<int32_t, fmUnit::QuantityCount>& out,
                  int min, int max) {
  if (!parent.Has(key)) return;
  const JsonReader arr = parent.Member(key);
  if (arr.ArraySize() != out.size()) arr.Fail("expected 18 entries, one per quantity");
  for (size_t q = 0; q < out.size(); ++q) {
    const JsonReader item = arr.At(q);
    if (!item.value().is_number_integer()) item.Fail("expected a whole number");
    const int64_t v = item.value().get<int64_t>();
    if (v < min || v > max) item.Fail("value out of range");
    out[q] = static_cast<int32_t>(v);
  }
}

}  // namespace

void ReadUnits(const JsonReader& root, ModelDocument& doc) {
  if (root.Has("units")) {
    const JsonReader u = root.Member("units");
    u.RequireObject();
    ReadIntArray(u, "unit", doc.units.unit, 0, tools::kUnitLabelCount - 1);
    ReadIntArray(u, "precision", doc.units.precision, 0, tools::kPrecisionFormatCount - 1);
    ReadIntArray(u, "convert", doc.units.convert, 0, 1);
    const auto& quantities = UnitQuantities();
    for (size_t q = 0; q < quantities.size(); ++q) {
      const int pos = doc.units.unit[q] - quantities[q].first;
      if (pos < 0 || pos >= quantities[q].count)
        u.Member("unit").At(q).Fail(std::string("unit not of the kind of \"") + quantities[q].label + "\"");
    }
  }
  if (root.Has("display")) {
    const JsonReader d = root.Member("display");
    d.RequireObject();
    doc.display.alternateRowColor = static_cast<uint32_t>(d.Int("alternateRowColor", 0, 0xFFFFFF, 0xF0F5FF));
    doc.display.showSelectedOnly = d.Bool("showSelectedOnly", false);
    doc.display.modelLocked = d.Bool("modelLocked", false);
    ReadIntArray(d, "format", doc.display.format, 0, 11);
    doc.display.shellResultLocation = static_cast<int32_t>(d.Int("shellResultLocation", INT32_MIN, INT32_MAX, 0));
  }
}

void WriteUnits(const ModelDocument& doc, nlohmann::ordered_json& root) {
  root["units"] = {{"unit", doc.units.unit}, {"precision", doc.units.precision}, {"convert", doc.units.convert}};
  root["display"] = {{"alternateRowColor", doc.display.alternateRowColor},
                     {"showSelectedOnly", doc.display.showSelectedOnly},
                     {"modelLocked", doc.display.modelLocked},
                     {"format", doc.display.format}};
  if (doc.display.shellResultLocation != 0) root["display"]["shellResultLocation"] = doc.display.shellResultLocation;
}

void ReadNodes(const JsonReader& root, ModelDocument& doc) {
  doc.nodes.clear();
  if (!root.Has("nodes")) return;
  const JsonReader list = root.Member("nodes");
  const size_t n = list.ArraySize();
  doc.nodes.reserve(n);
  for (size_t i = 0; i < n; ++i) {
    const JsonReader item = list.At(i);
    item.RequireObject();
    fmNd nd;
    nd.id = item.Id("id", "node id");
    nd.x = item.Double("x");
    nd.y = item.Double("y");
    nd.z = item.Double("z");
    nd.flags = static_cast<uint32_t>(item.Int("flags", 0, UINT32_MAX, 0));
    doc.nodes.push_back(nd);
  }
}

}  // namespace model
