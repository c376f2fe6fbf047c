#include "tools/parse_list.h"

#include <charconv>
#include <system_error>

#include "tools/format.h"
#include "tools/parse.h"

namespace tools {
namespace {

// Long items are cut for the message, never inside a UTF-8 character.
std::string Shorten(std::string_view text) {
  constexpr size_t kMax = 40;
  if (text.size() <= kMax) return std::string(text);
  size_t cut = kMax;
  while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80) --cut;
  return std::string(text.substr(0, cut)) + "...";
}

// nullopt with the reason when the text is not a finite real.
std::optional<double> ReadValue(std::string_view text, std::string& problem) {
  if (const auto v = ParseDouble(text)) return v;
  std::string_view t = Trim(text);
  if (!t.empty() && t.front() == '+') t.remove_prefix(1);
  double ignored = 0;
  const auto [end, ec] = std::from_chars(t.data(), t.data() + t.size(), ignored, std::chars_format::general);
  problem = (ec == std::errc::result_out_of_range && end == t.data() + t.size()) ? "is out of range"
                                                                                   : "is not a number";
  return std::nullopt;
}

std::optional<int> ReadCount(std::string_view text) {
  if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  const auto n = ParseInt(text);
  if (!n || *n < 1 || *n > kMaxListRepeat) return std::nullopt;
  return static_cast<int>(*n);
}

}  // namespace

std::string ListError::Message() const {
  if (text.empty()) return Format("item %d is empty", item);
  return Format("\"%s\" (item %d) %s", Shorten(text).c_str(), item, problem.c_str());
}

ListParseResult ParseList(std::string_view text) {
  ListParseResult result;
  if (Trim(text).empty()) return result;

  auto fail = [&result](int item, std::string_view itemText, std::string problem) {
    result.values.clear();
    result.error = ListError{item, std::string(itemText), std::move(problem)};
    return result;
  };

  int item = 0;
  size_t start = 0;
  while (true) {
    const size_t comma = text.find(',', start);
    const std::string_view raw = text.substr(start, comma == std::string_view::npos ? text.npos : comma - start);
    const std::string_view itemText = Trim(raw);
    ++item;
    if (itemText.empty()) return fail(item, itemText, "is empty");

    int count = 1;
    std::string_view valueText = itemText;
    if (const size_t at = itemText.find('@'); at != std::string_view::npos) {
      if (itemText.find('@', at + 1) != std::string_view::npos) return fail(item, itemText, "has more than one @");
      const std::string_view countText = Trim(itemText.substr(0, at));
      valueText = Trim(itemText.substr(at + 1));
      if (countText.empty()) return fail(item, itemText, "has no repeat count before @");
      if (valueText.empty()) return fail(item, itemText, "has no value after @");
      const auto n = ReadCount(countText);
      if (!n)
        return fail(item, itemText,
                    Format("has a repeat count that is not a whole number from 1 to %d", kMaxListRepeat));
      count = *n;
    }
    std::string problem;
    const auto value = ReadValue(valueText, problem);
    if (!value) return fail(item, itemText, problem);
    if (result.values.size() + static_cast<size_t>(count) > kMaxListValues)
      return fail(item, itemText, Format("makes the list longer than %zu values", kMaxListValues));
    result.values.insert(result.values.end(), static_cast<size_t>(count), *value);

    if (comma == std::string_view::npos) break;
    start = comma + 1;
  }
  return result;
}

}  // namespace tools
