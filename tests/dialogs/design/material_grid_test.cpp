#include "dialogs/design/material_grid.h"

#include <gtest/gtest.h>

#include <cmath>

#include "dialogs/design/standard_materials.h"
#include "dialogs/grid/grid_ops.h"

namespace {

// English units: modulus ksi, weight density lb/ft^3, temperature F.
fmMat Steel(int id) {
  fmMat m(id);
  m.label = "Steel";
  m.E = 29000, m.nu = 0.3, m.density = 490, m.Tc = 6.5e-6, m.fc = 3, m.fy = 50, m.fys = 65;
  return m;
}

}  // namespace

TEST(MaterialGrid, PoissonDensityModulusAndThermalLimits) {
  const struct {
    int col;
    const char* text;
    const char* message;  // empty: accepted
  } cases[] = {
      {matgrid::kNu, "0.5", ""},
      {matgrid::kNu, "0.0", ""},
      {matgrid::kNu, "0.51", "Poisson ratio must be greater than 0.0 and less than 0.5 for material 1."},
      {matgrid::kNu, "-0.01", "Poisson ratio must be greater than 0.0 and less than 0.5 for material 1."},
      {matgrid::kDensity, "0", ""},
      {matgrid::kDensity, "-1", "Invalid input for material 1."},
      {matgrid::kE, "0", "Invalid input for material 1."},
      {matgrid::kTc, "0", "Invalid input for material 1."},
      {matgrid::kE, "", "Invalid empty input for Material 1"},
  };
  const std::vector<fmMat> old = {Steel(1)};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.text) + " in column " + std::to_string(c.col));
    grid::Sheet sheet;
    matgrid::Fill(sheet, old, fmUnit(), 0, false);
    sheet.SetData(c.col, 1, c.text);
    const auto r = matgrid::Read(sheet, old, {}, fmUnit());
    if (!*c.message) {
      ASSERT_FALSE(r.failure) << r.failure->message;
      ASSERT_EQ(r.materials.size(), 1u);
      continue;
    }
    ASSERT_TRUE(r.failure);
    EXPECT_EQ(r.failure->message, c.message);
    EXPECT_EQ(r.failure->cell, (grid::CellRef{1, 1}));
  }
}

TEST(MaterialGrid, RowsKeepTheirStrengthsNewRowsGetDefaultsStandardRowsTheirOwn) {
  const std::vector<fmMat> old = {Steel(1), Steel(2)};
  grid::Sheet sheet;
  matgrid::Fill(sheet, old, fmUnit(), 0, false);
  grid::AddRows(sheet, 2, true);
  const char* cells[] = {"3000", "0.2", "150", "5.5e-06"};  // E, nu, density, Tc
  for (int row : {3, 4}) {
    sheet.SetData(matgrid::kLabel, row, row == 3 ? "New" : "Concrete40");
    for (int col = matgrid::kE; col <= matgrid::kTc; ++col) sheet.SetData(col, row, cells[col - matgrid::kE]);
  }
  fmMat concrete(4);
  concrete.label = "Concrete40", concrete.E = 3000, concrete.nu = 0.2, concrete.density = 150, concrete.Tc = 5.5e-6;
  concrete.fc = 4, concrete.fy = 60, concrete.fys = 60;
  const auto r = matgrid::Read(sheet, old, {{4, concrete}}, fmUnit());
  ASSERT_FALSE(r.failure) << r.failure->message;
  ASSERT_EQ(r.materials.size(), 4u);
  EXPECT_EQ(r.materials[1].fy, 50);        // kept from the old record
  EXPECT_DOUBLE_EQ(r.materials[2].fc, 3);  // 3000 psi in ksi
  EXPECT_DOUBLE_EQ(r.materials[2].fy, 60);
  EXPECT_EQ(r.materials[3].fc, 4);
  EXPECT_EQ(r.materials[3].id, 4);
  EXPECT_EQ(r.materials[3].label, "Concrete40");
}

TEST(MaterialGrid, StrengthTablesCheckTheirOwnRules) {
  const std::vector<fmMat> mats = {Steel(1)};
  const struct {
    matgrid::StrengthKind kind;
    int col;
    const char* text;
    const char* message;
  } cases[] = {
      {matgrid::kConcrete, 3, "0", ""},
      {matgrid::kConcrete, 3, "-1", "Invalid fc input for material 1."},
      {matgrid::kConcrete, 4, "0", "Invalid input fy or fys for material 1."},
      {matgrid::kSteel, 4, "x", "Invalid input Fy or Fu for material 1."},
      {matgrid::kSteel, 3, "36", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    grid::Sheet sheet;
    matgrid::FillStrengths(sheet, c.kind, mats, fmUnit(), 0, false);
    EXPECT_TRUE(sheet.IsLocked(matgrid::kLabel, 1));
    sheet.SetData(c.col, 1, c.text);
    const auto r = matgrid::ReadStrengths(sheet, c.kind, mats);
    if (!*c.message) {
      ASSERT_FALSE(r.failure) << r.failure->message;
      continue;
    }
    ASSERT_TRUE(r.failure);
    EXPECT_EQ(r.failure->message, c.message);
  }
}

TEST(StandardMaterials, ConcreteFourKsiAt145PoundsInEnglishAndSiUnits) {
  const double usE = 33 * std::pow(145.0, 1.5) * std::sqrt(4000.0);  // psi, about 3644 ksi
  ASSERT_NEAR(usE / 1000, 3644, 0.5);
  // "Concrete fc = 4.0 ksi" at its table density, converted to the document units and finished.
  const auto concrete = [](const fmUnit& units) {
    auto table = stdmat::UsTable();
    stdmat::ConvertToDocument(table, units);
    fmMat m = table[9];
    stdmat::Finish(m, 9, table[9].density, units);
    return m;
  };
  fmUnit english;
  english.unit[fmUnit::Modulus] = 69;        // psi
  english.unit[fmUnit::WeightDensity] = 86;  // lb/ft^3
  const fmMat us = concrete(english);
  EXPECT_EQ(us.label, "Concrete40");
  EXPECT_NEAR(us.E, usE, 1e-6);
  EXPECT_NEAR(us.fc, 4000, 1e-9);
  EXPECT_NEAR(us.fy, 60000, 1e-9);

  fmUnit si;
  si.SetMetric();
  si.unit[fmUnit::Modulus] = 73;        // N/mm^2
  si.unit[fmUnit::WeightDensity] = 94;  // kN/m^3
  const double psiInMPa = 0.00689475729;
  const fmMat metric = concrete(si);
  EXPECT_EQ(metric.label, "Concrete40");
  EXPECT_NEAR(metric.E, usE * psiInMPa, 0.05);
  EXPECT_NEAR(metric.fc, 4000 * psiInMPa, 1e-4);  // the table's own newton constant
}
