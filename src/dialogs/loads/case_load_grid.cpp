#include "dialogs/loads/case_load_grid.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

#include "dialogs/grid/grid_edit.h"
#include "dialogs/grid/grid_ops.h"
#include "model/id_index.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace caseloadgrid {

namespace {

const KindTexts kTexts[] = {
    {"nodal load", "Nodal Load Table", "CNodalLoadDataDlg"},
    {"point load", "Point Load Table", "CPointLoadDataDlg"},
    {"line load", "Line Load Table", "CLineLoadDataDlg"},
    {"surface load", "Surface Load Table", "CShellLoadDataDlg"},
    {"area load", "Area Load Table", "CAreaLoadDataDlg"},
    {"member thermal load", "Member Thermal Load Table", "CMemberThermalLoadDataDlg"},
    {"shell4 thermal load", "Shell4 Thermal Load Table", "CShell4ThermalLoadDataDlg"},
    {"brick thermal load", "Brick Thermal Load Table", "CBrickThermalLoadDataDlg"},
    {"nodal mass", "Nodal Mass Table", "CNodalMassDataDlg"},
    {"combination mass", "Combination Mass Table", "CCombMassDataDlg"},
};

const std::vector<std::string> kDirections6 = {"X", "Y", "Z", "OX", "OY", "OZ"};
const std::vector<std::string> kDirections3 = {"X", "Y", "Z"};
const std::vector<std::string> kSystems = {"Global", "Local"};
const std::vector<std::string> kDistributions = {"Two-way", "One-way"};

enum class Cell { Reference, NodeList, Choice, Ratio, Real };
enum class Reference { Node, Member, Shell, Brick };
// The unit in a value heading; where the quantity depends on the row's direction both are named.
enum class UnitOf { None, ForceOrMoment, LinearForceOrMoment, SurfaceForce, Temperature, Weight };

struct ColumnSpec {
  const char* heading;
  Cell cell;
  double width;
  Reference reference = Reference::Node;
  const std::vector<std::string>* items = nullptr;
  int defaultItem = 0;
  UnitOf unit = UnitOf::None;
};

ColumnSpec Ref(const char* heading, Reference r) { return {heading, Cell::Reference, 8, r}; }
ColumnSpec Choice(const char* heading, const std::vector<std::string>& items, int defaultItem) {
  return {heading, Cell::Choice, 8, Reference::Node, &items, defaultItem};
}
ColumnSpec Value(const char* heading, UnitOf unit, double width = 17) {
  return {heading, Cell::Real, width, Reference::Node, nullptr, 0, unit};
}
ColumnSpec RatioColumn(const char* heading) { return {heading, Cell::Ratio, 9}; }

std::string UnitHeading(const ColumnSpec& c, const fmUnit& u) {
  const auto either = [&](fmUnit::Quantity a, fmUnit::Quantity b) {
    return std::string(c.heading) + " [" + u.Label(a) + " or " + u.Label(b) + "]";
  };
  switch (c.unit) {
    case UnitOf::None: return c.heading;
    case UnitOf::ForceOrMoment: return either(fmUnit::Force, fmUnit::Moment);
    case UnitOf::LinearForceOrMoment: return either(fmUnit::LinearForce, fmUnit::LinearMoment);
    case UnitOf::SurfaceForce: return u.Heading(c.heading, fmUnit::SurfaceForce);
    case UnitOf::Temperature: return u.Heading(c.heading, fmUnit::Temperature);
    case UnitOf::Weight:
      // A rotational mass is given as weight times length squared.
      return std::string(c.heading) + " [" + u.Label(fmUnit::Force) + " or " + u.Label(fmUnit::Moment) + "-" +
             u.Label(fmUnit::Length) + "]";
  }
  return c.heading;
}

const char* ReferenceWord(Reference r) {
  switch (r) {
    case Reference::Node: return "Node";
    case Reference::Member: return "Member";
    case Reference::Shell: return "Shell4";
    case Reference::Brick: return "Brick";
  }
  return "";
}

void SetUInt(grid::Sheet& sheet, int col, int row, uint64_t value) {
  char text[24];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  sheet.SetNumber(col, row, std::string_view(text, static_cast<size_t>(end - text)));
}

int ItemPosition(const std::vector<std::string>& items, std::string_view text) {
  text = tools::Trim(text);
  for (size_t i = 0; i < items.size(); ++i)
    if (tools::EqualsNoCase(items[i], text)) return static_cast<int>(i);
  return -1;
}

class CellWriter {
 public:
  CellWriter(grid::Sheet& sheet, int row) : sheet_(sheet), row_(row) {}
  void Id(uint32_t id) { SetUInt(sheet_, col_++, row_, id); }
  void Nodes(const std::vector<uint32_t>& ids) {
    std::string text;
    for (uint32_t id : ids) {
      if (!text.empty()) text += ", ";
      text += tools::FormatInt(id);
    }
    sheet_.SetData(col_++, row_, text);
  }
  void Choice(const std::vector<std::string>& items, int32_t index) {
    sheet_.SetData(col_++, row_, index >= 0 && static_cast<size_t>(index) < items.size() ? items[static_cast<size_t>(index)] : "");
  }
  void Real(double value) { sheet_.SetNumberG(col_++, row_, value); }

 private:
  grid::Sheet& sheet_;
  int row_;
  int col_ = kCaseColumn + 1;
};

// The model's ids, indexed once per read: a million loads must not search the lists per row.
struct Known {
  const LoadLists& lists;
  mutable std::optional<model::IdIndex> index[4];
  const model::IdIndex& Of(Reference r) const {
    auto& slot = index[static_cast<int>(r)];
    if (!slot) {
      slot.emplace();
      const auto id = [](const auto& rec) { return static_cast<int64_t>(rec.id); };
      switch (r) {
        case Reference::Node: slot->Build(lists.nodes, id); break;
        case Reference::Member: slot->Build(lists.members, id); break;
        case Reference::Shell: slot->Build(lists.shells, id); break;
        case Reference::Brick: slot->Build(lists.bricks, id); break;
      }
    }
    return *slot;
  }
};

class CellReader {
 public:
  CellReader(const grid::Sheet& sheet, int row, const Known& known, const std::vector<ColumnSpec>& columns,
             const char* entity, const std::string& number)
      : sheet_(sheet), row_(row), known_(known), columns_(columns), entity_(entity), number_(number) {}

  std::optional<grid::GridFailure> failure;

  bool Refuse(int col, const std::string& why) {
    failure = grid::GridFailure{tools::Format("Invalid input for %s %s.\n%s", entity_, number_.c_str(), why.c_str()),
                                {col, row_}};
    return false;
  }
  // Refuses at the column the last value was read from.
  bool RefuseLast(const std::string& why) { return Refuse(col_ - 1, why); }

  bool Id(uint32_t& id) {
    const int col = col_++;
    const ColumnSpec& column = ColumnAt(col);
    const std::string& text = sheet_.GetData(col, row_);
    const auto value = tools::ParseUInt32(text);
    if (!value || *value > kMaxId)
      return Refuse(col, tools::Format("%s must be a whole number from 0 to %u, not \"%s\".", column.heading, kMaxId,
                                       std::string(tools::Trim(text)).c_str()));
    if (known_.Of(column.reference).Find(*value) < 0)
      return Refuse(col, tools::Format("%s %u does not exist.", ReferenceWord(column.reference), *value));
    id = *value;
    return true;
  }

  bool Nodes(std::vector<uint32_t>& ids) {
    const int col = col_++;
    const std::string& text = sheet_.GetData(col, row_);
    std::string_view rest = text;
    ids.clear();
    while (!rest.empty()) {
      const size_t cut = rest.find_first_of(", \t");
      const std::string_view item = rest.substr(0, cut);
      rest = cut == std::string_view::npos ? std::string_view() : rest.substr(cut + 1);
      if (item.empty()) continue;
      const auto value = tools::ParseUInt32(item);
      if (!value || *value > kMaxId)
        return Refuse(col, tools::Format("Nodes must be node ids separated by commas, not \"%s\".",
                                         std::string(item).c_str()));
      if (known_.Of(Reference::Node).Find(*value) < 0) return Refuse(col, tools::Format("Node %u does not exist.", *value));
      if (std::find(ids.begin(), ids.end(), *value) != ids.end())
        return Refuse(col, tools::Format("Node %u is listed twice.", *value));
      ids.push_back(*value);
    }
    if (ids.size() < 3) return Refuse(col, tools::Format("An area needs at least 3 nodes, not %zu.", ids.size()));
    return true;
  }

  bool Choice(int32_t& index) {
    const int col = col_++;
    const std::string& text = sheet_.GetData(col, row_);
    const int position = ItemPosition(*ColumnAt(col).items, text);
    if (position < 0) {
      const auto refusal = grid::ComboRefusal(sheet_, col, row_, text);
      return Refuse(col, refusal ? *refusal : tools::Format("%s must be chosen.", ColumnAt(col).heading));
    }
    index = position;
    return true;
  }

  bool Real(double& value, const double* original) {
    const int col = col_++;
    const std::string& text = sheet_.GetData(col, row_);
    const auto read = grid::ReadReal(text, original);
    if (!read)
      return Refuse(col, tools::Format("%s must be a number, not \"%s\".", ColumnAt(col).heading,
                                       std::string(tools::Trim(text)).c_str()));
    value = *read;
    return true;
  }

  bool Ratio(double& value, const double* original) {
    if (!Real(value, original)) return false;
    if (value < 0.0 || value > 1.0)
      return RefuseLast(tools::Format("%s must be from 0 to 1, not %g.", ColumnAt(col_ - 1).heading, value));
    return true;
  }

 private:
  const ColumnSpec& ColumnAt(int col) const { return columns_[static_cast<size_t>(col - kCaseColumn - 1)]; }

  const grid::Sheet& sheet_;
  int row_;
  const Known& known_;
  const std::vector<ColumnSpec>& columns_;
  const char* entity_;
  const std::string& number_;
  int col_ = kCaseColumn + 1;
};

// Each kind: its record, where the records live in a case's loads, its columns, and how one
// record is written to and read from its row's cells (in column order).
template <LoadKind K>
struct Traits;

template <>
struct Traits<LoadKind::Nodal> {
  using Record = fmNodalLoad;
  static auto& List(auto& cl) { return cl.nodal; }
  static std::vector<ColumnSpec> Columns() {
    return {Ref("Node Id", Reference::Node), Choice("Direction", kDirections6, 0),
            Value("Magnitude", UnitOf::ForceOrMoment)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Id(l.node);
    w.Choice(kDirections6, l.direction);
    w.Real(l.magnitude);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    return r.Id(l.node) && r.Choice(l.direction) && r.Real(l.magnitude, o ? &o->magnitude : nullptr);
  }
};

template <>
struct Traits<LoadKind::Point> {
  using Record = fmPtLoad;
  static auto& List(auto& cl) { return cl.point; }
  static std::vector<ColumnSpec> Columns() {
    return {Ref("Member Id", Reference::Member), RatioColumn("Ratio (0-1)"), Choice("Direction", kDirections6, 0),
            Choice("System", kSystems, 0), Value("Magnitude", UnitOf::ForceOrMoment)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Id(l.member);
    w.Real(l.ratio);
    w.Choice(kDirections6, l.direction);
    w.Choice(kSystems, l.local ? 1 : 0);
    w.Real(l.magnitude);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    int32_t system = 0;
    if (!(r.Id(l.member) && r.Ratio(l.ratio, o ? &o->ratio : nullptr) && r.Choice(l.direction) && r.Choice(system) &&
          r.Real(l.magnitude, o ? &o->magnitude : nullptr)))
      return false;
    l.local = system == 1;
    return true;
  }
};

template <>
struct Traits<LoadKind::Line> {
  using Record = fmLineLoad;
  static auto& List(auto& cl) { return cl.line; }
  static std::vector<ColumnSpec> Columns() {
    return {Ref("Member Id", Reference::Member),
            RatioColumn("Start Ratio"),
            RatioColumn("End Ratio"),
            Choice("Direction", kDirections6, 0),
            Choice("System", kSystems, 0),
            Value("Start", UnitOf::LinearForceOrMoment),
            Value("End", UnitOf::LinearForceOrMoment)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Id(l.member);
    w.Real(l.ratio[0]);
    w.Real(l.ratio[1]);
    w.Choice(kDirections6, l.direction);
    w.Choice(kSystems, l.local ? 1 : 0);
    w.Real(l.magnitude[0]);
    w.Real(l.magnitude[1]);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    int32_t system = 0;
    if (!(r.Id(l.member) && r.Ratio(l.ratio[0], o ? &o->ratio[0] : nullptr) &&
          r.Ratio(l.ratio[1], o ? &o->ratio[1] : nullptr)))
      return false;
    if (l.ratio[1] < l.ratio[0])
      return r.RefuseLast(tools::Format("End Ratio %g is before Start Ratio %g.", l.ratio[1], l.ratio[0]));
    if (!(r.Choice(l.direction) && r.Choice(system) && r.Real(l.magnitude[0], o ? &o->magnitude[0] : nullptr) &&
          r.Real(l.magnitude[1], o ? &o->magnitude[1] : nullptr)))
      return false;
    l.local = system == 1;
    return true;
  }
};

template <>
struct Traits<LoadKind::Surface> {
  using Record = fmSurfaceLoad;
  static auto& List(auto& cl) { return cl.surface; }
  static std::vector<ColumnSpec> Columns() {
    return {Ref("Shell4 Id", Reference::Shell), Choice("Direction", kDirections3, 2), Choice("System", kSystems, 1),
            Value("Magnitude", UnitOf::SurfaceForce)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Id(l.shell);
    w.Choice(kDirections3, l.direction);
    w.Choice(kSystems, l.local ? 1 : 0);
    w.Real(l.magnitude);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    int32_t system = 0;
    if (!(r.Id(l.shell) && r.Choice(l.direction) && r.Choice(system) &&
          r.Real(l.magnitude, o ? &o->magnitude : nullptr)))
      return false;
    l.local = system == 1;
    return true;
  }
};

template <>
struct Traits<LoadKind::Area> {
  using Record = fmAreaLoad;
  static auto& List(auto& cl) { return cl.area; }
  static std::vector<ColumnSpec> Columns() {
    ColumnSpec nodes{"Nodes", Cell::NodeList, 22};
    return {nodes, Choice("Direction", kDirections3, 1), Value("Magnitude", UnitOf::SurfaceForce),
            Choice("Distribution", kDistributions, 0)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Nodes(l.nodes);
    w.Choice(kDirections3, l.direction);
    w.Real(l.magnitude);
    w.Choice(kDistributions, l.distribution);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    return r.Nodes(l.nodes) && r.Choice(l.direction) && r.Real(l.magnitude, o ? &o->magnitude : nullptr) &&
           r.Choice(l.distribution);
  }
};

template <LoadKind K, Reference R>
struct ThermalTraits {
  using Record = fmThermalLoad;
  static auto& List(auto& cl) {
    if constexpr (K == LoadKind::MemberThermal) return (cl.memberThermal);
    else if constexpr (K == LoadKind::Shell4Thermal) return (cl.shellThermal);
    else return (cl.brickThermal);
  }
  static std::vector<ColumnSpec> Columns() {
    const char* id = R == Reference::Member ? "Member Id" : R == Reference::Shell ? "Shell4 Id" : "Brick Id";
    return {Ref(id, R), Value("Temperature", UnitOf::Temperature)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Id(l.element);
    w.Real(l.temperature);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    return r.Id(l.element) && r.Real(l.temperature, o ? &o->temperature : nullptr);
  }
};
template <>
struct Traits<LoadKind::MemberThermal> : ThermalTraits<LoadKind::MemberThermal, Reference::Member> {};
template <>
struct Traits<LoadKind::Shell4Thermal> : ThermalTraits<LoadKind::Shell4Thermal, Reference::Shell> {};
template <>
struct Traits<LoadKind::BrickThermal> : ThermalTraits<LoadKind::BrickThermal, Reference::Brick> {};

template <>
struct Traits<LoadKind::NodalMass> {
  using Record = fmNodalMass;
  static auto& List(auto& cl) { return cl.nodalMasses; }
  static std::vector<ColumnSpec> Columns() {
    return {Ref("Node Id", Reference::Node), Choice("Direction", kDirections6, 0), Value("Weight", UnitOf::Weight, 22)};
  }
  static void Write(CellWriter& w, const Record& l) {
    w.Id(l.node);
    w.Choice(kDirections6, l.direction);
    w.Real(l.weight);
  }
  static bool Read(CellReader& r, Record& l, const Record* o) {
    return r.Id(l.node) && r.Choice(l.direction) && r.Real(l.weight, o ? &o->weight : nullptr);
  }
};

// A case's combination mass is one factor, not a list: the table shows one row per case whose
// factor is not zero, and a case may be listed once.
struct CombMassRow {
  double factor = 0;
};
template <>
struct Traits<LoadKind::CombMass> {
  using Record = CombMassRow;
  static std::vector<Record> Collect(const fmCaseLoad& cl) {
    return cl.massFactor != 0 ? std::vector<Record>{{cl.massFactor}} : std::vector<Record>{};
  }
  static std::vector<ColumnSpec> Columns() { return {Value("Factor", UnitOf::None, 12)}; }
  static void Write(CellWriter& w, const Record& m) { w.Real(m.factor); }
  static bool Read(CellReader& r, Record& m, const Record* o) { return r.Real(m.factor, o ? &o->factor : nullptr); }
};

template <LoadKind K>
std::vector<typename Traits<K>::Record> Collect(const fmCaseLoad& cl) {
  if constexpr (K == LoadKind::CombMass)
    return Traits<K>::Collect(cl);
  else
    return Traits<K>::List(cl);
}

// Lower-case ASCII, enough to find "1: dead" for "1: DEAD" in the case drop-down.
std::string AsciiLower(std::string_view text) {
  std::string out(tools::Trim(text));
  for (char& c : out)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return out;
}

template <LoadKind K>
class Table final : public LoadTable {
 public:
  using T = Traits<K>;
  using Record = typename T::Record;

  Table() : LoadTable(K), columns_(T::Columns()) {}


  int Fill(grid::Sheet& sheet, const std::vector<fmCaseLoad>& caseLoads, const LoadLists& lists, const fmUnit& units,
           grid::Color alternateRowColor, bool lockAll) override {
    filled_.clear();
    for (size_t c = 0; c < lists.cases.size() && c < caseLoads.size(); ++c) {
      for (Record& r : Collect<K>(caseLoads[c])) filled_.push_back({static_cast<int>(c), std::move(r)});
    }
    const int rows = static_cast<int>(filled_.size());
    std::vector<double> widths = {7, 18};
    for (const ColumnSpec& c : columns_) widths.push_back(c.width);
    grid::InitializeGrid(sheet, alternateRowColor, rows, ColumnCount(), Headers(units), widths, lockAll);
    SetUp(sheet, lists);
    origins_.resize(filled_.size());
    const std::vector<std::string> cases = CaseItems(lists.cases);
    for (int row = 1; row <= rows; ++row) {
      const auto& [caseIndex, record] = filled_[static_cast<size_t>(row - 1)];
      origins_[static_cast<size_t>(row - 1)] = row - 1;
      SetUInt(sheet, kNumberColumn, row, static_cast<uint64_t>(row));
      sheet.SetData(kCaseColumn, row, cases[static_cast<size_t>(caseIndex)]);
      CellWriter w(sheet, row);
      T::Write(w, record);
    }
    return rows;
  }

  ReadResult Read(const grid::Sheet& sheet, const std::vector<fmCaseLoad>& caseLoads,
                  const LoadLists& lists) const override {
    ReadResult result;
    const int used = UsedRows(sheet);
    const char* entity = Texts().entity;
    if ((result.failure = grid::CheckEmptyCells(sheet, used, kCaseColumn, ColumnCount(), entity))) return result;

    const std::vector<std::string> items = CaseItems(lists.cases);
    std::unordered_map<std::string, int> caseByText;
    for (size_t i = 0; i < items.size(); ++i) caseByText.emplace(AsciiLower(items[i]), static_cast<int>(i));

    std::vector<fmCaseLoad> out = caseLoads;
    out.resize(lists.cases.size());
    for (fmCaseLoad& cl : out) {
      if constexpr (K == LoadKind::CombMass)
        cl.massFactor = 0;
      else
        T::List(cl).clear();
    }
    std::vector<int> massRow(K == LoadKind::CombMass ? out.size() : 0, 0);
    const Known known{lists, {}};
    for (int row = 1; row <= used; ++row) {
      const size_t r = static_cast<size_t>(row - 1);
      const int64_t origin = r < origins_.size() ? origins_[r] : -1;
      const auto* filled = origin >= 0 && static_cast<size_t>(origin) < filled_.size()
                               ? &filled_[static_cast<size_t>(origin)]
                               : nullptr;
      const std::string number = std::string(tools::Trim(sheet.GetData(kNumberColumn, row)));
      CellReader reader(sheet, row, known, columns_, entity, number);

      const std::string& caseText = sheet.GetData(kCaseColumn, row);
      int caseIndex = -1;
      if (filled && static_cast<size_t>(filled->first) < items.size() && caseText == items[static_cast<size_t>(filled->first)])
        caseIndex = filled->first;
      else if (const auto it = caseByText.find(AsciiLower(caseText)); it != caseByText.end())
        caseIndex = it->second;
      if (caseIndex < 0) {
        reader.Refuse(kCaseColumn, tools::Format("\"%s\" is not a load case of the model.",
                                                 std::string(tools::Trim(caseText)).c_str()));
        result.failure = reader.failure;
        return result;
      }
      Record record{};
      if (!T::Read(reader, record, filled ? &filled->second : nullptr)) {
        result.failure = reader.failure;
        return result;
      }
      fmCaseLoad& cl = out[static_cast<size_t>(caseIndex)];
      if constexpr (K == LoadKind::CombMass) {
        int& first = massRow[static_cast<size_t>(caseIndex)];
        if (first) {
          reader.Refuse(kCaseColumn, tools::Format("Load case %s is already listed in row %d.",
                                                   lists.cases[static_cast<size_t>(caseIndex)].name.c_str(), first));
          result.failure = reader.failure;
          return result;
        }
        first = row;
        cl.massFactor = record.factor;
      } else {
        T::List(cl).push_back(std::move(record));
      }
    }
    if constexpr (K == LoadKind::Point)
      for (fmCaseLoad& cl : out) SortPointLoads(cl.point);
    if constexpr (K == LoadKind::Line)
      for (fmCaseLoad& cl : out) SortLineLoads(cl.line);
    result.caseLoads = std::move(out);
    return result;
  }

 private:
  void SetUp(grid::Sheet& sheet, const LoadLists& lists) const {
    sheet.SetColumnLock(kNumberColumn, true);
    SetCombo(sheet, kCaseColumn, CaseItems(lists.cases));
    int col = kCaseColumn + 1;
    for (const ColumnSpec& c : columns_) {
      if (c.items) SetCombo(sheet, col, *c.items);
      if (c.cell == Cell::NodeList) sheet.SetColAlign(col, grid::Align::Left);
      sheet.AddFillColumn(col);
      ++col;
    }
    sheet.AddFillColumn(kCaseColumn);
  }
  static void SetCombo(grid::Sheet& sheet, int col, std::vector<std::string> items) {
    grid::CellType combo;
    combo.kind = grid::CellType::Combo;
    combo.items = std::move(items);
    sheet.SetColumnType(col, std::move(combo));
    sheet.SetColAlign(col, grid::Align::Left);
  }
  // The last row with text in a column the user types into; drop-downs that new rows fill
  // by themselves do not count, so untouched new rows are dropped.
  int UsedRows(const grid::Sheet& sheet) const {
    int used = 0, col = kCaseColumn + 1;
    for (const ColumnSpec& c : columns_) {
      if (!c.items) used = std::max(used, sheet.LastUsedRow(col, col));
      ++col;
    }
    return used;
  }

  std::vector<ColumnSpec> columns_;
  std::vector<std::pair<int, Record>> filled_;  // case index and record, in row order as filled
};

template <LoadKind K>
const std::vector<ColumnSpec>& ColumnsOf() {
  static const std::vector<ColumnSpec> columns = Traits<K>::Columns();
  return columns;
}

const std::vector<ColumnSpec>& KindColumns(LoadKind kind) {
  switch (kind) {
    case LoadKind::Nodal: return ColumnsOf<LoadKind::Nodal>();
    case LoadKind::Point: return ColumnsOf<LoadKind::Point>();
    case LoadKind::Line: return ColumnsOf<LoadKind::Line>();
    case LoadKind::Surface: return ColumnsOf<LoadKind::Surface>();
    case LoadKind::Area: return ColumnsOf<LoadKind::Area>();
    case LoadKind::MemberThermal: return ColumnsOf<LoadKind::MemberThermal>();
    case LoadKind::Shell4Thermal: return ColumnsOf<LoadKind::Shell4Thermal>();
    case LoadKind::BrickThermal: return ColumnsOf<LoadKind::BrickThermal>();
    case LoadKind::NodalMass: return ColumnsOf<LoadKind::NodalMass>();
    case LoadKind::CombMass:
    case LoadKind::Count: break;
  }
  return ColumnsOf<LoadKind::CombMass>();
}

}  // namespace

const KindTexts& TextsOf(LoadKind kind) {
  const size_t k = static_cast<size_t>(kind);
  return kTexts[k < std::size(kTexts) ? k : 0];
}

std::vector<std::string> CaseItems(std::span<const fmLoadCase> cases) {
  std::vector<std::string> items;
  items.reserve(cases.size());
  for (size_t i = 0; i < cases.size(); ++i) items.push_back(tools::Format("%zu: %s", i + 1, cases[i].name.c_str()));
  return items;
}

std::unique_ptr<LoadTable> LoadTable::Create(LoadKind kind) {
  switch (kind) {
    case LoadKind::Nodal: return std::make_unique<Table<LoadKind::Nodal>>();
    case LoadKind::Point: return std::make_unique<Table<LoadKind::Point>>();
    case LoadKind::Line: return std::make_unique<Table<LoadKind::Line>>();
    case LoadKind::Surface: return std::make_unique<Table<LoadKind::Surface>>();
    case LoadKind::Area: return std::make_unique<Table<LoadKind::Area>>();
    case LoadKind::MemberThermal: return std::make_unique<Table<LoadKind::MemberThermal>>();
    case LoadKind::Shell4Thermal: return std::make_unique<Table<LoadKind::Shell4Thermal>>();
    case LoadKind::BrickThermal: return std::make_unique<Table<LoadKind::BrickThermal>>();
    case LoadKind::NodalMass: return std::make_unique<Table<LoadKind::NodalMass>>();
    case LoadKind::CombMass: return std::make_unique<Table<LoadKind::CombMass>>();
    case LoadKind::Count: break;
  }
  return nullptr;
}

std::vector<std::string> LoadTable::Headers(const fmUnit& units) const {
  std::vector<std::string> headers = {"Load No", "Load Case"};
  for (const ColumnSpec& c : KindColumns(kind_)) headers.push_back(UnitHeading(c, units));
  return headers;
}

int LoadTable::ColumnCount() const { return kCaseColumn + static_cast<int>(KindColumns(kind_).size()); }

void LoadTable::PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) const {
  firstRow = std::max(firstRow, 1);
  lastRow = std::min(lastRow, sheet.MaxRows());
  if (lastRow < firstRow) return;
  const auto& caseItems = sheet.GetCellType(kCaseColumn, firstRow).items;
  std::string caseText = firstRow > 1 ? sheet.GetData(kCaseColumn, firstRow - 1) : std::string();
  if (caseText.empty() && !caseItems.empty()) caseText = caseItems.front();
  const auto& columns = KindColumns(kind_);
  for (int row = firstRow; row <= lastRow; ++row) {
    sheet.SetData(kCaseColumn, row, caseText);
    int col = kCaseColumn + 1;
    for (const ColumnSpec& c : columns) {
      if (c.items) sheet.SetData(col, row, (*c.items)[static_cast<size_t>(c.defaultItem)]);
      ++col;
    }
  }
}

void LoadTable::DeleteRows(grid::Sheet& sheet, int row1, int row2) {
  row1 = std::max(row1, 1);
  const int count = grid::RemoveRows(sheet, row1, row2);
  if (count == 0) return;
  for (int row = row1; row <= sheet.MaxRows(); ++row) SetUInt(sheet, kNumberColumn, row, static_cast<uint64_t>(row));
  const size_t from = static_cast<size_t>(row1 - 1);
  if (from < origins_.size())
    origins_.erase(origins_.begin() + static_cast<std::ptrdiff_t>(from),
                   origins_.begin() + static_cast<std::ptrdiff_t>(std::min(origins_.size(), from + static_cast<size_t>(count))));
  sheet.SetActiveCell(kCaseColumn, std::min(row1, std::max(sheet.MaxRows(), 1)));
}

}  // namespace caseloadgrid
