#include <ostream>

#include "apps/cli/cli.h"
#include "dialogs/loads/load_combinations.h"
#include "dialogs/loads/std_comb_tables.h"
#include "model/document.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {
namespace {

constexpr const char* kUsageText =
    "usage: norvane-cli combos codes\n"
    "       norvane-cli combos list CODE\n"
    "       norvane-cli combos generate MODEL CODE [--rows all|1,3,5-8] [--pdelta] [-o OUT]\n";

const loads::StdCombCode* ParseCode(const std::string& text, std::ostream& err) {
  const auto index = tools::ParseInt32(text);
  const loads::StdCombCode* code = index ? loads::FindStandardCombinationCode(*index) : nullptr;
  if (!code) err << "norvane-cli: unknown design code \"" << text << "\" (0 to 7, see: norvane-cli combos codes)\n";
  return code;
}

// "all" or a list of row numbers from 1, with ranges: "1,3,5-8".
bool ParseRows(const std::string& text, size_t rowCount, std::vector<int32_t>& checks, std::ostream& err) {
  checks.assign(rowCount, 0);
  if (text == "all") {
    checks.assign(rowCount, 1);
    return true;
  }
  size_t start = 0;
  while (start <= text.size()) {
    const size_t comma = std::min(text.find(',', start), text.size());
    const std::string item(tools::Trim(std::string_view(text).substr(start, comma - start)));
    const size_t dash = item.find('-', 1);
    const auto first = tools::ParseUInt32(item.substr(0, dash));
    const auto last = dash == std::string::npos ? first : tools::ParseUInt32(item.substr(dash + 1));
    if (!first || !last || *first < 1 || *last < *first || *last > rowCount) {
      err << "norvane-cli: bad row \"" << item << "\": rows are numbered 1 to " << rowCount
          << " (see: norvane-cli combos list CODE)\n";
      return false;
    }
    for (uint32_t r = *first; r <= *last; ++r) checks[r - 1] = 1;
    start = comma + 1;
  }
  return true;
}

int Codes(std::ostream& out) {
  const auto codes = loads::StandardCombinationCodes();
  for (size_t i = 0; i < codes.size(); ++i)
    out << tools::Format("%zu  %-28s  %zu\n", i, codes[i].title, codes[i].rows.size());
  return kOk;
}

int List(const Args& args, std::ostream& out, std::ostream& err) {
  const loads::StdCombCode* code = ParseCode(args[1], err);
  if (!code) return kUsage;
  for (const loads::StdComb& row : code->rows) out << loads::StdCombLine(row) << "\n";
  return kOk;
}

std::string Flags(const fmLoadComb& c) {
  std::string flags;
  const auto add = [&](bool on, const std::string& text) {
    if (on) flags += (flags.empty() ? "" : ", ") + text;
  };
  add(c.pdelta, "P-Delta");
  add(c.steelDesign, "steel design");
  add(c.concreteDesign, "concrete design, sustained factor " + tools::FormatG(c.sustainedFactor));
  return flags.empty() ? "" : "  [" + flags + "]";
}

int Generate(const Args& args, std::ostream& out, std::ostream& err) {
  std::string modelPath, codeText, rowsText = "all", outPath;
  bool pdelta = false;
  std::vector<std::string> positional;
  for (size_t i = 1; i < args.size(); ++i) {
    const std::string& a = args[i];
    if ((a == "--rows" || a == "-o") && i + 1 < args.size()) {
      (a == "--rows" ? rowsText : outPath) = args[++i];
    } else if (a == "--pdelta") {
      pdelta = true;
    } else if (!a.empty() && a[0] == '-' && !tools::ParseInt32(a)) {
      err << "norvane-cli: unknown or incomplete option \"" << a << "\"\n" << kUsageText;
      return kUsage;
    } else {
      positional.push_back(a);
    }
  }
  if (positional.size() != 2) {
    err << kUsageText;
    return kUsage;
  }
  modelPath = positional[0];
  const loads::StdCombCode* code = ParseCode(positional[1], err);
  if (!code) return kUsage;
  std::vector<int32_t> checks;
  if (!ParseRows(rowsText, code->rows.size(), checks, err)) return kUsage;

  model::ModelDocument doc = model::LoadModelDocument(modelPath);
  const size_t before = doc.loadCombs.size();
  const loads::GenerateResult result =
      loads::GenerateStandardCombinations(doc.loadCases, doc.loadCombs, *code, checks, pdelta);
  if (result.refused) {
    err << result.message << "\n";
    return kRefused;
  }
  for (size_t i = before; i < doc.loadCombs.size(); ++i) {
    const fmLoadComb& c = doc.loadCombs[i];
    out << c.name << Flags(c) << "\n";
    for (const fmLoadCombItem& item : c.items) out << tools::Format("  %8g  %s\n", item.factor, item.caseName.c_str());
  }
  out << tools::Format("%zu load combination%s generated from %s.\n", result.added, result.added == 1 ? "" : "s",
                       code->title);
  if (outPath.empty()) {
    err << "norvane-cli: model not written (give -o OUT to save it)\n";
  } else {
    model::SaveModelDocument(doc, outPath);
    out << "Written to " << outPath << "\n";
  }
  return kOk;
}

}  // namespace

int CombosCommand(const Args& args, std::ostream& out, std::ostream& err) {
  if (args.size() == 1 && args[0] == "codes") return Codes(out);
  if (args.size() == 2 && args[0] == "list") return List(args, out, err);
  if (!args.empty() && args[0] == "generate") return Generate(args, out, err);
  err << kUsageText;
  return kUsage;
}

}  // namespace cli
