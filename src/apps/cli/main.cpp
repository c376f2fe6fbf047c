#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include "apps/cli/cli.h"

// Add a family's command here.
constexpr void (*kCommands[])(cli::Program&) = {
    cli::AddUnitsCommand,    cli::AddCombosCommand,  cli::AddGridCommand,   cli::AddKFactorCommand,
    cli::AddCylinderCommand, cli::AddSectionCommand, cli::AddShapesCommand, cli::AddReportCommand, cli::AddAnalyzeCommand,
    cli::AddSteelCommand,
    cli::AddSpectrumCommand, cli::AddLoadsCommand,
};

int main(int argc, char** argv) {
  // Past a file-size limit a write then fails with EFBIG and is reported, instead of the
  // signal ending the program with a temporary file left beside the target.
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
  cli::Program program;
  for (const auto add : kCommands) add(program);
  // "norvane-cli help [COMMAND...]" is "norvane-cli [COMMAND...] --help".
  std::vector<const char*> args(argv, argv + argc);
  if (args.size() >= 2 && std::string(args[1]) == "help") {
    args.erase(args.begin() + 1);
    args.push_back("--help");
  }
  return program.Run(static_cast<int>(args.size()), args.data(), std::cout, std::cerr);
}
