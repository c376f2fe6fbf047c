#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/run_program.h"

namespace {

testsupport::ProgramResult Cli(const std::vector<std::string>& args) {
  return testsupport::RunProgram(NORVANE_CLI_PATH, args);
}

int CountLines(const std::string& text) { return static_cast<int>(std::count(text.begin(), text.end(), '\n')); }

}  // namespace

TEST(CliUnits, ConvertPrintsSevenSignificantDigits) {
  struct Case {
    std::vector<std::string> args;
    const char* printed;
  };
  const Case cases[] = {
      {{"units", "convert", "1", "kip-ft", "kN-m"}, "1.355818\n"},
      {{"units", "convert", "1", "ft", "in"}, "12\n"},
      {{"units", "convert", "10", "C", "F"}, "18\n"},
      {{"units", "convert", "1", "MT-m", "Kgf-m"}, "1000\n"},
      {{"units", "convert", " 2.5 ", "N-m", "kN-mm"}, "2.5\n"},
      {{"units", "convert", "-1e3", "lb", "kip"}, "-1\n"},
      {{"units", "convert", "1", "kip-ft/deg", "kip-ft/rad"}, "57.29578\n"},
  };
  for (const Case& c : cases) {
    const auto r = Cli(c.args);
    ASSERT_TRUE(r.started);
    EXPECT_TRUE(r.exited);
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, c.printed) << c.args[2] << " " << c.args[3] << " -> " << c.args[4];
    EXPECT_EQ(r.err, "");
  }
}

TEST(CliUnits, ListShowsEveryLabel) {
  const auto r = Cli({"units", "list"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(CountLines(r.out), 137);
  EXPECT_NE(r.out.find(" 24  kip-ft"), std::string::npos) << "no moment group? " << r.out.substr(0, 200);
  EXPECT_NE(r.out.find("136  Kgf-m/deg    4973.053571606"), std::string::npos);
}

TEST(CliUnits, RefusalsGoToStderrWithStatusTwo) {
  struct Case {
    std::vector<std::string> args;
    const char* message;
  };
  const Case cases[] = {
      {{"units", "convert", "1", "furlong", "m"}, "norvane-cli: unknown unit \"furlong\" (see: norvane-cli units list)\n"},
      {{"units", "convert", "1", "ft", "KN"}, "norvane-cli: unknown unit \"KN\" (see: norvane-cli units list)\n"},
      {{"units", "convert", "1", "ft", "kip"}, "norvane-cli: cannot convert \"ft\" (Length) to \"kip\" (Force)\n"},
      {{"units", "convert", "1", "kip-ft", "kip-ft/ft"},
       "norvane-cli: cannot convert \"kip-ft\" (Moment) to \"kip-ft/ft\" (Moment per length)\n"},
      {{"units", "convert", "1,5", "ft", "in"}, "norvane-cli: \"1,5\" is not a number\n"},
      {{"units", "convert", "abc", "ft", "in"}, "norvane-cli: \"abc\" is not a number\n"},
      {{"units", "convert", "1", "ft"}, "usage: norvane-cli units convert VALUE FROM TO\n"},
  };
  for (const Case& c : cases) {
    const auto r = Cli(c.args);
    EXPECT_TRUE(r.exited);
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, c.message);
  }
}

TEST(CliUnits, AResultTooLargeIsRefused) {
  const auto r = Cli({"units", "convert", "1e308", "kip-ft/deg", "lb-in/rad"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "norvane-cli: 1e308 kip-ft/deg is too large to express in lb-in/rad\n");
}

TEST(Cli, NoArgumentOrGarbageNeverCrashes) {
  const std::string huge(100000, '9');
  const std::vector<std::vector<std::string>> cases = {
      {},
      {""},
      {"units"},
      {"units", ""},
      {"units", "convert"},
      {"units", "convert", "", "", ""},
      {"units", "convert", "1", "ft", "in", "extra"},
      {"units", "convert", huge, "ft", "in"},
      {"units", "convert", "1", huge, "in"},
      {"units", "convert", "nan", "ft", "in"},
      {"units", "convert", "-inf", "ft", "in"},
      {"units", "convert", "1e-400", "ft", "in"},
      {"units", "convert", "\xff\xfe", "\xc3", "\x01"},
      {"units", "list", "extra"},
      {"frobnicate"},
      {"--bogus"},
      {"-", "--", "---"},
  };
  for (const auto& args : cases) {
    const auto r = Cli(args);
    ASSERT_TRUE(r.started);
    EXPECT_TRUE(r.exited) << "ended by signal " << r.signal;
    EXPECT_EQ(r.status, 2) << (args.empty() ? "(no arguments)" : args[0]);
    EXPECT_FALSE(r.err.empty());
  }
  const auto help = Cli({"help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("units convert VALUE FROM TO"), std::string::npos);
}
