#pragma once
#include <string>
#include <string_view>

namespace tools {

// Empty when a record label is acceptable; otherwise the text that completes messages
// such as "Section label can only %s".
std::string IsValidLabel(std::string_view label);

}  // namespace tools
