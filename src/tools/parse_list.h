#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tools {

// The list syntax of generator inputs: comma-separated values, where n@v stands for n
// repetitions of v ("12, 3@20, 2@15" is 12, 20, 20, 20, 15, 15).
//
//   list  := blanks | item { "," item }
//   item  := blanks ( value | count blanks "@" blanks value ) blanks
//   value := a real in C notation: optional sign, digits with an optional ".",
//            optional exponent ("-2", "+.5", "1.5E-2"); it must fit a double
//   count := digits only, a whole number from 1 to kMaxListRepeat
//
// Blanks are spaces and tabs (any white space). A text of blanks only is the empty list.
// Everything else is refused, never read as a different list: an empty item (",,", a
// leading or trailing comma), a word, a decimal comma ("1,5" is two items), "inf",
// a count with a sign, point or exponent ("-2@10", "2.5@1", "1e2@1"), a second "@",
// and a list longer than kMaxListValues.
inline constexpr int kMaxListRepeat = 100000;
inline constexpr size_t kMaxListValues = 100000;

struct ListError {
  int item = 0;          // position of the bad item, from 1
  std::string text;      // the item as typed, without surrounding blanks
  std::string problem;   // completes the message: "is not a number"
  // `"abc" (item 2) is not a number`; an empty item reads `item 2 is empty`.
  std::string Message() const;
};

struct ListParseResult {
  std::vector<double> values;
  std::optional<ListError> error;  // set when the text is refused; values are then empty
  bool ok() const { return !error.has_value(); }
};

ListParseResult ParseList(std::string_view text);

}  // namespace tools
