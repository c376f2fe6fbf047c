// Typed cell reading: whatever a cell holds reads as a finite number in range or not at
// all, and a number read prints back to the same value.
#include <cmath>
#include <cstdint>
#include <string>

#include "fuzz/fuzz_check.h"
#include "tools/format.h"
#include "tools/parse.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text = TextOf(data, size);
  if (const auto d = tools::ParseDouble(text)) {
    Require(std::isfinite(*d), "a cell reads as a finite number");
    Require(tools::ParseDouble(tools::Format("%.17g", *d)) == *d, "a number prints back to itself");
  }
  if (const auto i = tools::ParseInt(text)) {
    Require(tools::ParseInt(tools::Format("%lld", static_cast<long long>(*i))) == *i, "a whole number prints back");
    Require(tools::ParseDouble(text).has_value(), "a whole number is also a number");
  }
  if (const auto i = tools::ParseInt32(text)) Require(tools::ParseInt(text) == int64_t{*i}, "32-bit reading agrees");
  if (const auto u = tools::ParseUInt32(text)) Require(tools::ParseInt(text) == int64_t{*u}, "unsigned reading agrees");
  return 0;
}
