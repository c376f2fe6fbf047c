#include <ostream>

#include "apps/cli/cli.h"
#include "dialogs/design/effective_length.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {

int KFactorCommand(const Args& args, std::ostream& out, std::ostream& err) {
  if (args.size() != 2) {
    err << "usage: norvane-cli kfactor GA GB\n";
    return kUsage;
  }
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

}  // namespace cli
