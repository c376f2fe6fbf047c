#include "tools/data_location.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "tools/shape_table.h"

namespace {

namespace fs = std::filesystem;

// Sets or clears an environment variable for one scope.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    value ? setenv(name, value, 1) : unsetenv(name);
  }
  ~ScopedEnv() { old_ ? setenv(name_, old_->c_str(), 1) : unsetenv(name_); }

 private:
  const char* name_;
  std::optional<std::string> old_;
};

}  // namespace

// The build folder stages the installed layout: the data sits in share/norvane beside the
// library's prefix, a copy of the source's data and example, never the source folder itself.
TEST(DataLocation, TheBuildFolderHoldsTheInstalledLayout) {
  const fs::path data = tools::InstalledDataDirectory();
  ASSERT_FALSE(data.empty());
  EXPECT_EQ(data.filename(), "norvane");
  EXPECT_EQ(data.parent_path().filename(), "share");
  for (const char* file : {"aisc14u.idx", "aisc14u.tbl", "nds.tbl", "examples/building.json"})
    EXPECT_TRUE(fs::is_regular_file(data / file)) << data / file;
  EXPECT_NE(fs::canonical(data), fs::canonical(NORVANE_SOURCE_DATA_DIR));
  EXPECT_EQ(fs::file_size(data / "aisc14u.tbl"), fs::file_size(fs::path(NORVANE_SOURCE_DATA_DIR) / "aisc14u.tbl"));
}

TEST(DataLocation, NorvaneDataDirOverridesTheInstalledFolder) {
  {
    const ScopedEnv unset("NORVANE_DATA_DIR", nullptr);
    EXPECT_EQ(tools::DefaultShapeLibraryLocations().installed, tools::InstalledDataDirectory());
  }
  const ScopedEnv set("NORVANE_DATA_DIR", "/opt/shapes");
  EXPECT_EQ(tools::DefaultShapeLibraryLocations().installed, "/opt/shapes");
}
