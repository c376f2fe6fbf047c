#include "model/document.h"

#include <cmath>

#include "model/document_sections.h"
#include "model/json_parse.h"
#include "tools/atomic_file.h"
#include "tools/format.h"

namespace model {
namespace {

// Byte offset to "line L, column C" for parse errors.
std::string LineAndColumn(std::string_view text, size_t offset) {
  size_t line = 1, column = 1;
  for (size_t i = 0; i < offset && i < text.size(); ++i) {
    if (text[i] == '\n') {
      ++line;
      column = 1;
    } else {
      ++column;
    }
  }
  return tools::Format("line %zu, column %zu", line, column);
}

// The place of the first number that is not finite, or empty when there is none. JSON has
// no such numbers: written, they would read back as null and the model would never open.
std::string FirstNonFiniteNumber(const nlohmann::ordered_json& value, const std::string& place) {
  if (value.is_number_float()) return std::isfinite(value.get<double>()) ? std::string() : place.empty() ? "/" : place;
  if (value.is_array()) {
    for (size_t i = 0; i < value.size(); ++i)
      if (std::string found = FirstNonFiniteNumber(value[i], place + "/" + std::to_string(i)); !found.empty())
        return found;
  } else if (value.is_object()) {
    for (const auto& [key, member] : value.items())
      if (std::string found = FirstNonFiniteNumber(member, place + "/" + key); !found.empty()) return found;
  }
  return {};
}

ModelDocument ReadDocument(const nlohmann::json& root, const std::string& fileName) {
  ModelDocument doc;
  try {
    const JsonReader r(root, "");
    r.RequireObject();
    if (r.String("format", "") != "norvane-model")
      r.Fail("not a Norvane model document (\"format\" must be \"norvane-model\")");
    const int64_t version = r.Int("schemaVersion", 1, 1000000);
    if (version > kDocumentSchemaVersion)
      r.Member("schemaVersion").Fail(tools::Format("schema version %lld is newer than this program reads (%d)",
                                                   static_cast<long long>(version), kDocumentSchemaVersion));
    doc.title = r.String("title", "");
    ReadUnits(r, doc);
    ReadNodes(r, doc);
    ReadLoads(r, doc);
    ReadMaterials(r, doc);
    ReadSections(r, doc);
    ReadThicknesses(r, doc);
    ReadElements(r, doc);
    ReadSupports(r, doc);
    ReadSpectrumSettings(r, doc);
    ReadResults(r, doc);
    ReadBoundaries(r, doc);
    ReadCaseLoads(r, doc);
  } catch (const DocumentError& e) {
    throw DocumentLoadError(fileName, e.place().empty() ? std::string("/") : e.place(), e.what());
  }
  return doc;
}

}  // namespace

DocumentLoadError::DocumentLoadError(const std::string& file, const std::string& place, const std::string& problem)
    : std::runtime_error("Cannot open model \"" + file + "\"" + (place.empty() ? "" : " at " + place) + ": " +
                         problem),
      file_(file),
      place_(place),
      problem_(problem) {}

DocumentLoadError::DocumentLoadError(const std::string& file)
    : std::runtime_error("Not enough memory to open model \"" + file + "\""),
      file_(file),
      problem_("not enough memory") {}

ModelDocument ParseModelDocument(std::string_view text, const std::string& fileName) {
  try {
    nlohmann::json root;
    // Declared after root, so it runs first: empties the tree without allocating, which
    // the library's own destructor would do when memory has run out.
    const DismantleOnExit dismantle(root);
    if (const std::optional<TextFault> fault = ParseJson(text, root))
      throw DocumentLoadError(fileName, LineAndColumn(text, fault->offset), fault->problem);
    return ReadDocument(root, fileName);
  } catch (const std::bad_alloc&) {
    throw DocumentLoadError(fileName);
  }
}

ModelDocument LoadModelDocument(const std::string& path) {
  std::string text;
  try {
    text = tools::ReadWholeFile(path);
  } catch (const tools::FileError& e) {
    throw DocumentLoadError(path, "", e.reason().empty() ? e.what() : e.reason());
  } catch (const std::bad_alloc&) {
    throw DocumentLoadError(path);
  }
  return ParseModelDocument(text, path);
}

std::string SerializeModelDocument(const ModelDocument& doc) {
  // Ordered, so the header comes first and sections stay where a reader expects them.
  nlohmann::ordered_json root = nlohmann::ordered_json::object();
  root["format"] = "norvane-model";
  root["schemaVersion"] = kDocumentSchemaVersion;
  root["title"] = doc.title;
  WriteUnits(doc, root);
  WriteNodes(doc, root);
  WriteLoads(doc, root);
  WriteCaseLoads(doc, root);
  WriteMaterials(doc, root);
  WriteSections(doc, root);
  WriteThicknesses(doc, root);
  WriteElements(doc, root);
  WriteSupports(doc, root);
  WriteBoundaries(doc, root);
  WriteSpectrumSettings(doc, root);
  WriteResults(doc, root);
  if (const std::string place = FirstNonFiniteNumber(root, ""); !place.empty())
    throw DocumentError(place, "Cannot save the model: the value at " + place +
                                   " is not a finite number, and the file would not open again.");
  return root.dump(1, '\t') + "\n";
}

void SaveModelDocument(const ModelDocument& doc, const std::string& path) {
  tools::WriteFileAtomically(path, SerializeModelDocument(doc));
}

}  // namespace model
