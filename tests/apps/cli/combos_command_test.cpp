#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "model/document.h"
#include "tools/atomic_file.h"

namespace {

struct CliRun {
  int status;
  std::string out, err;
};

std::string Quote(const std::string& s) {
  std::string q = "'";
  for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return q + "'";
}

CliRun RunCli(const std::string& args) {
  const auto errPath = std::filesystem::temp_directory_path() / ("combos_err_" + std::to_string(::getpid()));
  const std::string command = Quote(NORVANE_CLI_PATH) + " " + args + " 2>" + Quote(errPath.string());
  CliRun run{};
  FILE* pipe = ::popen(command.c_str(), "r");
  if (!pipe) return {-1, "", "cannot start"};
  char buffer[4096];
  size_t n;
  while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) run.out.append(buffer, n);
  const int raw = ::pclose(pipe);
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  run.err = tools::ReadWholeFile(errPath.string());
  std::filesystem::remove(errPath);
  return run;
}

std::string Example() { return std::string(NORVANE_EXAMPLES_DIR) + "/building.json"; }

class CombosCli : public ::testing::Test {
 protected:
  void SetUp() override {
    dir = std::filesystem::temp_directory_path() / ("combos_cli_" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
  }
  void TearDown() override { std::filesystem::remove_all(dir); }
  std::string Path(const char* name) const { return (dir / name).string(); }
  std::filesystem::path dir;
};

}  // namespace

TEST_F(CombosCli, CodesListsTheEightCodesWithTheirRowCounts) {
  const CliRun run = RunCli("combos codes");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out,
            "0  IBC-2015 LRFD                 36\n"
            "1  IBC-2015 ASD                  24\n"
            "2  ACI 318-11/14                 25\n"
            "3  ACI 318-11/14 (Service Wind)  25\n"
            "4  ACI 318-02/05/08              25\n"
            "5  ACI 318-1999                  9\n"
            "6  AISC-LRFD93                   25\n"
            "7  AISC-ASD89                    10\n");
}

TEST_F(CombosCli, ListPrintsTheCheckListLines) {
  const CliRun run = RunCli("combos list 5");
  EXPECT_EQ(run.status, 0);
  std::istringstream lines(run.out);
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);) all.push_back(line);
  ASSERT_EQ(all.size(), 9u);
  EXPECT_EQ(all.front(), "ACI-1999_Eq9-1:  1.4D + 1.7L");
  EXPECT_EQ(all.back(), "ACI-1999_Eq9-3d:  0.9D - 1.43E");
}

TEST_F(CombosCli, GenerateWritesTheModelAndRefusesASecondRun) {
  const std::string out = Path("out.json");
  const CliRun run = RunCli("combos generate " + Quote(Example()) + " 2 --rows 1,22-23 --pdelta -o " + Quote(out));
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "ACI-2014_Eq5_3_1_a  [P-Delta, concrete design, sustained factor 1.4]\n"
            "       1.4  Dead\n"
            "ACI-2014_Eq5_3_1_f_a  [P-Delta, concrete design, sustained factor 0.9]\n"
            "       0.9  Dead\n"
            "         1  Wind X\n"
            "ACI-2014_Eq5_3_1_f_b  [P-Delta, concrete design, sustained factor 0.9]\n"
            "       0.9  Dead\n"
            "        -1  Wind X\n"
            "3 load combinations generated from ACI 318-11/14.\n"
            "Written to " + out + "\n");
  const model::ModelDocument before = model::LoadModelDocument(Example());
  const model::ModelDocument after = model::LoadModelDocument(out);
  ASSERT_EQ(after.loadCombs.size(), before.loadCombs.size() + 3);
  EXPECT_EQ(after.loadCombs.back().name, "ACI-2014_Eq5_3_1_f_b");
  EXPECT_EQ(after.loadCombs.back().pdelta, 1);
  EXPECT_EQ(after.nodes, before.nodes);

  const std::string written = tools::ReadWholeFile(out);
  const CliRun again = RunCli("combos generate " + Quote(out) + " 2 -o " + Quote(out));
  EXPECT_EQ(again.status, 1);
  EXPECT_EQ(again.out, "");
  EXPECT_EQ(again.err, "Please rename or delete the existing standard load combinations before running this command.\n");
  EXPECT_EQ(tools::ReadWholeFile(out), written);
}

TEST_F(CombosCli, GenerateWithoutOutputWritesNothing) {
  const std::string copy = Path("copy.json");
  std::filesystem::copy_file(Example(), copy);
  const std::string original = tools::ReadWholeFile(copy);
  const CliRun run = RunCli("combos generate " + Quote(copy) + " 0");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("IBC-2015_Eq16-3g\n       1.2  Dead\n       1.6  Roof live\n      -0.5  Wind X\n"),
            std::string::npos);
  EXPECT_NE(run.out.find("load combinations generated from IBC-2015 LRFD."), std::string::npos);
  EXPECT_EQ(run.err, "norvane-cli: model not written (give -o OUT to save it)\n");
  EXPECT_EQ(tools::ReadWholeFile(copy), original);
}

TEST_F(CombosCli, BadUsageExitsWithTwo) {
  const char* bad[] = {
      "combos",
      "combos list 8",
      "combos list x",
      "combos generate",
      "combos generate model.json",
      "combos generate model.json 0 --rows 0",
      "combos generate model.json 0 --rows 37",
      "combos generate model.json 0 --rows 5-3",
      "combos generate model.json 0 --rows 1,,2",
      "combos generate model.json 0 --bogus",
      "combos generate model.json 0 -o",
  };
  for (const char* args : bad) EXPECT_EQ(RunCli(args).status, 2) << args;
  const CliRun missing = RunCli("combos generate " + Quote(Path("none.json")) + " 0");
  EXPECT_EQ(missing.status, 1);
  EXPECT_NE(missing.err.find("none.json"), std::string::npos);
}
