#include <memory>
#include <optional>
#include <span>
#include <ostream>
#include <string>

#include "apps/cli/cli.h"
#include "dialogs/boundary/boundary_tables.h"
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
  // For tables that reach a million rows: their row count and a fill of some of the rows, so
  // the export never holds a sheet of the whole table.
  int (*rowCount)(const model::ModelDocument& doc) = nullptr;
  void (*fillRows)(const model::ModelDocument& doc, grid::Sheet& part, int first, int count) = nullptr;
};

elementgrid::ElementLists ElementListsOf(const model::ModelDocument& doc) {
  return {doc.nodes, doc.materials, doc.sections, doc.thicknesses};
}

template <class Record>
void FillElements(const model::ModelDocument& doc, const std::vector<Record>& elements, grid::Sheet& sheet) {
  elementgrid::Fill(sheet, std::span<const Record>(elements), ElementListsOf(doc), doc.display.alternateRowColor,
                    false);
}

template <boundarygrid::Kind K>
GridTable Boundary() {
  const boundarygrid::KindTexts& t = boundarygrid::TextsOf(K);
  return {t.exportName, t.printTitle,
          [](const model::ModelDocument& doc, grid::Sheet& sheet) { boundarygrid::FillFromDocument(K, doc, sheet); }};
}

const GridTable kTables[] = {
    {"nodes", nodegrid::kTableTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) {
       nodegrid::Fill(sheet, doc.nodes, doc.units, false, doc.display.alternateRowColor, false);
     },
     [](const model::ModelDocument& doc) { return static_cast<int>(doc.nodes.size()); },
     [](const model::ModelDocument& doc, grid::Sheet& part, int first, int count) {
       nodegrid::Fill(part, std::span<const fmNd>(doc.nodes).subspan(static_cast<size_t>(first), static_cast<size_t>(count)),
                      doc.units, false, doc.display.alternateRowColor, false);
     }},
    {"members", elementgrid::kMembers.printTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) { FillElements(doc, doc.members, sheet); }},
    {"shells", elementgrid::kShells.printTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) { FillElements(doc, doc.shells, sheet); }},
    {"bricks", elementgrid::kBricks.printTitle,
     [](const model::ModelDocument& doc, grid::Sheet& sheet) { FillElements(doc, doc.bricks, sheet); }},
    Boundary<boundarygrid::Kind::Supports>(),
    Boundary<boundarygrid::Kind::NodalSprings>(),
    Boundary<boundarygrid::Kind::LineSprings>(),
    Boundary<boundarygrid::Kind::SurfaceSprings>(),
    Boundary<boundarygrid::Kind::CoupledSprings>(),
    Boundary<boundarygrid::Kind::Releases>(),
    Boundary<boundarygrid::Kind::Constraints>(),
    Boundary<boundarygrid::Kind::Diaphragms>(),
    Boundary<boundarygrid::Kind::DriftNodes>(),
};

std::string TableNames() {
  std::string names;
  for (const auto& t : kTables) names += std::string(names.empty() ? "" : ", ") + t.name;
  return names;
}

struct ExportArgs {
  std::string model, table, out;
  bool append = false;
};

int Export(const ExportArgs& a, std::ostream& out, std::ostream& err) {
  const std::string& modelPath = a.model;
  const std::string& tableName = a.table;
  const std::string& outPath = a.out;
  const bool append = a.append;

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
  int rows = 0;
  std::optional<std::string> failure;
  // A workbook needs the whole sheet: filled at once, the document let go before it is written.
  if (table->fillRows && grid::ExportFormatOf(outPath) != grid::ExportFormat::Workbook) {
    rows = table->rowCount(doc);
    failure = grid::ExportRows(
        rows, [&](grid::Sheet& part, int first, int count) { table->fillRows(doc, part, first, count); }, outPath,
        append, table->title);
  } else {
    grid::Sheet sheet;
    table->fill(doc, sheet);
    // The document goes once the table holds what it shows, before the file is written.
    doc = {};
    rows = sheet.MaxRows();
    failure = grid::ExportSheet(sheet, outPath, append, table->title);
  }
  if (failure) {
    err << "norvane-cli: " << *failure << "\n";
    return kRefused;
  }
  out << "Wrote " << rows << " rows of " << table->name << " to " << outPath << "\n";
  return kOk;
}

}  // namespace

void AddGridCommand(Program& program) {
  CLI::App* grid = program.Add(program.root(), "grid", "the model's tables as their dialogs fill them", nullptr);
  auto a = std::make_shared<ExportArgs>();
  CLI::App* exportTable = program.Add(*grid, "export", "save a table of the model as .htm, .txt, .xls or .xlsx",
                                      [a](Io io) { return Export(*a, io.out, io.err); });
  exportTable->add_option("MODEL", a->model, "the model document")->required();
  exportTable->add_option("TABLE", a->table, "one of " + TableNames())->required();
  exportTable->add_option("OUT", a->out, "the file; its extension chooses the format")->required();
  exportTable->add_flag("--append", a->append, "add to an existing .htm or .txt file");
}

}  // namespace cli
