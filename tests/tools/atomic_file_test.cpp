#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/TempDir.h"
#include "support/file_size_limit.h"
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

// A file-size limit makes a write fail half-way, as a full disk would; the message of the failure.
std::string FailingPastFileSize(const std::function<void()>& write) {
  return WithFileSizeLimit(4096, [&]() -> std::string {
    try {
      write();
    } catch (const tools::FileError& e) {
      return e.what();
    }
    return "written";
  });
}

TEST_F(AtomicFileTest, FailureInTheMiddleOfWritingKeepsTheOldFile) {
  const std::string path = Path("model.json");
  tools::WriteFileAtomically(path, "the old model");
  EXPECT_EQ(FailingPastFileSize([&] { tools::WriteFileAtomically(path, std::string(100000, 'n')); }),
            "Cannot write \"" + path + "\": File too large");
  EXPECT_EQ(ReadFileText(path), "the old model");
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"model.json"}) << "no partial file is left behind";

  // An append that fails leaves the file exactly as it was, never with part of a table.
  tools::AppendToFile(path, "\r\nfirst table\r\n");
  EXPECT_EQ(FailingPastFileSize([&] { tools::AppendToFile(path, std::string(100000, 'a')); }),
            "Cannot write \"" + path + "\": File too large");
  EXPECT_EQ(ReadFileText(path), "the old model\r\nfirst table\r\n");

  // A full disk, in the system's words.
  if (access("/dev/full", W_OK) == 0) {
    try {
      tools::AppendToFile("/dev/full", "a table");
      ADD_FAILURE() << "writing to /dev/full succeeded";
    } catch (const tools::FileError& e) {
      EXPECT_EQ(std::string(e.what()), "Cannot write \"/dev/full\": No space left on device");
    }
  }
}

TEST_F(AtomicFileTest, FilesWrittenTogetherAreAllReplacedOrAllKept) {
  const std::string index = Path("shapes.idx"), table = Path("shapes.tbl");
  tools::WriteFilesTogether({{index, "old index"}, {table, "old table"}});
  // The small index would fit under the limit; the table does not, so neither changes.
  EXPECT_EQ(FailingPastFileSize([&] {
              tools::WriteFilesTogether({{index, "new index"}, {table, std::string(100000, 't')}});
            }),
            "Cannot write \"" + table + "\": File too large");
  EXPECT_EQ(ReadFileText(index), "old index");
  EXPECT_EQ(ReadFileText(table), "old table");
  // A target whose folder is missing is found before anything is replaced, too.
  const std::string lost = Path("lost.tbl");
  std::filesystem::create_symlink(Path("gone") + "/lost.tbl", lost);
  EXPECT_THROW(tools::WriteFilesTogether({{index, "new index"}, {lost, "x"}}), tools::FileError);
  EXPECT_EQ(ReadFileText(index), "old index");
  std::filesystem::remove(lost);
  EXPECT_EQ(FolderEntries(dir.path()), (std::vector<std::string>{"shapes.idx", "shapes.tbl"})) << "no temporary is left";
  tools::WriteFilesTogether({{index, "new index"}, {table, "new table"}});
  EXPECT_EQ(ReadFileText(index) + ReadFileText(table), "new indexnew table");
}

TEST_F(AtomicFileTest, ReplacingKeepsTheModeAndWritesThroughSymbolicLinks) {
  namespace fs = std::filesystem;
  const std::string model = Path("model.json");
  tools::WriteFileAtomically(model, "old");
  fs::permissions(model, fs::perms::owner_read | fs::perms::owner_write);
  tools::WriteFileAtomically(model, "new");
  EXPECT_EQ(fs::status(model).permissions(), fs::perms::owner_read | fs::perms::owner_write);

  // A link, a link to that link (relative, from another folder) and a link to a file not yet there.
  fs::create_directory(Path("links"));
  fs::create_symlink("model.json", Path("latest.json"));
  fs::create_symlink("../latest.json", Path("links/current.json"));
  fs::create_symlink("report.txt", Path("report-link.txt"));
  tools::WriteFileAtomically(Path("links/current.json"), "through two links");
  tools::ReplaceFileWith(Path("report-link.txt"), [](const std::string& temp) { WriteFileText(temp, "made"); });
  EXPECT_TRUE(fs::is_symlink(Path("latest.json")) && fs::is_symlink(Path("links/current.json")) &&
              fs::is_symlink(Path("report-link.txt")));
  EXPECT_EQ(ReadFileText(model), "through two links");
  EXPECT_EQ(ReadFileText(Path("report.txt")), "made");
  EXPECT_EQ(fs::status(model).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(FolderEntries(dir.path()),
            (std::vector<std::string>{"latest.json", "links", "model.json", "report-link.txt", "report.txt"}));

  fs::create_symlink("loop-b", Path("loop-a"));
  fs::create_symlink("loop-a", Path("loop-b"));
  EXPECT_THROW(tools::WriteFileAtomically(Path("loop-a"), "x"), tools::FileError);
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
