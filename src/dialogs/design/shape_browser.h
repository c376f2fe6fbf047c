#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "tools/fm_unit.h"
#include "tools/shape_table.h"

// What the steel and lumber shape browsers list and show, without widgets.
namespace design {

struct PropertyLine {
  std::string name, value, unit;
};

// The shape types of the library, in table order.
std::vector<std::string> SteelShapeTypes(const tools::AiscLibrary& library);
// Indices of the shapes of a type (empty: all) whose label holds `find` (case ignored).
std::vector<int> FilterSteelShapes(const tools::AiscLibrary& library, std::string_view type, std::string_view find);
// The shape's table values in the document's length unit and its powers (weight per length
// in the linear-force unit), one line per published column that applies.
std::vector<PropertyLine> SteelShapeProperties(const tools::fmSect_AISC& shape, const fmUnit& units);

// Why the shape cannot become a section that the section table accepts, or "" when it can.
std::string SteelShapeSectionFault(const tools::fmSect_AISC& shape, const tools::AiscLibrary* library);

enum LumberFamily { kAllLumber, kBoards, kDimensionLumber, kTimbers };
LumberFamily FamilyOf(const tools::fmSect_NDS& shape);
std::vector<int> FilterLumber(const std::vector<tools::fmSect_NDS>& table, LumberFamily family, std::string_view find);
std::vector<PropertyLine> LumberProperties(const tools::fmSect_NDS& shape, const fmUnit& units);

}  // namespace design
