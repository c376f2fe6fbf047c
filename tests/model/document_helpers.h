#pragma once
#include <string>

#include "model/document.h"

// Documents for the model document tests: a header, then the sections given (each starting ", ").
namespace doc_test {

inline std::string Doc(const std::string& sections) {
  return R"({"format": "norvane-model", "schemaVersion": 1)" + sections + "}";
}

inline model::ModelDocument Parse(const std::string& sections) {
  return model::ParseModelDocument(Doc(sections), "m.json");
}

inline model::ModelDocument RoundTrip(const model::ModelDocument& doc) {
  return model::ParseModelDocument(model::SerializeModelDocument(doc), "m.json");
}

// "place: problem" of the refusal of a whole document text, or "loaded".
inline std::string RefusalOf(const std::string& text) {
  try {
    model::ParseModelDocument(text, "m.json");
  } catch (const model::DocumentLoadError& e) {
    return e.place() + ": " + e.problem();
  }
  return "loaded";
}

inline std::string Refusal(const std::string& sections) { return RefusalOf(Doc(sections)); }

inline model::ModelDocument Example() {
  return model::LoadModelDocument(std::string(NORVANE_EXAMPLES_DIR) + "/building.json");
}

}  // namespace doc_test
