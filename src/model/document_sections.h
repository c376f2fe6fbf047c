#pragma once
#include <nlohmann/json.hpp>

#include "model/document.h"
#include "model/json_reader.h"

// One reader and one writer per section of the model document; each family adds its own.
namespace model {

void ReadUnits(const JsonReader& root, ModelDocument& doc);
void WriteUnits(const ModelDocument& doc, nlohmann::ordered_json& root);
// Nodes given as anything but a list; a list is read as the text is scanned (json_scan.h) and
// written straight from the records.
void ReadNodes(const JsonReader& root, ModelDocument& doc);
void ReadLoads(const JsonReader& root, ModelDocument& doc);
void WriteLoads(const ModelDocument& doc, nlohmann::ordered_json& root);
void ReadMaterials(const JsonReader& root, ModelDocument& doc);
void WriteMaterials(const ModelDocument& doc, nlohmann::ordered_json& root);
void ReadSections(const JsonReader& root, ModelDocument& doc);
void WriteSections(const ModelDocument& doc, nlohmann::ordered_json& root);
void ReadThicknesses(const JsonReader& root, ModelDocument& doc);
void WriteThicknesses(const ModelDocument& doc, nlohmann::ordered_json& root);
void ReadElements(const JsonReader& root, ModelDocument& doc);
void WriteElements(const ModelDocument& doc, nlohmann::ordered_json& root);
// After the nodes: a support must name one of them.
void ReadSupports(const JsonReader& root, ModelDocument& doc);
void WriteSupports(const ModelDocument& doc, nlohmann::ordered_json& root);
// After the elements and results: springs, releases, constraints, diaphragms and the drift
// stack name nodes, members and shells; an older document's copies in the results are taken
// over in the results' units.
void ReadBoundaries(const JsonReader& root, ModelDocument& doc);
void WriteBoundaries(const ModelDocument& doc, nlohmann::ordered_json& root);
// Rescales prescribed displacements, spring stiffnesses and diaphragm levels; factor[q] is 1
// for a quantity not converted.
void ConvertBoundaryUnits(ModelDocument& doc, const double* factor);
bool BoundariesFinite(const ModelDocument& doc);
// The factor of term t of a coupled spring (fmCoupledSpring::TermKind).
double CoupledTermFactor(int term, const double* factor);
void ReadSpectrumSettings(const JsonReader& root, ModelDocument& doc);
void WriteSpectrumSettings(const ModelDocument& doc, nlohmann::ordered_json& root);
// After the elements and results: loads name nodes and elements, and documents without a
// "caseLoads" section take their nodal loads and masses from the results' copies.
void ReadCaseLoads(const JsonReader& root, ModelDocument& doc);
void WriteCaseLoads(const ModelDocument& doc, nlohmann::ordered_json& root);
// factor[q] is 1 for a quantity not converted.
void ConvertCaseLoadUnits(std::vector<fmCaseLoad>& caseLoads, const double* factor);
bool CaseLoadsFinite(const std::vector<fmCaseLoad>& caseLoads);
void ReadResults(const JsonReader& root, ModelDocument& doc);
// Member, shell and brick results of one case, and the concrete design records
// (document_element_results.cpp).
void ReadElementResults(const JsonReader& item, fmCaseResults& results);
void WriteElementResults(const fmCaseResults& results, nlohmann::ordered_json& out);
void ReadConcreteDesign(const JsonReader& section, fmConcreteDesign& design);
void WriteConcreteDesign(const fmConcreteDesign& design, nlohmann::ordered_json& out);
// Where the results section goes, one piece at a time, so that a large one (member stations
// of every case) is never held whole as a tree: its members in order, and its case list item
// by item.
class ResultsOut {
 public:
  virtual ~ResultsOut() = default;
  virtual void Member(const char* key, const nlohmann::ordered_json& value) = 0;
  virtual void BeginList(const char* key) = 0;
  virtual void Item(const nlohmann::ordered_json& value) = 0;
  virtual void EndList() = 0;
};
// Writes nothing when the document holds no results.
void WriteResults(const ModelDocument& doc, ResultsOut& out);
// Rescales materials, sections and thicknesses; factor[q] is 1 for a quantity not converted.
void ConvertPropertyUnits(ModelDocument& doc, const double* factor);

}  // namespace model
