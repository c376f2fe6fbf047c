#include "model/document.h"

#include "model/document_sections.h"
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

// The parser reports the last character of the token it could not take; a user looks for
// the token's first character ("schemaVersion" rather than its closing quote).
size_t TokenStart(std::string_view text, size_t at) {
  if (at >= text.size()) return at;
  if (text[at] == '"') {
    for (size_t i = at; i-- > 0;)
      if (text[i] == '"' && (i == 0 || text[i - 1] != '\\')) return i;
    return at;
  }
  const auto partOfWord = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '.' || c == '+' ||
           c == '-';
  };
  size_t i = at;
  while (i > 0 && partOfWord(text[at]) && partOfWord(text[i - 1])) --i;
  return i;
}

}  // namespace

DocumentLoadError::DocumentLoadError(const std::string& file, const std::string& place, const std::string& problem)
    : std::runtime_error("Cannot open model \"" + file + "\"" + (place.empty() ? "" : " at " + place) + ": " +
                         problem),
      file_(file),
      place_(place),
      problem_(problem) {}

ModelDocument ParseModelDocument(std::string_view text, const std::string& fileName) {
  nlohmann::json root;
  try {
    root = nlohmann::json::parse(text.begin(), text.end());
  } catch (const nlohmann::json::parse_error& e) {
    // The library reports the byte just past the fault; point at the fault itself.
    const size_t at = TokenStart(text, e.byte > 0 ? e.byte - 1 : 0);
    std::string what = e.what();
    const auto colon = what.find("syntax error");
    throw DocumentLoadError(fileName, LineAndColumn(text, at),
                            colon == std::string::npos ? "not a valid model document (malformed JSON)"
                                                       : what.substr(colon));
  } catch (const nlohmann::json::exception& e) {
    // A number too large for a double ("1e400") is refused while parsing, without a position.
    std::string what = e.what();
    const auto bracket = what.find("] ");
    throw DocumentLoadError(fileName, "", bracket == std::string::npos ? what : what.substr(bracket + 2));
  }
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
  } catch (const DocumentError& e) {
    throw DocumentLoadError(fileName, e.place().empty() ? std::string("/") : e.place(), e.what());
  }
  return doc;
}

ModelDocument LoadModelDocument(const std::string& path) {
  std::string text;
  try {
    text = tools::ReadWholeFile(path);
  } catch (const tools::FileError& e) {
    throw DocumentLoadError(path, "", e.reason().empty() ? e.what() : e.reason());
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
  WriteMaterials(doc, root);
  WriteSections(doc, root);
  WriteThicknesses(doc, root);
  WriteElements(doc, root);
  WriteSupports(doc, root);
  WriteSpectrumSettings(doc, root);
  WriteResults(doc, root);
  return root.dump(1, '\t') + "\n";
}

void SaveModelDocument(const ModelDocument& doc, const std::string& path) {
  tools::WriteFileAtomically(path, SerializeModelDocument(doc));
}

}  // namespace model
