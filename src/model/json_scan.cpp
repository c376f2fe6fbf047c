#include "model/json_scan.h"

#include <simdjson.h>

#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <new>
#include <string>
#include <unordered_set>

#include "tools/format.h"

namespace model {
namespace {

namespace od = simdjson::ondemand;

// A number as the strict parser sees it: a whole number that fits 64 bits keeps its sign
// and kind, anything else is a double.
struct Number {
  enum Kind { kUnsigned, kSigned, kReal } kind = kReal;
  uint64_t u = 0;
  int64_t i = 0;
  double d = 0;

  bool IsWhole() const { return kind != kReal; }
  double AsDouble() const {
    return kind == kUnsigned ? static_cast<double>(u) : kind == kSigned ? static_cast<double>(i) : d;
  }
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view TrimmedToken(std::string_view token) {
  while (!token.empty() && (token.back() == ' ' || token.back() == '\t' || token.back() == '\n' || token.back() == '\r'))
    token.remove_suffix(1);
  return token;
}

// A double beyond what from_chars gives: a value too small becomes 0 (or a subnormal), as the
// C library reads it; infinity means the number is too large.
double ReadOutOfRange(std::string_view token) {
  static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
  const std::string text(token);
  return c ? strtod_l(text.c_str(), nullptr, c) : HUGE_VAL;
}

// False for a token that is not a JSON number, or one too large for a double; the text check
// then names the fault as the strict parser does.
bool ReadNumber(std::string_view token, Number& n) {
  const size_t size = token.size();
  size_t p = 0;
  const bool negative = p < size && token[p] == '-';
  if (negative) ++p;
  if (p >= size) return false;
  if (token[p] == '0') {
    ++p;
  } else if (IsDigit(token[p])) {
    while (p < size && IsDigit(token[p])) ++p;
  } else {
    return false;
  }
  bool real = false;
  if (p < size && token[p] == '.') {
    real = true;
    if (++p >= size || !IsDigit(token[p])) return false;
    while (p < size && IsDigit(token[p])) ++p;
  }
  if (p < size && (token[p] == 'e' || token[p] == 'E')) {
    real = true;
    if (++p < size && (token[p] == '+' || token[p] == '-')) ++p;
    if (p >= size || !IsDigit(token[p])) return false;
    while (p < size && IsDigit(token[p])) ++p;
  }
  if (p != size) return false;
  const char* first = token.data();
  const char* last = first + size;
  if (!real) {
    if (!negative) {
      const auto [end, ec] = std::from_chars(first, last, n.u);
      if (ec == std::errc() && end == last) {
        n.kind = Number::kUnsigned;
        return true;
      }
    } else {
      const auto [end, ec] = std::from_chars(first, last, n.i);
      if (ec == std::errc() && end == last) {
        n.kind = Number::kSigned;
        return true;
      }
    }
  }
  // Whole numbers beyond 64 bits are read as doubles, as the strict parser reads them.
  n.kind = Number::kReal;
  const auto [end, ec] = std::from_chars(first, last, n.d);
  if (ec == std::errc() && end == last) return true;
  if (ec != std::errc::result_out_of_range) return false;
  n.d = ReadOutOfRange(token);
  return std::isfinite(n.d);
}

// The text of one value, for the strict parser.
simdjson::error_code SpanOf(od::value& value, std::string_view& span) {
  od::json_type type;
  if (const auto e = value.type().get(type)) return e;
  if (type == od::json_type::object) {
    od::object object;
    if (const auto e = value.get_object().get(object)) return e;
    return object.raw_json().get(span);
  }
  if (type == od::json_type::array) {
    od::array array;
    if (const auto e = value.get_array().get(array)) return e;
    return array.raw_json().get(span);
  }
  span = TrimmedToken(value.raw_json_token());
  return simdjson::SUCCESS;
}

// A member's name, read from the text itself: simdjson 3.0.1 does not check that its buffer
// for unescaped names was allocated, so it is never used. Names with escapes are rare.
bool KeyOf(od::field& field, std::string& scratch, std::string_view& key) {
  const char* begin = field.key().raw();
  const char* end = begin;
  bool escaped = false;
  while (*end != '"') {
    if (*end == '\\') {
      escaped = true;
      ++end;
    }
    ++end;
  }
  key = std::string_view(begin, static_cast<size_t>(end - begin));
  if (!escaped) return true;
  try {
    scratch = nlohmann::json::parse(std::string_view(begin - 1, key.size() + 2)).get<std::string>();
  } catch (const nlohmann::json::exception&) {
    return false;
  }
  key = scratch;
  return true;
}

class Scanner {
 public:
  Scanner(std::string_view text, ScannedDocument& out) : text_(text), out_(out) {}

  std::optional<TextFault> Run() {
    od::parser parser;
    od::document doc;
    if (const auto e = parser.iterate(simdjson::padded_string_view(text_.data(), text_.size(), text_.size() + kScanPadding))
                           .get(doc))
      return Failed(e);
    od::json_type type;
    if (const auto e = doc.type().get(type)) return Failed(e);
    if (type != od::json_type::object) {
      // Not a model document at all; the readers say so once the text is known to be JSON.
      out_.sections = nlohmann::json();
      return ParseJson(text_, out_.sections);
    }
    od::object root;
    if (const auto e = doc.get_object().get(root)) return Failed(e);
    // A set, so that no text of many keys makes the check of repeated ones quadratic.
    std::unordered_set<std::string> keys;
    std::string scratch;
    for (auto member : root) {
      od::field field;
      std::string_view key;
      if (const auto e = std::move(member).get(field)) return Failed(e);
      if (!KeyOf(field, scratch, key)) return TextFaults();
      if (!keys.emplace(key).second) return TextFaults();
      od::value& value = field.value();
      od::json_type valueType;
      if (const auto e = value.type().get(valueType)) return Failed(e);
      if (key == "nodes" && valueType == od::json_type::array) {
        out_.nodesRead = true;
        if (std::optional<TextFault> fault = ReadNodes(value)) return fault;
        continue;
      }
      std::string_view span;
      if (const auto e = SpanOf(value, span)) return Failed(e);
      nlohmann::json section;
      const DismantleOnExit dismantle(section);
      if (ParseJson(span, section, 1)) return TextFaults(span);
      out_.sections.emplace(std::string(key), std::move(section));
    }
    // Anything after the document's object is a fault of the text.
    if (doc.current_location().error() != simdjson::OUT_OF_BOUNDS) return TextFaults();
    // The nodes after a faulty one were skipped unread: the text's own faults come first.
    if (out_.nodesFault) return CheckJson(text_);
    return std::nullopt;
  }

 private:
  // The strict parser's account of a text the scan could not take.
  std::optional<TextFault> TextFaults(std::string_view part = {}) {
    if (std::optional<TextFault> fault = CheckJson(text_)) return fault;
    // Never expected: the scan refused what the strict parser takes. Say where, at least.
    const size_t at = part.empty() ? 0 : static_cast<size_t>(part.data() - text_.data());
    return TextFault{at, "not a valid model document (malformed JSON)"};
  }

  std::optional<TextFault> Failed(simdjson::error_code e) {
    if (e == simdjson::MEMALLOC) throw std::bad_alloc();
    return TextFaults();
  }

  enum Field { kId, kX, kY, kZ, kFlags, kFieldCount };

  static int FieldOf(std::string_view key) {
    static constexpr std::array<std::string_view, kFieldCount> names = {"id", "x", "y", "z", "flags"};
    for (int f = 0; f < kFieldCount; ++f)
      if (key == names[static_cast<size_t>(f)]) return f;
    return -1;
  }

  std::optional<TextFault> ReadNodes(od::value& value) {
    od::array list;
    if (const auto e = value.get_array().get(list)) return Failed(e);
    size_t count = 0;
    if (const auto e = list.count_elements().get(count)) return Failed(e);
    out_.nodes.reserve(count);
    size_t index = 0;
    std::unordered_set<std::string> otherKeys;
    std::string scratch;
    for (auto element : list) {
      od::value item;
      od::json_type type;
      if (const auto e = std::move(element).get(item)) return Failed(e);
      if (const auto e = item.type().get(type)) return Failed(e);
      if (type != od::json_type::object) {
        Fault(index, "", "expected an object");
        break;
      }
      od::object object;
      if (const auto e = item.get_object().get(object)) return Failed(e);
      std::array<Number, kFieldCount> numbers{};
      std::array<od::json_type, kFieldCount> types{};
      unsigned present = 0;
      otherKeys.clear();
      for (auto member : object) {
        od::field field;
        std::string_view key;
        if (const auto e = std::move(member).get(field)) return Failed(e);
        if (!KeyOf(field, scratch, key)) return TextFaults();
        od::value& v = field.value();
        const int f = FieldOf(key);
        if (f < 0) {
          if (!otherKeys.emplace(key).second) return TextFaults();
          // Kept by nobody, but still checked as the strict parser checks it.
          std::string_view span;
          if (const auto e = SpanOf(v, span)) return Failed(e);
          if (const std::optional<TextFault> fault = CheckJsonValue(span)) return TextFaults(span);
          continue;
        }
        if (present & (1u << f)) return TextFaults();
        present |= 1u << f;
        if (const auto e = v.type().get(types[static_cast<size_t>(f)])) return Failed(e);
        if (types[static_cast<size_t>(f)] != od::json_type::number) continue;
        const std::string_view token = TrimmedToken(v.raw_json_token());
        if (!ReadNumber(token, numbers[static_cast<size_t>(f)])) return TextFaults(token);
      }
      fmNd nd;
      if (!Build(index, present, types, numbers, nd)) break;
      out_.nodes.push_back(nd);
      ++index;
    }
    return std::nullopt;
  }

  // The checks of the node reader, in its order: id, x, y, z, then the optional flags.
  bool Build(size_t index, unsigned present, const std::array<od::json_type, kFieldCount>& types,
             const std::array<Number, kFieldCount>& numbers, fmNd& nd) {
    static constexpr const char* names[kFieldCount] = {"id", "x", "y", "z", "flags"};
    if (!(present & (1u << kId))) return Fault(index, "", "missing \"id\"");
    const Number& id = numbers[kId];
    const bool whole = types[kId] == od::json_type::number && (id.kind == Number::kUnsigned ||
                                                               (id.kind == Number::kSigned && id.i >= 0));
    if (!whole) return Fault(index, "id", tools::Format("expected a node id, a whole number from 0 to %u", kMaxId));
    const uint64_t value = id.kind == Number::kUnsigned ? id.u : static_cast<uint64_t>(id.i);
    if (value > kMaxId)
      return Fault(index, "id",
                   tools::Format("node id %llu is above %u, the highest id", static_cast<unsigned long long>(value), kMaxId));
    nd.id = static_cast<uint32_t>(value);
    double* coordinates[3] = {&nd.x, &nd.y, &nd.z};
    for (int f = kX; f <= kZ; ++f) {
      if (!(present & (1u << f))) return Fault(index, "", std::string("missing \"") + names[f] + "\"");
      if (types[static_cast<size_t>(f)] != od::json_type::number) return Fault(index, names[f], "expected a number");
      *coordinates[f - kX] = numbers[static_cast<size_t>(f)].AsDouble();
    }
    nd.flags = 0;
    if (present & (1u << kFlags)) {
      const Number& flags = numbers[kFlags];
      if (types[kFlags] != od::json_type::number || !flags.IsWhole()) return Fault(index, "flags", "expected a whole number");
      if (flags.kind == Number::kUnsigned && flags.u > static_cast<uint64_t>(INT64_MAX))
        return Fault(index, "flags", "number out of range");
      const int64_t v = flags.kind == Number::kUnsigned ? static_cast<int64_t>(flags.u) : flags.i;
      if (v < 0 || v > static_cast<int64_t>(UINT32_MAX))
        return Fault(index, "flags", tools::Format("expected a whole number from %lld to %lld", 0LL,
                                                   static_cast<long long>(UINT32_MAX)));
      nd.flags = static_cast<uint32_t>(v);
    }
    return true;
  }

  // Notes the first node that breaks a rule; returns false, which ends the reading of nodes.
  bool Fault(size_t index, const std::string& key, const std::string& problem) {
    std::string place = "/nodes/" + std::to_string(index);
    if (!key.empty()) place += "/" + key;
    out_.nodesFault.emplace(std::move(place), problem);
    return false;
  }

  // A member a node record does not use, checked at its depth in the document.
  static std::optional<TextFault> CheckJsonValue(std::string_view span) {
    nlohmann::json ignored;
    const DismantleOnExit dismantle(ignored);
    return ParseJson(span, ignored, 3);
  }

  std::string_view text_;
  ScannedDocument& out_;
};

}  // namespace

std::optional<TextFault> ScanDocument(std::string_view text, ScannedDocument& out) { return Scanner(text, out).Run(); }

}  // namespace model
