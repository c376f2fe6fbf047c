#include "model/json_parse.h"

#include <deque>
#include <iterator>
#include <memory>
#include <unordered_set>
#include <vector>

#include "tools/format.h"

namespace model {
namespace {

// Walks the text for the parser and notes how far it has read, so that a fault found in a
// callback (a repeated key) can be placed.
class TrackingIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  TrackingIterator(const char* p, const char** read) : p_(p), read_(read) {}
  reference operator*() const { return *p_; }
  TrackingIterator& operator++() {
    *read_ = ++p_;
    return *this;
  }
  TrackingIterator operator++(int) {
    TrackingIterator before = *this;
    ++*this;
    return before;
  }
  bool operator==(const TrackingIterator& other) const { return p_ == other.p_; }
  bool operator!=(const TrackingIterator& other) const { return p_ != other.p_; }

 private:
  const char* p_;
  const char** read_;
};

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

using DomBuilder = nlohmann::detail::json_sax_dom_parser<nlohmann::json>;

// Takes every event and keeps nothing: the checks alone, for a text too large for a tree.
struct NothingBuilder {
  using json = nlohmann::json;
  bool null() { return true; }
  bool boolean(bool) { return true; }
  bool number_integer(json::number_integer_t) { return true; }
  bool number_unsigned(json::number_unsigned_t) { return true; }
  bool number_float(json::number_float_t, const std::string&) { return true; }
  bool string(std::string&) { return true; }
  bool binary(json::binary_t&) { return true; }
  bool start_object(std::size_t) { return true; }
  bool key(std::string&) { return true; }
  bool end_object() { return true; }
  bool start_array(std::size_t) { return true; }
  bool end_array() { return true; }
};

template <class Builder>
class CheckingBuilder : public Builder {
 public:
  template <class... BuilderArgs>
  CheckingBuilder(size_t depth, const char* begin, const char* const* read, BuilderArgs&&... args)
      : Builder(std::forward<BuilderArgs>(args)...), begin_(begin), read_(read), depth_(depth) {}

  std::optional<TextFault> fault;

  bool start_object(std::size_t n) {
    if (!Enter()) return false;
    frames_.push_back({keys_.size(), nullptr});
    return Builder::start_object(n);
  }
  bool end_object() {
    keys_.resize(frames_.back().firstKey);
    frames_.pop_back();
    --depth_;
    return Builder::end_object();
  }
  bool start_array(std::size_t n) { return Enter() && Builder::start_array(n); }
  bool end_array() {
    --depth_;
    return Builder::end_array();
  }
  bool key(std::string& k) {
    if (!Remember(k)) {
      // The parser has just read the key's closing quote.
      fault = TextFault{LastRead(), "duplicate key \"" + k + "\""};
      return false;
    }
    return Builder::key(k);
  }
  bool parse_error(std::size_t position, const std::string& /*token*/, const nlohmann::detail::exception& e) {
    // The library reports the byte just past the faulty token.
    const size_t offset = position > 0 ? position - 1 : 0;
    std::string what = e.what();
    const auto syntax = what.find("syntax error");
    const auto bracket = what.find("] ");
    if (syntax != std::string::npos) what = what.substr(syntax);
    else if (bracket != std::string::npos) what = what.substr(bracket + 2);
    fault = TextFault{offset, what};
    return false;
  }

 private:
  struct Frame {
    size_t firstKey;
    std::unique_ptr<std::unordered_set<std::string_view>> index;  // for objects with many keys
  };

  bool Enter() {
    if (++depth_ <= kMaxJsonNesting) return true;
    fault = TextFault{LastRead(),
                      tools::Format("nested deeper than %zu levels", kMaxJsonNesting)};
    return false;
  }

  size_t LastRead() const { return *read_ > begin_ ? static_cast<size_t>(*read_ - begin_) - 1 : 0; }

  // False when the innermost object already has the key. Small objects are searched in
  // place; a large one gets an index, so no text makes this quadratic.
  bool Remember(const std::string& k) {
    Frame& f = frames_.back();
    const size_t count = keys_.size() - f.firstKey;
    if (!f.index) {
      for (size_t i = f.firstKey; i < keys_.size(); ++i)
        if (keys_[i] == k) return false;
      keys_.push_back(k);
      if (count + 1 > 16) {
        f.index = std::make_unique<std::unordered_set<std::string_view>>();
        for (size_t i = f.firstKey; i < keys_.size(); ++i) f.index->insert(keys_[i]);
      }
      return true;
    }
    if (f.index->contains(k)) return false;
    keys_.push_back(k);
    f.index->insert(keys_.back());
    return true;
  }

  const char* begin_;
  const char* const* read_;
  size_t depth_;
  std::vector<Frame> frames_;
  std::deque<std::string> keys_;  // a deque: the index's views stay valid as it grows
};

template <class Builder, class... BuilderArgs>
std::optional<TextFault> Check(std::string_view text, size_t depth, BuilderArgs&&... args) {
  const char* begin = text.data();
  const char* read = begin;
  CheckingBuilder<Builder> builder(depth, begin, &read, std::forward<BuilderArgs>(args)...);
  const bool ok = nlohmann::json::sax_parse(TrackingIterator(begin, &read), TrackingIterator(begin + text.size(), &read),
                                            &builder);
  if (ok) return std::nullopt;
  if (!builder.fault) return TextFault{text.size(), "not a valid model document (malformed JSON)"};
  builder.fault->offset = TokenStart(text, builder.fault->offset);
  return builder.fault;
}

}  // namespace

std::optional<TextFault> ParseJson(std::string_view text, nlohmann::json& root, size_t depth) {
  return Check<DomBuilder>(text, depth, root, false);
}

std::optional<TextFault> CheckJson(std::string_view text) { return Check<NothingBuilder>(text, 0); }

void Dismantle(nlohmann::json& value) noexcept {
  if (value.is_array()) {
    auto& items = value.get_ref<nlohmann::json::array_t&>();
    while (!items.empty()) {
      Dismantle(items.back());
      items.pop_back();
    }
  } else if (value.is_object()) {
    auto& members = value.get_ref<nlohmann::json::object_t&>();
    for (auto& [key, member] : members) Dismantle(member);
    members.clear();
  }
}

}  // namespace model
