#include "tools/format.h"

#include <charconv>
#include <clocale>
#include <cstdarg>
#include <cstdio>
#include <locale.h>

namespace tools {
namespace {

locale_t CLocale() {
  static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
  return c;
}

}  // namespace

ScopedCLocale::ScopedCLocale() : previous_(uselocale(CLocale())) {}
ScopedCLocale::~ScopedCLocale() { uselocale(previous_); }

std::string Format(const char* fmt, ...) {
  ScopedCLocale c_locale;
  char small[256];
  va_list args;
  va_start(args, fmt);
  va_list copy;
  va_copy(copy, args);
  const int n = std::vsnprintf(small, sizeof small, fmt, args);
  va_end(args);
  std::string out;
  if (n < 0) {
    va_end(copy);
    return out;
  }
  if (static_cast<size_t>(n) < sizeof small) {
    out.assign(small, static_cast<size_t>(n));
  } else {
    out.resize(static_cast<size_t>(n) + 1);
    std::vsnprintf(out.data(), out.size(), fmt, copy);
    out.resize(static_cast<size_t>(n));
  }
  va_end(copy);
  return out;
}

std::string FormatG(double value) {
  // to_chars with a precision prints exactly as printf's "%g" in the C locale, and quickly:
  // grids of a million rows are filled through here.
  char buffer[64];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
  if (ec != std::errc()) return Format("%g", value);
  return std::string(buffer, end);
}

std::string FormatInt(long long value) {
  char buffer[24];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, ec == std::errc() ? end : buffer);
}

}  // namespace tools
