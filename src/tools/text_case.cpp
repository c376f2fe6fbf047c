#include "tools/text_case.h"

#include <locale.h>
#include <wctype.h>

namespace tools {
namespace {

// Case mappings come from the C library's Unicode tables, independent of the user's locale.
locale_t UnicodeLocale() {
  static const locale_t loc = [] {
    locale_t l = newlocale(LC_CTYPE_MASK, "C.UTF-8", static_cast<locale_t>(nullptr));
    return l ? l : newlocale(LC_CTYPE_MASK, "C", static_cast<locale_t>(nullptr));
  }();
  return loc;
}

// Decodes one UTF-8 sequence at text[i]; returns its length, 0 when invalid.
size_t Decode(std::string_view text, size_t i, char32_t& cp) {
  const unsigned char c = static_cast<unsigned char>(text[i]);
  size_t len = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 0;
  if (len == 0 || i + len > text.size()) return 0;
  cp = len == 1 ? c : len == 2 ? (c & 0x1F) : len == 3 ? (c & 0x0F) : (c & 0x07);
  for (size_t k = 1; k < len; ++k) {
    const unsigned char cc = static_cast<unsigned char>(text[i + k]);
    if ((cc & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (cc & 0x3F);
  }
  return len;
}

void Encode(char32_t cp, std::string& out) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

}  // namespace

std::string FoldCase(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size();) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c < 0x80) {
      out += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
      ++i;
      continue;
    }
    char32_t cp = 0;
    const size_t len = Decode(text, i, cp);
    if (len == 0) {
      out += static_cast<char>(c);
      ++i;
      continue;
    }
    Encode(static_cast<char32_t>(towlower_l(static_cast<wint_t>(cp), UnicodeLocale())), out);
    i += len;
  }
  return out;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) { return FoldCase(a) == FoldCase(b); }

}  // namespace tools
