#include <algorithm>
#include <exception>
#include <new>
#include <ostream>
#include <string>
#include <vector>

#include "apps/cli/cli.h"
#include "model/document.h"
#include "tools/parse.h"
#include "tools/release.h"

namespace cli {

Program::Program() : app_("Headless engines of Norvane for scripts.", "norvane-cli") {
  app_.set_version_flag("--version", std::string("norvane-cli ") + tools::kReleaseVersion + " (build " +
                                         tools::kReleaseBuild + ")");
  app_.require_subcommand(1);
  // Lets "--version" follow any command; inherited by every command added later.
  app_.fallthrough();
  app_.footer("Exit status: 0 done, 1 refused, 2 bad usage. COMMAND --help shows a command's arguments.");
}

CLI::App* Program::Add(CLI::App& parent, const std::string& name, const std::string& description, Action action) {
  CLI::App* command = parent.add_subcommand(name, description);
  command->footer("");
  if (action)
    command->callback([this, action] { chosen_ = action; });
  else
    command->require_subcommand(1);
  return command;
}

std::string Help(const CLI::App& command) {
  std::string path;
  for (const CLI::App* parent = command.get_parent(); parent; parent = parent->get_parent())
    path = parent->get_name() + (path.empty() ? "" : " ") + path;
  return command.help(path);
}

namespace {

// The deepest command the line named, whose help explains what went wrong.
const CLI::App& ChosenCommand(const CLI::App& app) {
  const CLI::App* chosen = &app;
  while (!chosen->get_subcommands().empty()) chosen = chosen->get_subcommands().front();
  return *chosen;
}

// "VALUE TEXT REQUIRED" says no more than "VALUE REQUIRED".
void DropPositionalTypeNames(CLI::App& app) {
  for (CLI::Option* option : app.get_options())
    if (option->get_positional() && option->get_type_name() == "TEXT") option->type_name("");
  for (CLI::App* command : app.get_subcommands({})) DropPositionalTypeNames(*command);
}

}  // namespace

int Program::Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
  chosen_ = nullptr;
  DropPositionalTypeNames(app_);
  try {
    app_.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    out << app_.help();
    return kOk;
  } catch (const CLI::CallForAllHelp&) {
    out << app_.help("", CLI::AppFormatMode::All);
    return kOk;
  } catch (const CLI::CallForVersion& e) {
    out << e.what() << "\n";
    return kOk;
  } catch (const CLI::ParseError& e) {
    const CLI::App& chosen = ChosenCommand(app_);
    // With fallthrough, what a command does not take goes back to the program.
    const std::vector<std::string> unparsed = app_.remaining(true);
    if (!chosen.get_subcommands({}).empty() && !unparsed.empty())
      err << "norvane-cli: unknown command \"" << unparsed.front() << "\"\n\n";
    else
      err << "norvane-cli: " << e.what() << "\n\n";
    err << Help(chosen);
    return kUsage;
  }
  if (!chosen_) return kUsage;  // every command has an action or required verbs; kept for safety
  try {
    return chosen_(Io{out, err});
  } catch (const std::bad_alloc&) {
    std::string name;
    for (const CLI::App* c = &ChosenCommand(app_); c->get_parent(); c = c->get_parent())
      name = c->get_name() + (name.empty() ? "" : " ") + name;
    err << "norvane-cli: Not enough memory to run \"" << name << "\"\n";
    return kRefused;
  } catch (const std::exception& e) {
    err << "norvane-cli: " << e.what() << "\n";
    return kRefused;
  }
}

std::optional<std::string> ForEachNumberRange(const std::string& text,
                                              const std::function<bool(uint32_t first, uint32_t last)>& take) {
  size_t start = 0;
  while (start <= text.size()) {
    const size_t comma = std::min(text.find(',', start), text.size());
    std::string item(tools::Trim(std::string_view(text).substr(start, comma - start)));
    const size_t dash = item.find('-', 1);
    const auto first = tools::ParseUInt32(item.substr(0, dash));
    const auto last = dash == std::string::npos ? first : tools::ParseUInt32(item.substr(dash + 1));
    if (!first || !last || *last < *first || !take(*first, *last)) return item;
    start = comma + 1;
  }
  return std::nullopt;
}

int WriteModelIfAsked(const model::ModelDocument& doc, const std::string& path, Io io) {
  if (path.empty()) {
    io.err << "norvane-cli: model not written (give -o OUT to save it)\n";
  } else {
    model::SaveModelDocument(doc, path);
    io.out << "Written to " << path << "\n";
  }
  return kOk;
}

}  // namespace cli
