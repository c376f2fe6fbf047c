#include "tools/data_location.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

namespace tools {

std::string InstalledDataDirectory() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&InstalledDataDirectory), &info) == 0 || !info.dli_fname ||
      !*info.dli_fname)
    return {};
  std::error_code ec;
  const std::filesystem::path library = std::filesystem::canonical(info.dli_fname, ec);
  if (ec) return {};
  // NORVANE_LIBDIR_TO_DATADIR: the installed data folder relative to the installed library
  // folder (e.g. "../../share/norvane" for lib/x86_64-linux-gnu), set by the build.
  return (library.parent_path() / NORVANE_LIBDIR_TO_DATADIR).lexically_normal().string();
}

}  // namespace tools
