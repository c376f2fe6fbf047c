#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tools/fm_unit.h"
#include "tools/format.h"
#include "tools/units.h"

namespace {

double Convert(double value, const char* from, const char* to) {
  const int a = tools::FindUnitLabel(from), b = tools::FindUnitLabel(to);
  EXPECT_GE(a, 0) << from;
  EXPECT_GE(b, 0) << to;
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
  EXPECT_EQ(tools::GroupOfUnit(-1), -1);
  EXPECT_EQ(tools::GroupOfUnit(137), -1);
}

// Pressure and density factors are computed at start-up from force and length.
TEST(UnitTables, PressureAndDensityFactorsAreForceOverLengthPowers) {
  const auto& factors = tools::UnitFactors();
  const int force[16] = {0, 0, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5};
  const int length[16] = {0, 1, 0, 1, 2, 3, 4, 2, 3, 4, 2, 3, 4, 2, 3, 4};
  for (int k = 0; k < 16; ++k) {
    const double f = factors[15 + force[k]], len = factors[length[k]];
    EXPECT_DOUBLE_EQ(factors[69 + k], k == 0 ? 1.0 : f / (len * len)) << tools::UnitLabels()[69 + k];
    EXPECT_DOUBLE_EQ(factors[85 + k], k == 0 ? 1.0 : f / (len * len * len)) << tools::UnitLabels()[85 + k];
  }
  EXPECT_EQ(factors[tools::FindUnitLabel("kip/ft^2")], 1000.0 / 144.0);
}

TEST(UnitTables, ConversionsEngineersCheckByHand) {
  const struct {
    double value;
    const char* from;
    const char* to;
    const char* shown;  // "%.7g"
  } cases[] = {
      {1, "ft", "in", "12"},
      {1, "kip-ft", "kN-m", "1.355818"},
      {1, "MT-m", "Kgf-m", "1000"},
      {10, "C", "F", "18"},  // a temperature difference: no offset
      {1, "kip", "kN", "4.448222"},
      {1, "m", "ft", "3.28084"},
      {1, "kip/in^2", "N/mm^2", "6.894758"},
      {1, "kip-ft/deg", "kip-ft/rad", "57.29578"},
      {180, "deg", "rad", "3.141593"},
      {2.5, "N-m", "kN-mm", "2.5"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(tools::Format("%.7g", Convert(c.value, c.from, c.to)), c.shown)
        << c.value << " " << c.from << " -> " << c.to;

  // The tonne and kilogram-force constants are kept as published; only the display hides the difference.
  EXPECT_NEAR(Convert(1, "MT-m", "Kgf-m"), 1000.0000866, 5e-8);
  EXPECT_NE(Convert(1, "MT-m", "Kgf-m"), 1000.0);
  for (double v : {1.0, 2.5, -7.25, 1e6}) EXPECT_EQ(Convert(v, "N-m", "kN-mm"), v);
}

TEST(UnitSettings, RotationalSpringsOfferMomentPerRadianAndPerDegree) {
  const QuantityInfo& kox = UnitQuantities()[fmUnit::NodeRotationalSpring];
  EXPECT_STREQ(kox.label, "Node Kox, Koy, Koz.:");
  EXPECT_EQ(kox.first, 105);
  EXPECT_EQ(kox.count, 32);
  EXPECT_EQ(tools::FindUnitLabel("kip-ft/deg"), 124);
  fmUnit u;
  u.unit[fmUnit::NodeRotationalSpring] = 124;
  EXPECT_EQ(u.Label(fmUnit::NodeRotationalSpring), "kip-ft/deg");
}

TEST(UnitSettings, PresetsChooseEverydayAndConsistentUnits) {
  const struct {
    const char* name;
    void (fmUnit::*apply)();
    std::vector<std::pair<fmUnit::Quantity, const char*>> expected;
  } presets[] = {
      {"English", &fmUnit::SetEnglish,
       {{fmUnit::Length, "ft"}, {fmUnit::Dimension, "in"}, {fmUnit::NodeRotationalSpring, "kip-ft/rad"}}},
      {"Metric", &fmUnit::SetMetric, {{fmUnit::Length, "m"}, {fmUnit::Stress, "N/mm^2"}, {fmUnit::Temperature, "C"}}},
      {"Consistent English", &fmUnit::SetConsistentEnglish, {{fmUnit::Moment, "kip-in"}}},
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
  fmUnit english;
  english.SetEnglish();
  EXPECT_EQ(fmUnit().unit, english.unit) << "a new record holds the English preset";
  EXPECT_EQ(english.Heading("X", fmUnit::Length), "X [ft]");
}

TEST(UnitSettings, ConversionFactorsBetweenTwoSettings) {
  fmUnit english, metric;
  english.SetEnglish();
  metric.SetMetric();
  double factors[fmUnit::QuantityCount], back[fmUnit::QuantityCount];
  GetConversionFactors(factors, english, metric);
  const std::pair<fmUnit::Quantity, const char*> cases[] = {
      {fmUnit::Length, "0.3048"},      {fmUnit::Dimension, "25.4"},  {fmUnit::Moment, "1.355818"},
      {fmUnit::Temperature, "0.5555556"}, {fmUnit::Rotation, "1"}, {fmUnit::WeightDensity, "0.1570875"},
      {fmUnit::ReinforcementArea, "645.16"},
  };
  for (const auto& [q, shown] : cases) EXPECT_EQ(tools::Format("%.7g", factors[q]), shown) << UnitQuantities()[q].label;
  GetConversionFactors(back, metric, english);
  for (int q = 0; q < fmUnit::QuantityCount; ++q) EXPECT_NEAR(factors[q] * back[q], 1.0, 1e-12);
  GetConversionFactors(factors, metric, metric);
  for (double f : factors) EXPECT_EQ(f, 1.0);
}
