#pragma once
#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <vector>

#include "model/fm_node.h"
#include "model/json_parse.h"
#include "model/json_reader.h"

// One pass over a model document's text (simdjson On-Demand) that builds the node records as
// it reads them and keeps every other top-level member as a small tree of its own, so that no
// tree of the whole file is ever made. The checks and messages are those of ParseJson and the
// section readers: a fault of the text is placed by CheckJson, which a faulty text is handed to.
namespace model {

// The text must be followed by this many readable bytes (simdjson reads in blocks).
inline constexpr size_t kScanPadding = 64;

struct ScannedDocument {
  nlohmann::json sections = nlohmann::json::object();  // the document's value without "nodes" when nodesRead
  bool nodesRead = false;                                // "nodes" was an array, read into `nodes`
  std::vector<fmNd> nodes;
  // The first node that breaks a rule; the readers report it in its turn, after the sections before it.
  std::optional<DocumentError> nodesFault;
};

// Fills `out`, or returns the text's first fault. Throws std::bad_alloc when memory runs out.
std::optional<TextFault> ScanDocument(std::string_view text, ScannedDocument& out);

}  // namespace model
