#pragma once
#include <cstdint>
#include <string>

// Numbers of the results reports are printed by each quantity's display format index: 0 to 5
// fixed notation with 1 to 6 decimals, 6 to 11 exponential notation with 1 to 6 decimals.
namespace results {

struct DisplayFormatSpec {
  char letter;    // 'f' or 'e'
  int precision;  // decimals
};

// The letter and decimals of an index; indices outside 0..11 are taken as the nearest.
DisplayFormatSpec GetDisplayFormat(int index);

// The printf format of an index, built from "%%.*%c": "%.*f" or "%.*e" (applied with the
// precision as its first argument).
std::string DisplayFormatString(int index);

// The format piece the information sheets build into their lines, from "%%.%d%c": "%.3f".
std::string LineFormatPiece(int index);

// The value printed as DisplayFormatString(index) prints it with its precision; grids of
// millions of cells are filled through here.
std::string FormatDisplay(double value, int index);
// The same into a buffer of at least kDisplayBufferSize characters; returns the length.
inline constexpr size_t kDisplayBufferSize = 400;
size_t FormatDisplayTo(char* buffer, double value, int index);

}  // namespace results
