#include "tools/labels.h"

#include <algorithm>

#include "tools/format.h"
#include "tools/unicode_tables.h"

namespace tools {
namespace {

bool InRanges(std::span<const unicode::CodeRange> ranges, char32_t cp) {
  const auto it = std::upper_bound(ranges.begin(), ranges.end(), cp,
                                   [](char32_t c, const unicode::CodeRange& r) { return c < r.first; });
  return it != ranges.begin() && cp <= std::prev(it)->last;
}

bool IsSeparator(char32_t cp) {
  switch (cp) {
    case '_': case '-': case '.': case '(': case ')': case '+': case '/': return true;
    default: return false;
  }
}

constexpr const char* kWhatALabelHolds =
    "contain letters, digits, blanks between words and the characters _ - . ( ) + /";

// How a character that is not allowed is named to the user.
std::string DescribeChar(char32_t cp, bool validUtf8) {
  if (!validUtf8) return "a byte that is not valid UTF-8";
  const bool control = cp < 0x20 || (cp >= 0x7F && cp <= 0x9F);
  if (control || cp == 0xA0 || cp == 0x2028 || cp == 0x2029 || (cp >= 0x2000 && cp <= 0x200F) || cp == 0xFEFF)
    return Format("the character U+%04X", static_cast<unsigned>(cp));
  std::string quoted = "the character \"";
  AppendUtf8(quoted, cp);
  quoted += "\"";
  if (cp >= 0x80) quoted += Format(" (U+%04X)", static_cast<unsigned>(cp));
  return quoted;
}

}  // namespace

size_t DecodeUtf8(std::string_view text, size_t pos, char32_t& cp, bool& ok) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char b0 = byte(pos);
  ok = false;
  cp = 0xFFFD;
  if (b0 < 0x80) {
    cp = b0;
    ok = true;
    return 1;
  }
  size_t len;
  char32_t value, minimum;
  if (b0 >= 0xC2 && b0 <= 0xDF) {
    len = 2, value = b0 & 0x1F, minimum = 0x80;
  } else if (b0 >= 0xE0 && b0 <= 0xEF) {
    len = 3, value = b0 & 0x0F, minimum = 0x800;
  } else if (b0 >= 0xF0 && b0 <= 0xF4) {
    len = 4, value = b0 & 0x07, minimum = 0x10000;
  } else {
    return 1;
  }
  if (pos + len > text.size()) return 1;
  for (size_t i = 1; i < len; ++i) {
    const unsigned char b = byte(pos + i);
    if ((b & 0xC0) != 0x80) return 1;
    value = (value << 6) | (b & 0x3F);
  }
  if (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) return 1;
  cp = value;
  ok = true;
  return len;
}

size_t FirstInvalidUtf8(std::string_view text) {
  size_t pos = 0;
  while (pos < text.size()) {
    // ASCII runs are the common case.
    if (static_cast<unsigned char>(text[pos]) < 0x80) {
      ++pos;
      continue;
    }
    char32_t cp;
    bool ok;
    const size_t n = DecodeUtf8(text, pos, cp, ok);
    if (!ok) return pos;
    pos += n;
  }
  return std::string_view::npos;
}

void AppendUtf8(std::string& out, char32_t cp) {
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

bool IsLetter(char32_t cp) {
  if (cp < 0x80) return (cp >= 'a' && cp <= 'z') || (cp >= 'A' && cp <= 'Z');
  return InRanges(unicode::Letters(), cp);
}

bool IsCombiningMark(char32_t cp) { return cp >= 0x300 && InRanges(unicode::Marks(), cp); }

bool IsDecimalDigit(char32_t cp) {
  if (cp < 0x80) return cp >= '0' && cp <= '9';
  return InRanges(unicode::Digits(), cp);
}

char32_t FoldChar(char32_t cp) {
  if (cp < 0x80) return (cp >= 'A' && cp <= 'Z') ? cp + 32 : cp;
  const auto runs = unicode::FoldRuns();
  const auto it = std::upper_bound(runs.begin(), runs.end(), cp,
                                   [](char32_t c, const unicode::FoldRun& r) { return c < r.first; });
  if (it == runs.begin()) return cp;
  const unicode::FoldRun& run = *std::prev(it);
  if (cp > run.last || (cp - run.first) % static_cast<char32_t>(run.step) != 0) return cp;
  return static_cast<char32_t>(static_cast<int64_t>(cp) + run.delta);
}

std::string IsValidLabel(std::string_view label) {
  if (label.empty()) return std::string(kWhatALabelHolds) + ", and may not be empty.";
  size_t pos = 0, position = 0;
  bool previousIsBase = false;  // a combining mark must follow a letter, digit or mark
  char32_t cp = 0;
  while (pos < label.size()) {
    bool ok;
    const size_t n = DecodeUtf8(label, pos, cp, ok);
    ++position;
    bool allowed = false;
    if (ok) {
      if (IsLetter(cp) || IsDecimalDigit(cp)) {
        allowed = true;
        previousIsBase = true;
      } else if (IsCombiningMark(cp)) {
        allowed = previousIsBase;
      } else if (cp == ' ') {
        if (position == 1) return std::string(kWhatALabelHolds) + "; it may not begin with a blank.";
        allowed = true;
        previousIsBase = false;
      } else if (IsSeparator(cp)) {
        allowed = true;
        previousIsBase = false;
      }
    }
    if (!allowed)
      return std::string(kWhatALabelHolds) + Format("; %s at position %zu is not allowed.",
                                                    DescribeChar(cp, ok).c_str(), position);
    pos += n;
  }
  if (cp == ' ') return std::string(kWhatALabelHolds) + "; it may not end with a blank.";
  return {};
}

size_t CountChars(std::string_view text) {
  size_t count = 0;
  for (size_t pos = 0; pos < text.size(); ++count) {
    char32_t cp;
    bool ok;
    pos += DecodeUtf8(text, pos, cp, ok);
  }
  return count;
}

std::string CutLabel(std::string_view text, size_t maxChars) {
  size_t pos = 0, count = 0, lastBaseStart = 0;
  while (pos < text.size() && count < maxChars) {
    char32_t cp;
    bool ok;
    const size_t n = DecodeUtf8(text, pos, cp, ok);
    if (!(ok && IsCombiningMark(cp))) lastBaseStart = pos;
    pos += n;
    ++count;
  }
  if (pos < text.size()) {
    char32_t next;
    bool ok;
    DecodeUtf8(text, pos, next, ok);
    // The letter whose marks would be cut off goes with them.
    if (ok && IsCombiningMark(next)) pos = lastBaseStart;
  }
  return std::string(text.substr(0, pos));
}

std::string FoldCase(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  size_t pos = 0;
  while (pos < text.size()) {
    char32_t cp;
    bool ok;
    const size_t n = DecodeUtf8(text, pos, cp, ok);
    if (ok)
      AppendUtf8(out, FoldChar(cp));
    else
      out += text[pos];
    pos += n;
  }
  return out;
}

namespace {

// Length in bytes of the leading run where both texts are ASCII and fold alike; the
// rest must be compared by code points, since folding can change a character's length
// (U+212A KELVIN SIGN folds to "k").
size_t AsciiFoldedPrefix(std::string_view a, std::string_view b, bool& differ) {
  differ = false;
  size_t i = 0;
  for (; i < a.size() && i < b.size(); ++i) {
    const unsigned char x = a[i], y = b[i];
    if ((x | y) & 0x80) break;
    if (FoldChar(x) != FoldChar(y)) {
      differ = true;
      break;
    }
  }
  return i;
}

// The next folded code point of text at pos, advancing pos; bytes that are not UTF-8
// stand for themselves, never equal to any character.
char32_t NextFolded(std::string_view text, size_t& pos) {
  char32_t cp;
  bool ok;
  const size_t n = DecodeUtf8(text, pos, cp, ok);
  const char32_t folded = ok ? FoldChar(cp) : 0x110000u + static_cast<unsigned char>(text[pos]);
  pos += n;
  return folded;
}

}  // namespace

bool LabelsEqual(std::string_view a, std::string_view b) {
  bool differ;
  size_t i = AsciiFoldedPrefix(a, b, differ);
  if (differ) return false;
  size_t j = i;
  while (i < a.size() && j < b.size())
    if (NextFolded(a, i) != NextFolded(b, j)) return false;
  return i == a.size() && j == b.size();
}

bool LabelStartsWith(std::string_view label, std::string_view prefix) {
  bool differ;
  size_t i = AsciiFoldedPrefix(label, prefix, differ);
  if (differ) return false;
  size_t j = i;
  while (i < label.size() && j < prefix.size())
    if (NextFolded(label, i) != NextFolded(prefix, j)) return false;
  return j == prefix.size();
}

}  // namespace tools
