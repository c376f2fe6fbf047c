#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/fm_section.h"

// The steel shape library ("aisc14u.idx" and "aisc14u.tbl") and the sawn-lumber table
// ("nds.tbl"): their records, their binary files, the comma-separated exchange form of the
// steel table, and the operations the section dialogs call. All table values are in inches.
namespace tools {

// The steel table's columns, in the layout in which the shapes database is published.
// The first four are texts; the others are numbers ("not applicable" is NaN).
inline constexpr int kAiscColumnCount = 84;
inline constexpr int kAiscTextColumnCount = 4;
inline constexpr int kAiscValueCount = kAiscColumnCount - kAiscTextColumnCount;
const std::array<const char*, kAiscColumnCount>& AiscColumnNames();
// Index among the values (0 = "W"), or -1 for a text column or an unknown name.
int AiscValueIndex(std::string_view columnName);

namespace aisc {
// Value indices of the columns the program reads by name.
enum Value : int {
  W = 0,
  A = 1,
  d = 2,
  Ht = 4,
  h = 5,
  OD = 6,
  bf = 7,
  B = 9,
  b = 10,
  tw = 12,
  tf = 15,
  t = 17,
  tnom = 18,
  tdes = 19,
  kdes = 20,
  Ix = 34,
  Zx = 35,
  Sx = 36,
  rx = 37,
  Iy = 38,
  Zy = 39,
  Sy = 40,
  ry = 41,
  J = 45,
  Cw = 46
};
}  // namespace aisc

// One steel shape as the table holds it.
struct fmSect_AISC {
  std::string edi;    // EDI_Std_Nomenclature
  std::string label;  // AISC_Manual_Label
  std::string type;   // W, M, S, HP, C, MC, L, WT, MT, ST, 2L, HSS, PIPE
  std::string tf;     // T_F
  std::array<double, kAiscValueCount> values;

  fmSect_AISC();
  double Value(int index) const { return values[static_cast<size_t>(index)]; }
  bool Has(int index) const;
  // Value of a published column by name; NaN when absent or unknown.
  double Value(std::string_view columnName) const;
  bool operator==(const fmSect_AISC& o) const;
};

// One entry of the shape index, in table order.
struct AiscShapeIndexEntry {
  std::string label;
  std::string type;
  uint32_t record = 0;
};

// The longest label and nomenclature the fixed-size index entries hold (bytes).
inline constexpr size_t kAiscMaxLabelBytes = 63;

// File names of the steel library and the lumber table.
inline constexpr const char* kAiscIndexFile = "aisc14u.idx";
inline constexpr const char* kAiscTableFile = "aisc14u.tbl";
inline constexpr const char* kNdsTableFile = "nds.tbl";

// A steel library in memory.
class AiscLibrary {
 public:
  AiscLibrary() = default;
  explicit AiscLibrary(std::vector<fmSect_AISC> shapes) : shapes_(std::move(shapes)) {}

  size_t size() const { return shapes_.size(); }
  const fmSect_AISC& at(size_t i) const { return shapes_.at(i); }
  const std::vector<fmSect_AISC>& shapes() const { return shapes_; }
  // Index of the shape with this label (compared without regard to case), or -1.
  int Find(std::string_view label) const;

  // The two files' contents; the index carries a checksum of the table so that a pair
  // mixed from two imports is recognised.
  std::string SerializeIndex() const;
  std::string SerializeTable() const;
  // Throws fmException naming the file and the fault.
  static AiscLibrary Parse(std::string_view index, std::string_view table, const std::string& where);
  static AiscLibrary LoadFrom(const std::string& directory);

 private:
  std::vector<fmSect_AISC> shapes_;
};

// The exchange file: reads a comma-separated table in the published column layout.
// Unknown columns are ignored; every fault throws fmException naming line and column.
std::vector<fmSect_AISC> ParseAiscCsv(std::string_view text, const std::string& fileName);
std::string WriteAiscCsv(const AiscLibrary& library);
// A shape table file larger than this is refused before it is read.
inline constexpr size_t kMaxAiscCsvBytes = size_t(16) << 20;

// Where the libraries live: the installed (read-only) data folder and the per-user one
// that holds an imported steel library and shadows the installed one.
struct ShapeLibraryLocations {
  std::string installed;
  std::string user;
};
// XDG_DATA_HOME/norvane (or ~/.local/share/norvane); NORVANE_DATA_DIR when set, else the
// installed data folder (InstalledDataDirectory).
ShapeLibraryLocations DefaultShapeLibraryLocations();
ShapeLibraryLocations CurrentShapeLibraryLocations();
// Tests point the library elsewhere; an empty argument restores the defaults.
void SetShapeLibraryLocations(const ShapeLibraryLocations& locations);
// The folder whose steel library is in use: the user's when it holds both files.
std::string ActiveAiscDirectory();

// The loaded steel library (loaded on first use, cached); null when none can be read.
const AiscLibrary* CurrentAiscLibrary();
// Drops the cache so the next use reads the files again (after an import).
void ReloadShapeLibrary();

// The operations the dialogs call, under their names.
bool get_shape_index(std::vector<AiscShapeIndexEntry>& index);
int get_shape(std::string_view label);  // negative when unknown
bool get_aisc_shape(int index, fmSect_AISC& shape);
// Double angles of the published table carry no J: the transform takes twice the J of the
// single angle of the same size from `library` (the library in use when none is given).
void transform_aisc_to_norvane_section(fmSect& section, const fmSect_AISC& shape);
void transform_aisc_to_norvane_section(fmSect& section, const fmSect_AISC& shape, const AiscLibrary* library);
// The single angle a double angle is made of ("2L8X4X1X3/8LLBB" gives "L8X4X1"); empty when
// the label is not one of a double angle.
std::string SingleAngleLabel(std::string_view doubleAngleLabel);
// The shape types the library knows.
bool IsKnownShapeType(std::string_view type);
// Rebuilds the user's steel library from a csv file; throws fmException, leaving the
// library files as they were.
void ascii_binary(const std::string& path);
// Writes the steel library in use to a csv file; throws fmException.
void binary_ascii(const std::string& path);

// A sawn-lumber size with its dressed dimensions and properties (in, in^2, in^3, in^4).
struct fmSect_NDS {
  std::string label;  // nominal size, "2x4"
  double nominalB = 0, nominalD = 0;
  double b = 0, d = 0;  // dressed thickness and width
  double A = 0, Sx = 0, Ix = 0, Sy = 0, Iy = 0, J = 0;
  bool operator==(const fmSect_NDS&) const = default;
};

// The lumber sizes of the bundled table, properties computed from the dressed sizes.
std::vector<fmSect_NDS> BuildNdsTable();
// Dressed size of a nominal dimension: boards and dimension lumber, or timbers (5 in and up).
double DressedSize(double nominal, bool timber);
std::string SerializeNdsTable(const std::vector<fmSect_NDS>& shapes);
std::vector<fmSect_NDS> ParseNdsTable(std::string_view data, const std::string& where);

const std::vector<fmSect_NDS>* CurrentNdsTable();
int get_nds_shape(std::string_view label);  // negative when unknown
void transform_nds_to_norvane_section(fmSect& section, const fmSect_NDS& shape);

// Rescales a section in inches to a length unit of the given size in inches.
void ScaleSectionFromInches(fmSect& section, double unitInInches);

}  // namespace tools
