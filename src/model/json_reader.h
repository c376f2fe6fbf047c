#pragma once
#include <cstdint>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

// Reads typed values out of a parsed document and, on a mismatch, names the place
// ("/nodes/3/x") and what was expected, so a user can find the fault in the file.
namespace model {

class DocumentError : public std::runtime_error {
 public:
  DocumentError(std::string place, const std::string& what)
      : std::runtime_error(what), place_(std::move(place)) {}
  const std::string& place() const { return place_; }

 private:
  std::string place_;
};

class JsonReader {
 public:
  JsonReader(const nlohmann::json& value, std::string path) : value_(value), path_(std::move(path)) {}

  const nlohmann::json& value() const { return value_; }
  const std::string& path() const { return path_; }
  bool Has(const char* key) const { return value_.is_object() && value_.contains(key); }

  JsonReader Member(const char* key) const;     // required member
  JsonReader At(size_t index) const;            // array element
  size_t ArraySize() const;                     // fails unless an array
  void RequireObject() const;

  double Double(const char* key) const;
  double Double(const char* key, double fallback) const;
  int64_t Int(const char* key, int64_t min, int64_t max) const;
  int64_t Int(const char* key, int64_t min, int64_t max, int64_t fallback) const;
  // A node or element id, 0 to kMaxId; `what` names it in messages ("node id").
  uint32_t Id(const char* key, const char* what = "id") const { return Member(key).AsId(what); }
  uint32_t AsId(const char* what = "id") const;
  bool Bool(const char* key, bool fallback) const;
  std::string String(const char* key) const;
  std::string String(const char* key, const std::string& fallback) const;
  // A label, cut to 127 characters, that keeps the label rule (tools::IsValidLabel); refused
  // as "<kind> label can only ..." ("Load case", "Section").
  std::string Label(const char* key, const char* kind) const;

  [[noreturn]] void Fail(const std::string& what) const { throw DocumentError(path_, what); }

 private:
  const nlohmann::json& value_;
  std::string path_;
};

}  // namespace model
