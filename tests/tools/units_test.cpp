#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "tools/fm_unit.h"
#include "tools/format.h"
#include "tools/units.h"

namespace {

struct GroupCase {
  const char* name;
  int first;
  std::vector<std::string> labels;
  std::vector<double> factors;  // empty: computed at start-up, checked separately
};

const std::vector<std::string> kMomentLabels = {"lb-in", "lb-ft", "kip-in", "kip-ft", "N-mm",   "N-cm",
                                                "N-m",   "kN-mm", "kN-cm",  "kN-m",   "MT-mm",  "MT-cm",
                                                "MT-m",  "Kgf-mm", "Kgf-cm", "Kgf-m"};
const std::vector<double> kMomentFactors = {
    1.0, 12.0, 1000.0, 12000.0, 0.008850745025800754, 0.08850745025800753, 8.850745025800753,
    8.850745025800753, 88.50745025800754, 8850.745025800754, 86.79616622047243, 867.9616622047242,
    86796.16622047244, 0.08679615870726895, 0.8679615870726893, 86.79615870726894};

std::vector<std::string> WithSuffix(const std::vector<std::string>& labels, const std::string& suffix) {
  std::vector<std::string> out;
  for (const auto& l : labels) out.push_back(l + suffix);
  return out;
}

// The master list, group by group, with the stored factors exactly as they are published.
std::vector<GroupCase> Groups() {
  return {
      {"Length", 0, {"in", "ft", "mm", "cm", "m"}, {1.0, 12.0, 0.03937007874015748, 0.39370078740157477, 39.37007874015748}},
      {"Area", 5, {"in^2", "ft^2", "mm^2", "cm^2", "m^2"},
       {1.0, 144.0, 0.0015500031000062, 0.15500031000061998, 1550.0031000062002}},
      {"Volume", 10, {"in^3", "ft^3", "mm^3", "cm^3", "m^3"},
       {1.0, 1728.0, 6.1023744094732284e-05, 0.06102374409473227, 61023.74409473229}},
      {"Force", 15, {"lb", "kip", "N", "kN", "MT", "Kgf"},
       {1.0, 1000.0, 0.22480892365533914, 224.80892365533916, 2204.622622, 2.204622431164631}},
      {"Moment", 21, kMomentLabels, kMomentFactors},
      {"Force per length", 37,
       {"lb/in", "lb/ft", "kip/in", "kip/ft", "N/mm", "N/cm", "N/m", "kN/mm", "kN/cm", "kN/m", "MT/mm", "MT/cm",
        "MT/m", "Kgf/mm", "Kgf/cm", "Kgf/m"},
       {1.0, 0.08333333333333333, 1000.0, 83.33333333333333, 5.710146660845615, 0.5710146660845614,
        0.005710146660845614, 5710.146660845615, 571.0146660845616, 5.710146660845615, 55997.414598799995,
        5599.741459880001, 55.99741459879999, 55.997409751581635, 5.599740975158164, 0.05599740975158163}},
      {"Moment per length", 53,
       {"lb-in/in", "lb-ft/ft", "kip-in/in", "kip-ft/ft", "N-mm/mm", "N-cm/cm", "N-m/m", "kN-mm/mm", "kN-cm/cm",
        "kN-m/m", "MT-mm/mm", "MT-cm/cm", "MT-m/m", "Kgf-mm/mm", "Kgf-cm/cm", "Kgf-m/m"},
       {1.0, 1.0, 1000.0, 1000.0, 0.22480892365533914, 0.22480892365533914, 0.22480892365533914,
        224.80892365533916, 224.80892365533916, 224.80892365533916, 2204.622622, 2204.622622, 2204.622622,
        2.204622431164631, 2.204622431164631, 2.204622431164631}},
      {"Force per area", 69,
       {"lb/in^2", "lb/ft^2", "kip/in^2", "kip/ft^2", "N/mm^2", "N/cm^2", "N/m^2", "kN/mm^2", "kN/cm^2", "kN/m^2",
        "MT/mm^2", "MT/cm^2", "MT/m^2", "Kgf/mm^2", "Kgf/cm^2", "Kgf/m^2"},
       {}},
      {"Force per volume", 85,
       {"lb/in^3", "lb/ft^3", "kip/in^3", "kip/ft^3", "N/mm^3", "N/cm^3", "N/m^3", "kN/mm^3", "kN/cm^3", "kN/m^3",
        "MT/mm^3", "MT/cm^3", "MT/m^3", "Kgf/mm^3", "Kgf/cm^3", "Kgf/m^3"},
       {}},
      {"Angle", 101, {"rad", "deg"}, {1.0, 0.017453292520882225}},
      {"Temperature", 103, {"F", "C"}, {1.0, 1.7999999999999998}},
      {"Moment per radian", 105, WithSuffix(kMomentLabels, "/rad"), kMomentFactors},
      {"Moment per degree", 121, WithSuffix(kMomentLabels, "/deg"),
       {57.295779509999996, 687.54935412, 57295.77951, 687549.35412, 0.5071103354975093, 5.071103354975092,
        507.1103354975092, 507.1103354975092, 5071.103354975093, 507110.3354975092, 4973.054002081498,
        49730.54002081498, 4973054.0020814985, 4.973053571606648, 49.73053571606647, 4973.053571606648}},
  };
}

double Convert(double value, const char* from, const char* to) {
  const int a = tools::FindUnitLabel(from), b = tools::FindUnitLabel(to);
  EXPECT_GE(a, 0) << from;
  EXPECT_GE(b, 0) << to;
  return tools::ConvertUnits(value, a, b);
}

}  // namespace

TEST(UnitTables, MasterListHas137LabelsInThirteenGroups) {
  const auto& labels = tools::UnitLabels();
  const auto& factors = tools::UnitFactors();
  const auto& groups = tools::UnitGroups();
  const auto cases = Groups();
  ASSERT_EQ(labels.size(), 137u);
  ASSERT_EQ(cases.size(), groups.size());
  int next = 0;
  for (size_t g = 0; g < cases.size(); ++g) {
    const GroupCase& c = cases[g];
    SCOPED_TRACE(c.name);
    EXPECT_EQ(c.first, next) << "groups follow each other without gaps";
    EXPECT_EQ(groups[g].first, c.first);
    EXPECT_EQ(groups[g].count, static_cast<int>(c.labels.size()));
    for (size_t k = 0; k < c.labels.size(); ++k) {
      const int i = c.first + static_cast<int>(k);
      EXPECT_EQ(labels[i], c.labels[k]) << "index " << i;
      EXPECT_EQ(tools::FindUnitLabel(c.labels[k]), i);
      EXPECT_EQ(tools::GroupOfUnit(i), static_cast<int>(g));
      if (!c.factors.empty()) {
        EXPECT_EQ(factors[i], c.factors[k]) << labels[i];
      }
    }
    next = c.first + static_cast<int>(c.labels.size());
  }
  EXPECT_EQ(next, 137);
}

TEST(UnitTables, PressureAndDensityFactorsAreForceOverLengthPowers) {
  const auto& factors = tools::UnitFactors();
  // Force and length of each of the sixteen labels, by index in their own groups.
  const int force[16] = {0, 0, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5};
  const int length[16] = {0, 1, 0, 1, 2, 3, 4, 2, 3, 4, 2, 3, 4, 2, 3, 4};
  for (int k = 0; k < 16; ++k) {
    const double f = factors[15 + force[k]], len = factors[length[k]];
    EXPECT_DOUBLE_EQ(factors[69 + k], k == 0 ? 1.0 : f / (len * len)) << tools::UnitLabels()[69 + k];
    EXPECT_DOUBLE_EQ(factors[85 + k], k == 0 ? 1.0 : f / (len * len * len)) << tools::UnitLabels()[85 + k];
  }
  EXPECT_EQ(factors[tools::FindUnitLabel("kip/ft^2")], 1000.0 / 144.0);
  EXPECT_EQ(factors[tools::FindUnitLabel("kip/ft^3")], 1000.0 / 1728.0);
}

TEST(UnitTables, ConversionsEngineersCheckByHand) {
  struct Case {
    double value;
    const char* from;
    const char* to;
    const char* shown;  // "%.7g"
  };
  const Case cases[] = {
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
  for (const Case& c : cases)
    EXPECT_EQ(tools::Format("%.7g", Convert(c.value, c.from, c.to)), c.shown)
        << c.value << " " << c.from << " -> " << c.to;
}

TEST(UnitTables, TonneAndKilogramForceDifferInTheEighthDigit) {
  // The two constants are kept as published; only the seven-digit display hides the difference.
  EXPECT_NEAR(Convert(1, "MT-m", "Kgf-m"), 1000.0000866, 5e-8);
  EXPECT_NE(Convert(1, "MT-m", "Kgf-m"), 1000.0);
}

TEST(UnitTables, NewtonMetreEqualsKilonewtonMillimetre) {
  for (double v : {1.0, 2.5, -7.25, 1e6})
    EXPECT_EQ(Convert(v, "N-m", "kN-mm"), v);
  EXPECT_EQ(tools::UnitFactors()[tools::FindUnitLabel("N-m")], tools::UnitFactors()[tools::FindUnitLabel("kN-mm")]);
}

TEST(UnitTables, LabelsAreFoundOnlyByExactSpelling) {
  for (const char* s : {"", "FT", "kn", "kip ft", "ft ", "kip-ft/Deg"}) EXPECT_EQ(tools::FindUnitLabel(s), -1) << s;
  EXPECT_EQ(tools::GroupOfUnit(-1), -1);
  EXPECT_EQ(tools::GroupOfUnit(137), -1);
}

TEST(UnitTables, PrecisionFormats) {
  const std::vector<std::string> expected = {"#.0",     "#.00",     "#.000",     "#.0000",
                                             "#.00000", "#.000000", "#.0E+00",   "#.00E+00",
                                             "#.000E+00", "#.0000E+00", "#.00000E+00", "#.000000E+00"};
  const auto& formats = tools::PrecisionFormats();
  EXPECT_EQ(std::vector<std::string>(formats.begin(), formats.end()), expected);
}

TEST(UnitTables, CalculatorTypesConvertWithinTheirGroups) {
  struct Type {
    const char* name;
    int first, count;
  };
  const Type expected[] = {{"Length", 0, 5},         {"Area", 5, 5},           {"Volume", 10, 5},
                           {"Force", 15, 6},         {"Linear Force", 37, 16}, {"Moment", 21, 16},
                           {"Linear Moment", 53, 16}, {"Pressure", 69, 16},    {"Weight Density", 85, 16},
                           {"Angle", 101, 2}};
  const auto& types = tools::ConversionTypes();
  ASSERT_EQ(types.size(), std::size(expected));
  for (size_t i = 0; i < types.size(); ++i) {
    EXPECT_STREQ(types[i].name, expected[i].name);
    EXPECT_EQ(types[i].first, expected[i].first) << expected[i].name;
    EXPECT_EQ(types[i].count, expected[i].count) << expected[i].name;
  }
}

TEST(UnitSettings, QuantitiesOfferTheirGroups) {
  struct Row {
    const char* label;
    int first, count;
  };
  const Row expected[fmUnit::QuantityCount] = {
      {"Length:", 0, 5},          {"Dimension:", 0, 5},
      {"Force:", 15, 6},          {"Linear force:", 37, 16},
      {"Moment:", 21, 16},        {"Linear moment:", 53, 16},
      {"Surface force:", 69, 16}, {"Displacement:", 0, 5},
      {"Rotation", 101, 2},       {"Temperature:", 103, 2},
      {"Modulus (E, Fy, etc.):", 69, 16}, {"Weight density:", 85, 16},
      {"Reinforcement. area:", 5, 5},     {"Stress:", 69, 16},
      {"Node Kx, Ky, Kz:", 37, 16},       {"Node Kox, Koy, Koz.:", 105, 32},
      {"Line Kx, Ky, Kz:", 69, 16},       {"Area Kx, Ky, Kz:", 85, 16},
  };
  const auto& q = UnitQuantities();
  for (int i = 0; i < fmUnit::QuantityCount; ++i) {
    EXPECT_STREQ(q[i].label, expected[i].label);
    EXPECT_EQ(q[i].first, expected[i].first) << expected[i].label;
    EXPECT_EQ(q[i].count, expected[i].count) << expected[i].label;
  }
}

TEST(UnitSettings, PresetsChooseEverydayAndConsistentUnits) {
  struct Preset {
    const char* name;
    void (fmUnit::*apply)();
    std::vector<std::pair<fmUnit::Quantity, const char*>> expected;
  };
  const Preset presets[] = {
      {"English", &fmUnit::SetEnglish,
       {{fmUnit::Length, "ft"}, {fmUnit::Dimension, "in"}, {fmUnit::Force, "kip"}, {fmUnit::Moment, "kip-ft"},
        {fmUnit::Stress, "kip/in^2"}, {fmUnit::Temperature, "F"}, {fmUnit::NodeRotationalSpring, "kip-ft/rad"}}},
      {"Metric", &fmUnit::SetMetric,
       {{fmUnit::Length, "m"}, {fmUnit::Dimension, "mm"}, {fmUnit::Force, "kN"}, {fmUnit::Moment, "kN-m"},
        {fmUnit::Stress, "N/mm^2"}, {fmUnit::Temperature, "C"}, {fmUnit::NodeRotationalSpring, "kN-m/rad"}}},
      {"Consistent English", &fmUnit::SetConsistentEnglish,
       {{fmUnit::Length, "in"}, {fmUnit::Dimension, "in"}, {fmUnit::Force, "kip"}, {fmUnit::Moment, "kip-in"},
        {fmUnit::Stress, "kip/in^2"}, {fmUnit::WeightDensity, "kip/in^3"}}},
      {"Consistent Metric", &fmUnit::SetConsistentMetric,
       {{fmUnit::Length, "m"}, {fmUnit::Dimension, "m"}, {fmUnit::Force, "kN"}, {fmUnit::Moment, "kN-m"},
        {fmUnit::Stress, "kN/m^2"}, {fmUnit::WeightDensity, "kN/m^3"}}},
  };
  const auto& quantities = UnitQuantities();
  for (const Preset& p : presets) {
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
  EXPECT_EQ(fmUnit().unit, [] {
    fmUnit u;
    u.SetEnglish();
    return u.unit;
  }()) << "a new record holds the English preset";
}

TEST(UnitSettings, HeadingsCarryTheUnit) {
  fmUnit u;
  u.SetEnglish();
  EXPECT_EQ(u.Heading("X", fmUnit::Length), "X [ft]");
  u.SetMetric();
  EXPECT_EQ(u.Heading("Fy", fmUnit::Modulus), "Fy [N/mm^2]");
}

TEST(UnitSettings, ConversionFactorsBetweenTwoSettings) {
  fmUnit english, metric;
  english.SetEnglish();
  metric.SetMetric();
  double factors[fmUnit::QuantityCount];
  GetConversionFactors(factors, english, metric);
  struct Case {
    fmUnit::Quantity q;
    const char* shown;
  };
  const Case cases[] = {
      {fmUnit::Length, "0.3048"},        {fmUnit::Dimension, "25.4"},    {fmUnit::Force, "4.448222"},
      {fmUnit::Moment, "1.355818"},      {fmUnit::Temperature, "0.5555556"}, {fmUnit::Rotation, "1"},
      {fmUnit::Stress, "6.894758"},      {fmUnit::WeightDensity, "0.1570875"},
      {fmUnit::ReinforcementArea, "645.16"}, {fmUnit::NodeRotationalSpring, "1.355818"},
  };
  for (const Case& c : cases) EXPECT_EQ(tools::Format("%.7g", factors[c.q]), c.shown) << UnitQuantities()[c.q].label;

  GetConversionFactors(factors, metric, metric);
  for (double f : factors) EXPECT_EQ(f, 1.0);

  // There and back again returns every value.
  double back[fmUnit::QuantityCount];
  GetConversionFactors(factors, english, metric);
  GetConversionFactors(back, metric, english);
  for (int q = 0; q < fmUnit::QuantityCount; ++q) EXPECT_NEAR(factors[q] * back[q], 1.0, 1e-12);
}
