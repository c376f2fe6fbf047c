#pragma once
#include <string>
#include <string_view>

namespace tools {

// Lower-cases UTF-8 text letter by letter for comparisons that ignore case, non-ASCII
// letters included ("Ä" and "ä" compare equal). Invalid bytes are kept as they are.
std::string FoldCase(std::string_view text);
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

}  // namespace tools
