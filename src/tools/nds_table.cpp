#include <cmath>

#include "tools/binary_io.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/section_torsion.h"
#include "tools/shape_table.h"

// The sawn-lumber table: nominal sizes, their dressed (surfaced dry) sizes and the section
// properties computed from those.
namespace tools {
namespace {

// "nds.tbl", version 1 (little-endian): "NVNDSTBL", u32 version, u32 count, u32 record
// size; then per size: label[16] and ten f64 (nominal b, nominal d, b, d, A, Sx, Ix, Sy,
// Iy, J).
constexpr std::string_view kMagic = "NVNDSTBL";
constexpr uint32_t kVersion = 1;
constexpr size_t kLabelField = 16;
constexpr uint32_t kRecordSize = kLabelField + 10 * 8;

}  // namespace

double DressedSize(double nominal, bool timber) {
  // Timbers (5 in nominal and up) lose half an inch. Boards and dimension lumber lose a
  // quarter inch at 1 in, half an inch up to 6 in and three quarters above.
  if (timber) return nominal - 0.5;
  if (nominal <= 1) return nominal - 0.25;
  if (nominal <= 6) return nominal - 0.5;
  return nominal - 0.75;
}

std::vector<fmSect_NDS> BuildNdsTable() {
  struct Family {
    std::vector<int> thicknesses, widths;
    bool timber;
  };
  const Family families[] = {
      {{1}, {2, 3, 4, 6, 8, 10, 12}, false},                                         // boards
      {{2, 3, 4}, {2, 3, 4, 5, 6, 8, 10, 12, 14, 16}, false},                        // dimension
      {{5, 6, 8, 10, 12, 14, 16}, {5, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24}, true},  // timbers
  };
  std::vector<fmSect_NDS> table;
  for (const Family& f : families)
    for (int nb : f.thicknesses)
      for (int nd : f.widths) {
        if (nd < nb) continue;
        fmSect_NDS s;
        s.label = Format("%dx%d", nb, nd);
        s.nominalB = nb;
        s.nominalD = nd;
        s.b = DressedSize(nb, f.timber);
        s.d = DressedSize(nd, f.timber);
        s.A = s.b * s.d;
        s.Sx = s.b * s.d * s.d / 6;
        s.Ix = s.b * s.d * s.d * s.d / 12;
        s.Sy = s.d * s.b * s.b / 6;
        s.Iy = s.d * s.b * s.b * s.b / 12;
        s.J = calc_rect_J(s.b, s.d);
        table.push_back(std::move(s));
      }
  return table;
}

std::string SerializeNdsTable(const std::vector<fmSect_NDS>& shapes) {
  BinaryWriter w;
  w.Bytes(kMagic);
  w.U32(kVersion);
  w.U32(static_cast<uint32_t>(shapes.size()));
  w.U32(kRecordSize);
  for (const auto& s : shapes) {
    w.Text(s.label, kLabelField);
    for (double v : {s.nominalB, s.nominalD, s.b, s.d, s.A, s.Sx, s.Ix, s.Sy, s.Iy, s.J}) w.F64(v);
  }
  return w.Take();
}

std::vector<fmSect_NDS> ParseNdsTable(std::string_view data, const std::string& where) {
  const auto damaged = [&](const std::string& what) -> fmException {
    return fmException("The lumber table \"" + where + "\" is damaged: " + what + ".");
  };
  BinaryReader r(data);
  if (r.Bytes(kMagic.size()) != std::optional(kMagic)) throw damaged("it is not a lumber table");
  const auto version = r.U32(), count = r.U32(), size = r.U32();
  if (!size) throw damaged("its header is cut short");
  if (*version != kVersion || *size != kRecordSize) throw damaged(Format("it has layout version %u", *version));
  if (r.remaining() != static_cast<size_t>(*count) * kRecordSize) throw damaged("its size does not match its count");
  std::vector<fmSect_NDS> shapes(*count);
  for (auto& s : shapes) {
    auto label = r.Text(kLabelField);
    if (!label || label->empty()) throw damaged("a label is unreadable");
    s.label = std::move(*label);
    // Every lumber size has every property; a NaN or infinity would reach the sections.
    for (double* v : {&s.nominalB, &s.nominalD, &s.b, &s.d, &s.A, &s.Sx, &s.Ix, &s.Sy, &s.Iy, &s.J}) {
      *v = *r.F64();
      if (!std::isfinite(*v)) throw damaged("the properties of " + s.label + " are not all finite numbers");
    }
  }
  return shapes;
}

void transform_nds_to_norvane_section(fmSect& section, const fmSect_NDS& shape) {
  // A solid rectangle: b is the thickness, d the width, bending about z is the strong axis.
  section.SetLabel(shape.label);
  section.b = shape.b;
  section.d = shape.d;
  section.tf = section.tw = 0;
  section.A = shape.A;
  section.Ay = section.Az = shape.A / 1.2;
  section.Iz = shape.Ix;
  section.Iy = shape.Iy;
  section.J = shape.J;
}

}  // namespace tools
