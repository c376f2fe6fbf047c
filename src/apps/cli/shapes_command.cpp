#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "apps/cli/cli.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/shape_bundle.h"
#include "tools/shape_table.h"

namespace cli {
namespace {

const tools::AiscLibrary* Library(std::ostream& err) {
  const tools::AiscLibrary* lib = tools::CurrentAiscLibrary();
  if (!lib)
    err << "norvane-cli: the steel shape library cannot be read (looked in \"" << tools::ActiveAiscDirectory()
        << "\")\n";
  return lib;
}

int List(const std::string& type, std::ostream& out, std::ostream& err) {
  const tools::AiscLibrary* lib = Library(err);
  if (!lib) return kRefused;
  size_t listed = 0;
  for (const auto& s : lib->shapes()) {
    if (!type.empty() && !tools::EqualsNoCase(s.type, type)) continue;
    out << s.label << "\n";
    ++listed;
  }
  if (listed == 0) {
    err << "norvane-cli: no shapes of type \"" << type << "\"\n";
    return kRefused;
  }
  return kOk;
}

int Show(const std::string& label, std::ostream& out, std::ostream& err) {
  const tools::AiscLibrary* lib = Library(err);
  if (!lib) return kRefused;
  const int i = lib->Find(label);
  if (i < 0) {
    err << "norvane-cli: no shape labelled \"" << label << "\"\n";
    return kRefused;
  }
  const tools::fmSect_AISC& s = lib->at(static_cast<size_t>(i));
  const auto& names = tools::AiscColumnNames();
  const std::string* texts[] = {&s.edi, &s.label, &s.type, &s.tf};
  for (int k = 0; k < tools::kAiscTextColumnCount; ++k)
    if (!texts[k]->empty()) out << names[static_cast<size_t>(k)] << " " << *texts[k] << "\n";
  for (int v = 0; v < tools::kAiscValueCount; ++v)
    if (s.Has(v))
      out << names[static_cast<size_t>(v + tools::kAiscTextColumnCount)] << " " << tools::FormatG(s.Value(v)) << "\n";
  return kOk;
}

int Import(const std::string& path, std::ostream& out) {
  tools::ascii_binary(path);
  const tools::AiscLibrary* lib = tools::CurrentAiscLibrary();
  out << "Imported " << (lib ? lib->size() : 0) << " shapes into \"" << tools::ActiveAiscDirectory() << "\"\n";
  return kOk;
}

int Export(const std::string& path, std::ostream& out) {
  tools::binary_ascii(path);
  out << "Exported " << tools::CurrentAiscLibrary()->size() << " shapes to \"" << path << "\"\n";
  return kOk;
}

int Bundle(const std::string& folder, std::ostream& out) {
  tools::WriteBundledTables(folder);
  out << "Wrote " << tools::kAiscIndexFile << ", " << tools::kAiscTableFile << " and " << tools::kNdsTableFile
      << " in \"" << folder << "\"\n";
  return kOk;
}

// The library's refusals (a bad csv line, an unreadable table) are the engine's texts.
Action Refusing(std::function<int(Io)> run) {
  return [run](Io io) {
    try {
      return run(io);
    } catch (const fmException& e) {
      io.err << e.what() << "\n";
      return kRefused;
    }
  };
}

}  // namespace

void AddShapesCommand(Program& program) {
  CLI::App* shapes = program.Add(program.root(), "shapes", "the steel shape library", nullptr);
  const auto arg = [&](const char* verb, const char* description, const char* name, const char* help,
                       bool required, int (*run)(const std::string&, std::ostream&, std::ostream&)) {
    auto text = std::make_shared<std::string>();
    CLI::App* command =
        program.Add(*shapes, verb, description, Refusing([text, run](Io io) { return run(*text, io.out, io.err); }));
    command->add_option(name, *text, help)->required(required);
  };
  arg("list", "labels of the steel shape library", "TYPE", "only shapes of this type, e.g. HSS", false, List);
  arg("show", "one shape's table properties", "LABEL", "the shape, e.g. W14X90", true, Show);
  arg("import", "replace the library from a csv file", "FILE", "the csv file", true,
      [](const std::string& path, std::ostream& out, std::ostream&) { return Import(path, out); });
  arg("export", "write the library to a csv file", "FILE", "the csv file", true,
      [](const std::string& path, std::ostream& out, std::ostream&) { return Export(path, out); });
  arg("bundle", "build the bundled library files from their source", "DATA_DIR", "the data folder", true,
      [](const std::string& folder, std::ostream& out, std::ostream&) { return Bundle(folder, out); });
}

}  // namespace cli
