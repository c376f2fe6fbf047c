#include "tools/utf8.h"

namespace tools {

std::string CutToChars(std::string_view text, size_t maxChars) {
  size_t chars = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    // A continuation byte (10xxxxxx) belongs to the character before it.
    if ((static_cast<unsigned char>(text[i]) & 0xC0) == 0x80) continue;
    if (chars == maxChars) return std::string(text.substr(0, i));
    ++chars;
  }
  return std::string(text);
}

}  // namespace tools
