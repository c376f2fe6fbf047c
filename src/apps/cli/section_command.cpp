#include <array>
#include <ostream>

#include "apps/cli/cli.h"
#include "dialogs/design/regular_section.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {
namespace {

constexpr const char* kUsageText =
    "usage: norvane-cli section rect WIDTH DEPTH\n"
    "       norvane-cli section round DIAMETER\n"
    "       norvane-cli section wideflange FLANGE_WIDTH DEPTH FLANGE_THICKNESS WEB_THICKNESS\n"
    "       norvane-cli section tee FLANGE_WIDTH DEPTH FLANGE_THICKNESS WEB_THICKNESS\n";

}  // namespace

int SectionCommand(const Args& args, std::ostream& out, std::ostream& err) {
  static constexpr const char* kTypes[] = {"rect", "round", "wideflange", "tee"};
  int type = -1;
  for (int t = 0; t < design::kRegularSectionTypeCount && !args.empty(); ++t)
    if (tools::EqualsNoCase(args[0], kTypes[t])) type = t;
  if (type < 0 || args.size() != 1 + static_cast<size_t>(design::DimensionCount(type))) {
    err << kUsageText;
    return kUsage;
  }
  // The boxes a shape does not use hold the smallest dimension, as in the dialog.
  std::array<double, 4> dims{design::kMinDimension, design::kMinDimension, design::kMinDimension,
                             design::kMinDimension};
  for (size_t i = 1; i < args.size(); ++i) {
    const auto v = tools::ParseDouble(args[i]);
    if (!v) {
      err << "Please enter a number.\n";
      return kRefused;
    }
    if (*v < design::kMinDimension || *v > design::kMaxDimension) {
      err << tools::Format("Please enter a number between %g and %g.\n", design::kMinDimension, design::kMaxDimension);
      return kRefused;
    }
    dims[i - 1] = *v;
  }
  if (const std::string refusal = design::CheckRegularSection(type, dims); !refusal.empty()) {
    err << refusal << "\n";
    return kRefused;
  }
  const fmSect s = design::ComputeRegularSection(type, dims);
  out << "label " << s.label << "\n";
  const std::pair<const char*, double> fields[] = {{"A", s.A}, {"Ay", s.Ay}, {"Az", s.Az}, {"Iz", s.Iz}, {"Iy", s.Iy},
                                                   {"J", s.J}, {"b", s.b},   {"d", s.d},   {"tf", s.tf}, {"tw", s.tw}};
  for (const auto& [name, value] : fields) out << name << " " << tools::FormatG(value) << "\n";
  return kOk;
}

}  // namespace cli
