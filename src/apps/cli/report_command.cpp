#include <algorithm>
#include <memory>
#include <ostream>
#include <string>

#include "apps/cli/cli.h"
#include "dialogs/grid/export.h"
#include "dialogs/grid/sheet.h"
#include "dialogs/results/report_kinds.h"
#include "model/document.h"
#include "model/solved_structure.h"
#include "tools/fm_exception.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace cli {
namespace {

struct Options {
  std::string model;
  int kind = -1;
  int number = 1;      // the 1-based case or mode, as the dialog's combo box numbers them
  int query = -1;      // the object of an information sheet; the first node when not given
  bool selected = false;
  std::string out;
};

// The texts as given; Parse reads the numbers.
struct ReportArgs {
  std::string model, kind, caseNumber, modeNumber, query, out;
  bool selected = false;
  const CLI::App* command = nullptr;
};

bool Parse(const ReportArgs& a, Options& o, std::ostream& err) {
  const auto given = [&a](const char* option) { return a.command->count(option) > 0; };
  if (given("--case") && given("--mode")) {
    err << "norvane-cli: give one of --case and --mode\n" << Help(*a.command);
    return false;
  }
  const std::pair<const char*, std::pair<const std::string*, int*>> numbers[] = {
      {"--case", {&a.caseNumber, &o.number}}, {"--mode", {&a.modeNumber, &o.number}}, {"--query", {&a.query, &o.query}}};
  for (const auto& [option, target] : numbers) {
    if (!given(option)) continue;
    const auto n = tools::ParseInt32(*target.first);
    if (!n) {
      err << "norvane-cli: " << option << " needs a whole number, not \"" << *target.first << "\"\n";
      return false;
    }
    *target.second = *n;
  }
  o.model = a.model;
  o.selected = a.selected;
  o.out = a.out;
  const auto kind = tools::ParseInt32(a.kind);
  if (!kind) {
    err << "norvane-cli: the report kind must be a whole number, not \"" << a.kind << "\"\n";
    return false;
  }
  o.kind = *kind;
  return true;
}

// The grid as text: a column as wide as its widest cell, the first column to the left and
// the others to the right, two blanks between columns.
void WriteAligned(const grid::Sheet& sheet, std::ostream& out) {
  const int cols = sheet.MaxCols(), rows = sheet.MaxRows();
  std::vector<size_t> width(static_cast<size_t>(cols) + 1, 0);
  for (int col = 1; col <= cols; ++col)
    for (int row = 0; row <= rows; ++row)
      width[col] = std::max(width[col], tools::CountChars(sheet.GetData(col, row)));
  for (int row = 0; row <= rows; ++row) {
    std::string line;
    for (int col = 1; col <= cols; ++col) {
      const std::string& text = sheet.GetData(col, row);
      const std::string pad(width[col] - tools::CountChars(text), ' ');
      if (col > 1) line += "  ";
      line += sheet.GetColAlign(col) == grid::Align::Left ? text + pad : pad + text;
    }
    while (!line.empty() && line.back() == ' ') line.pop_back();
    out << line << "\n";
  }
}

int Report(const ReportArgs& a, std::ostream& out, std::ostream& err) {
  Options o;
  if (!Parse(a, o, err)) return kUsage;
  if (o.kind < 0 || o.kind > results::kLastReportKind) {
    err << "norvane-cli: there is no report kind " << o.kind << " (kinds are 0 to " << results::kLastReportKind
        << ")\n";
    return kUsage;
  }
  if (!o.out.empty() && !grid::ExportFormatOf(o.out)) {
    err << "norvane-cli: Invalid file format specified\n";
    return kRefused;
  }
  model::ModelDocument doc;
  try {
    doc = model::LoadModelDocument(o.model);
  } catch (const model::DocumentLoadError& e) {
    err << "norvane-cli: " << e.what() << "\n";
    return kRefused;
  }
  for (const std::string& line : model::CheckSolution(doc))
    err << "norvane-cli: warning: the results do not fit the model: " << line << "\n";

  if (!results::IsReportBuilt(o.kind)) {
    const std::string title = results::ReportTitle(o.kind, "", 1);
    err << "norvane-cli: report kind " << o.kind;
    if (!title.empty()) err << " (" << title.substr(0, title.find(" - ")) << ")";
    err << " is not made by this version\n";
    return kRefused;
  }

  CfmStruct s = model::SolvedStructure(doc);
  if (o.selected) s.m_nShowSelected = 1;
  const std::vector<std::string> choices = results::ComboEntries(s, o.kind);
  const bool modes = results::ComboListOf(o.kind) != results::ComboList::Cases;
  const bool infoSheet = o.kind >= 29 && o.kind <= 32;
  if (!infoSheet && (o.number < 1 || o.number > static_cast<int>(choices.size()))) {
    err << "norvane-cli: there is no " << (modes ? "mode " : "load case or combination ") << o.number << " (the model has "
        << choices.size() << ")\n";
    return kRefused;
  }
  const int index = o.number - 1;
  int query = o.query;
  if (query < 0) query = doc.nodes.empty() ? 1 : static_cast<int>(doc.nodes.front().id);

  grid::Sheet sheet;
  const results::ReportContext ctx{sheet, s, o.kind, query, doc.display.alternateRowColor};
  std::string title;
  try {
    title = results::ReportTitle(o.kind, s.GetCaseName(index), index + 1);
    results::ResetReportGrid(ctx);
    results::BuildReport(ctx, index);
  } catch (const fmException& e) {
    err << "norvane-cli: " << e.GetMessage() << "\n";
    return kRefused;
  }

  if (!o.out.empty()) {
    if (const auto failure = grid::ExportSheet(sheet, o.out, false, title)) {
      err << "norvane-cli: " << *failure << "\n";
      return kRefused;
    }
    return kOk;
  }
  out << title << "\n\n";
  if (sheet.MaxRows() == 0)
    out << "(no rows)\n";
  else
    WriteAligned(sheet, out);
  return kOk;
}

}  // namespace

void AddReportCommand(Program& program) {
  auto a = std::make_shared<ReportArgs>();
  CLI::App* report = program.Add(program.root(), "report", "a results report of the model",
                                 [a](Io io) { return Report(*a, io.out, io.err); });
  a->command = report;
  report->add_option("MODEL", a->model, "the model document with its results")->required();
  report->add_option("KIND", a->kind,
                     "the results dialog's report kind, e.g. 0 displacements, 1 support reactions, "
                     "55 displacement envelope")
      ->required();
  report->add_option("--case", a->caseNumber, "the load case or combination as the combo box numbers it (the first "
                                             "when omitted)")
      ->type_name("N");
  report->add_option("--mode", a->modeNumber, "the mode, for the modal kinds")->type_name("N");
  report->add_option("--query", a->query, "the object of an information sheet (the first node when omitted)")
      ->type_name("ID");
  report->add_flag("--selected", a->selected, "only the objects the model has selected");
  report->add_option("-o", a->out, "write .htm, .txt, .xls or .xlsx instead of aligned text")->type_name("OUT");
}

}  // namespace cli
