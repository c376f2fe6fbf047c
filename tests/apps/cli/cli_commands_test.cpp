#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

struct CliRun {
  int status;
  std::string output;  // stdout and stderr together
};

// Runs norvane-cli with these arguments (already quoted for the shell).
CliRun Cli(const std::string& args) {
  const std::string command = std::string("'") + NORVANE_CLI_PATH + "' " + args + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return {-1, "cannot run " + command};
  std::string output;
  char buffer[4096];
  while (size_t n = fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, n);
  const int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

TEST(KFactorCommand, PrintsBothFactorsOrTheirFailure) {
  const struct {
    const char* args;
    int status;
    const char* output;
  } cases[] = {
      {"0.47 0.47", 0, "braced K 0.68\nunbraced K 1.15\n"},
      {"1 1", 0, "braced K 0.77\nunbraced K 1.32\n"},
      {"10 0", 0, "braced K 0.69\nunbraced K 1.67\n"},
      {"1000 1000", 1,
       "braced K Root must be bracketed for bisection in rtbis\n"
       "unbraced K Root must be bracketed for bisection in rtbis\n"},
      {"0 0", 1,
       "braced K Root must be bracketed for bisection in rtbis\n"
       "unbraced K Root must be bracketed for bisection in rtbis\n"},
      {"100 100", 1, "braced K Root must be bracketed for bisection in rtbis\nunbraced K 9.11\n"},
      {"abc 1", 2, "norvane-cli: GA must be a number from 0 to 1000, not \"abc\"\n"},
      {"1 1000.5", 2, "norvane-cli: GB must be a number from 0 to 1000, not \"1000.5\"\n"},
      {"1", 2, "usage: norvane-cli kfactor GA GB\n"},
  };
  for (const auto& c : cases) {
    const CliRun r = Cli(std::string("kfactor ") + c.args);
    EXPECT_EQ(r.status, c.status) << c.args;
    EXPECT_EQ(r.output, c.output) << c.args;
  }
}

TEST(CylinderCommand, ListsTheGeneratedFrame) {
  const CliRun r = Cli("cylinder --radial 10 --angles '0, 4@90' --axial 5 --supports fixed --insert 1,2,3");
  EXPECT_EQ(r.status, 0);
  const std::string expected =
      "# cylindrical frame, closed: 2 levels, 1 ring, 4 angles; 8 nodes, 12 members, 4 supports\n"
      "node 1 11 2 3\nnode 2 1 2 -7\nnode 3 -9 2 3\nnode 4 1 2 13\n"
      "node 5 11 7 3\nnode 6 1 7 -7\nnode 7 -9 7 3\nnode 8 1 7 13\n"
      "member 1 1 2\nmember 2 2 3\nmember 3 3 4\nmember 4 4 1\n"
      "member 5 5 6\nmember 6 6 7\nmember 7 7 8\nmember 8 8 5\n"
      "member 9 1 5\nmember 10 2 6\nmember 11 3 7\nmember 12 4 8\n"
      "support 1 fixed\nsupport 2 fixed\nsupport 3 fixed\nsupport 4 fixed\n";
  EXPECT_EQ(r.output, expected);
}

TEST(CylinderCommand, RefusesWhatTheDialogRefuses) {
  const struct {
    const char* args;
    int status;
    const char* output;
  } cases[] = {
      {"--angles '0, 360'", 1,
       "norvane-cli: Closed cylindrical frame must have at least two angle increments (excluding 0 start angle)\n"},
      {"--angles '0, 200, 200'", 1, "norvane-cli: Total angle may not be greater than 360 degrees\n"},
      {"--radial '-5, 10'", 1, "norvane-cli: Radial distance may not be negative\n"},
      {"--radial abc", 1, "norvane-cli: Radial distance list: \"abc\" (item 1) is not a number\n"},
      {"--angles 3@", 1, "norvane-cli: Angle increment list: \"3@\" (item 1) has no value after @\n"},
      {"--axial 2@-10", 1, "norvane-cli: Y direction distance may not be negative\n"},
      {"--axis W", 2, "norvane-cli: --axis must be X, Y or Z, not \"W\"\n"},
      {"--insert 1,2", 2, "norvane-cli: --insert needs three numbers X,Y,Z, not \"1,2\"\n"},
      {"--first-node 0", 2, "norvane-cli: --first-node needs a whole number from 1 to 4294967295, not \"0\"\n"},
  };
  for (const auto& c : cases) {
    const CliRun r = Cli(std::string("cylinder ") + c.args);
    EXPECT_EQ(r.status, c.status) << c.args;
    // Usage errors add the usage lines after the message.
    EXPECT_EQ(r.output.substr(0, std::string(c.output).size()), c.output) << c.args;
  }
}

TEST(CylinderCommand, WritesTheListingToAFile) {
  const auto path = std::filesystem::temp_directory_path() / "norvane_cylinder_test.txt";
  std::filesystem::remove(path);
  const CliRun r = Cli("cylinder --axial 3@4 --no-members --supports pinned --first-node 101 --output '" + path.string() + "'");
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.output, "Wrote " + path.string() + " (24 nodes, 0 members, 6 supports)\n");
  std::ifstream in(path);
  std::stringstream text;
  text << in.rdbuf();
  EXPECT_EQ(text.str().substr(0, text.str().find('\n')),
            "# cylindrical frame, open: 4 levels, 2 rings, 3 angles; 24 nodes, 0 members, 6 supports");
  EXPECT_NE(text.str().find("\nnode 124 15 12 -25.9807621135\n"), std::string::npos);
  std::filesystem::remove(path);
}

}  // namespace
