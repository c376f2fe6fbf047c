#include <ostream>

#include "apps/cli/cli.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/shape_bundle.h"
#include "tools/shape_table.h"

namespace cli {
namespace {

constexpr const char* kUsageText =
    "usage: norvane-cli shapes list [TYPE]\n"
    "       norvane-cli shapes show LABEL\n"
    "       norvane-cli shapes import FILE.csv\n"
    "       norvane-cli shapes export FILE.csv\n"
    "       norvane-cli shapes bundle DATA_DIR\n";

const tools::AiscLibrary* Library(std::ostream& err) {
  const tools::AiscLibrary* lib = tools::CurrentAiscLibrary();
  if (!lib)
    err << "norvane-cli: the steel shape library cannot be read (looked in \"" << tools::ActiveAiscDirectory()
        << "\")\n";
  return lib;
}

int List(const Args& args, std::ostream& out, std::ostream& err) {
  const tools::AiscLibrary* lib = Library(err);
  if (!lib) return kRefused;
  size_t listed = 0;
  for (const auto& s : lib->shapes()) {
    if (args.size() == 2 && !tools::EqualsNoCase(s.type, args[1])) continue;
    out << s.label << "\n";
    ++listed;
  }
  if (listed == 0) {
    err << "norvane-cli: no shapes of type \"" << args[1] << "\"\n";
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

}  // namespace

int ShapesCommand(const Args& args, std::ostream& out, std::ostream& err) {
  const std::string verb = args.empty() ? "" : args[0];
  try {
    if (verb == "list" && args.size() <= 2) return List(args, out, err);
    if (verb == "show" && args.size() == 2) return Show(args[1], out, err);
    if (verb == "import" && args.size() == 2) {
      tools::ascii_binary(args[1]);
      const tools::AiscLibrary* lib = tools::CurrentAiscLibrary();
      out << "Imported " << (lib ? lib->size() : 0) << " shapes into \"" << tools::ActiveAiscDirectory() << "\"\n";
      return kOk;
    }
    if (verb == "export" && args.size() == 2) {
      tools::binary_ascii(args[1]);
      out << "Exported " << tools::CurrentAiscLibrary()->size() << " shapes to \"" << args[1] << "\"\n";
      return kOk;
    }
    if (verb == "bundle" && args.size() == 2) {
      tools::WriteBundledTables(args[1]);
      out << "Wrote " << tools::kAiscIndexFile << ", " << tools::kAiscTableFile << " and " << tools::kNdsTableFile
          << " in \"" << args[1] << "\"\n";
      return kOk;
    }
  } catch (const fmException& e) {
    err << e.what() << "\n";
    return kRefused;
  }
  err << kUsageText;
  return kUsage;
}

}  // namespace cli
