#include <algorithm>
#include <memory>
#include <ostream>
#include <string_view>
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
  bool append = false;
};

// The texts as given; Parse reads the numbers.
struct ReportArgs {
  std::string model, kind, caseNumber, modeNumber, query, out;
  bool selected = false, append = false;
  const CLI::App* command = nullptr;
};

// What a kind does not read is ignored with a note: a script that passes --case to every
// kind still gets its report.
bool Parse(const ReportArgs& a, Options& o, std::ostream& err) {
  o.model = a.model;
  o.selected = a.selected;
  o.out = a.out;
  o.append = a.append;
  const auto kind = tools::ParseInt32(a.kind);
  if (!kind) {
    err << "norvane-cli: the report kind must be a whole number, not \"" << a.kind << "\"\n";
    return false;
  }
  o.kind = *kind;
  const auto given = [&a](const char* option) { return a.command->count(option) > 0; };
  const results::ComboUse use = results::ComboUseOf(o.kind);
  const bool infoSheet = o.kind >= 29 && o.kind <= 32;
  const struct {
    const char* option;
    const std::string* text;
    int* target;
    bool read;
  } numbers[] = {{"--case", &a.caseNumber, &o.number, use == results::ComboUse::LoadCase},
                 {"--mode", &a.modeNumber, &o.number, use == results::ComboUse::Mode},
                 {"--query", &a.query, &o.query, infoSheet}};
  for (const auto& n : numbers) {
    if (!given(n.option)) continue;
    if (!n.read) {
      err << "norvane-cli: note: ";
      if (std::string_view(n.option) == "--query")
        err << "only the information sheets (kinds 29 to 32) read --query; it is ignored\n";
      else if (use == results::ComboUse::Nothing)
        err << "report kind " << o.kind << " reads no load case or mode; " << n.option << " is ignored\n";
      else
        err << "report kind " << o.kind << (use == results::ComboUse::Mode ? " reads a mode, not a load case; "
                                                                          : " reads a load case, not a mode; ")
            << n.option << " is ignored\n";
      continue;
    }
    const auto value = tools::ParseInt32(*n.text);
    if (!value) {
      err << "norvane-cli: " << n.option << " needs a whole number, not \"" << *n.text << "\"\n";
      return false;
    }
    *n.target = *value;
  }
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
  const results::ComboUse use = results::ComboUseOf(o.kind);
  if (use != results::ComboUse::Nothing) {
    const std::vector<std::string> choices = results::ComboEntries(s, o.kind);
    const bool modes = use == results::ComboUse::Mode;
    if (o.number < 1 || o.number > static_cast<int>(choices.size())) {
      err << "norvane-cli: there is no " << (modes ? "mode " : "load case or combination ") << o.number
          << " (the model has " << choices.size() << ")\n";
      return kRefused;
    }
    // A case listed by the solver run but without a single result vector has no results,
    // whichever vector the kind reads.
    const fmCaseResults* caseResults = s.GetCaseResults(o.number - 1);
    if (!modes && (!caseResults || *caseResults == fmCaseResults{})) {
      err << "norvane-cli: The results of load case " << o.number << " [" << s.GetCaseName(o.number - 1)
          << "] are not available.\n";
      return kRefused;
    }
  }
  // Kinds that read no case get none, as the results dialog's hidden combo box gives none.
  const int index = use == results::ComboUse::Nothing ? 0 : o.number - 1;
  int query = o.query;
  if (query < 0) query = doc.nodes.empty() ? 1 : static_cast<int>(doc.nodes.front().id);

  grid::Sheet sheet;
  std::vector<std::string> messages;
  const results::ReportContext ctx{sheet, s, o.kind, query, doc.display.alternateRowColor, &messages};
  std::string title;
  try {
    title = results::ReportTitle(o.kind, s.GetCaseName(index), index + 1);
    results::ResetReportGrid(ctx);
    results::BuildReport(ctx, index);
  } catch (const fmException& e) {
    err << "norvane-cli: " << e.GetMessage() << "\n";
    return kRefused;
  }
  // The dialog's message box: the report stays empty.
  for (const std::string& message : messages) err << "norvane-cli: " << message << "\n";

  if (!o.out.empty()) {
    if (const auto failure = grid::ExportSheet(sheet, o.out, o.append, title)) {
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
  CLI::Option* out =
      report->add_option("-o", a->out, "write .htm, .txt, .xls or .xlsx instead of aligned text")->type_name("OUT");
  report->add_flag("--append", a->append, "add to an existing .htm or .txt file, as the grid's Save does")->needs(out);
}

}  // namespace cli
