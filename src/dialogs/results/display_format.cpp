#include "dialogs/results/display_format.h"

#include <algorithm>
#include <charconv>

#include "tools/format.h"

namespace results {

DisplayFormatSpec GetDisplayFormat(int index) {
  index = std::clamp(index, 0, 11);
  return index < 6 ? DisplayFormatSpec{'f', index + 1} : DisplayFormatSpec{'e', index - 5};
}

std::string DisplayFormatString(int index) { return tools::Format("%%.*%c", GetDisplayFormat(index).letter); }

std::string LineFormatPiece(int index) {
  const DisplayFormatSpec f = GetDisplayFormat(index);
  return tools::Format("%%.%d%c", f.precision, f.letter);
}

std::string FormatDisplay(double value, int index) {
  const DisplayFormatSpec f = GetDisplayFormat(index);
  // to_chars with a precision gives exactly printf's digits for "%.*f" and "%.*e" (the
  // same rounding of the binary value, a two-digit exponent at least), without a locale.
  char buffer[400];
  const auto [end, ec] =
      std::to_chars(buffer, buffer + sizeof buffer, value,
                    f.letter == 'f' ? std::chars_format::fixed : std::chars_format::scientific, f.precision);
  if (ec != std::errc()) return tools::Format(DisplayFormatString(index).c_str(), f.precision, value);
  return std::string(buffer, end);
}

std::string FormatId(int64_t value) {
  char buffer[24];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, ec == std::errc() ? end : buffer);
}

}  // namespace results
