#pragma once
#include <cstddef>
#include <string>
#include <string_view>

// Labels of load cases, combinations, sections and materials: UTF-8 texts of at most 127
// characters, compared without regard to case in every script.
namespace tools {

inline constexpr size_t kMaxLabelChars = 127;

// Empty when the label is acceptable; otherwise a text that completes messages such as
// "Load case label can only %s" into a sentence telling what a label may hold and, where
// it can, what is wrong with this one.
std::string IsValidLabel(std::string_view label);

// The first maxChars characters (code points) of the text. A cut never splits a UTF-8
// sequence, and never separates a letter from the combining marks that follow it.
std::string CutLabel(std::string_view text, size_t maxChars = kMaxLabelChars);

// Number of characters (code points); a byte that is not valid UTF-8 counts as one.
size_t CountChars(std::string_view text);

// Case-insensitive comparison by simple Unicode case folding ("Dead" = "DEAD",
// "Überlast" = "überlast", "ΣΤΑΘΕΡΑ" = "σταθερα").
bool LabelsEqual(std::string_view a, std::string_view b);
bool LabelStartsWith(std::string_view label, std::string_view prefix);
// The folded form, for sets and maps keyed without regard to case.
std::string FoldCase(std::string_view text);

// One code point decoded from text at pos; returns the bytes used (at least 1). A byte
// that does not start a valid, shortest-form sequence gives U+FFFD and ok = false.
size_t DecodeUtf8(std::string_view text, size_t pos, char32_t& cp, bool& ok);
void AppendUtf8(std::string& out, char32_t cp);
// Byte offset of the first byte that is not part of valid UTF-8 (an overlong form, a
// surrogate, a code point above U+10FFFF, a stray or missing continuation byte); npos when
// the whole text is valid. Every reader of text from a file checks it with this.
size_t FirstInvalidUtf8(std::string_view text);

bool IsLetter(char32_t cp);
bool IsCombiningMark(char32_t cp);
bool IsDecimalDigit(char32_t cp);
char32_t FoldChar(char32_t cp);

}  // namespace tools
