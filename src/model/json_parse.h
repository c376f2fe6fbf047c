#pragma once
#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

// Reading JSON text for the model document, stricter than the library's own parser: a key
// that appears twice in one object is refused (the library would keep the last), a number
// too large for a double and any syntax fault are placed in the text, and nesting is
// limited, so that no input can exhaust the stack.
namespace model {

inline constexpr size_t kMaxJsonNesting = 200;

struct TextFault {
  size_t offset;        // byte offset of the faulty token's first character
  std::string problem;  // "duplicate key \"x\"", "syntax error while parsing ..."
};

// Fills root, or returns the first fault (root is then partly filled). `depth` is how deep
// the text's value lies in its document (1 for a member of the document's object).
std::optional<TextFault> ParseJson(std::string_view text, nlohmann::json& root, size_t depth = 0);
// The same checks without building anything: the first fault of a whole document, whatever its size.
std::optional<TextFault> CheckJson(std::string_view text);

// Empties a tree from its leaves up without allocating; the library's destructor allocates
// a work list, which fails when memory has run out and then ends the program.
void Dismantle(nlohmann::json& value) noexcept;

class DismantleOnExit {
 public:
  explicit DismantleOnExit(nlohmann::json& value) : value_(value) {}
  ~DismantleOnExit() { Dismantle(value_); }
  DismantleOnExit(const DismantleOnExit&) = delete;
  DismantleOnExit& operator=(const DismantleOnExit&) = delete;

 private:
  nlohmann::json& value_;
};

}  // namespace model
