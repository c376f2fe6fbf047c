#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tools {

// Locale-independent readers for cell and edit texts. Surrounding blanks are ignored;
// anything else that is not part of the number (a comma, a unit, a second number)
// makes the text unreadable. Infinite, NaN and out-of-range values are refused.
std::optional<double> ParseDouble(std::string_view text);
std::optional<int64_t> ParseInt(std::string_view text);
std::optional<int32_t> ParseInt32(std::string_view text);
std::optional<uint32_t> ParseUInt32(std::string_view text);

std::string_view Trim(std::string_view text);
// ASCII case-insensitive equality, for fixed keywords such as "Frozen" or "htm".
bool EqualsNoCase(std::string_view a, std::string_view b);

}  // namespace tools
