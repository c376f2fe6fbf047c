#include <memory>
#include <ostream>
#include <sstream>
#include <string>

#include "apps/cli/cli.h"
#include "model/response_spectrum.h"
#include "model/response_spectrum_codes.h"
#include "model/response_spectrum_manager.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace cli {
namespace {

// The texts of the arguments; numbers are read here so that a bad one gets its own message.
struct SpectrumArgs {
  std::string code, p1, p2, tl, type = "1", ground = "C", ag, importance = "1", damping = "5";
  std::string output, file, name, path;
  const CLI::App* command = nullptr;
  bool Given(const std::string& option) const { return command->count(option) > 0; }
};

// The user's spectrum file, or the one named; false with the reason when it cannot be read.
bool LoadSpectra(const std::string& file, std::ostream& err) {
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
  manager.SetFilePath(file);
  if (manager.LoadFile()) return true;
  err << "norvane-cli: " << manager.LastError() << "\n";
  return false;
}

// Adds a spectrum under a name not yet used and saves the file.
int AddSpectrum(const fmResponseSpectrum& spectrum, const std::string& file, std::ostream& out, std::ostream& err) {
  if (!LoadSpectra(file, err)) return kRefused;
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
  if (manager.Find(spectrum.name)) {
    err << "norvane-cli: a response spectrum named \"" << manager.Find(spectrum.name)->name << "\" already exists in \""
        << manager.FilePath() << "\"\n";
    return kRefused;
  }
  std::vector<fmResponseSpectrum> spectra = manager.GetSpectra();
  spectra.push_back(spectrum);
  manager.SetSpectra(std::move(spectra));
  if (!manager.SaveFile()) {
    err << "norvane-cli: Error saving response spectrum data to file: " << manager.LastError() << "\n";
    return kRefused;
  }
  out << "Added " << spectrum.name << " (" << spectrum.points.size() << " points) to \"" << manager.FilePath()
      << "\"\n";
  return kOk;
}

int Generate(const SpectrumArgs& a, std::ostream& out, std::ostream& err) {
  auto bad = [&](const std::string& what) {
    err << "norvane-cli: " << what << "\n" << Help(*a.command);
    return kUsage;
  };
  auto number = [&](const std::string& text, const char* what, double& value) {
    const auto v = tools::ParseDouble(text);
    if (v) value = *v;
    return v.has_value() || (bad(std::string(what) + " must be a number, not \"" + text + "\""), false);
  };
  const auto code = tools::ParseInt32(a.code);
  if (!code || *code < 0 || *code >= model::kSpectrumCodeCount)
    return bad("CODE must be 0 to 5 (0 UBC 97, 1 IBC 2000, 2 ASCE 2005, 3 ASCE 2010, 4 ASCE 7-16, 5 Eurocode 8), not \"" +
               a.code + "\"");
  model::SpectrumInput in;
  in.code = *code;
  if (in.code == model::kEurocode8) {
    if (a.Given("P1")) return bad("Eurocode 8 takes its values as --type, --ground, --ag, --importance and --damping");
    if (!a.Given("--ag")) return bad("Eurocode 8 needs --ag, the reference peak ground acceleration in g");
    const auto type = tools::ParseInt32(a.type);
    if (!type || (*type != 1 && *type != 2)) return bad("--type must be 1 or 2, not \"" + a.type + "\"");
    in.ec8Type = *type;
    if (a.ground.size() != 1 || !model::FindEc8Ground(1, a.ground[0]))
      return bad("--ground must be A, B, C, D or E, not \"" + a.ground + "\"");
    in.ground = a.ground[0];
    if (!number(a.ag, "--ag", in.ag) || !number(a.importance, "--importance", in.importance) ||
        !number(a.damping, "--damping", in.damping))
      return kUsage;
  } else {
    const bool asce = in.code >= model::kAsce2005 && in.code <= model::kAsce2016;
    const char* v1 = in.code == model::kUbc97 ? "Ca" : "SDS";
    const char* v2 = in.code == model::kUbc97 ? "Cv" : "SD1";
    if (!a.Given("P2")) return bad(std::string("the code needs ") + v1 + " and " + v2);
    if (asce && !a.Given("TL")) return bad("the ASCE codes need TL, the long-period transition in seconds");
    if (!asce && a.Given("TL")) return bad("only the ASCE codes take TL");
    if (!number(a.p1, v1, in.value1) || !number(a.p2, v2, in.value2) || (asce && !number(a.tl, "TL", in.tl)))
      return kUsage;
  }
  const model::SpectrumResult r = model::GenerateResponseSpectrum(in);
  if (!r.ok()) {
    err << "norvane-cli: " << r.message << "\n";
    return kRefused;
  }
  if (a.Given("-o")) {
    std::ostringstream ignored;
    const int status = AddSpectrum(r.spectrum, a.output, ignored, err);
    if (status != kOk) return status;
  }
  out << r.spectrum.name << "\n";
  for (const fmSpectrumPoint& p : r.spectrum.points) out << tools::Format("%g\t%g", p.period, p.acceleration) << "\n";
  return kOk;
}

int List(const SpectrumArgs& a, std::ostream& out, std::ostream& err) {
  if (!LoadSpectra(a.file, err)) return kRefused;
  for (const fmResponseSpectrum& s : CResponseSpectrumManager::Instance().GetSpectra())
    out << s.name << "\t" << s.points.size() << "\n";
  return kOk;
}

int Import(const SpectrumArgs& a, std::ostream& out, std::ostream& err) {
  fmResponseSpectrum spectrum = model::ImportSpectrumFile(a.path, a.name);
  if (const std::string why = model::CheckSpectrumName(spectrum.name); !why.empty()) {
    err << "norvane-cli: the spectrum name \"" << spectrum.name << "\": " << why << "\n";
    return kUsage;
  }
  return AddSpectrum(spectrum, a.file, out, err);
}

int Export(const SpectrumArgs& a, std::ostream& out, std::ostream& err) {
  if (!LoadSpectra(a.file, err)) return kRefused;
  const fmResponseSpectrum* s = CResponseSpectrumManager::Instance().Find(a.name);
  if (!s) {
    err << "norvane-cli: no response spectrum named \"" << a.name << "\" (see: norvane-cli spectrum list)\n";
    return kRefused;
  }
  model::ExportSpectrumFile(*s, a.path);
  out << "Exported " << s->name << " (" << s->points.size() << " points) to \"" << a.path << "\"\n";
  return kOk;
}

}  // namespace

void AddSpectrumCommand(Program& program) {
  CLI::App* spectrum = program.Add(program.root(), "spectrum", "design response spectra and the user's spectrum file", nullptr);
  const auto verb = [&](const char* name, const char* description,
                        int (*run)(const SpectrumArgs&, std::ostream&, std::ostream&), bool fileOption = true) {
    auto a = std::make_shared<SpectrumArgs>();
    CLI::App* command = program.Add(*spectrum, name, description, [a, run](Io io) { return run(*a, io.out, io.err); });
    a->command = command;
    if (fileOption)
      command->add_option("--file", a->file, "the spectrum file (default: the user's, see docs/response-spectra.md)")
          ->type_name("FILE");
    return std::pair{command, a};
  };

  auto [generate, g] = verb("generate",
                            "a code's design spectrum: its name, then one \"period<TAB>Sa\" line per point (Sa in g)",
                            Generate, false);
  generate->add_option("CODE", g->code, "0 UBC 97, 1 IBC 2000, 2 ASCE 2005, 3 ASCE 2010, 4 ASCE 7-16, 5 Eurocode 8")
      ->required();
  generate->add_option("P1", g->p1, "Ca (UBC 97) or SDS");
  generate->add_option("P2", g->p2, "Cv (UBC 97) or SD1");
  generate->add_option("TL", g->tl, "long-period transition, seconds (ASCE)");
  generate->add_option("--type", g->type, "Eurocode 8 spectrum type, 1 or 2 (1)")->type_name("1|2");
  generate->add_option("--ground", g->ground, "Eurocode 8 ground type, A to E (C)")->type_name("A-E");
  generate->add_option("--ag", g->ag, "Eurocode 8 reference peak ground acceleration, g")->type_name("G");
  generate->add_option("--importance", g->importance, "Eurocode 8 importance factor (1)")->type_name("FACTOR");
  generate->add_option("--damping", g->damping, "Eurocode 8 viscous damping, percent (5)")->type_name("PERCENT");
  generate->add_option("-o,--output", g->output, "also add the spectrum to this spectrum file (the user's: see docs/response-spectra.md)")
      ->type_name("FILE");

  verb("list", "the spectra of the spectrum file: name and number of points", List);

  auto [import, i] = verb("import", "add a spectrum from a two-column text or csv file (period, Sa in g)", Import);
  import->add_option("FILE", i->path, "the text or csv file")->required();
  import->add_option("--name", i->name, "the spectrum's name (default: the file's stem)")->type_name("NAME");

  auto [exporting, e] = verb("export", "write a spectrum as two columns (csv for .csv, else tab-separated)", Export);
  exporting->add_option("NAME", e->name, "the spectrum")->required();
  exporting->add_option("FILE", e->path, "the file to write")->required();
}

}  // namespace cli
