#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "tools/shape_table.h"

// The bundled shape tables are built from our own source form (data/aisc-shapes.txt)
// and the lumber sizes; the binary files are committed beside it, and a test checks that
// they are what this builder makes.
namespace tools {

inline constexpr const char* kAiscSourceFile = "aisc-shapes.txt";

// Throws fmException naming the line of a fault.
std::vector<fmSect_AISC> ParseAiscSource(std::string_view text, const std::string& fileName);

struct BundledTables {
  std::string aiscIndex, aiscTable, nds;
};
BundledTables BuildBundledTables(const std::string& dataDir);
// Builds and writes aisc14u.idx, aisc14u.tbl and nds.tbl into dataDir.
void WriteBundledTables(const std::string& dataDir);

}  // namespace tools
