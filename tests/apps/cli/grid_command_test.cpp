#include <gtest/gtest.h>

#include "support/TempDir.h"
#include "support/files.h"

namespace {

struct CliRun {
  int status;
  std::string output;  // standard output and error together
};

CliRun Cli(const std::string& args) {
  int status = -1;
  std::string out = CommandOutput(std::string(NORVANE_CLI_PATH) + " " + args + " 2>&1", &status);
  return {status, out};
}

const std::string kModel = std::string(NORVANE_EXAMPLES_DIR) + "/building.json";

}  // namespace

TEST(CliGridExport, WritesTheNodeTableInTheFormatOfTheExtension) {
  TempDir dir;
  const CliRun txt = Cli("grid export " + kModel + " nodes " + dir / "n.txt");
  EXPECT_EQ(txt.status, 0) << txt.output;
  const std::string text = ReadFileText(dir / "n.txt");
  EXPECT_TRUE(text.starts_with("Node Id\tX [ft]\tY [ft]\tZ [ft]\tStatus\r\n1\t0\t0\t0\tNormal\r\n")) << text;
  EXPECT_TRUE(text.ends_with("18\t40\t24\t25\tNormal\r\n")) << text;

  // Appends only when asked.
  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir / "n.txt").status, 0);
  EXPECT_EQ(ReadFileText(dir / "n.txt"), text);
  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir / "n.txt" + " --append").status, 0);
  EXPECT_EQ(ReadFileText(dir / "n.txt"), text + text);

  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir / "n.HTM").status, 0);
  EXPECT_NE(ReadFileText(dir / "n.HTM").find("<caption>Node Table</caption>"), std::string::npos);
  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir / "n.xlsx").status, 0);
  EXPECT_TRUE(ReadFileText(dir / "n.xlsx").starts_with("PK"));
}

TEST(CliGridExport, RefusalsGiveAMessageAnExitStatusAndNoFile) {
  TempDir dir;
  WriteFileText(dir / "broken.json", "{\"format\": ");
  struct Case {
    std::string args;
    int status;
    std::string message;
  };
  const std::vector<Case> cases = {
      {"grid export " + kModel + " nodes " + dir / "n.csv", 1, "Invalid file format specified"},
      {"grid export " + kModel + " nodes " + dir / "n.csv" + " --append", 1, "Invalid file format specified"},
      {"grid export " + kModel + " members " + dir / "n.txt", 2, "unknown table \"members\" (tables: nodes)"},
      {"grid export " + dir / "missing.json" + " nodes " + dir / "n.txt", 1, "No such file or directory"},
      {"grid export " + dir / "broken.json" + " nodes " + dir / "n.txt", 1, "Cannot open model"},
      {"grid export " + kModel + " nodes " + dir / "no/n.txt", 1,
       "Cannot write \"" + dir / "no/n.txt" + "\": the folder \"" + dir / "no" + "\" does not exist"},
      {"grid export " + kModel + " nodes", 2, "usage: norvane-cli grid export MODEL TABLE OUT [--append]"},
      {"grid export " + kModel + " nodes " + dir / "n.txt" + " --force", 2, "unknown option --force"},
      {"grid print", 2, "usage:"},
  };
  for (const auto& c : cases) {
    const CliRun run = Cli(c.args);
    EXPECT_EQ(run.status, c.status) << c.args << "\n" << run.output;
    EXPECT_NE(run.output.find(c.message), std::string::npos) << c.args << "\n" << run.output;
  }
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"broken.json"});
}
