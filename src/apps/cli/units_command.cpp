#include <cmath>
#include <ostream>

#include "apps/cli/cli.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/units.h"

namespace cli {
namespace {

int List(std::ostream& out) {
  const auto& labels = tools::UnitLabels();
  const auto& factors = tools::UnitFactors();
  for (int i = 0; i < tools::kUnitLabelCount; ++i)
    out << tools::Format("%3d  %-12s %.17g\n", i, labels[i].c_str(), factors[i]);
  return kOk;
}

int Convert(const Args& args, std::ostream& out, std::ostream& err) {
  if (args.size() != 4) {
    err << "usage: norvane-cli units convert VALUE FROM TO\n";
    return kUsage;
  }
  const auto value = tools::ParseDouble(args[1]);
  if (!value) {
    err << "norvane-cli: \"" << args[1] << "\" is not a number\n";
    return kUsage;
  }
  const int from = tools::FindUnitLabel(args[2]);
  const int to = tools::FindUnitLabel(args[3]);
  for (const auto& [index, label] : {std::pair{from, args[2]}, std::pair{to, args[3]}}) {
    if (index < 0) {
      err << "norvane-cli: unknown unit \"" << label << "\" (see: norvane-cli units list)\n";
      return kUsage;
    }
  }
  const int fromGroup = tools::GroupOfUnit(from), toGroup = tools::GroupOfUnit(to);
  const auto& groups = tools::UnitGroups();
  // Moments per radian and per degree are one kind, as the rotational spring list offers them.
  const auto kind = [](int g) { return g == tools::kMomentPerDegreeGroup ? int(tools::kMomentPerRadianGroup) : g; };
  if (kind(fromGroup) != kind(toGroup)) {
    err << "norvane-cli: cannot convert \"" << args[2] << "\" (" << groups[fromGroup].name << ") to \"" << args[3]
        << "\" (" << groups[toGroup].name << ")\n";
    return kUsage;
  }
  const double result = tools::ConvertUnits(*value, from, to);
  if (!std::isfinite(result)) {
    err << "norvane-cli: " << args[1] << " " << args[2] << " is too large to express in " << args[3] << "\n";
    return kRefused;
  }
  out << tools::Format("%.7g", result) << "\n";
  return kOk;
}

}  // namespace

int UnitsCommand(const Args& args, std::ostream& out, std::ostream& err) {
  if (!args.empty() && args[0] == "list" && args.size() == 1) return List(out);
  if (!args.empty() && args[0] == "convert") return Convert(args, out, err);
  err << "usage: norvane-cli units list\n       norvane-cli units convert VALUE FROM TO\n";
  return kUsage;
}

}  // namespace cli
