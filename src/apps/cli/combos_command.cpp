#include <memory>
#include <ostream>
#include <string>

#include "apps/cli/cli.h"
#include "dialogs/loads/load_combinations.h"
#include "dialogs/loads/std_comb_tables.h"
#include "model/document.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {
namespace {

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
  const auto bad = ForEachNumberRange(text, [&](uint32_t first, uint32_t last) {
    if (first < 1 || last > rowCount) return false;
    for (uint32_t r = first; r <= last; ++r) checks[r - 1] = 1;
    return true;
  });
  if (bad)
    err << "norvane-cli: bad row \"" << *bad << "\": rows are numbered 1 to " << rowCount
        << " (see: norvane-cli combos list CODE)\n";
  return !bad;
}

int Codes(std::ostream& out) {
  const auto codes = loads::StandardCombinationCodes();
  for (size_t i = 0; i < codes.size(); ++i)
    out << tools::Format("%zu  %-28s  %zu\n", i, codes[i].title, codes[i].rows.size());
  return kOk;
}

int List(const std::string& codeText, std::ostream& out, std::ostream& err) {
  const loads::StdCombCode* code = ParseCode(codeText, err);
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

struct GenerateArgs {
  std::string model, code, rows = "all", out;
  bool pdelta = false;
};

int Generate(const GenerateArgs& a, std::ostream& out, std::ostream& err) {
  const loads::StdCombCode* code = ParseCode(a.code, err);
  if (!code) return kUsage;
  std::vector<int32_t> checks;
  if (!ParseRows(a.rows, code->rows.size(), checks, err)) return kUsage;

  model::ModelDocument doc = model::LoadModelDocument(a.model);
  const size_t before = doc.loadCombs.size();
  const loads::GenerateResult result =
      loads::GenerateStandardCombinations(doc.loadCases, doc.loadCombs, *code, checks, a.pdelta);
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
  return WriteModelIfAsked(doc, a.out, {out, err});
}

}  // namespace

void AddCombosCommand(Program& program) {
  CLI::App* combos =
      program.Add(program.root(), "combos", "standard load combinations of the design codes", nullptr);
  program.Add(*combos, "codes", "the design codes: index, name, number of combinations",
              [](Io io) { return Codes(io.out); });
  auto code = std::make_shared<std::string>();
  program
      .Add(*combos, "list", "the code's combinations as the check list shows them",
           [code](Io io) { return List(*code, io.out, io.err); })
      ->add_option("CODE", *code, "the code's index (see: combos codes)")
      ->required();
  auto a = std::make_shared<GenerateArgs>();
  CLI::App* generate =
      program.Add(*combos, "generate", "add the code's standard combinations to the model",
                  [a](Io io) { return Generate(*a, io.out, io.err); });
  generate->add_option("MODEL", a->model, "the model document")->required();
  generate->add_option("CODE", a->code, "the code's index (see: combos codes)")->required();
  generate->add_option("--rows", a->rows, "all, or row numbers from 1 as list prints them: 1,3,5-8")
      ->type_name("ROWS");
  generate->add_flag("--pdelta", a->pdelta, "flag the new combinations for P-Delta analysis");
  generate->add_option("-o", a->out, "write the model with its new combinations to OUT")->type_name("OUT");
}

}  // namespace cli
