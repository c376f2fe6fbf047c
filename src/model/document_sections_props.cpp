#include "model/document_sections.h"
#include "tools/fm_unit.h"
#include "tools/labels.h"

// Materials, member sections and shell thicknesses. Each list is optional, so documents
// written before these tables existed still load (with empty tables).
namespace model {
namespace {

int32_t ReadId(const JsonReader& item, size_t index) {
  return static_cast<int32_t>(item.Int("id", 1, INT32_MAX, static_cast<int64_t>(index) + 1));
}

static_assert(kRecordLabelChars == tools::kMaxLabelChars);

// The size of one psi in the document's modulus unit.
double PsiToDocumentModulus(const fmUnit& units) {
  fmUnit psi = units;
  psi.unit[fmUnit::Modulus] = 69;  // lb/in^2
  double factors[fmUnit::QuantityCount];
  GetConversionFactors(factors, psi, units);
  return factors[fmUnit::Modulus];
}

}  // namespace

void ReadMaterials(const JsonReader& root, ModelDocument& doc) {
  doc.materials.clear();
  if (!root.Has("materials")) return;
  const JsonReader list = root.Member("materials");
  const size_t n = list.ArraySize();
  const double psi = PsiToDocumentModulus(doc.units);
  for (size_t i = 0; i < n; ++i) {
    const JsonReader item = list.At(i);
    item.RequireObject();
    fmMat m(ReadId(item, i));
    m.label = item.Label("label", "Material");
    m.E = item.Double("E");
    m.nu = item.Double("nu");
    m.density = item.Double("density");
    m.Tc = item.Double("Tc");
    m.fc = item.Double("fc", fmMat::kDefaultFcPsi * psi);
    m.fy = item.Double("fy", fmMat::kDefaultFyPsi * psi);
    m.fys = item.Double("fys", fmMat::kDefaultFysPsi * psi);
    doc.materials.push_back(std::move(m));
  }
}

void WriteMaterials(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const fmMat& m : doc.materials)
    list.push_back({{"id", m.id},
                    {"label", m.label},
                    {"E", m.E},
                    {"nu", m.nu},
                    {"density", m.density},
                    {"Tc", m.Tc},
                    {"fc", m.fc},
                    {"fy", m.fy},
                    {"fys", m.fys}});
  root["materials"] = std::move(list);
}

void ReadSections(const JsonReader& root, ModelDocument& doc) {
  doc.sections.clear();
  if (!root.Has("sections")) return;
  const JsonReader list = root.Member("sections");
  const size_t n = list.ArraySize();
  for (size_t i = 0; i < n; ++i) {
    const JsonReader item = list.At(i);
    item.RequireObject();
    fmSect s(ReadId(item, i));
    s.label = item.Label("label", "Section");
    s.A = item.Double("A");
    s.Ay = item.Double("Ay", 0);
    s.Az = item.Double("Az", 0);
    s.Iz = item.Double("Iz");
    s.Iy = item.Double("Iy");
    s.J = item.Double("J");
    s.reserved = item.Double("reserved", s.reserved);
    s.b = item.Double("b", 0);
    s.d = item.Double("d", 0);
    s.tf = item.Double("tf", 0);
    s.tw = item.Double("tw", 0);
    doc.sections.push_back(std::move(s));
  }
}

void WriteSections(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const fmSect& s : doc.sections) {
    nlohmann::ordered_json item = {{"id", s.id}, {"label", s.label}, {"A", s.A},   {"Ay", s.Ay},
                                   {"Az", s.Az}, {"Iz", s.Iz},       {"Iy", s.Iy}, {"J", s.J},
                                   {"b", s.b},   {"d", s.d},         {"tf", s.tf}, {"tw", s.tw}};
    if (s.reserved != fmSect().reserved) item["reserved"] = s.reserved;
    list.push_back(std::move(item));
  }
  root["sections"] = std::move(list);
}

void ReadThicknesses(const JsonReader& root, ModelDocument& doc) {
  doc.thicknesses.clear();
  if (!root.Has("thicknesses")) return;
  const JsonReader list = root.Member("thicknesses");
  const size_t n = list.ArraySize();
  for (size_t i = 0; i < n; ++i) {
    const JsonReader item = list.At(i);
    item.RequireObject();
    fmThick t(ReadId(item, i));
    t.label = item.Label("label", "Thickness");
    t.thickness = item.Double("thickness");
    doc.thicknesses.push_back(std::move(t));
  }
}

void WriteThicknesses(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const fmThick& t : doc.thicknesses)
    list.push_back({{"id", t.id}, {"label", t.label}, {"thickness", t.thickness}});
  root["thicknesses"] = std::move(list);
}

void ConvertPropertyUnits(ModelDocument& doc, const double* factor) {
  const double L = factor[fmUnit::Length];
  const double modulus = factor[fmUnit::Modulus];
  const double density = factor[fmUnit::WeightDensity];
  const double temperature = factor[fmUnit::Temperature];
  for (fmMat& m : doc.materials) {
    m.E *= modulus;
    m.fc *= modulus;
    m.fy *= modulus;
    m.fys *= modulus;
    m.density *= density;
    m.Tc /= temperature;  // a coefficient per degree: the inverse of the temperature factor
  }
  const double L2 = L * L, L4 = L2 * L2;
  for (fmSect& s : doc.sections) {
    s.A *= L2;
    s.Ay *= L2;
    s.Az *= L2;
    s.Iz *= L4;
    s.Iy *= L4;
    s.J *= L4;
    s.b *= L;
    s.d *= L;
    s.tf *= L;
    s.tw *= L;
  }
  for (fmThick& t : doc.thicknesses) t.thickness *= L;
}

}  // namespace model
