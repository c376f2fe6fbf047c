// The binary shape tables: the first two bytes (little-endian) give the length of the steel
// index, its table follows; the whole input is also read as a lumber table. Any bytes are read or refused
// with fmException, and what is read writes back to the same bytes.
#include <cstdint>
#include <string>

#include "fuzz/fuzz_check.h"
#include "tools/fm_exception.h"
#include "tools/shape_table.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const std::string_view all = TextOf(data + 2, size - 2);
  const size_t split = std::min(all.size(), static_cast<size_t>(data[0] | data[1] << 8));
  try {
    const tools::AiscLibrary library = tools::AiscLibrary::Parse(all.substr(0, split), all.substr(split), "fuzz");
    const tools::AiscLibrary again = tools::AiscLibrary::Parse(library.SerializeIndex(), library.SerializeTable(), "again");
    Require(again.shapes() == library.shapes(), "a steel library read writes back unchanged");
  } catch (const fmException&) {
  }
  try {
    const std::vector<tools::fmSect_NDS> lumber = tools::ParseNdsTable(all, "fuzz");
    Require(tools::ParseNdsTable(tools::SerializeNdsTable(lumber), "again") == lumber,
            "a lumber table read writes back unchanged");
  } catch (const fmException&) {
  }
  return 0;
}
