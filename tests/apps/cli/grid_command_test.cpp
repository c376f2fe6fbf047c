#include <gtest/gtest.h>

#include "support/temp_dir.h"

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
  const CliRun txt = Cli("grid export " + kModel + " nodes " + dir.File("n.txt"));
  EXPECT_EQ(txt.status, 0) << txt.output;
  const std::string text = ReadFileText(dir.File("n.txt"));
  EXPECT_TRUE(text.starts_with("Node Id\tX [ft]\tY [ft]\tZ [ft]\tStatus\r\n1\t0\t0\t0\tNormal\r\n")) << text;
  EXPECT_TRUE(text.ends_with("18\t40\t24\t25\tNormal\r\n")) << text;

  // Appends only when asked.
  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir.File("n.txt")).status, 0);
  EXPECT_EQ(ReadFileText(dir.File("n.txt")), text);
  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir.File("n.txt") + " --append").status, 0);
  EXPECT_EQ(ReadFileText(dir.File("n.txt")), text + text);

  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir.File("n.HTM")).status, 0);
  EXPECT_NE(ReadFileText(dir.File("n.HTM")).find("<caption>Node Table</caption>"), std::string::npos);
  EXPECT_EQ(Cli("grid export " + kModel + " nodes " + dir.File("n.xlsx")).status, 0);
  EXPECT_TRUE(ReadFileText(dir.File("n.xlsx")).starts_with("PK"));
}

TEST(CliGridExport, RefusalsGiveAMessageAnExitStatusAndNoFile) {
  TempDir dir;
  WriteFileText(dir.File("broken.json"), "{\"format\": ");
  struct Case {
    std::string args;
    int status;
    std::string message;
  };
  const std::vector<Case> cases = {
      {"grid export " + kModel + " nodes " + dir.File("n.csv"), 1, "Invalid file format specified"},
      {"grid export " + kModel + " nodes " + dir.File("n.csv") + " --append", 1, "Invalid file format specified"},
      {"grid export " + kModel + " members " + dir.File("n.txt"), 2, "unknown table \"members\" (tables: nodes)"},
      {"grid export " + dir.File("missing.json") + " nodes " + dir.File("n.txt"), 1, "No such file or directory"},
      {"grid export " + dir.File("broken.json") + " nodes " + dir.File("n.txt"), 1, "Cannot open model"},
      {"grid export " + kModel + " nodes " + dir.File("no/n.txt"), 1,
       "Cannot write \"" + dir.File("no/n.txt") + "\": the folder \"" + dir.File("no") + "\" does not exist"},
      {"grid export " + kModel + " nodes", 2, "usage: norvane-cli grid export MODEL TABLE OUT [--append]"},
      {"grid export " + kModel + " nodes " + dir.File("n.txt") + " --force", 2, "unknown option --force"},
      {"grid print", 2, "usage:"},
  };
  for (const auto& c : cases) {
    const CliRun run = Cli(c.args);
    EXPECT_EQ(run.status, c.status) << c.args << "\n" << run.output;
    EXPECT_NE(run.output.find(c.message), std::string::npos) << c.args << "\n" << run.output;
  }
  EXPECT_EQ(dir.Entries(), std::vector<std::string>{"broken.json"});
}
