#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace tools {

// The first maxChars characters of a UTF-8 text, never cutting inside a character.
// Labels of model records are kept to 127 characters this way.
std::string CutToChars(std::string_view text, size_t maxChars);

}  // namespace tools
