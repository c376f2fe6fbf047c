#include "tools/utf8.h"

namespace tools {
namespace {
bool IsContinuation(unsigned char c) { return (c & 0xC0) == 0x80; }
}  // namespace

size_t CountCharacters(std::string_view text) {
  size_t n = 0;
  for (unsigned char c : text)
    if (!IsContinuation(c)) ++n;
  return n;
}

std::string_view CutToCharacters(std::string_view text, size_t maxChars) {
  size_t chars = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsContinuation(static_cast<unsigned char>(text[i]))) continue;
    if (chars == maxChars) return text.substr(0, i);
    ++chars;
  }
  return text;
}

}  // namespace tools
