#include <unordered_map>

#include "model/document_sections.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace model {
namespace {

int32_t Flag(const JsonReader& r, const char* key) { return r.Bool(key, false) ? 1 : 0; }

// The editors refuse two case labels (or two combination labels) that differ only in case; a
// document holding such a pair would make the generator and the combination editor lose one.
template <class Record>
void RefuseLabelsEqualButForCase(const JsonReader& list, const std::vector<Record>& records) {
  std::unordered_map<std::string, size_t> first;
  for (size_t i = 0; i < records.size(); ++i) {
    const auto [at, added] = first.emplace(tools::FoldCase(records[i].name), i);
    if (!added)
      list.At(i).Member("label").Fail(tools::Format(
          "\"%s\" is the label \"%s\" of %s (labels are compared without regard to case)", records[i].name.c_str(),
          records[at->second].name.c_str(), list.At(at->second).path().c_str()));
  }
}

}  // namespace

void ReadLoads(const JsonReader& root, ModelDocument& doc) {
  doc.loadCases.clear();
  doc.loadCombs.clear();
  if (root.Has("loadCases")) {
    const JsonReader list = root.Member("loadCases");
    const size_t n = list.ArraySize();
    doc.loadCases.reserve(n);
    for (size_t i = 0; i < n; ++i) {
      const JsonReader item = list.At(i);
      item.RequireObject();
      doc.loadCases.emplace_back(static_cast<int32_t>(item.Int("number", INT32_MIN, INT32_MAX, -1)),
                                 item.Label("label", "Load case"), item.String("type", "Other"));
    }
    RefuseLabelsEqualButForCase(list, doc.loadCases);
  }
  if (root.Has("loadCombinations")) {
    const JsonReader list = root.Member("loadCombinations");
    const size_t n = list.ArraySize();
    doc.loadCombs.reserve(n);
    for (size_t i = 0; i < n; ++i) {
      const JsonReader item = list.At(i);
      item.RequireObject();
      fmLoadComb comb(item.Label("label", "Load combination"));
      comb.pdelta = Flag(item, "pdelta");
      comb.steelDesign = Flag(item, "steelDesign");
      comb.totalDeflection = Flag(item, "totalDeflection");
      comb.liveDeflection = Flag(item, "liveDeflection");
      comb.concreteDesign = Flag(item, "concreteDesign");
      comb.sustainedFactor = item.Double("sustainedFactor", 0.0);
      if (comb.sustainedFactor < 0.0) item.Member("sustainedFactor").Fail("must not be less than 0.0");
      comb.spectrumFactor = item.Double("spectrumFactor", 1.0);
      if (item.Has("items")) {
        const JsonReader terms = item.Member("items");
        const size_t m = terms.ArraySize();
        comb.items.reserve(m);
        for (size_t k = 0; k < m; ++k) {
          const JsonReader term = terms.At(k);
          term.RequireObject();
          comb.items.emplace_back(term.String("case"), term.Double("factor"));
        }
      }
      doc.loadCombs.push_back(std::move(comb));
    }
    RefuseLabelsEqualButForCase(list, doc.loadCombs);
  }
}

void WriteLoads(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json cases = nlohmann::ordered_json::array();
  for (const fmLoadCase& lc : doc.loadCases)
    cases.push_back({{"number", lc.number}, {"label", lc.name}, {"type", lc.type}});
  root["loadCases"] = std::move(cases);

  nlohmann::ordered_json combs = nlohmann::ordered_json::array();
  for (const fmLoadComb& c : doc.loadCombs) {
    nlohmann::ordered_json items = nlohmann::ordered_json::array();
    for (const fmLoadCombItem& it : c.items) items.push_back({{"case", it.caseName}, {"factor", it.factor}});
    combs.push_back({{"label", c.name},
                     {"pdelta", c.pdelta != 0},
                     {"steelDesign", c.steelDesign != 0},
                     {"concreteDesign", c.concreteDesign != 0},
                     {"totalDeflection", c.totalDeflection != 0},
                     {"liveDeflection", c.liveDeflection != 0},
                     {"sustainedFactor", c.sustainedFactor},
                     {"spectrumFactor", c.spectrumFactor},
                     {"items", std::move(items)}});
  }
  root["loadCombinations"] = std::move(combs);
}

}  // namespace model
