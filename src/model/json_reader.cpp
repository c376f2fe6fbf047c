#include "model/json_reader.h"

#include <cmath>

#include "model/fm_node.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace model {

void JsonReader::RequireObject() const {
  if (!value_.is_object()) Fail("expected an object");
}

JsonReader JsonReader::Member(const char* key) const {
  RequireObject();
  const auto it = value_.find(key);
  if (it == value_.end()) Fail(std::string("missing \"") + key + "\"");
  return JsonReader(*it, path_ + "/" + key);
}

JsonReader JsonReader::At(size_t index) const { return JsonReader(value_.at(index), path_ + "/" + std::to_string(index)); }

size_t JsonReader::ArraySize() const {
  if (!value_.is_array()) Fail("expected an array");
  return value_.size();
}

double JsonReader::Double(const char* key) const {
  const JsonReader m = Member(key);
  if (!m.value_.is_number()) m.Fail("expected a number");
  const double v = m.value_.get<double>();
  if (!std::isfinite(v)) m.Fail("expected a finite number");
  return v;
}

double JsonReader::Double(const char* key, double fallback) const { return Has(key) ? Double(key) : fallback; }

int64_t JsonReader::Int(const char* key, int64_t min, int64_t max) const {
  const JsonReader m = Member(key);
  if (!m.value_.is_number_integer()) m.Fail("expected a whole number");
  int64_t v = 0;
  if (m.value_.is_number_unsigned()) {
    const uint64_t u = m.value_.get<uint64_t>();
    if (u > static_cast<uint64_t>(INT64_MAX)) m.Fail("number out of range");
    v = static_cast<int64_t>(u);
  } else {
    v = m.value_.get<int64_t>();
  }
  if (v < min || v > max)
    m.Fail(tools::Format("expected a whole number from %lld to %lld", static_cast<long long>(min),
                         static_cast<long long>(max)));
  return v;
}

int64_t JsonReader::Int(const char* key, int64_t min, int64_t max, int64_t fallback) const {
  return Has(key) ? Int(key, min, max) : fallback;
}

uint32_t JsonReader::AsId(const char* what) const {
  const bool whole = value_.is_number_integer() && (value_.is_number_unsigned() || value_.get<int64_t>() >= 0);
  if (!whole) Fail(tools::Format("expected a %s, a whole number from 0 to %u", what, kMaxId));
  const uint64_t v = value_.get<uint64_t>();
  if (v > kMaxId)
    Fail(tools::Format("%s %llu is above %u, the highest id", what, static_cast<unsigned long long>(v), kMaxId));
  return static_cast<uint32_t>(v);
}

bool JsonReader::Bool(const char* key, bool fallback) const {
  if (!Has(key)) return fallback;
  const JsonReader m = Member(key);
  if (!m.value_.is_boolean()) m.Fail("expected true or false");
  return m.value_.get<bool>();
}

std::string JsonReader::String(const char* key) const {
  const JsonReader m = Member(key);
  if (!m.value_.is_string()) m.Fail("expected a text");
  return m.value_.get<std::string>();
}

std::string JsonReader::String(const char* key, const std::string& fallback) const {
  return Has(key) ? String(key) : fallback;
}

std::string JsonReader::Label(const char* key, const char* kind) const {
  std::string label = tools::CutLabel(String(key));
  if (const std::string rule = tools::IsValidLabel(label); !rule.empty())
    Member(key).Fail(std::string(kind) + " label can only " + rule);
  return label;
}

}  // namespace model
