#pragma once
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

namespace model {
struct ModelDocument;
}

// norvane-cli: one command per engine family, parsed with CLI11. A family adds its command in
// src/apps/cli/<family>_command.cpp with an Add<Family>Command(Program&) listed in main.cpp.
// Options bind to a struct the action captures; numbers are taken as text and read with
// tools::Parse* so that every locale reads them alike and a bad one gets the command's own message.
// Name an option's value (->type_name("LIST")); a positional's own name says what it is.
namespace cli {

// Exit statuses.
inline constexpr int kOk = 0;
inline constexpr int kRefused = 1;
inline constexpr int kUsage = 2;

// The streams an action writes to; it returns the exit status.
struct Io {
  std::ostream& out;
  std::ostream& err;
};
using Action = std::function<int(Io io)>;

class Program {
 public:
  Program();
  CLI::App& root() { return app_; }

  // A command (or a verb of a command) under `parent`. Once the whole line has parsed, the
  // chosen command's action runs and its result is the exit status. A parent with verbs but
  // no action of its own gets none (pass nullptr): its verbs are then required.
  CLI::App* Add(CLI::App& parent, const std::string& name, const std::string& description, Action action);

  // Parses and runs: 0 and help on stdout for --help and --version; 2 and the message with the
  // command's help on stderr for a line that does not parse; what the action returns otherwise
  // (1 with the message when it throws).
  int Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

 private:
  CLI::App app_;
  Action chosen_;
};

// A command's help with its whole name ("Usage: norvane-cli units convert ..."), to follow a
// message about its arguments.
std::string Help(const CLI::App& command);

// Numbers and rising ranges separated by commas ("3,5,8-12"). Each item goes to `take`, which
// refuses one outside its own bounds. Returns the first item that is unreadable or refused, so the
// command can name it in its own words; nothing when every item was taken.
std::optional<std::string> ForEachNumberRange(const std::string& text,
                                              const std::function<bool(uint32_t first, uint32_t last)>& take);

// Saves the model to `path`, or says it was not written when no -o OUT was given.
int WriteModelIfAsked(const model::ModelDocument& doc, const std::string& path, Io io);

void AddUnitsCommand(Program& program);
void AddCombosCommand(Program& program);
void AddGridCommand(Program& program);
void AddKFactorCommand(Program& program);
void AddCylinderCommand(Program& program);
void AddSectionCommand(Program& program);
void AddShapesCommand(Program& program);
void AddReportCommand(Program& program);
void AddAnalyzeCommand(Program& program);
void AddSteelCommand(Program& program);
void AddSpectrumCommand(Program& program);
void AddLoadsCommand(Program& program);

}  // namespace cli
