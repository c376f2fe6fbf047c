#include <cmath>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "apps/cli/cli.h"
#include "dialogs/design/steel_check.h"
#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"

// norvane-cli steel check: the steel beam-column check of the dialog, in its units (kip, kip-ft,
// ft, ksi), one line of results per load set.
namespace cli {

namespace {

struct SteelArgs {
  std::string shape;
  // The dialog's fields as text, read with tools::ParseDouble; defaults are the dialog's.
  std::string fy = "50", length = "14", lux = "14", luy = "14", luz = "14";
  std::string kx = "1", ky = "1", kz = "1", cb = "1", lb = "14", connector = "0";
  bool magnify = false, direct = false;
  std::vector<std::string> loads;
  std::string report;
};

// The commas of a load set: "Pu,Mux,Muy,Vux,Vuy[,Cmx,Cmy]".
std::vector<std::string> SplitCommas(const std::string& text) {
  std::vector<std::string> cells;
  size_t from = 0;
  while (true) {
    const size_t at = text.find(',', from);
    cells.push_back(text.substr(from, at == std::string::npos ? std::string::npos : at - from));
    if (at == std::string::npos) return cells;
    from = at + 1;
  }
}

int SteelCheck(const SteelArgs& a, const CLI::App& command, std::ostream& out, std::ostream& err) {
  design::SteelMember m;
  m.shape = std::string(tools::Trim(a.shape));
  m.magnify = a.magnify;
  m.direct = a.direct;
  const struct {
    const char* option;
    const std::string& text;
    double& value;
  } numbers[] = {{"--fy", a.fy, m.fy},       {"--length", a.length, m.length}, {"--lux", a.lux, m.lux},
                 {"--luy", a.luy, m.luy},    {"--luz", a.luz, m.luz},          {"--kx", a.kx, m.kx},
                 {"--ky", a.ky, m.ky},       {"--kz", a.kz, m.kz},             {"--cb", a.cb, m.cb},
                 {"--lb", a.lb, m.lb},       {"--connector", a.connector, m.connector}};
  for (const auto& n : numbers) {
    const auto v = tools::ParseDouble(n.text);
    if (!v || !std::isfinite(*v)) {
      err << "norvane-cli: " << n.option << " must be a number, not \"" << n.text << "\"\n" << Help(command);
      return kUsage;
    }
    n.value = *v;
  }
  std::vector<design::SteelLoadSet> loads;
  for (size_t i = 0; i < a.loads.size(); ++i) {
    const std::vector<std::string> cells = SplitCommas(a.loads[i]);
    if (cells.size() < 5 || cells.size() > 7) {
      err << "norvane-cli: --load takes \"Pu,Mux,Muy,Vux,Vuy[,Cmx,Cmy]\", not \"" << a.loads[i] << "\"\n"
          << Help(command);
      return kUsage;
    }
    std::string message;
    const auto set = design::ParseLoadSet(cells, static_cast<int>(i + 1), &message);
    if (!set) {
      err << message << "\n";
      return kRefused;
    }
    loads.push_back(*set);
  }
  // As the grid: no filled row still checks one zero load set.
  if (loads.empty()) loads.emplace_back();

  if (const auto failure = design::CheckGeometryAndMaterial(m)) {
    err << failure->message << "\n";
    return kRefused;
  }
  if (const auto failure = design::CheckLoads(loads)) {
    err << failure->message << "\n";
    return kRefused;
  }
  std::ostringstream report;
  design::WriteSteelReportHead(report, m, static_cast<int>(loads.size()));
  std::vector<design::SteelResult> results;
  std::string message;
  if (!design::RunSteelCheck(m, loads, a.report.empty() ? nullptr : &report, results, &message)) {
    err << message << "\n";
    return kRefused;
  }
  design::WriteSteelReportFoot(report);
  if (!a.report.empty()) {
    try {
      tools::WriteFileAtomically(a.report, report.str());
    } catch (const tools::FileError& e) {
      err << "Error opening file " << a.report << " (" << e.reason() << ")\n";
      return kRefused;
    }
  }
  for (const design::SteelResult& r : results)
    out << tools::FormatG(r.phiPn) << '\t' << tools::FormatG(r.phiMnx) << '\t' << tools::FormatG(r.phiMny) << '\t'
        << tools::FormatG(r.phiVnx) << '\t' << tools::FormatG(r.phiVny) << '\t' << tools::Format("%.4f", r.B1x)
        << '\t' << tools::Format("%.4f", r.B1y) << '\t' << tools::Format("%.4f", r.ratio) << '\n';
  return kOk;
}

}  // namespace

void AddSteelCommand(Program& program) {
  CLI::App* steel = program.Add(program.root(), "steel", "steel member check to ANSI/AISC 360-10 LRFD", nullptr);
  auto a = std::make_shared<SteelArgs>();
  auto self = std::make_shared<CLI::App*>(nullptr);  // the command's help follows a usage message
  CLI::App* check = program.Add(*steel, "check",
                      "check one member of an AISC shape for load sets (kip, kip-ft, ft, ksi); prints per load set\n"
                      "phi-Pn phi-Mnx phi-Mny phi-Vnx phi-Vny B1x B1y \"Critical Ratio\", tab-separated",
                      [a, self](Io io) { return SteelCheck(*a, **self, io.out, io.err); });
  *self = check;
  check->add_option("SHAPE", a->shape, "AISC shape label, e.g. W14X90")->required();
  const struct {
    const char* name;
    std::string* text;
    const char* help;
  } options[] = {
      {"--fy", &a->fy, "yield stress (ksi), default 50"},
      {"--length", &a->length, "member length (ft), default 14"},
      {"--lux", &a->lux, "unbraced length for buckling about x (ft), default 14"},
      {"--luy", &a->luy, "unbraced length for buckling about y (ft), default 14"},
      {"--luz", &a->luz, "unbraced length for torsional buckling (ft), default 14"},
      {"--kx", &a->kx, "effective-length factor about x, default 1"},
      {"--ky", &a->ky, "effective-length factor about y, default 1"},
      {"--kz", &a->kz, "effective-length factor in torsion, default 1"},
      {"--cb", &a->cb, "lateral-torsional buckling modification factor, at least 1, default 1"},
      {"--lb", &a->lb, "unbraced length for lateral-torsional buckling (ft), default 14"},
      {"--connector", &a->connector, "distance between the connectors of a double angle (ft), default 0"},
  };
  for (const auto& o : options) check->add_option(o.name, *o.text, o.help)->type_name("NUMBER");
  check->add_flag("--magnify", a->magnify, "consider moment magnification (B1 of Appendix 8)");
  check->add_flag("--direct", a->direct, "use the direct design method (EI* = 0.8 tau_b EI)");
  check->add_option("--load", a->loads, "one load set \"Pu,Mux,Muy,Vux,Vuy[,Cmx,Cmy]\"; Pu > 0 compression; repeat")
      ->type_name("LIST")
      ->allow_extra_args(false);
  check->add_option("--report", a->report, "write the step-by-step report (HTML) to FILE")->type_name("FILE");
}

}  // namespace cli
