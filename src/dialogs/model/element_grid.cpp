#include "dialogs/model/element_grid.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

#include "dialogs/grid/grid_edit.h"
#include "dialogs/grid/grid_ops.h"
#include "model/element_lookup.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace elementgrid {

const Kind kMembers = {"Member Id", 2,        "Section", true,     true,
                       "Member",    "members", "member",  "Member", "Member Table"};
const Kind kShells = {"Shell4 Id", 4,         "Thick",  true,     false,
                      "shell4",    "shell4s", "shell4", "shell4", "Shell4 Table"};
const Kind kBricks = {"Brick Id", 8,        nullptr, false,   false,
                      "Brick",    "bricks", "brick", "brick", "Brick Table"};

namespace {

const std::vector<std::string> kNonlinearItems = {"Linear", "Tension only", "Compression Only"};
const std::vector<std::string> kActivationItems = {"Active", "Inactive"};
const std::vector<std::string> kSelfWeightItems = {"Include", "Exclude"};
const std::vector<std::string> kStatusItems = {"Normal", "Selected", "Frozen"};

// The fields only some records have, so that one template serves all three.
int32_t PropertyOf(const fmBm& r) { return r.sect; }
int32_t PropertyOf(const fmShell4& r) { return r.thick; }
int32_t PropertyOf(const fmBrick&) { return 0; }
void SetProperty(fmBm& r, int32_t reference) { r.sect = reference; }
void SetProperty(fmShell4& r, int32_t reference) { r.thick = reference; }
void SetProperty(fmBrick&, int32_t) {}
void LookUpProperty(const fmBm& r, const ElementLists& lists) { model::LookUpSection(lists.sections, r.sect); }
void LookUpProperty(const fmShell4& r, const ElementLists& lists) {
  model::LookUpThickness(lists.thicknesses, r.thick);
}
void LookUpProperty(const fmBrick&, const ElementLists&) {}
std::vector<std::string> PropertyItems(const fmBm*, const ElementLists& lists) {
  return ReferenceItems(lists.sections);
}
std::vector<std::string> PropertyItems(const fmShell4*, const ElementLists& lists) {
  return ReferenceItems(lists.thicknesses);
}
std::vector<std::string> PropertyItems(const fmBrick*, const ElementLists&) { return {}; }
const char* PropertyName(const fmBm*) { return "sections"; }
const char* PropertyName(const fmShell4*) { return "thicknesses"; }
const char* PropertyName(const fmBrick*) { return ""; }

double AngleOf(const fmBm& r) { return r.angle; }
double AngleOf(const fmShell4& r) { return r.angle; }
double AngleOf(const fmBrick&) { return 0; }
void SetAngle(fmBm& r, double angle) { r.angle = angle; }
void SetAngle(fmShell4& r, double angle) { r.angle = angle; }
void SetAngle(fmBrick&, double) {}
int NonlinearOf(const fmBm& r) { return static_cast<int>(r.nonlinear); }
int NonlinearOf(const fmShell4&) { return 0; }
int NonlinearOf(const fmBrick&) { return 0; }
void SetNonlinear(fmBm& r, int position) { r.nonlinear = static_cast<fmNonlinear>(position); }
void SetNonlinear(fmShell4&, int) {}
void SetNonlinear(fmBrick&, int) {}

// Ids are written by the million when a big model opens: no printf for them.
void SetUInt(grid::Sheet& sheet, int col, int row, uint32_t value) {
  char text[16];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  sheet.SetNumber(col, row, std::string_view(text, static_cast<size_t>(end - text)));
}

std::string_view ItemOf(const std::vector<std::string>& items, int position) {
  if (position < 0 || static_cast<size_t>(position) >= items.size()) return {};
  return items[static_cast<size_t>(position)];
}

// Position of the cell's text among the items, case ignored; -1 when none.
int ItemPosition(const std::vector<std::string>& items, std::string_view text) {
  text = tools::Trim(text);
  for (size_t i = 0; i < items.size(); ++i)
    if (tools::EqualsNoCase(items[i], text)) return static_cast<int>(i);
  return -1;
}

// Hash and compare of item texts without regard to ASCII case, so that a cell's text is
// looked up as it stands, without a lower-case copy per cell.
char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
struct NoCaseHash {
  using is_transparent = void;
  size_t operator()(std::string_view text) const {
    size_t h = 14695981039346656037ull;
    for (char c : text) h = (h ^ static_cast<unsigned char>(AsciiLower(c))) * 1099511628211ull;
    return h;
  }
};
struct NoCaseEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return tools::EqualsNoCase(a, b); }
};

void SetCombo(grid::Sheet& sheet, int col, std::vector<std::string> items) {
  grid::CellType combo;
  combo.kind = grid::CellType::Combo;
  combo.items = std::move(items);
  sheet.SetColumnType(col, std::move(combo));
  sheet.SetColAlign(col, grid::Align::Left);
}

// A material, section or thickness column read back into references.
class ReferenceColumn {
 public:
  explicit ReferenceColumn(std::vector<std::string> items) : items_(std::move(items)) {
    byText_.reserve(items_.size());
    for (size_t i = 0; i < items_.size(); ++i) byText_.emplace(items_[i], static_cast<int32_t>(i) + 1);
  }

  // The item's position + 1; 0 for an empty cell. A filled row whose reference lay outside
  // the list was shown empty: left so, it keeps that reference and the look-up names it.
  // Nothing for a text that is no item.
  std::optional<int32_t> Read(const std::string& text, const int32_t* original) const {
    const bool inList = original && *original >= 1 && static_cast<size_t>(*original) <= items_.size();
    if (inList && text == items_[static_cast<size_t>(*original) - 1]) return *original;
    const std::string_view trimmed = tools::Trim(text);
    if (trimmed.empty()) return original && !inList ? *original : 0;
    const auto it = byText_.find(trimmed);
    if (it == byText_.end()) return std::nullopt;
    return it->second;
  }

 private:
  std::vector<std::string> items_;
  std::unordered_map<std::string, int32_t, NoCaseHash, NoCaseEqual> byText_;  // item text to reference
};

// An empty angle reads as 0. A cell left as filled keeps the record's full precision, not
// the six digits shown.
std::optional<double> ReadAngle(const std::string& text, const double* original) {
  if (tools::Trim(text).empty()) return 0.0;
  return grid::ReadReal(text, original);
}

template <size_t N>
bool HasDuplicates(const std::array<uint32_t, N>& nodes) {
  for (size_t i = 0; i < N; ++i)
    for (size_t j = i + 1; j < N; ++j)
      if (nodes[i] == nodes[j]) return true;
  return false;
}

std::vector<double> Widths(const Kind& kind) {
  std::vector<double> widths = {9};
  widths.insert(widths.end(), static_cast<size_t>(kind.nodeCount), 7);
  widths.push_back(20);  // "%d: %s" of the material
  if (kind.propertyHeading) widths.push_back(16);
  if (kind.hasAngle) widths.push_back(15);
  if (kind.hasNonlinear) widths.push_back(15);
  widths.insert(widths.end(), {10, 10, 9});
  return widths;
}

}  // namespace

Columns ColumnsOf(const Kind& kind) {
  Columns c;
  c.lastNode = c.firstNode + kind.nodeCount - 1;
  int next = c.lastNode + 1;
  c.material = next++;
  if (kind.propertyHeading) c.property = next++;
  if (kind.hasAngle) c.angle = next++;
  if (kind.hasNonlinear) c.nonlinear = next++;
  c.activation = next++;
  c.selfWeight = next++;
  c.status = next;
  c.count = next;
  return c;
}

std::vector<std::string> Headers(const Kind& kind) {
  std::vector<std::string> headers = {kind.idHeading};
  for (int k = 1; k <= kind.nodeCount; ++k) headers.push_back(tools::Format("Node-%d", k));
  headers.emplace_back("Material");
  if (kind.propertyHeading) headers.emplace_back(kind.propertyHeading);
  if (kind.hasAngle) headers.emplace_back("Local Angle (deg)");
  if (kind.hasNonlinear) headers.emplace_back("Nonlinear");
  headers.insert(headers.end(), {"Activation", "Self Weight", "Status"});
  return headers;
}

template <class Record>
std::vector<std::string> ReferenceItems(std::span<const Record> records) {
  std::vector<std::string> items;
  items.reserve(records.size());
  for (const Record& r : records) items.push_back(tools::Format("%d: %s", r.id, r.label.c_str()));
  return items;
}

template <class Record>
int Fill(grid::Sheet& sheet, std::span<const Record> rows, const ElementLists& lists, grid::Color alternateRowColor,
         bool lockAll) {
  const Kind& kind = KindOf<Record>();
  const Columns c = ColumnsOf(kind);
  const int rowCount = static_cast<int>(rows.size());
  grid::InitializeGrid(sheet, alternateRowColor, rowCount, c.count, Headers(kind), Widths(kind), lockAll);
  sheet.SetColumnLock(c.id, true);
  const std::vector<std::string> materials = ReferenceItems(lists.materials);
  const std::vector<std::string> properties = PropertyItems(static_cast<const Record*>(nullptr), lists);
  SetCombo(sheet, c.material, materials);
  if (c.property) SetCombo(sheet, c.property, properties);
  if (c.nonlinear) SetCombo(sheet, c.nonlinear, kNonlinearItems);
  SetCombo(sheet, c.activation, kActivationItems);
  SetCombo(sheet, c.selfWeight, kSelfWeightItems);
  SetCombo(sheet, c.status, kStatusItems);
  for (int col = c.firstNode; col <= c.count; ++col) sheet.AddFillColumn(col);

  for (int row = 1; row <= rowCount; ++row) {
    const Record& r = rows[static_cast<size_t>(row) - 1];
    SetUInt(sheet, c.id, row, r.id);
    for (int k = 0; k < Record::kNodeCount; ++k) SetUInt(sheet, c.firstNode + k, row, r.nodes[static_cast<size_t>(k)]);
    sheet.SetData(c.material, row, ItemOf(materials, r.mat - 1));
    if (c.property) sheet.SetData(c.property, row, ItemOf(properties, PropertyOf(r) - 1));
    if (c.angle) sheet.SetNumberG(c.angle, row, AngleOf(r));
    if (c.nonlinear) sheet.SetData(c.nonlinear, row, ItemOf(kNonlinearItems, NonlinearOf(r)));
    sheet.SetData(c.activation, row, kActivationItems[r.IsInactive() ? 1 : 0]);
    sheet.SetData(c.selfWeight, row, kSelfWeightItems[r.IsExcludedFromSelfWeight() ? 1 : 0]);
    sheet.SetData(c.status, row, kStatusItems[r.IsFrozen() ? 2 : r.IsSelected() ? 1 : 0]);
  }
  return rowCount;
}

void SetNewRowDefaults(grid::Sheet& sheet, const Kind& kind, int firstRow, int lastRow) {
  const Columns c = ColumnsOf(kind);
  for (int row = std::max(firstRow, 1); row <= std::min(lastRow, sheet.MaxRows()); ++row) {
    if (c.nonlinear) sheet.SetData(c.nonlinear, row, kNonlinearItems[0]);
    sheet.SetData(c.activation, row, kActivationItems[0]);
    sheet.SetData(c.selfWeight, row, kSelfWeightItems[0]);
    sheet.SetData(c.status, row, kStatusItems[0]);
  }
}

template <class Record>
ReadResult<Record> Read(const grid::Sheet& sheet, std::span<const Record> filled, const ElementLists& lists) {
  const Kind& kind = KindOf<Record>();
  const Columns c = ColumnsOf(kind);
  ReadResult<Record> result;
  const int filledRows = static_cast<int>(filled.size());
  const int used = sheet.LastUsedRow(c.firstNode, c.lastNode);
  if ((result.failure = grid::CheckEmptyCells(sheet, used, c.firstNode, c.lastNode, kind.emptyWord))) return result;
  if ((result.failure = grid::CheckDeletedRows(sheet, used, filledRows, kind.plural))) return result;

  // Built once for the whole table: a million elements must not search the lists per cell.
  const model::NodeIndex nodeIndex(lists.nodes);
  const ReferenceColumn materials(ReferenceItems(lists.materials));
  const ReferenceColumn properties(PropertyItems(static_cast<const Record*>(nullptr), lists));

  std::vector<Record> elements;
  elements.reserve(static_cast<size_t>(used));
  for (int row = 1; row <= used; ++row) {
    const Record* original = row <= filledRows ? &filled[static_cast<size_t>(row) - 1] : nullptr;
    Record r;
    const std::string& idText = sheet.GetData(c.id, row);
    const auto id = tools::ParseUInt32(idText);
    if (!id) {
      result.failure = grid::GridFailure{
          tools::Format("Invalid %s id \"%s\" in row %d.", kind.inputWord, idText.c_str(), row), {c.id, row}};
      return result;
    }
    if (*id > kMaxId) {
      result.failure = grid::GridFailure{
          tools::Format("Invalid %s id %u in row %d: the highest id is %u.", kind.inputWord, *id, row, kMaxId),
          {c.id, row}};
      return result;
    }
    r.id = *id;
    const auto refuse = [&](int col, const std::string& why) {
      result.failure =
          grid::GridFailure{tools::Format("Invalid input for %s %u.\n%s", kind.inputWord, r.id, why.c_str()), {col, row}};
    };
    const auto cellText = [&](int col) { return std::string(tools::Trim(sheet.GetData(col, row))); };

    int col = c.firstNode;
    try {
      for (int k = 0; k < Record::kNodeCount; ++k, ++col) {
        const auto nodeId = tools::ParseUInt32(sheet.GetData(col, row));
        if (!nodeId || *nodeId > kMaxId) {
          refuse(col, tools::Format("Node-%d must be a node id, a whole number from 0 to %u, not \"%s\".", k + 1, kMaxId,
                                    cellText(col).c_str()));
          return result;
        }
        nodeIndex.Require(*nodeId);
        r.nodes[static_cast<size_t>(k)] = *nodeId;
      }
      col = c.material;
      const auto material = materials.Read(sheet.GetData(col, row), original ? &original->mat : nullptr);
      if (!material) {
        refuse(col, tools::Format("\"%s\" is not in the list of materials.", cellText(col).c_str()));
        return result;
      }
      r.mat = *material;
      model::LookUpMaterial(lists.materials, r.mat);
      if (c.property) {
        col = c.property;
        const int32_t originalProperty = original ? PropertyOf(*original) : 0;
        const auto property = properties.Read(sheet.GetData(col, row), original ? &originalProperty : nullptr);
        if (!property) {
          refuse(col, tools::Format("\"%s\" is not in the list of %s.", cellText(col).c_str(),
                                    PropertyName(static_cast<const Record*>(nullptr))));
          return result;
        }
        SetProperty(r, *property);
        LookUpProperty(r, lists);
      }
    } catch (const fmException& e) {
      refuse(col, e.what());
      return result;
    }
    if (HasDuplicates(r.nodes)) {
      result.failure =
          grid::GridFailure{tools::Format("%s %u has duplicate nodal IDs.", kind.duplicateWord, r.id), {c.firstNode, row}};
      return result;
    }
    if (c.angle) {
      const double originalAngle = original ? AngleOf(*original) : 0;
      const auto angle = ReadAngle(sheet.GetData(c.angle, row), original ? &originalAngle : nullptr);
      if (!angle) {
        refuse(c.angle, tools::Format("Local Angle (deg) must be a number, not \"%s\".", cellText(c.angle).c_str()));
        return result;
      }
      SetAngle(r, *angle);
    }
    if (c.nonlinear) {
      // The other drop-downs read a stray text as their plain choice; a nonlinearity has no
      // plain reading of one, so it is refused.
      if (auto refusal = grid::ComboRefusal(sheet, c.nonlinear, row, sheet.GetData(c.nonlinear, row))) {
        refuse(c.nonlinear, *refusal);
        return result;
      }
      SetNonlinear(r, std::max(ItemPosition(kNonlinearItems, sheet.GetData(c.nonlinear, row)), 0));
    }
    if (ItemPosition(kActivationItems, sheet.GetData(c.activation, row)) == 1) r.flags |= fmElementBase::kInactive;
    if (ItemPosition(kSelfWeightItems, sheet.GetData(c.selfWeight, row)) == 1) r.flags |= fmElementBase::kNoSelfWeight;
    const int status = ItemPosition(kStatusItems, sheet.GetData(c.status, row));
    if (status == 2)
      r.flags |= fmElementBase::kFrozen;
    else if (status == 1)
      r.flags |= fmElementBase::kSelected;
    elements.push_back(r);
  }
  result.elements = std::move(elements);
  return result;
}

template std::vector<std::string> ReferenceItems(std::span<const fmMat>);
template std::vector<std::string> ReferenceItems(std::span<const fmSect>);
template std::vector<std::string> ReferenceItems(std::span<const fmThick>);

template int Fill(grid::Sheet&, std::span<const fmBm>, const ElementLists&, grid::Color, bool);
template int Fill(grid::Sheet&, std::span<const fmShell4>, const ElementLists&, grid::Color, bool);
template int Fill(grid::Sheet&, std::span<const fmBrick>, const ElementLists&, grid::Color, bool);

template ReadResult<fmBm> Read(const grid::Sheet&, std::span<const fmBm>, const ElementLists&);
template ReadResult<fmShell4> Read(const grid::Sheet&, std::span<const fmShell4>, const ElementLists&);
template ReadResult<fmBrick> Read(const grid::Sheet&, std::span<const fmBrick>, const ElementLists&);

}  // namespace elementgrid
