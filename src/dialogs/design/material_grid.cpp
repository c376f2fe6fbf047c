#include "dialogs/design/material_grid.h"

#include <algorithm>
#include <cmath>

#include "dialogs/grid/grid_ops.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace matgrid {
namespace {

int RowId(const grid::Sheet& sheet, int row) { return static_cast<int>(sheet.GetInt(kId, row).value_or(row)); }

grid::GridFailure Failure(std::string message, int row) { return {std::move(message), {1, row}}; }

}  // namespace

double PsiToDocumentStress(const fmUnit& units) {
  fmUnit psi = units;
  psi.unit[fmUnit::Modulus] = 69;  // lb/in^2
  double f[fmUnit::QuantityCount];
  GetConversionFactors(f, psi, units);
  return f[fmUnit::Modulus];
}

std::vector<std::string> Headers(const fmUnit& units) {
  return {"Material Id",
          "Label",
          units.Heading("E", fmUnit::Modulus),
          "Poisson Ratio",
          units.Heading("Density", fmUnit::WeightDensity),
          "Tc [1/" + units.Label(fmUnit::Temperature) + "]"};
}

void FillOneRow(grid::Sheet& sheet, const fmMat& m, int row) {
  sheet.SetNumber(kId, row, tools::Format("%d", m.id));
  sheet.SetData(kLabel, row, m.label);
  sheet.SetNumberG(kE, row, m.E);
  sheet.SetNumberG(kNu, row, m.nu);
  sheet.SetNumberG(kDensity, row, m.density);
  sheet.SetNumberG(kTc, row, m.Tc);
}

void Fill(grid::Sheet& sheet, const std::vector<fmMat>& materials, const fmUnit& units, grid::Color alternateRowColor,
          bool lockAll) {
  const int rows = static_cast<int>(materials.size());
  grid::InitializeGrid(sheet, alternateRowColor, rows, kColumnCount, Headers(units), {9, 22, 11, 10, 14, 10}, lockAll);
  sheet.SetColumnLock(kId, true);
  sheet.SetColAlign(kLabel, grid::Align::Left);
  for (int col = kE; col <= kTc; ++col) sheet.AddFillColumn(col);
  for (int row = 1; row <= rows; ++row) FillOneRow(sheet, materials[static_cast<size_t>(row - 1)], row);
}

ReadResult Read(const grid::Sheet& sheet, std::span<const fmMat> old, const std::map<int, fmMat>& standard,
                const fmUnit& units) {
  ReadResult result;
  const int used = sheet.LastUsedRow(kLabel, kTc);
  if ((result.failure = grid::CheckEmptyCells(sheet, used, kLabel, kTc, "Material"))) return result;

  std::vector<fmMat> byId(old.begin(), old.end());
  std::sort(byId.begin(), byId.end(), [](const fmMat& a, const fmMat& b) { return a.id < b.id; });
  const double psi = PsiToDocumentStress(units);

  std::vector<fmMat> out;
  for (int row = 1; row <= used; ++row) {
    const int id = RowId(sheet, row);
    const std::string label(tools::Trim(sheet.GetData(kLabel, row)));
    if (const std::string rule = tools::IsValidLabel(label); !rule.empty()) {
      result.failure = Failure("Material label can only " + rule, row);
      return result;
    }
    fmMat m;
    const auto it = std::lower_bound(byId.begin(), byId.end(), id, [](const fmMat& a, int v) { return a.id < v; });
    const fmMat* previous = it != byId.end() && it->id == id ? &*it : nullptr;
    if (previous) {
      m = *previous;
    } else {
      m.fc *= psi;
      m.fy *= psi;
      m.fys *= psi;
    }
    const auto st = standard.find(id);
    const fmMat* chosen = st != standard.end() ? &st->second : nullptr;
    if (chosen) {
      m.fc = chosen->fc;
      m.fy = chosen->fy;
      m.fys = chosen->fys;
    }
    const auto value = [&](int col, double fmMat::*field) {
      return grid::ReadReal(sheet.GetData(col, row),
                       {chosen ? &(chosen->*field) : nullptr, previous ? &(previous->*field) : nullptr});
    };
    const auto E = value(kE, &fmMat::E), nu = value(kNu, &fmMat::nu), density = value(kDensity, &fmMat::density),
               Tc = value(kTc, &fmMat::Tc);
    if (!E || !(*E > 0) || !density || !(*density >= 0) || !Tc || !(*Tc > 0) || !nu) {
      result.failure = Failure(tools::Format("Invalid input for material %d.", id), row);
      return result;
    }
    // 0 and 0.5 themselves are accepted, wider than the message says.
    if (*nu < 0 || *nu > 0.5) {
      result.failure =
          Failure(tools::Format("Poisson ratio must be greater than 0.0 and less than 0.5 for material %d.", id), row);
      return result;
    }
    m.id = row;
    m.SetLabel(label);
    m.E = *E;
    m.nu = *nu;
    m.density = *density;
    m.Tc = *Tc;
    out.push_back(std::move(m));
  }
  result.materials = std::move(out);
  return result;
}

std::vector<std::string> StrengthHeaders(StrengthKind kind, const fmUnit& units) {
  if (kind == kConcrete)
    return {"Material Id", "Label", units.Heading("fc", fmUnit::Modulus), units.Heading("fy", fmUnit::Modulus),
            units.Heading("fys", fmUnit::Modulus)};
  return {"Material Id", "Label", units.Heading("Fy", fmUnit::Modulus), units.Heading("Fu", fmUnit::Modulus)};
}

void FillStrengthRow(grid::Sheet& sheet, StrengthKind kind, const fmMat& m, int row) {
  sheet.SetNumber(kId, row, tools::Format("%d", m.id));
  sheet.SetData(kLabel, row, m.label);
  if (kind == kConcrete) {
    sheet.SetNumberG(3, row, m.fc);
    sheet.SetNumberG(4, row, m.fy);
    sheet.SetNumberG(5, row, m.fys);
  } else {
    sheet.SetNumberG(3, row, m.fy);
    sheet.SetNumberG(4, row, m.fys);
  }
}

void FillStrengths(grid::Sheet& sheet, StrengthKind kind, const std::vector<fmMat>& materials, const fmUnit& units,
                   grid::Color alternateRowColor, bool lockAll) {
  const int rows = static_cast<int>(materials.size());
  const int cols = kind == kConcrete ? 5 : 4;
  std::vector<double> widths = {8, 22, 10, 10, 10};
  widths.resize(static_cast<size_t>(cols));
  grid::InitializeGrid(sheet, alternateRowColor, rows, cols, StrengthHeaders(kind, units), widths, lockAll);
  sheet.SetColumnLock(kId, true);
  sheet.SetColumnLock(kLabel, true);  // the elastic table names the materials
  sheet.SetColAlign(kLabel, grid::Align::Left);
  for (int col = 3; col <= cols; ++col) sheet.AddFillColumn(col);
  for (int row = 1; row <= rows; ++row) FillStrengthRow(sheet, kind, materials[static_cast<size_t>(row - 1)], row);
}

ReadResult ReadStrengths(const grid::Sheet& sheet, StrengthKind kind, std::span<const fmMat> materials) {
  ReadResult result;
  const int rows = std::min(sheet.MaxRows(), static_cast<int>(materials.size()));
  const int last = kind == kConcrete ? 5 : 4;
  if ((result.failure = grid::CheckEmptyCells(sheet, rows, 3, last, "Material"))) return result;
  std::vector<fmMat> out(materials.begin(), materials.begin() + rows);
  for (int row = 1; row <= rows; ++row) {
    fmMat& m = out[static_cast<size_t>(row - 1)];
    const fmMat& before = materials[static_cast<size_t>(row - 1)];
    const int id = RowId(sheet, row);
    const auto cell = [&](int col, double fmMat::*field) {
      return grid::ReadReal(sheet.GetData(col, row), {&(before.*field)});
    };
    if (kind == kConcrete) {
      const auto fc = cell(3, &fmMat::fc), fy = cell(4, &fmMat::fy), fys = cell(5, &fmMat::fys);
      // fc = 0 is a material that is not concrete.
      if (!fc || *fc < 0) {
        result.failure = Failure(tools::Format("Invalid fc input for material %d.", id), row);
        return result;
      }
      if (!fy || !fys || !(*fy > 0) || !(*fys > 0)) {
        result.failure = Failure(tools::Format("Invalid input fy or fys for material %d.", id), row);
        return result;
      }
      m.fc = *fc;
      m.fy = *fy;
      m.fys = *fys;
    } else {
      const auto Fy = cell(3, &fmMat::fy), Fu = cell(4, &fmMat::fys);
      if (!Fy || !Fu || !(*Fy > 0) || !(*Fu > 0)) {
        result.failure = Failure(tools::Format("Invalid input Fy or Fu for material %d.", id), row);
        return result;
      }
      m.fy = *Fy;  // steel keeps Fy in fy and Fu in fys
      m.fys = *Fu;
    }
  }
  result.materials = std::move(out);
  return result;
}

}  // namespace matgrid
