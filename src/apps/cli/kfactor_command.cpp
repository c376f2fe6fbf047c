#include <array>
#include <memory>
#include <ostream>
#include <string>

#include "apps/cli/cli.h"
#include "dialogs/design/effective_length.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {

namespace {

int KFactor(const std::array<std::string, 2>& args, std::ostream& out, std::ostream& err) {
  double g[2] = {0, 0};
  const char* names[2] = {"GA", "GB"};
  for (int i = 0; i < 2; ++i) {
    const auto v = tools::ParseDouble(args[i]);
    // The dialog's range: the equations are solved for ratios from 0 to 1000.
    if (!v || *v < design::kGMin || *v > design::kGMax) {
      err << "norvane-cli: " << names[i] << " must be a number from 0 to 1000, not \"" << args[i] << "\"\n";
      return kUsage;
    }
    g[i] = *v;
  }
  bool failed = false;
  for (const auto& [kind, label] : {std::pair{design::FrameKind::Braced, "braced K "},
                                    std::pair{design::FrameKind::Unbraced, "unbraced K "}}) {
    const design::KResult r = design::SolveK(kind, g[0], g[1]);
    out << label << (r.k ? tools::Format("%.2f", *r.k) : r.error) << "\n";
    failed = failed || !r.k;
  }
  return failed ? kRefused : kOk;
}

}  // namespace

void AddKFactorCommand(Program& program) {
  auto g = std::make_shared<std::array<std::string, 2>>();
  CLI::App* kfactor =
      program.Add(program.root(), "kfactor", "effective length factor K of a braced and an unbraced column",
                  [g](Io io) { return KFactor(*g, io.out, io.err); });
  kfactor->add_option("GA", (*g)[0], "stiffness ratio at one end, 0 to 1000")->required();
  kfactor->add_option("GB", (*g)[1], "stiffness ratio at the other end, 0 to 1000")->required();
}

}  // namespace cli
