#include "tools/parse.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace tools {

std::string_view Trim(std::string_view text) {
  const char* blanks = " \t\r\n\f\v";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(blanks);
  return text.substr(first, last - first + 1);
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    if (x != y) return false;
  }
  return true;
}

namespace {

// from_chars takes no plus sign; one is allowed, but never before another sign ("+-1").
std::string_view DropPlus(std::string_view text) {
  if (text.size() > 1 && text.front() == '+' && text[1] != '-' && text[1] != '+') text.remove_prefix(1);
  return text;
}

}  // namespace

std::optional<double> ParseDouble(std::string_view text) {
  text = DropPlus(Trim(text));
  if (text.empty()) return std::nullopt;
  double value = 0;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value,
                                         std::chars_format::general);
  if (ec != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
    return std::nullopt;
  return value;
}

std::optional<int64_t> ParseInt(std::string_view text) {
  text = DropPlus(Trim(text));
  if (text.empty()) return std::nullopt;
  int64_t value = 0;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<int32_t> ParseInt32(std::string_view text) {
  const auto v = ParseInt(text);
  if (!v || *v < std::numeric_limits<int32_t>::min() || *v > std::numeric_limits<int32_t>::max())
    return std::nullopt;
  return static_cast<int32_t>(*v);
}

std::optional<uint32_t> ParseUInt32(std::string_view text) {
  const auto v = ParseInt(text);
  if (!v || *v < 0 || *v > std::numeric_limits<uint32_t>::max()) return std::nullopt;
  return static_cast<uint32_t>(*v);
}

}  // namespace tools
