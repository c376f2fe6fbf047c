#pragma once
#include <string>

namespace tools {

// The folder of the read-only data installed with the program (shape tables, the example
// model): share/norvane under the prefix the engine library was installed to, found from
// where that library was loaded, so that a copy installed under any prefix finds its own
// data. The build folder stages the same layout beside its libraries. Empty when the
// library's own path cannot be found.
std::string InstalledDataDirectory();

}  // namespace tools
