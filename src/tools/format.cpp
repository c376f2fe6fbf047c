#include "tools/format.h"

#include <algorithm>

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

std::string_view FormatG(double value, std::array<char, 32>& buffer) {
  // to_chars with a precision prints exactly as printf's "%g" in the C locale, and quickly:
  // grids of a million rows are filled through here.
  const auto [end, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::general, 6);
  if (ec == std::errc()) return std::string_view(buffer.data(), static_cast<size_t>(end - buffer.data()));
  const std::string text = Format("%g", value);
  const size_t size = std::min(text.size(), buffer.size());
  std::copy_n(text.data(), size, buffer.data());
  return std::string_view(buffer.data(), size);
}

std::string FormatG(double value) {
  std::array<char, 32> buffer;
  return std::string(FormatG(value, buffer));
}

std::string FormatInt(long long value) {
  char buffer[24];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, ec == std::errc() ? end : buffer);
}

void AppendHtmlEscaped(std::string& out, std::string_view text) {
  for (char c : text) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      case '\'': out += "&#39;"; break;
      default: out += c;
    }
  }
}

std::string HtmlEscape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  AppendHtmlEscaped(out, text);
  return out;
}

}  // namespace tools
