#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tools/fm_unit.h"
#include "tools/format.h"
#include "tools/units.h"

namespace {

double Convert(double value, const char* from, const char* to) {
  const int a = tools::FindUnitLabel(from), b = tools::FindUnitLabel(to);
  EXPECT_TRUE(a >= 0 && b >= 0) << from << " -> " << to;
  return tools::ConvertUnits(value, a, b);
}

}  // namespace

TEST(UnitTables, GroupsFollowEachOtherAndEveryLabelFindsItsIndex) {
  const auto& labels = tools::UnitLabels();
  const auto& groups = tools::UnitGroups();
  int next = 0;
  for (size_t g = 0; g < groups.size(); ++g) {
    SCOPED_TRACE(groups[g].name);
    EXPECT_EQ(groups[g].first, next);
    for (int i = groups[g].first; i < groups[g].first + groups[g].count; ++i) {
      EXPECT_EQ(tools::FindUnitLabel(labels[i]), i) << labels[i];
      EXPECT_EQ(tools::GroupOfUnit(i), static_cast<int>(g)) << labels[i];
    }
    next = groups[g].first + groups[g].count;
  }
  EXPECT_EQ(next, 137);
  for (const char* s : {"", "FT", "kn", "kip ft", "ft ", "kip-ft/Deg"}) EXPECT_EQ(tools::FindUnitLabel(s), -1) << s;
}

TEST(UnitTables, ConversionsEngineersCheckByHand) {
  const struct { double value; const char *from, *to, *shown; } cases[] = {  // shown as "%.7g"
      {1, "ft", "in", "12"},    {1, "kip-ft", "kN-m", "1.355818"},      {1, "MT-m", "Kgf-m", "1000"},
      {10, "C", "F", "18"},     {1, "kip/in^2", "N/mm^2", "6.894758"}, {2.5, "N-m", "kN-mm", "2.5"},
  };  // 10 C to F: a temperature difference, no offset
  for (const auto& c : cases)
    EXPECT_EQ(tools::Format("%.7g", Convert(c.value, c.from, c.to)), c.shown)
        << c.value << " " << c.from << " -> " << c.to;

  // The tonne and kilogram-force constants are kept as published; only the display hides the difference.
  EXPECT_NEAR(Convert(1, "MT-m", "Kgf-m"), 1000.0000866, 5e-8);
  for (double v : {1.0, 2.5, -7.25, 1e6}) EXPECT_EQ(Convert(v, "N-m", "kN-mm"), v);
}

TEST(UnitSettings, PresetsChooseEverydayAndConsistentUnits) {
  const struct {
    const char* name; void (fmUnit::*apply)(); std::vector<std::pair<fmUnit::Quantity, const char*>> expected;
  } presets[] = {
      {"English", &fmUnit::SetEnglish,
       {{fmUnit::Length, "ft"}, {fmUnit::Dimension, "in"}, {fmUnit::NodeRotationalSpring, "kip-ft/rad"}}},
      {"Metric", &fmUnit::SetMetric, {{fmUnit::Length, "m"}, {fmUnit::Stress, "N/mm^2"}, {fmUnit::Temperature, "C"}}},
      {"Consistent Metric", &fmUnit::SetConsistentMetric, {{fmUnit::Dimension, "m"}, {fmUnit::Stress, "kN/m^2"}}},
  };
  const auto& quantities = UnitQuantities();
  for (const auto& p : presets) {
    SCOPED_TRACE(p.name);
    fmUnit u;
    u.convert.fill(1);
    (u.*p.apply)();
    for (const auto& [q, label] : p.expected) EXPECT_EQ(u.Label(q), label) << quantities[q].label;
    for (int q = 0; q < fmUnit::QuantityCount; ++q) {
      const int pos = u.unit[q] - quantities[q].first;
      EXPECT_TRUE(pos >= 0 && pos < quantities[q].count) << quantities[q].label << " outside its list";
      EXPECT_TRUE(u.precision[q] >= 0 && u.precision[q] < tools::kPrecisionFormatCount);
      EXPECT_EQ(u.convert[q], 1) << "a preset never touches the convert flags";
    }
  }
}
