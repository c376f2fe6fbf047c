#pragma once
#include <string>
#include <string_view>

namespace tools {

// Number of characters (code points) in UTF-8 text.
size_t CountCharacters(std::string_view text);
// The longest prefix of at most maxChars characters; never splits a UTF-8 sequence.
std::string_view CutToCharacters(std::string_view text, size_t maxChars);

}  // namespace tools
