#include <algorithm>
#include <ostream>

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

const char* kUsageText =
    "usage: norvane-cli report MODEL KIND [--case N|--mode N] [--query ID] [--selected] [-o OUT]\n";

struct Options {
  std::string model;
  int kind = -1;
  int number = 1;      // the 1-based case or mode, as the dialog's combo box numbers them
  int query = -1;      // the object of an information sheet; the first node when not given
  bool selected = false;
  std::string out;
};

bool Parse(const Args& args, Options& o, std::ostream& err) {
  std::vector<std::string> positional;
  bool numberGiven = false;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto number = [&](int& value) {
      if (i + 1 >= args.size()) {
        err << "norvane-cli: " << a << " needs a value\n" << kUsageText;
        return false;
      }
      const auto n = tools::ParseInt32(args[++i]);
      if (!n) {
        err << "norvane-cli: " << a << " needs a whole number, not \"" << args[i] << "\"\n";
        return false;
      }
      value = *n;
      return true;
    };
    if (a == "--case" || a == "--mode") {
      if (numberGiven) {
        err << "norvane-cli: give one of --case and --mode\n" << kUsageText;
        return false;
      }
      numberGiven = true;
      if (!number(o.number)) return false;
    } else if (a == "--query") {
      if (!number(o.query)) return false;
    } else if (a == "--selected") {
      o.selected = true;
    } else if (a == "-o") {
      if (i + 1 >= args.size()) {
        err << "norvane-cli: -o needs a file\n" << kUsageText;
        return false;
      }
      o.out = args[++i];
    } else if (a.starts_with("-") && a.size() > 1 && !tools::ParseInt32(a)) {
      err << "norvane-cli: unknown option " << a << "\n" << kUsageText;
      return false;
    } else {
      positional.push_back(a);
    }
  }
  if (positional.size() != 2) {
    err << kUsageText;
    return false;
  }
  o.model = positional[0];
  const auto kind = tools::ParseInt32(positional[1]);
  if (!kind) {
    err << "norvane-cli: the report kind must be a whole number, not \"" << positional[1] << "\"\n";
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

}  // namespace

int ReportCommand(const Args& args, std::ostream& out, std::ostream& err) {
  Options o;
  if (!Parse(args, o, err)) return kUsage;
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

}  // namespace cli
