#include "dialogs/results/display_format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

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

namespace {

// Fixed notation the way printf rounds: the exact binary value times 10^decimals, rounded to
// the nearest whole number, ties to even. Exact in 128-bit integers for every value whose
// digits fit; false for the others (and for infinities and NaN), which take the general path.
bool FixedFast(double value, int decimals, char* out, size_t& length) {
  if (!std::isfinite(value) || decimals > 6) return false;
  uint64_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  const bool negative = bits >> 63;
  const int biased = static_cast<int>((bits >> 52) & 0x7FF);
  uint64_t mantissa = bits & ((uint64_t(1) << 52) - 1);
  int exponent;  // |value| = mantissa * 2^exponent
  if (biased == 0) {
    exponent = -1074;
  } else {
    mantissa |= uint64_t(1) << 52;
    exponent = biased - 1075;
  }
  static constexpr uint32_t kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
  const unsigned __int128 scaled = static_cast<unsigned __int128>(mantissa) * kPowers[decimals];  // < 2^73
  unsigned __int128 whole;
  if (exponent >= 0) {
    if (exponent > 50) return false;
    whole = scaled << exponent;
  } else if (-exponent >= 127) {
    whole = 0;  // far below half a unit of the last decimal
  } else {
    const int shift = -exponent;
    whole = scaled >> shift;
    const unsigned __int128 rest = scaled & ((static_cast<unsigned __int128>(1) << shift) - 1);
    const unsigned __int128 half = static_cast<unsigned __int128>(1) << (shift - 1);
    if (rest > half || (rest == half && (whole & 1))) ++whole;
  }
  // The digits of the whole number, at least decimals + 1 of them.
  char digits[48];
  int n = 0;
  while (whole >> 64 != 0) {
    digits[n++] = static_cast<char>('0' + static_cast<int>(whole % 10));
    whole /= 10;
  }
  for (uint64_t small = static_cast<uint64_t>(whole); small != 0; small /= 10)
    digits[n++] = static_cast<char>('0' + static_cast<int>(small % 10));
  while (n < decimals + 1) digits[n++] = '0';
  char* p = out;
  if (negative) *p++ = '-';
  for (int i = n - 1; i >= 0; --i) {
    *p++ = digits[i];
    if (i == decimals && decimals > 0) *p++ = '.';
  }
  length = static_cast<size_t>(p - out);
  return true;
}

}  // namespace

size_t FormatDisplayTo(char* buffer, double value, int index) {
  const DisplayFormatSpec f = GetDisplayFormat(index);
  size_t length = 0;
  if (f.letter == 'f' && FixedFast(value, f.precision, buffer, length)) return length;
  // to_chars with a precision gives exactly printf's digits for "%.*f" and "%.*e" (the same
  // rounding of the binary value, a two-digit exponent at least), without a locale.
  const auto [end, ec] =
      std::to_chars(buffer, buffer + kDisplayBufferSize, value,
                    f.letter == 'f' ? std::chars_format::fixed : std::chars_format::scientific, f.precision);
  if (ec == std::errc()) return static_cast<size_t>(end - buffer);
  const std::string text = tools::Format(DisplayFormatString(index).c_str(), f.precision, value);
  length = std::min(text.size(), kDisplayBufferSize);
  std::memcpy(buffer, text.data(), length);
  return length;
}

std::string FormatDisplay(double value, int index) {
  char buffer[kDisplayBufferSize];
  return std::string(buffer, FormatDisplayTo(buffer, value, index));
}

}  // namespace results
