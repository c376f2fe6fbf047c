#pragma once
#include <cstdint>
#include <span>

// Code point classes and simple case folding, generated from the Unicode character
// database (scripts/gen_unicode_tables.py), so labels behave alike on every machine
// whatever locales it has installed.
namespace tools::unicode {

struct CodeRange {
  char32_t first, last;
};

// Code points first..last, every step-th of them, fold to code point + delta.
struct FoldRun {
  char32_t first, last;
  int32_t step, delta;
};

std::span<const CodeRange> Letters();  // general categories L*
std::span<const CodeRange> Marks();    // M*: combining marks
std::span<const CodeRange> Digits();   // Nd
std::span<const FoldRun> FoldRuns();
const char* DatabaseVersion();

}  // namespace tools::unicode
