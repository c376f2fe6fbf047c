#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "support/TempDir.h"
#include "support/files.h"
#include "tools/atomic_file.h"

namespace {

struct AtomicFileTest : ::testing::Test {
  std::string Path(const std::string& name) const { return dir / name; }
  TempDir dir;
};

}  // namespace

TEST_F(AtomicFileTest, ReplacesWithoutLeavingTemporariesAndAppendsWithoutTruncating) {
  const std::string path = Path("model.json");
  tools::WriteFileAtomically(path, "first, longer than the second");
  tools::WriteFileAtomically(path, "second");
  EXPECT_EQ(ReadFileText(path), "second");
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"model.json"});
  tools::AppendToFile(path, "\r\nthird\r\n");
  EXPECT_EQ(tools::ReadWholeFile(path), "second\r\nthird\r\n");
}

TEST_F(AtomicFileTest, FailureInTheMiddleOfWritingKeepsTheOldFile) {
  const std::string path = Path("model.json");
  tools::WriteFileAtomically(path, "the old model");
  // A file-size limit makes the write fail half-way, as a full disk would.
  struct rlimit old {};
  getrlimit(RLIMIT_FSIZE, &old);
  const struct rlimit small {4096, old.rlim_max};
  const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  std::string message;
  try {
    tools::WriteFileAtomically(path, std::string(100000, 'n'));
  } catch (const tools::FileError& e) {
    message = e.what();
  }
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, previousHandler);
  EXPECT_NE(message.find("Cannot write \"" + path + "\""), std::string::npos) << message;
  EXPECT_EQ(ReadFileText(path), "the old model");
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"model.json"}) << "no partial file is left behind";
}

TEST_F(AtomicFileTest, WritingRefusalsNameTheReasonAndChangeNothing) {
  const std::string taken = Path("taken");
  std::filesystem::create_directory(taken);
  EXPECT_THROW(tools::WriteFileAtomically(taken, "data"), tools::FileError);
  const std::string folder = Path("no-such-folder"), path = folder + "/model.json";
  try {
    tools::WriteFileAtomically(path, "data");
    FAIL() << "writing into a missing folder succeeded";
  } catch (const tools::FileError& e) {
    EXPECT_EQ(std::string(e.what()), "Cannot write \"" + path + "\": the folder \"" + folder + "\" does not exist");
  }
  EXPECT_THROW(tools::AppendToFile(path, "data"), tools::FileError);
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"taken"});
}
