#pragma once
#include <cstdio>
#include <cstdlib>
#include <string_view>

// A broken promise found by a fuzz target: said on stderr, then abort, which libFuzzer
// records as a crash with the input that caused it.
inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

inline std::string_view TextOf(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}
