#include <cmath>
#include <memory>
#include <ostream>
#include <string>

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

struct ConvertArgs {
  std::string value, from, to;
};

int Convert(const ConvertArgs& a, std::ostream& out, std::ostream& err) {
  const auto value = tools::ParseDouble(a.value);
  if (!value) {
    err << "norvane-cli: \"" << a.value << "\" is not a number\n";
    return kUsage;
  }
  const int from = tools::FindUnitLabel(a.from);
  const int to = tools::FindUnitLabel(a.to);
  for (const auto& [index, label] : {std::pair{from, a.from}, std::pair{to, a.to}}) {
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
    err << "norvane-cli: cannot convert \"" << a.from << "\" (" << groups[fromGroup].name << ") to \"" << a.to
        << "\" (" << groups[toGroup].name << ")\n";
    return kUsage;
  }
  const double result = tools::ConvertUnits(*value, from, to);
  if (!std::isfinite(result)) {
    err << "norvane-cli: " << a.value << " " << a.from << " is too large to express in " << a.to << "\n";
    return kRefused;
  }
  out << tools::Format("%.7g", result) << "\n";
  return kOk;
}

}  // namespace

void AddUnitsCommand(Program& program) {
  CLI::App* units = program.Add(program.root(), "units", "unit labels and conversions", nullptr);
  program.Add(*units, "list", "every unit label with its index and factor", [](Io io) { return List(io.out); });
  auto a = std::make_shared<ConvertArgs>();
  CLI::App* convert = program.Add(*units, "convert", "convert VALUE between two units of one kind",
                                  [a](Io io) { return Convert(*a, io.out, io.err); });
  convert->add_option("VALUE", a->value, "the number to convert")->required();
  convert->add_option("FROM", a->from, "its unit label, e.g. kip-ft")->required();
  convert->add_option("TO", a->to, "the unit label to express it in, e.g. kN-m")->required();
}

}  // namespace cli
