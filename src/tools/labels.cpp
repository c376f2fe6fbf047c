#include "tools/labels.h"

namespace tools {
namespace {

constexpr const char* kLabelRule =
    "contain letters, digits and the characters _ - . / ( ) + # and must not be empty";

// Length of the UTF-8 sequence that starts at text[i], or 0 when it is malformed.
size_t Utf8Length(std::string_view text, size_t i) {
  const auto c = static_cast<unsigned char>(text[i]);
  size_t n = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 0;
  if (n == 0 || i + n > text.size()) return 0;
  for (size_t k = 1; k < n; ++k)
    if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return 0;
  return n;
}

}  // namespace

std::string IsValidLabel(std::string_view label) {
  if (label.empty()) return kLabelRule;
  for (size_t i = 0; i < label.size();) {
    const size_t n = Utf8Length(label, i);
    if (n == 0) return kLabelRule;
    if (n == 1) {
      const char c = label[i];
      const bool ok = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                      std::string_view("_-./()+#").find(c) != std::string_view::npos;
      if (!ok) return kLabelRule;
    }
    // Letters of other scripts are welcome: engineers label in their own language.
    i += n;
  }
  return {};
}

}  // namespace tools
