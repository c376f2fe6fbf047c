#include "model/document.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <memory>

#include "model/document_sections.h"
#include "model/json_parse.h"
#include "model/json_scan.h"
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

ModelDocument ReadDocument(ScannedDocument& scanned, const std::string& fileName) {
  ModelDocument doc;
  try {
    const JsonReader r(scanned.sections, "");
    r.RequireObject();
    if (r.String("format", "") != "norvane-model")
      r.Fail("not a Norvane model document (\"format\" must be \"norvane-model\")");
    const int64_t version = r.Int("schemaVersion", 1, 1000000);
    if (version > kDocumentSchemaVersion)
      r.Member("schemaVersion").Fail(tools::Format("schema version %lld is newer than this program reads (%d)",
                                                   static_cast<long long>(version), kDocumentSchemaVersion));
    doc.title = r.String("title", "");
    ReadUnits(r, doc);
    if (!scanned.nodesRead) {
      ReadNodes(r, doc);
    } else if (scanned.nodesFault) {
      throw *scanned.nodesFault;
    } else {
      doc.nodes = std::move(scanned.nodes);
    }
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

// `text` has kScanPadding bytes of capacity beyond its end.
ModelDocument ParsePaddedText(std::string_view text, const std::string& fileName) {
  try {
    ScannedDocument scanned;
    // Declared after the tree, so it runs first: empties it without allocating, which the
    // library's own destructor would do when memory has run out.
    const DismantleOnExit dismantle(scanned.sections);
    if (const std::optional<TextFault> fault = ScanDocument(text, scanned))
      throw DocumentLoadError(fileName, LineAndColumn(text, fault->offset), fault->problem);
    return ReadDocument(scanned, fileName);
  } catch (const std::bad_alloc&) {
    throw DocumentLoadError(fileName);
  }
}

// Shortest text that reads back as the same double, always with a point or an exponent, so
// that it reads back as a real (-0.0 keeps its sign).
void AppendReal(std::string& out, double v) {
  char buffer[40];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, v);
  out.append(buffer, end);
  if (std::find_if(buffer, end, [](char c) { return c == '.' || c == 'e' || c == 'n' || c == 'i'; }) == end)
    out += ".0";
}

void AppendWhole(std::string& out, uint64_t v) {
  char buffer[24];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, v);
  out.append(buffer, end);
}

void AppendIndent(std::string& out, int depth) {
  out += '\n';
  out.append(static_cast<size_t>(depth), '\t');
}

// A member's key on a line of its own, after a comma unless it is the first of its object.
void AppendKey(std::string& out, int depth, const std::string& key, bool& first) {
  if (!first) out += ',';
  first = false;
  AppendIndent(out, depth);
  out += nlohmann::ordered_json(key).dump();
  out += ": ";
}

// JSON laid out one member or element a line, indented with tabs, except that a list of plain
// values (a row of numbers, a result record) stays on one line: result tables are mostly such
// rows, and a value a line would double their size.
void AppendJson(std::string& out, const nlohmann::ordered_json& value, int depth) {
  using Json = nlohmann::ordered_json;
  switch (value.type()) {
    case Json::value_t::object: {
      if (value.empty()) {
        out += "{}";
        return;
      }
      out += '{';
      bool first = true;
      for (const auto& [key, member] : value.items()) {
        AppendKey(out, depth + 1, key, first);
        AppendJson(out, member, depth + 1);
      }
      AppendIndent(out, depth);
      out += '}';
      return;
    }
    case Json::value_t::array: {
      if (value.empty()) {
        out += "[]";
        return;
      }
      const bool row = std::none_of(value.begin(), value.end(), [](const Json& v) { return v.is_structured(); });
      out += '[';
      for (size_t i = 0; i < value.size(); ++i) {
        if (i > 0) out += row ? ", " : ",";
        if (!row) AppendIndent(out, depth + 1);
        AppendJson(out, value[i], depth + 1);
      }
      if (!row) AppendIndent(out, depth);
      out += ']';
      return;
    }
    case Json::value_t::number_float:
      AppendReal(out, value.get<double>());
      return;
    case Json::value_t::number_unsigned:
      AppendWhole(out, value.get<uint64_t>());
      return;
    default:
      out += value.dump();  // strings (escaped), whole numbers, true, false, null
  }
}

// Members of the document's top object, after those before.
void AppendMember(std::string& out, const std::string& key, const nlohmann::ordered_json& value, bool& first) {
  AppendKey(out, 1, key, first);
  AppendJson(out, value, 1);
}

std::string FirstNonFiniteNode(const std::vector<fmNd>& nodes) {
  for (size_t i = 0; i < nodes.size(); ++i) {
    const double* xyz[] = {&nodes[i].x, &nodes[i].y, &nodes[i].z};
    for (int k = 0; k < 3; ++k)
      if (!std::isfinite(*xyz[k])) return "/nodes/" + std::to_string(i) + "/" + "xyz"[k];
  }
  return {};
}

[[noreturn]] void RefuseNonFinite(const std::string& place) {
  throw DocumentError(place, "Cannot save the model: the value at " + place +
                                 " is not a finite number, and the file would not open again.");
}

constexpr size_t kSpillAt = size_t(1) << 20;

// The results section, piece by piece as the section's writer makes them. A piece with a
// number that is not finite is refused before it is written; what was written before it
// never replaces the old file.
class ResultsText : public ResultsOut {
 public:
  ResultsText(std::string& out, const std::function<void(std::string&)>& spill) : out_(out), spill_(spill) {}
  void Member(const char* key, const nlohmann::ordered_json& value) override {
    Check(value, std::string("/results/") + key);
    Open();
    AppendKey(out_, 2, key, first_);
    AppendJson(out_, value, 2);
    Spill();
  }
  void BeginList(const char* key) override {
    Open();
    list_ = std::string("/results/") + key;
    items_ = 0;
    AppendKey(out_, 2, key, first_);
    out_ += '[';
  }
  void Item(const nlohmann::ordered_json& value) override {
    Check(value, list_ + "/" + std::to_string(items_));
    out_ += items_++ == 0 ? "\n\t\t\t" : ",\n\t\t\t";
    AppendJson(out_, value, 3);
    Spill();
  }
  void EndList() override { out_ += items_ == 0 ? "]" : "\n\t\t]"; }
  void Close() {
    if (opened_) out_ += "\n\t}";
  }

 private:
  void Open() {
    if (opened_) return;
    opened_ = true;
    out_ += ",\n\t\"results\": {";
  }
  static void Check(const nlohmann::ordered_json& value, const std::string& place) {
    if (std::string found = FirstNonFiniteNumber(value, place); !found.empty()) RefuseNonFinite(found);
  }
  void Spill() {
    if (spill_ && out_.size() >= kSpillAt) spill_(out_);
  }
  std::string& out_;
  const std::function<void(std::string&)>& spill_;
  bool opened_ = false, first_ = true;
  std::string list_;
  size_t items_ = 0;
};

// Writes the document in parts: the header and the small sections from trees of the library,
// the nodes straight from their records and the results piece by piece; `spill` takes what
// has collected in `out` so far.
void WriteDocument(const ModelDocument& doc, std::string& out, const std::function<void(std::string&)>& spill) {
  // Ordered, so the header comes first and sections stay where a reader expects them.
  nlohmann::ordered_json head = nlohmann::ordered_json::object(), tail = nlohmann::ordered_json::object();
  head["format"] = "norvane-model";
  head["schemaVersion"] = kDocumentSchemaVersion;
  head["title"] = doc.title;
  WriteUnits(doc, head);
  for (auto* write : {WriteLoads, WriteCaseLoads, WriteMaterials, WriteSections, WriteThicknesses, WriteElements,
                      WriteSupports, WriteBoundaries, WriteSpectrumSettings})
    write(doc, tail);
  std::string place = FirstNonFiniteNumber(head, "");
  if (place.empty()) place = FirstNonFiniteNode(doc.nodes);
  if (place.empty()) place = FirstNonFiniteNumber(tail, "");
  if (!place.empty()) RefuseNonFinite(place);

  out += "{";
  bool first = true;
  for (const auto& [key, value] : head.items()) AppendMember(out, key, value, first);
  out += ",\n\t\"nodes\": [";
  for (size_t i = 0; i < doc.nodes.size(); ++i) {
    const fmNd& nd = doc.nodes[i];
    out += i == 0 ? "\n\t\t{\n\t\t\t\"id\": " : ",\n\t\t{\n\t\t\t\"id\": ";
    AppendWhole(out, nd.id);
    out += ",\n\t\t\t\"x\": ";
    AppendReal(out, nd.x);
    out += ",\n\t\t\t\"y\": ";
    AppendReal(out, nd.y);
    out += ",\n\t\t\t\"z\": ";
    AppendReal(out, nd.z);
    if (nd.flags) {
      out += ",\n\t\t\t\"flags\": ";
      AppendWhole(out, nd.flags);
    }
    out += "\n\t\t}";
    if (spill && out.size() >= kSpillAt) spill(out);
  }
  out += doc.nodes.empty() ? "]" : "\n\t]";
  for (const auto& [key, value] : tail.items()) AppendMember(out, key, value, first);
  ResultsText results(out, spill);
  WriteResults(doc, results);
  results.Close();
  out += "\n}\n";
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
  std::string padded;
  try {
    padded.reserve(text.size() + kScanPadding);
    padded.assign(text);
  } catch (const std::bad_alloc&) {
    throw DocumentLoadError(fileName);
  }
  return ParsePaddedText(padded, fileName);
}

ModelDocument LoadModelDocument(const std::string& path) {
  std::string text;
  try {
    text = tools::ReadWholeFile(path, kMaxModelFileBytes, kScanPadding);
  } catch (const tools::FileError& e) {
    throw DocumentLoadError(path, "", e.reason().empty() ? e.what() : e.reason());
  } catch (const std::bad_alloc&) {
    throw DocumentLoadError(path);
  }
  return ParsePaddedText(text, path);
}

std::string SerializeModelDocument(const ModelDocument& doc) {
  std::string text;
  WriteDocument(doc, text, nullptr);
  return text;
}

DocumentTooLargeError::DocumentTooLargeError(const std::string& file, size_t maxBytes)
    : std::runtime_error("Cannot save model \"" + file + "\": it would be larger than " + tools::FormatG(static_cast<double>(maxBytes) / (1 << 20)) +
                         " MB, the most a model file may hold, and would not open again.") {}

void SaveModelDocument(const ModelDocument& doc, const std::string& path, size_t maxBytes) {
  std::string text;
  std::unique_ptr<tools::FileReplacement> file;
  size_t written = 0;
  const auto count = [&](size_t bytes) {
    written += bytes;
    if (written > maxBytes) throw DocumentTooLargeError(path, maxBytes);  // the partial file goes with `file`
  };
  WriteDocument(doc, text, [&](std::string& part) {
    count(part.size());
    // Opened with the first part, so that a refused document never touches the file.
    if (!file) file = std::make_unique<tools::FileReplacement>(path);
    file->Write(part);
    part.clear();
  });
  count(text.size());
  if (!file) {
    tools::WriteFileAtomically(path, text);
    return;
  }
  file->Write(text);
  file->Commit();
}

}  // namespace model
