#include "dialogs/design/shape_browser.h"

#include <algorithm>
#include <cmath>

#include "dialogs/design/section_grid.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace design {
namespace {

// The power of length of each published value column (W = weight per length: -1; a ratio: 0).
constexpr int kPowers[tools::kAiscValueCount] = {
    -1, 2,                                // W, A
    1,  1, 1, 1, 1, 1, 1, 1, 1, 1,        // d ddet Ht h OD bf bfdet B b ID
    1,  1, 1, 1, 1, 1, 1, 1, 1, 1, 1,     // tw twdet twdet/2 tf tfdet t tnom tdes kdes kdet k1
    1,  1, 1, 1, 1,                       // x y eo xp yp
    0,  0, 0, 0, 0, 0,                    // bf/2tf b/t b/tdes h/tw h/tdes D/t
    4,  3, 3, 1, 4, 3, 3, 1, 4, 1, 3,     // Ix Zx Sx rx Iy Zy Sy ry Iz rz Sz
    4,  6, 3, 2, 4, 4, 4, 3, 3,           // J Cw C Wno Sw1 Sw2 Sw3 Qf Qw
    1,  0, 0, 4,                          // ro H tan(a) Iw
    1,  1, 1, 1, 1, 1, 3, 3, 3, 3, 3, 3,  // zA zB zC wA wB wC SwA SwB SwC SzA SzB SzC
    1,  1,                                // rts ho
    1,  1, 1, 1, 1, 1, 1, 1};             // PA PA2 PB PC PD T WGi WGo

bool Contains(std::string_view text, std::string_view find) {
  if (find.empty()) return true;
  const std::string a = tools::FoldCase(text), b = tools::FoldCase(find);
  return a.find(b) != std::string::npos;
}

std::string LengthUnit(const fmUnit& units, int power) {
  const std::string& L = units.Label(fmUnit::Length);
  return power == 1 ? L : tools::Format("%s^%d", L.c_str(), power);
}

PropertyLine Line(const char* name, double inches, int power, const fmUnit& units) {
  const double perInch = 1.0 / units.Factor(fmUnit::Length);
  return {name, tools::FormatG(inches * std::pow(perInch, power)), power ? LengthUnit(units, power) : ""};
}

}  // namespace

std::vector<std::string> SteelShapeTypes(const tools::AiscLibrary& library) {
  std::vector<std::string> types;
  for (const auto& s : library.shapes())
    if (std::find(types.begin(), types.end(), s.type) == types.end()) types.push_back(s.type);
  return types;
}

std::vector<int> FilterSteelShapes(const tools::AiscLibrary& library, std::string_view type, std::string_view find) {
  std::vector<int> out;
  for (size_t i = 0; i < library.size(); ++i) {
    const auto& s = library.at(i);
    if ((type.empty() || s.type == type) && Contains(s.label, find)) out.push_back(static_cast<int>(i));
  }
  return out;
}

std::vector<PropertyLine> SteelShapeProperties(const tools::fmSect_AISC& shape, const fmUnit& units) {
  std::vector<PropertyLine> lines = {{"Type", shape.type, ""}};
  if (!shape.edi.empty() && shape.edi != shape.label) lines.push_back({"EDI_Std_Nomenclature", shape.edi, ""});
  const auto& names = tools::AiscColumnNames();
  for (int v = 0; v < tools::kAiscValueCount; ++v) {
    if (!shape.Has(v)) continue;
    const char* name = names[static_cast<size_t>(v + tools::kAiscTextColumnCount)];
    if (kPowers[v] < 0) {
      // lb/ft to the document's linear-force unit.
      const double lbPerInch = shape.Value(v) / 12.0;
      lines.push_back(
          {name, tools::FormatG(lbPerInch / units.Factor(fmUnit::LinearForce)), units.Label(fmUnit::LinearForce)});
    } else {
      lines.push_back(Line(name, shape.Value(v), kPowers[v], units));
    }
  }
  return lines;
}

std::string SteelShapeSectionFault(const tools::fmSect_AISC& shape, const tools::AiscLibrary* library) {
  fmSect section;
  tools::transform_aisc_to_norvane_section(section, shape, library);
  const char* property = sectiongrid::OutOfRangeProperty(section);
  if (!property) return "";
  if (shape.type == "2L" && !shape.Has(tools::aisc::J))
    return tools::Format("The table gives no J for %s, and the single angle %s it would be derived from is not in "
                         "the library. Choose another shape or enter the section by hand.",
                         shape.label.c_str(), tools::SingleAngleLabel(shape.label).c_str());
  return tools::Format("%s cannot make a section: the table gives it no valid %s.", shape.label.c_str(), property);
}

LumberFamily FamilyOf(const tools::fmSect_NDS& shape) {
  if (shape.nominalB <= 1) return kBoards;
  if (shape.nominalB <= 4) return kDimensionLumber;
  return kTimbers;
}

std::vector<int> FilterLumber(const std::vector<tools::fmSect_NDS>& table, LumberFamily family, std::string_view find) {
  std::vector<int> out;
  for (size_t i = 0; i < table.size(); ++i)
    if ((family == kAllLumber || FamilyOf(table[i]) == family) && Contains(table[i].label, find))
      out.push_back(static_cast<int>(i));
  return out;
}

std::vector<PropertyLine> LumberProperties(const tools::fmSect_NDS& s, const fmUnit& units) {
  return {{"Nominal size", tools::Format("%g x %g in", s.nominalB, s.nominalD), ""},
          Line("b (dressed)", s.b, 1, units),
          Line("d (dressed)", s.d, 1, units),
          Line("A", s.A, 2, units),
          Line("Sx", s.Sx, 3, units),
          Line("Ix", s.Ix, 4, units),
          Line("Sy", s.Sy, 3, units),
          Line("Iy", s.Iy, 4, units),
          Line("J", s.J, 4, units)};
}

}  // namespace design
