#include <gtest/gtest.h>

#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tools/atomic_file.h"

namespace fs = std::filesystem;

namespace {

class AtomicFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "norvane-atomic.XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    dir = pattern;
  }
  void TearDown() override { fs::remove_all(dir); }

  std::string Path(const std::string& name) const { return (dir / name).string(); }
  static std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
  }
  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& e : fs::directory_iterator(dir)) names.push_back(e.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  fs::path dir;
};

}  // namespace

TEST_F(AtomicFileTest, WritesAndReplacesWithoutLeavingTemporaries) {
  const std::string path = Path("model.json");
  tools::WriteFileAtomically(path, "first");
  EXPECT_EQ(Read(path), "first");
  tools::WriteFileAtomically(path, "second, longer than the first");
  EXPECT_EQ(Read(path), "second, longer than the first");
  tools::WriteFileAtomically(path, "");
  EXPECT_EQ(Read(path), "");
  EXPECT_EQ(Entries(), std::vector<std::string>{"model.json"});
  EXPECT_EQ(tools::ReadWholeFile(path), "");
}

TEST_F(AtomicFileTest, FailureInTheMiddleOfWritingKeepsTheOldFile) {
  const std::string path = Path("model.json");
  tools::WriteFileAtomically(path, "the old model");
  // A file-size limit makes the write fail half-way, as a full disk would.
  struct rlimit old {};
  getrlimit(RLIMIT_FSIZE, &old);
  struct rlimit small = old;
  small.rlim_cur = 4096;
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
  EXPECT_EQ(Read(path), "the old model");
  EXPECT_EQ(Entries(), std::vector<std::string>{"model.json"}) << "no partial file is left behind";
}

TEST_F(AtomicFileTest, ReplacingAFolderFailsAndLeavesIt) {
  const std::string path = Path("taken");
  fs::create_directory(path);
  EXPECT_THROW(tools::WriteFileAtomically(path, "data"), tools::FileError);
  EXPECT_TRUE(fs::is_directory(path));
  EXPECT_EQ(Entries(), std::vector<std::string>{"taken"});
}

TEST_F(AtomicFileTest, MissingFolderIsNamedInTheMessage) {
  const std::string folder = Path("no-such-folder");
  const std::string path = folder + "/model.json";
  try {
    tools::WriteFileAtomically(path, "data");
    FAIL() << "writing into a missing folder succeeded";
  } catch (const tools::FileError& e) {
    EXPECT_EQ(std::string(e.what()), "Cannot write \"" + path + "\": the folder \"" + folder + "\" does not exist");
    EXPECT_EQ(e.reason(), "the folder \"" + folder + "\" does not exist");
  }
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_THROW(tools::AppendToFile(path, "data"), tools::FileError);
}

TEST_F(AtomicFileTest, AppendingNeverTruncates) {
  const std::string path = Path("report.txt");
  tools::AppendToFile(path, "one\r\n");
  tools::AppendToFile(path, "two\r\n");
  EXPECT_EQ(Read(path), "one\r\ntwo\r\n");
}

TEST_F(AtomicFileTest, ReadingRefusesWhatIsNotAReadableFile) {
  struct Case {
    std::string path;
    std::string reason;
  };
  fs::create_directory(Path("folder"));
  tools::WriteFileAtomically(Path("big"), std::string(2000, 'b'));
  const Case cases[] = {
      {Path("missing.json"), "No such file or directory"},  // in English, whatever the locale
      {Path("folder"), "it is a folder, not a file"},
      {Path("big"), "the file is too large (2000 bytes)"},
  };
  for (const Case& c : cases) {
    try {
      tools::ReadWholeFile(c.path, 1000);
      ADD_FAILURE() << c.path << " was read";
    } catch (const tools::FileError& e) {
      EXPECT_EQ(e.reason(), c.reason) << c.path;
      EXPECT_NE(std::string(e.what()).find(c.path), std::string::npos) << e.what();
    }
  }
}
