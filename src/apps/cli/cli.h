#pragma once
#include <iosfwd>
#include <string>
#include <vector>

// norvane-cli: one command per engine family. A command gets its arguments after its own
// name and returns the exit status: 0 done, 1 refused by the engine, 2 bad usage.
namespace cli {

using Args = std::vector<std::string>;

struct Command {
  const char* name;
  const char* usage;  // one or more lines, shown by "norvane-cli help"
  int (*run)(const Args& args, std::ostream& out, std::ostream& err);
};

// Exit statuses.
inline constexpr int kOk = 0;
inline constexpr int kRefused = 1;
inline constexpr int kUsage = 2;

int UnitsCommand(const Args& args, std::ostream& out, std::ostream& err);
int CombosCommand(const Args& args, std::ostream& out, std::ostream& err);
int GridCommand(const Args& args, std::ostream& out, std::ostream& err);
int KFactorCommand(const Args& args, std::ostream& out, std::ostream& err);
int CylinderCommand(const Args& args, std::ostream& out, std::ostream& err);
int SectionCommand(const Args& args, std::ostream& out, std::ostream& err);
int ShapesCommand(const Args& args, std::ostream& out, std::ostream& err);
int ReportCommand(const Args& args, std::ostream& out, std::ostream& err);

}  // namespace cli
