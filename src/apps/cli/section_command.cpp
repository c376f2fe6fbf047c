#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "apps/cli/cli.h"
#include "dialogs/design/regular_section.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {
namespace {

struct RegularShape {
  const char* name;
  const char* alias;  // the calculator's own name where the command's is shorter
  const char* description;
  std::vector<const char*> dimensions;
};

// In the calculator's order of types.
const RegularShape kShapes[] = {
    {"rect", "rectangle", "a solid rectangle", {"WIDTH", "DEPTH"}},
    {"round", nullptr, "a round bar", {"DIAMETER"}},
    {"wideflange", nullptr, "a wide flange", {"FLANGE_WIDTH", "DEPTH", "FLANGE_THICKNESS", "WEB_THICKNESS"}},
    {"tee", nullptr, "a tee", {"FLANGE_WIDTH", "DEPTH", "FLANGE_THICKNESS", "WEB_THICKNESS"}},
};

int Section(int type, const std::vector<std::string>& texts, std::ostream& out, std::ostream& err) {
  // The boxes a shape does not use hold the smallest dimension, as in the dialog.
  std::array<double, 4> dims{design::kMinDimension, design::kMinDimension, design::kMinDimension,
                             design::kMinDimension};
  for (size_t i = 0; i < texts.size(); ++i) {
    const auto v = tools::ParseDouble(texts[i]);
    if (!v) {
      err << "Please enter a number.\n";
      return kRefused;
    }
    if (*v < design::kMinDimension || *v > design::kMaxDimension) {
      err << tools::Format("Please enter a number between %g and %g.\n", design::kMinDimension, design::kMaxDimension);
      return kRefused;
    }
    dims[i] = *v;
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

}  // namespace

void AddSectionCommand(Program& program) {
  CLI::App* section = program.Add(program.root(), "section", "properties of a regular section", nullptr);
  section->ignore_case();
  for (int type = 0; type < design::kRegularSectionTypeCount; ++type) {
    const RegularShape& shape = kShapes[type];
    auto texts = std::make_shared<std::vector<std::string>>(shape.dimensions.size());
    CLI::App* command = program.Add(*section, shape.name, std::string("properties of ") + shape.description,
                                    [type, texts](Io io) { return Section(type, *texts, io.out, io.err); });
    if (shape.alias) command->alias(shape.alias);
    for (size_t i = 0; i < shape.dimensions.size(); ++i)
      command->add_option(shape.dimensions[i], (*texts)[i])->required();
  }
}

}  // namespace cli
