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
  EXPECT_TRUE(text.ends_with("44\t23\t-2\t3\tNormal\r\n")) << text;

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
      {"grid export " + kModel + " beams " + dir / "n.txt", 2,
       "unknown table \"beams\" (tables: nodes, members, shells, bricks)"},
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

TEST(CliGridExport, WritesTheElementTablesAsTheirDialogsFillThem) {
  TempDir dir;
  const struct {
    const char* table;
    const char* firstLines;
    const char* lastLine;
    const char* title;
  } cases[] = {
      {"members",
       "Member Id\tNode-1\tNode-2\tMaterial\tSection\tLocal Angle (deg)\tNonlinear\tActivation\tSelf Weight\t"
       "Status\r\n1\t1\t7\t1: Steel-A992--Fy50\t1: W14X90\t0\tLinear\tActive\tInclude\tNormal\r\n",
       "28\t2\t7\t1: Steel-A992--Fy50\t3: W12X26\t0\tTension only\tActive\tInclude\tNormal\r\n", "Member Table"},
      {"shells",
       "Shell4 Id\tNode-1\tNode-2\tNode-3\tNode-4\tMaterial\tThick\tLocal Angle (deg)\tActivation\tSelf Weight\t"
       "Status\r\n1\t7\t19\t22\t21\t2: Concrete40\t1: Slab8in\t0\tActive\tInclude\tNormal\r\n",
       "8\t24\t25\t12\t27\t2: Concrete40\t1: Slab8in\t0\tActive\tInclude\tNormal\r\n", "Shell4 Table"},
      {"bricks",
       "Brick Id\tNode-1\tNode-2\tNode-3\tNode-4\tNode-5\tNode-6\tNode-7\tNode-8\tMaterial\tActivation\t"
       "Self Weight\tStatus\r\n",
       "4\t40\t41\t44\t43\t2\t32\t35\t34\t2: Concrete40\tActive\tInclude\tNormal\r\n", "Brick Table"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.table);
    const std::string txt = (dir / std::string(c.table) + ".txt");
    const CliRun run = Cli("grid export " + kModel + " " + c.table + " " + txt);
    EXPECT_EQ(run.status, 0) << run.output;
    const std::string text = ReadFileText(txt);
    EXPECT_TRUE(text.starts_with(c.firstLines)) << text;
    EXPECT_TRUE(text.ends_with(c.lastLine)) << text;
    const std::string htm = (dir / std::string(c.table) + ".htm");
    EXPECT_EQ(Cli("grid export " + kModel + " " + c.table + " " + htm).status, 0);
    EXPECT_NE(ReadFileText(htm).find(std::string("<caption>") + c.title + "</caption>"), std::string::npos);
  }
}
