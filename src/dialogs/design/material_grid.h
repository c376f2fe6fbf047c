#pragma once
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_material.h"
#include "tools/fm_unit.h"

// The material tables as grids: elastic properties (id, label, E, Poisson ratio, density,
// Tc), concrete strengths (fc, fy, fys) and steel strengths (Fy, Fu, kept in fy and fys).
namespace matgrid {

enum Column { kId = 1, kLabel, kE, kNu, kDensity, kTc, kColumnCount = kTc };

// The size of one psi in the document's modulus unit.
double PsiToDocumentStress(const fmUnit& units);

std::vector<std::string> Headers(const fmUnit& units);
void Fill(grid::Sheet& sheet, const std::vector<fmMat>& materials, const fmUnit& units, grid::Color alternateRowColor,
          bool lockAll);
// Writes id, label, E, nu, density and Tc into a row.
void FillOneRow(grid::Sheet& sheet, const fmMat& material, int row);

struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<fmMat> materials;  // ids = row numbers
};
// OK of the elastic table. Each row starts from the old record with its id (keeping fc, fy,
// fys), or from a new record whose psi defaults are converted to the document's unit, or
// from the standard material filled into it; the grid gives label, E, nu, density and Tc.
ReadResult Read(const grid::Sheet& sheet, std::span<const fmMat> old, const std::map<int, fmMat>& standard,
                const fmUnit& units);

// The strength tables: one row per material, label shown but not edited.
enum StrengthKind { kConcrete, kSteel };
std::vector<std::string> StrengthHeaders(StrengthKind kind, const fmUnit& units);
void FillStrengths(grid::Sheet& sheet, StrengthKind kind, const std::vector<fmMat>& materials, const fmUnit& units,
                   grid::Color alternateRowColor, bool lockAll);
void FillStrengthRow(grid::Sheet& sheet, StrengthKind kind, const fmMat& material, int row);
// OK of a strength table: the materials with their strengths replaced, row by row.
ReadResult ReadStrengths(const grid::Sheet& sheet, StrengthKind kind, std::span<const fmMat> materials);

}  // namespace matgrid
