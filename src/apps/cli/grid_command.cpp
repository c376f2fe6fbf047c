#include <ostream>

#include "apps/cli/cli.h"
#include "dialogs/grid/export.h"
#include "dialogs/grid/sheet.h"
#include "dialogs/model/element_grid.h"
#include "dialogs/model/node_grid.h"
#include "model/document.h"

namespace cli {
namespace {

// A table of the model as its dialog fills the grid, under the name the command takes and
// the title the dialog prints it with.
struct GridTable {
  const char* name;
  const char* title;
  void (*fill)(const model::ModelDocument& doc, grid::Sheet& sheet);
};

elementgrid::ElementLists ElementListsOf(const model::ModelDocument& doc) {
  return {doc.nodes, doc.materials, doc.sections, doc.thicknesses};
}

template <class Record>
void FillElements(const model::ModelDocument& doc, const std::vector<Record>& elements, grid::Sheet& sheet) {
  elementgrid::Fill(sheet, std::span<const Record>(elements), ElementListsOf(doc), doc.display.alternateRowColor,
                    false);
}

const GridTable kTables[] = {
    {"nodes", nodegrid::kTableTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) {
       nodegrid::Fill(sheet, doc.nodes, doc.units, false, doc.display.alternateRowColor, false);
     }},
    {"members", elementgrid::kMembers.printTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) { FillElements(doc, doc.members, sheet); }},
    {"shells", elementgrid::kShells.printTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) { FillElements(doc, doc.shells, sheet); }},
    {"bricks", elementgrid::kBricks.printTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) { FillElements(doc, doc.bricks, sheet); }},
};

const char* kUsageText = "usage: norvane-cli grid export MODEL TABLE OUT [--append]\n";

std::string TableNames() {
  std::string names;
  for (const auto& t : kTables) names += std::string(names.empty() ? "" : ", ") + t.name;
  return names;
}

int Export(const Args& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> positional;
  bool append = false;
  for (size_t i = 1; i < args.size(); ++i) {
    if (args[i] == "--append") {
      append = true;
    } else if (args[i].starts_with("--")) {
      err << "norvane-cli: unknown option " << args[i] << "\n" << kUsageText;
      return kUsage;
    } else {
      positional.push_back(args[i]);
    }
  }
  if (positional.size() != 3) {
    err << kUsageText;
    return kUsage;
  }
  const std::string& modelPath = positional[0];
  const std::string& tableName = positional[1];
  const std::string& outPath = positional[2];

  const GridTable* table = nullptr;
  for (const auto& t : kTables)
    if (tableName == t.name) table = &t;
  if (!table) {
    err << "norvane-cli: unknown table \"" << tableName << "\" (tables: " << TableNames() << ")\n";
    return kUsage;
  }
  // Refused before the model is read, as the dialog refuses before writing anything.
  if (!grid::ExportFormatOf(outPath)) {
    err << "norvane-cli: Invalid file format specified\n";
    return kRefused;
  }
  model::ModelDocument doc;
  try {
    doc = model::LoadModelDocument(modelPath);
  } catch (const model::DocumentLoadError& e) {
    err << "norvane-cli: " << e.what() << "\n";
    return kRefused;
  }
  grid::Sheet sheet;
  table->fill(doc, sheet);
  if (const auto failure = grid::ExportSheet(sheet, outPath, append, table->title)) {
    err << "norvane-cli: " << *failure << "\n";
    return kRefused;
  }
  out << "Wrote " << sheet.MaxRows() << " rows of " << table->name << " to " << outPath << "\n";
  return kOk;
}

}  // namespace

int GridCommand(const Args& args, std::ostream& out, std::ostream& err) {
  if (!args.empty() && args[0] == "export") return Export(args, out, err);
  err << kUsageText;
  return kUsage;
}

}  // namespace cli
