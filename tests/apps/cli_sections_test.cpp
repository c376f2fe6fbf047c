#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <string>

#include "support/TempDir.h"
#include "tools/atomic_file.h"

namespace {

struct CliRun {
  int status;
  std::string output;  // stdout and stderr together
};

// Runs norvane-cli with the shape library read from the source tree and a private user folder.
CliRun Cli(const std::string& args, const std::string& userData) {
  const std::string command = "NORVANE_DATA_DIR='" NORVANE_SOURCE_DATA_DIR "' XDG_DATA_HOME='" + userData + "' '" +
                              NORVANE_CLI_PATH + "' " + args + " 2>&1";
  CliRun run{-1, {}};
  FILE* pipe = ::popen(command.c_str(), "r");
  if (!pipe) return run;
  char buffer[4096];
  size_t n;
  while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) run.output.append(buffer, n);
  const int status = ::pclose(pipe);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

}  // namespace

TEST(CliSection, PrintsTheComputedSectionOneFieldALine) {
  TempDir user;
  const CliRun r = Cli("section wideflange 10 20 0.5 0.3", user.path());
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.output,
            "label WideF10x20x0.5x0.3\nA 15.7\nAy 6\nAz 8.33333\nIz 1122.31\nIy 83.3761\nJ 0.976371\n"
            "b 10\nd 20\ntf 0.5\ntw 0.3\n");
  const CliRun rect = Cli("section rect 12 24", user.path());
  EXPECT_EQ(rect.status, 0);
  EXPECT_EQ(rect.output.substr(0, rect.output.find('\n')), "label Rect12x24");
  EXPECT_NE(rect.output.find("\nA 288\n"), std::string::npos);
}

TEST(CliSection, RefusesWhatTheDialogRefuses) {
  TempDir user;
  const struct {
    const char* args;
    int status;
    const char* output;
  } cases[] = {
      {"section tee 5 10 1 6", 1, "Flange width must be greater than or equal to web width\n"},
      {"section wideflange 5 10 11 1", 1, "Section depth must be greater than or equal to flange thickness\n"},
      {"section round 0", 1, "Please enter a number between 0.0001 and 1e+20.\n"},
      {"section rect 10 abc", 1, "Please enter a number.\n"},
      {"section rect 10", 2, nullptr},
      {"section hexagon 1 2", 2, nullptr},
  };
  for (const auto& c : cases) {
    const CliRun r = Cli(c.args, user.path());
    EXPECT_EQ(r.status, c.status) << c.args;
    if (c.output)
      EXPECT_EQ(r.output, c.output) << c.args;
    else
      EXPECT_NE(r.output.find("usage: norvane-cli section"), std::string::npos) << c.args;
  }
}

TEST(CliShapes, ListsShowsImportsAndExports) {
  TempDir user, files;
  const CliRun show = Cli("shapes show w14x90", user.path());
  EXPECT_EQ(show.status, 0);
  for (const char* line : {"AISC_Manual_Label W14X90\n", "Type W\n", "\nA 26.5\n", "\nIx 999\n", "\nbf 14.5\n"})
    EXPECT_NE(show.output.find(line), std::string::npos) << line;
  const CliRun pipes = Cli("shapes list PIPE", user.path());
  EXPECT_EQ(pipes.status, 0);
  EXPECT_NE(pipes.output.find("Pipe4STD\n"), std::string::npos);
  EXPECT_EQ(pipes.output.find("W14X90"), std::string::npos);
  EXPECT_EQ(Cli("shapes show W99X1", user.path()).status, 1);
  EXPECT_EQ(Cli("shapes list XYZ", user.path()).status, 1);

  tools::WriteFileAtomically((files / "bad.csv"), "AISC_Manual_Label,Type,A,Ix,Iy,J\nX1,W,1,2,two,4\n");
  const CliRun bad = Cli("shapes import '" + ((files / "bad.csv")) + "'", user.path());
  EXPECT_EQ(bad.status, 1);
  EXPECT_NE(bad.output.find("line 2, column 5 (Iy): \"two\" is not a number."), std::string::npos) << bad.output;
  EXPECT_EQ(Cli("shapes show W14X90", user.path()).status, 0) << "a refused import changes nothing";

  tools::WriteFileAtomically((files / "good.csv"), "AISC_Manual_Label,Type,A,Ix,Iy,J\nX1,W,1,2,3,4\n");
  const CliRun good = Cli("shapes import '" + ((files / "good.csv")) + "'", user.path());
  EXPECT_EQ(good.status, 0) << good.output;
  EXPECT_EQ(Cli("shapes list", user.path()).output, "X1\n");
  const CliRun exported = Cli("shapes export '" + ((files / "out.csv")) + "'", user.path());
  EXPECT_EQ(exported.status, 0);
  const std::string csv = tools::ReadWholeFile((files / "out.csv"));
  EXPECT_EQ(csv.substr(0, 47), "EDI_Std_Nomenclature,AISC_Manual_Label,Type,T_F");
  EXPECT_NE(csv.find("\n,X1,W,,,1,"), std::string::npos) << csv;
}
