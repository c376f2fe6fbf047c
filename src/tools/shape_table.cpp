#include "tools/shape_table.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "tools/atomic_file.h"
#include "tools/binary_io.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace tools {
namespace {

// File layout, version 1 (all numbers little-endian):
//   aisc14u.idx: "NVSHPIDX", u32 version, u32 count, u32 entry size, u64 FNV-1a of the
//                whole .tbl file; then per shape: label[64], nomenclature[64], type[8],
//                T_F[4] (zero-padded UTF-8) and u32 record number.
//   aisc14u.tbl: "NVSHPTBL", u32 version, u32 count, u32 values per record, u32 record
//                size; then per shape its values (f64, NaN = not applicable) in the order
//                of the published numeric columns.
constexpr std::string_view kIndexMagic = "NVSHPIDX";
constexpr std::string_view kTableMagic = "NVSHPTBL";
constexpr uint32_t kVersion = 1;
constexpr size_t kLabelField = 64, kTypeField = 8, kFlagField = 4;
constexpr uint32_t kIndexEntrySize = kLabelField * 2 + kTypeField + kFlagField + 4;
constexpr uint32_t kRecordSize = kAiscValueCount * 8;

constexpr std::array<const char*, kAiscColumnCount> kColumns = {"EDI_Std_Nomenclature",
                                                                "AISC_Manual_Label",
                                                                "Type",
                                                                "T_F",
                                                                "W",
                                                                "A",
                                                                "d",
                                                                "ddet",
                                                                "Ht",
                                                                "h",
                                                                "OD",
                                                                "bf",
                                                                "bfdet",
                                                                "B",
                                                                "b",
                                                                "ID",
                                                                "tw",
                                                                "twdet",
                                                                "twdet/2",
                                                                "tf",
                                                                "tfdet",
                                                                "t",
                                                                "tnom",
                                                                "tdes",
                                                                "kdes",
                                                                "kdet",
                                                                "k1",
                                                                "x",
                                                                "y",
                                                                "eo",
                                                                "xp",
                                                                "yp",
                                                                "bf/2tf",
                                                                "b/t",
                                                                "b/tdes",
                                                                "h/tw",
                                                                "h/tdes",
                                                                "D/t",
                                                                "Ix",
                                                                "Zx",
                                                                "Sx",
                                                                "rx",
                                                                "Iy",
                                                                "Zy",
                                                                "Sy",
                                                                "ry",
                                                                "Iz",
                                                                "rz",
                                                                "Sz",
                                                                "J",
                                                                "Cw",
                                                                "C",
                                                                "Wno",
                                                                "Sw1",
                                                                "Sw2",
                                                                "Sw3",
                                                                "Qf",
                                                                "Qw",
                                                                "ro",
                                                                "H",
                                                                "tan(a)",
                                                                "Iw",
                                                                "zA",
                                                                "zB",
                                                                "zC",
                                                                "wA",
                                                                "wB",
                                                                "wC",
                                                                "SwA",
                                                                "SwB",
                                                                "SwC",
                                                                "SzA",
                                                                "SzB",
                                                                "SzC",
                                                                "rts",
                                                                "ho",
                                                                "PA",
                                                                "PA2",
                                                                "PB",
                                                                "PC",
                                                                "PD",
                                                                "T",
                                                                "WGi",
                                                                "WGo"};

[[noreturn]] void Damaged(const std::string& where, const std::string& what) {
  throw fmException("The shape library " + where + " is damaged: " + what + ".");
}

bool SameValue(double a, double b) { return (std::isnan(a) && std::isnan(b)) || a == b; }

}  // namespace

const std::array<const char*, kAiscColumnCount>& AiscColumnNames() { return kColumns; }

int AiscValueIndex(std::string_view columnName) {
  for (int i = kAiscTextColumnCount; i < kAiscColumnCount; ++i)
    if (columnName == kColumns[static_cast<size_t>(i)]) return i - kAiscTextColumnCount;
  return -1;
}

fmSect_AISC::fmSect_AISC() { values.fill(std::numeric_limits<double>::quiet_NaN()); }

bool fmSect_AISC::Has(int index) const { return !std::isnan(Value(index)); }

double fmSect_AISC::Value(std::string_view columnName) const {
  const int i = AiscValueIndex(columnName);
  return i < 0 ? std::numeric_limits<double>::quiet_NaN() : Value(i);
}

bool fmSect_AISC::operator==(const fmSect_AISC& o) const {
  if (edi != o.edi || label != o.label || type != o.type || tf != o.tf) return false;
  for (size_t i = 0; i < values.size(); ++i)
    if (!SameValue(values[i], o.values[i])) return false;
  return true;
}

int AiscLibrary::Find(std::string_view label) const {
  const std::string_view key = Trim(label);
  if (key.empty()) return -1;
  for (size_t i = 0; i < shapes_.size(); ++i)
    if (EqualsNoCase(shapes_[i].label, key)) return static_cast<int>(i);
  return -1;
}

std::string AiscLibrary::SerializeTable() const {
  BinaryWriter w;
  w.Bytes(kTableMagic);
  w.U32(kVersion);
  w.U32(static_cast<uint32_t>(shapes_.size()));
  w.U32(kAiscValueCount);
  w.U32(kRecordSize);
  for (const auto& s : shapes_)
    for (double v : s.values) w.F64(std::isnan(v) ? std::numeric_limits<double>::quiet_NaN() : v);
  return w.Take();
}

std::string AiscLibrary::SerializeIndex() const {
  BinaryWriter w;
  w.Bytes(kIndexMagic);
  w.U32(kVersion);
  w.U32(static_cast<uint32_t>(shapes_.size()));
  w.U32(kIndexEntrySize);
  w.U64(Fnv1a64(SerializeTable()));
  for (size_t i = 0; i < shapes_.size(); ++i) {
    const auto& s = shapes_[i];
    w.Text(s.label, kLabelField);
    w.Text(s.edi, kLabelField);
    w.Text(s.type, kTypeField);
    w.Text(s.tf, kFlagField);
    w.U32(static_cast<uint32_t>(i));
  }
  return w.Take();
}

AiscLibrary AiscLibrary::Parse(std::string_view index, std::string_view table, const std::string& where) {
  BinaryReader t(table);
  if (t.Bytes(kTableMagic.size()) != std::optional(kTableMagic)) Damaged(where, "the table is not a shape table");
  const auto tVersion = t.U32(), tCount = t.U32(), tValues = t.U32(), tSize = t.U32();
  if (!tSize) Damaged(where, "the table's header is cut short");
  if (*tVersion != kVersion || *tValues != kAiscValueCount || *tSize != kRecordSize)
    Damaged(where, Format("the table has layout version %u, this program reads %u", *tVersion, kVersion));
  if (t.remaining() != static_cast<size_t>(*tCount) * kRecordSize)
    Damaged(where, Format("the table should hold %u shapes but its size does not match", *tCount));

  BinaryReader x(index);
  if (x.Bytes(kIndexMagic.size()) != std::optional(kIndexMagic)) Damaged(where, "the index is not a shape index");
  const auto xVersion = x.U32(), xCount = x.U32(), xSize = x.U32();
  const auto checksum = x.U64();
  if (!checksum) Damaged(where, "the index's header is cut short");
  if (*xVersion != kVersion || *xSize != kIndexEntrySize)
    Damaged(where, Format("the index has layout version %u, this program reads %u", *xVersion, kVersion));
  if (*xCount != *tCount || *checksum != Fnv1a64(table))
    Damaged(where, "the index and the table do not belong together");
  if (x.remaining() != static_cast<size_t>(*xCount) * kIndexEntrySize)
    Damaged(where, "the index's size does not match its count");

  std::vector<fmSect_AISC> shapes(*xCount);
  for (uint32_t i = 0; i < *xCount; ++i) {
    fmSect_AISC& s = shapes[i];
    auto label = x.Text(kLabelField), edi = x.Text(kLabelField), type = x.Text(kTypeField), flag = x.Text(kFlagField);
    const auto record = x.U32();
    if (!label || !edi || !type || !flag || !record || label->empty() || *record != i)
      Damaged(where, Format("index entry %u is unreadable", i + 1));
    s.label = std::move(*label);
    s.edi = std::move(*edi);
    s.type = std::move(*type);
    s.tf = std::move(*flag);
    for (double& v : s.values) v = *t.F64();
  }
  return AiscLibrary(std::move(shapes));
}

AiscLibrary AiscLibrary::LoadFrom(const std::string& directory) {
  const std::string idx = directory + "/" + kAiscIndexFile, tbl = directory + "/" + kAiscTableFile;
  std::string index, table;
  try {
    index = ReadWholeFile(idx, size_t(64) << 20);
    table = ReadWholeFile(tbl, size_t(512) << 20);
  } catch (const FileError& e) {
    throw fmException(e.what());
  }
  return Parse(index, table, "in \"" + directory + "\"");
}

bool IsKnownShapeType(std::string_view type) {
  static constexpr std::string_view kTypes[] = {"W", "M", "S", "HP", "C", "MC", "L", "WT", "MT", "ST", "2L", "HSS", "PIPE"};
  return std::find(std::begin(kTypes), std::end(kTypes), type) != std::end(kTypes);
}

std::string SingleAngleLabel(std::string_view label) {
  // 2L<leg>X<leg>X<t>[X<spacing>][LLBB|SLBB]: the first three parts name the single angle.
  if (label.size() < 3 || label[0] != '2' || (label[1] != 'L' && label[1] != 'l')) return "";
  std::string_view rest = label.substr(1);
  for (std::string_view suffix : {"LLBB", "SLBB", "llbb", "slbb"})
    if (rest.ends_with(suffix)) rest.remove_suffix(suffix.size());
  size_t end = 0;
  for (int part = 0; part < 3; ++part) {
    if (part) ++end;
    end = rest.find_first_of("Xx", end);
    if (part < 2 && end == std::string_view::npos) return "";
    if (end == std::string_view::npos) end = rest.size();
  }
  return std::string(rest.substr(0, end));
}

void transform_aisc_to_norvane_section(fmSect& section, const fmSect_AISC& shape) {
  transform_aisc_to_norvane_section(section, shape, CurrentAiscLibrary());
}

void transform_aisc_to_norvane_section(fmSect& section, const fmSect_AISC& shape, const AiscLibrary* library) {
  const auto v = [&](int i) { return shape.Has(i) ? shape.Value(i) : 0.0; };
  section.SetLabel(shape.label);
  section.A = v(aisc::A);
  section.Iz = v(aisc::Ix);  // the strong axis bends about local z
  section.Iy = v(aisc::Iy);
  section.J = v(aisc::J);
  section.b = section.d = section.tf = section.tw = 0;
  const std::string& type = shape.type;
  if (type == "2L" && !shape.Has(aisc::J) && library) {
    // Two angles that touch only along their backs twist nearly independently.
    const int single = library->Find(SingleAngleLabel(shape.label));
    if (single >= 0 && library->at(size_t(single)).type == "L" && library->at(size_t(single)).Has(aisc::J))
      section.J = 2 * library->at(size_t(single)).Value(aisc::J);
  }
  if (type == "HSS" && shape.Has(aisc::OD)) {
    // Round tube: about half the area carries shear in each direction.
    section.b = section.d = v(aisc::OD);
    section.tf = section.tw = v(aisc::tdes);
    section.Ay = section.Az = section.A / 2;
  } else if (type == "PIPE") {
    section.b = section.d = v(aisc::OD);
    section.tf = section.tw = v(aisc::tdes);
    section.Ay = section.Az = section.A / 2;
  } else if (type == "HSS") {
    // Rectangular tube: the two walls parallel to the shear.
    section.b = v(aisc::B);
    section.d = v(aisc::Ht);
    section.tf = section.tw = v(aisc::tdes);
    section.Ay = 2 * section.d * section.tf;
    section.Az = 2 * section.b * section.tf;
  } else if (type == "L") {
    // The published Ix bends about the axis across the long leg (y is measured along it), so
    // the long leg is the section's depth whichever column holds it.
    section.d = std::max(v(aisc::b), v(aisc::d));
    section.b = std::min(v(aisc::b), v(aisc::d));
    section.tf = section.tw = v(aisc::t);
    section.Ay = section.d * section.tf;
    section.Az = section.b * section.tf;
  } else if (type == "2L") {
    // The published d is the depth of the legs back to back, about which Ix bends.
    section.b = v(aisc::b);
    section.d = v(aisc::d);
    section.tf = section.tw = v(aisc::t);
    section.Ay = 2 * section.d * section.tf;
    section.Az = 2 * section.b * section.tf;
  } else if (type == "WT" || type == "MT" || type == "ST") {
    section.b = v(aisc::bf);
    section.d = v(aisc::d);
    section.tf = v(aisc::tf);
    section.tw = v(aisc::tw);
    section.Ay = section.tw * section.d;
    section.Az = section.tf * section.b;
  } else {
    // I shapes and channels: the web takes shear along y, the two flanges along z.
    section.b = v(aisc::bf);
    section.d = v(aisc::d);
    section.tf = v(aisc::tf);
    section.tw = v(aisc::tw);
    section.Ay = section.tw * section.d;
    section.Az = 2 * section.b * section.tf / 1.2;
  }
}

void ScaleSectionFromInches(fmSect& s, double unitInInches) {
  if (unitInInches == 1.0 || !(unitInInches > 0)) return;
  const double L = 1.0 / unitInInches, L2 = L * L, L4 = L2 * L2;
  s.A *= L2;
  s.Ay *= L2;
  s.Az *= L2;
  s.Iz *= L4;
  s.Iy *= L4;
  s.J *= L4;
  s.b *= L;
  s.d *= L;
  s.tf *= L;
  s.tw *= L;
}

}  // namespace tools
