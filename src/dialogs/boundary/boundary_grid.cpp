#include "dialogs/boundary/boundary_grid.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "dialogs/grid/grid_edit.h"
#include "dialogs/grid/grid_ops.h"
#include "model/element_lookup.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace boundarygrid {

const KindTexts& TextsOf(Kind kind) {
  static const KindTexts texts[] = {
      {"support at node", "supports", "already has a support", "Support Table", "supports"},
      {"spring at node", "springs", "already has a spring", "Nodal Spring Table", "springs"},
      {"line spring on member", "line springs", "already has a line spring", "Member Line Spring Table",
       "line-springs"},
      {"surface spring on shell", "surface springs", "already has a surface spring", "Shell Surface Spring Table",
       "surface-springs"},
      {"coupled spring at node", "coupled springs", "already has a coupled spring", "Nodal Coupled Spring Table",
       "coupled"},
      {"releases of member", "member releases", "already has releases", "Member End Release Table", "releases"},
      {"constraint", "constraints", "is already numbered", "Multi-DOF Constraint Table", "constraints"},
      {"diaphragm", "diaphragms", "is already numbered", "Rigid Diaphragm Table", "diaphragms"},
      {"drift node", "drift nodes", "is already in the drift stack", "Drift Node Table", "drift"},
  };
  return texts[static_cast<size_t>(kind)];
}

const std::vector<std::string>& RestraintItems() {
  static const std::vector<std::string> items = {"Free", "Fixed"};
  return items;
}
const std::vector<std::string>& ReleaseItems() {
  static const std::vector<std::string> items = {"Fixed", "Released"};
  return items;
}
const std::vector<std::string>& DofItems() {
  static const std::vector<std::string> items = {"X", "Y", "Z", "OX", "OY", "OZ"};
  return items;
}

namespace {

enum class KeyKind { Node, Member, Shell, Number };
enum class ColType { Key, Real, Choice, Text };

struct ColumnSpec {
  std::string name;   // without the unit: what refusals call the column
  std::string heading;
  double width = 10;
  ColType type = ColType::Real;
  const std::vector<std::string>* items = nullptr;
  std::string newRowText;
  bool typed = false;  // a row holding text here is a used row
};

ColumnSpec KeyCol(const char* heading, double width = 9) { return {heading, heading, width, ColType::Key, nullptr, "", true}; }
ColumnSpec RealCol(const std::string& name, const fmUnit& units, fmUnit::Quantity q, double width = 11) {
  return {name, units.Heading(name, q), width, ColType::Real, nullptr, "0", false};
}
ColumnSpec RealColLabel(const std::string& name, const std::string& unit, double width = 11) {
  return {name, name + " [" + unit + "]", width, ColType::Real, nullptr, "0", false};
}
ColumnSpec ChoiceCol(const std::string& heading, const std::vector<std::string>& items, const std::string& first,
                     double width = 8) {
  return {heading, heading, width, ColType::Choice, &items, first, false};
}
ColumnSpec NodeCol(const char* heading) { return {heading, heading, 8, ColType::Text, nullptr, "", true}; }

const char* KeyWord(KeyKind k) { return k == KeyKind::Member ? "member" : k == KeyKind::Shell ? "shell" : "node"; }
const char* KeyWordCapital(KeyKind k) { return k == KeyKind::Member ? "Member" : k == KeyKind::Shell ? "Shell" : "Node"; }

// A refusal of one cell of the row being read.
struct Refusal {
  int col;
  std::string why;
};

// The cells of one row as a record writes them.
class RowOut {
 public:
  RowOut(grid::Sheet& sheet, int row) : sheet_(sheet), row_(row) {}
  void Real(int col, double v) { sheet_.SetNumberG(col, row_, v); }
  void Id(int col, uint32_t v) { sheet_.SetNumber(col, row_, tools::FormatInt(v)); }
  void Text(int col, const std::string& text) { sheet_.SetData(col, row_, text); }
  void Choice(int col, const std::vector<std::string>& items, bool second) { sheet_.SetData(col, row_, items[second ? 1 : 0]); }

 private:
  grid::Sheet& sheet_;
  int row_;
};

// The cells of one row as a record reads them; every refusal is thrown at its cell.
class RowIn {
 public:
  RowIn(const grid::Sheet& sheet, int row, const std::vector<ColumnSpec>& columns, const model::NodeIndex& nodes)
      : sheet_(sheet), row_(row), columns_(columns), nodes_(nodes) {}

  std::string Text(int col) const { return std::string(tools::Trim(sheet_.GetData(col, row_))); }
  bool Empty(int col) const { return Text(col).empty(); }
  // A text left as it was shown for the original value keeps that value's full precision.
  double Real(int col, const double* original) const {
    const auto v = grid::ReadReal(sheet_.GetData(col, row_), original);
    if (!v) throw Refusal{col, tools::Format("%s must be a number, not \"%s\".", Name(col).c_str(), Text(col).c_str())};
    return *v;
  }
  double NotNegative(int col, const double* original) const {
    const double v = Real(col, original);
    if (v < 0) throw Refusal{col, Name(col) + " can not be negative."};
    return v;
  }
  // The item's position; a text that is no item is refused with the drop-down's own text.
  int Choice(int col) const {
    const std::string& text = sheet_.GetData(col, row_);
    if (auto refusal = grid::ComboRefusal(sheet_, col, row_, text)) throw Refusal{col, *refusal};
    const auto& items = *columns_[static_cast<size_t>(col - 1)].items;
    for (size_t i = 0; i < items.size(); ++i)
      if (tools::EqualsNoCase(tools::Trim(text), items[i])) return static_cast<int>(i);
    throw Refusal{col, tools::Format("%s must be one of its items.", Name(col).c_str())};
  }
  uint32_t Node(int col) const { return ExistingNode(col, Text(col)); }
  uint32_t ExistingNode(int col, const std::string& text) const {
    const auto id = tools::ParseUInt32(text);
    if (!id || *id > kMaxId)
      throw Refusal{col, tools::Format("%s must be a node id, a whole number from 0 to %u, not \"%s\".",
                                       Name(col).c_str(), kMaxId, text.c_str())};
    try {
      nodes_.Require(*id);
    } catch (const fmException& e) {
      throw Refusal{col, e.what()};
    }
    return *id;
  }
  const fmNd* NodeRecord(uint32_t id, std::span<const fmNd> nodes) const {
    const auto at = nodes_.Find(id);
    return at ? &nodes[*at] : nullptr;
  }
  const std::string& Name(int col) const { return columns_[static_cast<size_t>(col - 1)].name; }

 private:
  const grid::Sheet& sheet_;
  int row_;
  const std::vector<ColumnSpec>& columns_;
  const model::NodeIndex& nodes_;
};

template <class Record>
struct Traits;

// A stiffness row needs something to stiffen.
template <size_t N>
void RequireStiffness(const std::array<double, N>& k) {
  if (std::all_of(k.begin(), k.end(), [](double v) { return v == 0; }))
    throw Refusal{2, "A spring needs at least one stiffness that is not 0."};
}

template <>
struct Traits<fmSupport> {
  static constexpr Kind kKind = Kind::Supports;
  static constexpr KeyKind kKey = KeyKind::Node;
  static std::vector<ColumnSpec> Columns(const fmUnit& u) {
    std::vector<ColumnSpec> c = {KeyCol("Node Id")};
    for (const std::string& dof : DofItems()) c.push_back(ChoiceCol(dof, RestraintItems(), "Fixed", 6));
    for (const char* name : {"Dx", "Dy", "Dz"}) c.push_back(RealCol(name, u, fmUnit::Displacement));
    for (const char* name : {"Dox", "Doy", "Doz"}) c.push_back(RealCol(name, u, fmUnit::Rotation));
    return c;
  }
  static uint32_t Key(const fmSupport& s) { return s.node; }
  static void Write(const fmSupport& s, RowOut& out) {
    for (int k = 0; k < 6; ++k) {
      out.Choice(2 + k, RestraintItems(), s.restrained[static_cast<size_t>(k)]);
      out.Real(8 + k, s.displacement[static_cast<size_t>(k)]);
    }
  }
  static fmSupport Read(uint32_t key, const RowIn& in, const fmSupport* original, const Objects&) {
    fmSupport s;
    s.node = key;
    for (int k = 0; k < 6; ++k) s.restrained[static_cast<size_t>(k)] = in.Choice(2 + k) == 1;
    if (!s.RestrainsAnything()) throw Refusal{2, "A support must restrain at least one of X, Y, Z, OX, OY, OZ."};
    for (int k = 0; k < 6; ++k) {
      const auto i = static_cast<size_t>(k);
      s.displacement[i] = in.Real(8 + k, original ? &original->displacement[i] : nullptr);
      if (s.displacement[i] != 0 && !s.restrained[i])
        throw Refusal{8 + k, tools::Format("%s can be prescribed only where the support is Fixed: %s is Free.",
                                           in.Name(8 + k).c_str(), DofItems()[i].c_str())};
    }
    return s;
  }
};

// Springs of nodes, members and shells: the object's id and its stiffnesses from column 2,
// none negative and one at least not 0.
template <class Record, Kind K, KeyKind Key_, uint32_t Record::* KeyMember>
struct SpringTraits {
  static constexpr Kind kKind = K;
  static constexpr KeyKind kKey = Key_;
  static uint32_t Key(const Record& s) { return s.*KeyMember; }
  static void Write(const Record& s, RowOut& out) {
    for (size_t k = 0; k < s.k.size(); ++k) out.Real(2 + static_cast<int>(k), s.k[k]);
  }
  static Record Read(uint32_t key, const RowIn& in, const Record* original, const Objects&) {
    Record s;
    s.*KeyMember = key;
    for (size_t k = 0; k < s.k.size(); ++k) s.k[k] = in.NotNegative(2 + static_cast<int>(k), original ? &original->k[k] : nullptr);
    RequireStiffness(s.k);
    return s;
  }
};

template <>
struct Traits<fmNodalSpring> : SpringTraits<fmNodalSpring, Kind::NodalSprings, KeyKind::Node, &fmNodalSpring::node> {
  static std::vector<ColumnSpec> Columns(const fmUnit& u) {
    std::vector<ColumnSpec> c = {KeyCol("Node Id")};
    for (const char* name : {"Kx", "Ky", "Kz"}) c.push_back(RealCol(name, u, fmUnit::NodeSpring, 12));
    for (const char* name : {"Kox", "Koy", "Koz"}) c.push_back(RealCol(name, u, fmUnit::NodeRotationalSpring, 14));
    return c;
  }
};

// Line and surface springs: Kx, Ky, Kz after the element's id.
std::vector<ColumnSpec> ElementSpringColumns(const char* key, const fmUnit& u, fmUnit::Quantity q) {
  std::vector<ColumnSpec> c = {KeyCol(key)};
  for (const char* name : {"Kx", "Ky", "Kz"}) c.push_back(RealCol(name, u, q, 13));
  return c;
}

template <>
struct Traits<fmLineSpring> : SpringTraits<fmLineSpring, Kind::LineSprings, KeyKind::Member, &fmLineSpring::member> {
  static std::vector<ColumnSpec> Columns(const fmUnit& u) { return ElementSpringColumns("Member Id", u, fmUnit::LineSpring); }
};

template <>
struct Traits<fmSurfaceSpring>
    : SpringTraits<fmSurfaceSpring, Kind::SurfaceSprings, KeyKind::Shell, &fmSurfaceSpring::shell> {
  static std::vector<ColumnSpec> Columns(const fmUnit& u) { return ElementSpringColumns("Shell4 Id", u, fmUnit::AreaSpring); }
};

template <>
struct Traits<fmCoupledSpring> {
  static constexpr Kind kKind = Kind::CoupledSprings;
  static constexpr KeyKind kKey = KeyKind::Node;
  static std::vector<ColumnSpec> Columns(const fmUnit& u) {
    std::vector<ColumnSpec> c = {KeyCol("Node Id")};
    for (int t = 0; t < fmCoupledSpring::kTermCount; ++t) {
      const std::string& name = fmCoupledSpring::TermName(t);
      switch (fmCoupledSpring::TermKind(t)) {
        case 0: c.push_back(RealCol(name, u, fmUnit::NodeSpring, 13)); break;
        case 1: c.push_back(RealCol(name, u, fmUnit::NodeRotationalSpring, 17)); break;
        default: c.push_back(RealColLabel(name, u.Label(fmUnit::Force) + "/rad", 14)); break;
      }
    }
    return c;
  }
  static uint32_t Key(const fmCoupledSpring& s) { return s.node; }
  static void Write(const fmCoupledSpring& s, RowOut& out) {
    for (int t = 0; t < fmCoupledSpring::kTermCount; ++t) out.Real(2 + t, s.k[static_cast<size_t>(t)]);
  }
  static fmCoupledSpring Read(uint32_t key, const RowIn& in, const fmCoupledSpring* original, const Objects&) {
    fmCoupledSpring s;
    s.node = key;
    for (int t = 0; t < fmCoupledSpring::kTermCount; ++t) {
      const auto i = static_cast<size_t>(t);
      const std::string& name = fmCoupledSpring::TermName(t);
      // The terms on the diagonal are a degree of freedom's own stiffness.
      const bool diagonal = name.substr(0, name.find('_')) == name.substr(name.find('_') + 1);
      s.k[i] = diagonal ? in.NotNegative(2 + t, original ? &original->k[i] : nullptr)
                        : in.Real(2 + t, original ? &original->k[i] : nullptr);
    }
    RequireStiffness(s.k);
    return s;
  }
};

template <>
struct Traits<fmMemberRelease> {
  static constexpr Kind kKind = Kind::Releases;
  static constexpr KeyKind kKey = KeyKind::Member;
  static std::vector<ColumnSpec> Columns(const fmUnit&) {
    std::vector<ColumnSpec> c = {KeyCol("Member Id")};
    for (const char* end : {"Start", "End"})
      for (const char* force : {"Fx", "Fy", "Fz", "Mx", "My", "Mz"}) {
        const bool moment = force[0] == 'M' && force[1] != 'x';
        c.push_back(ChoiceCol(std::string(end) + " " + force, ReleaseItems(), moment ? "Released" : "Fixed", 8));
      }
    return c;
  }
  static uint32_t Key(const fmMemberRelease& r) { return r.member; }
  static void Write(const fmMemberRelease& r, RowOut& out) {
    for (int e = 0; e < 2; ++e)
      for (int k = 0; k < 6; ++k) out.Choice(2 + 6 * e + k, ReleaseItems(), r.released[static_cast<size_t>(e)][static_cast<size_t>(k)]);
  }
  static fmMemberRelease Read(uint32_t key, const RowIn& in, const fmMemberRelease*, const Objects&) {
    fmMemberRelease r;
    r.member = key;
    for (int e = 0; e < 2; ++e)
      for (int k = 0; k < 6; ++k) r.released[static_cast<size_t>(e)][static_cast<size_t>(k)] = in.Choice(2 + 6 * e + k) == 1;
    if (!r.ReleasesAnything()) throw Refusal{2, "A release row must release at least one end force."};
    // Released along or about its axis at both ends, a member would slide or spin freely.
    if (r.released[0][0] && r.released[1][0])
      throw Refusal{8, "Fx can not be released at both ends: the member would be free to slide along its axis."};
    if (r.released[0][3] && r.released[1][3])
      throw Refusal{11, "Mx can not be released at both ends: the member would be free to turn about its axis."};
    return r;
  }
};

template <>
struct Traits<fmConstraint> {
  static constexpr Kind kKind = Kind::Constraints;
  static constexpr KeyKind kKey = KeyKind::Number;
  static std::vector<ColumnSpec> Columns(const fmUnit&) {
    return {KeyCol("Constraint Id", 11), NodeCol("Node-1"), ChoiceCol("DOF-1", DofItems(), "X", 7), NodeCol("Node-2"),
            ChoiceCol("DOF-2", DofItems(), "X", 7)};
  }
  static uint32_t Key(const fmConstraint& c) { return c.id; }
  static void Write(const fmConstraint& c, RowOut& out) {
    for (int end = 0; end < 2; ++end) {
      out.Id(2 + 2 * end, c.node[static_cast<size_t>(end)]);
      out.Text(3 + 2 * end, DofItems()[static_cast<size_t>(std::clamp(c.dof[static_cast<size_t>(end)], 0, 5))]);
    }
  }
  static fmConstraint Read(uint32_t key, const RowIn& in, const fmConstraint*, const Objects&) {
    fmConstraint c;
    c.id = key;
    for (int end = 0; end < 2; ++end) {
      c.node[static_cast<size_t>(end)] = in.Node(2 + 2 * end);
      c.dof[static_cast<size_t>(end)] = in.Choice(3 + 2 * end);
    }
    if (c.node[0] == c.node[1] && c.dof[0] == c.dof[1])
      throw Refusal{5, "A degree of freedom can not be constrained to itself."};
    return c;
  }
  // The same two degrees of freedom tied twice, in either order.
  struct Seen {
    std::map<std::pair<std::pair<uint32_t, int32_t>, std::pair<uint32_t, int32_t>>, uint32_t> pairs;
  };
  static void CheckAgainst(const fmConstraint& c, Seen& seen, const Objects&) {
    auto a = std::pair(c.node[0], c.dof[0]), b = std::pair(c.node[1], c.dof[1]);
    if (b < a) std::swap(a, b);
    const auto [at, added] = seen.pairs.emplace(std::pair(a, b), c.id);
    if (!added) throw Refusal{2, tools::Format("It ties the same degrees of freedom as constraint %u.", at->second)};
  }
};

template <>
struct Traits<fmDiaphragm> {
  static constexpr Kind kKind = Kind::Diaphragms;
  static constexpr KeyKind kKey = KeyKind::Number;
  static std::vector<ColumnSpec> Columns(const fmUnit& u) {
    ColumnSpec level = RealCol("Level", u, fmUnit::Length, 11);
    level.newRowText.clear();
    level.typed = true;
    ColumnSpec nodes = {"Nodes", "Nodes", 30, ColType::Text, nullptr, "", true};
    return {KeyCol("Diaphragm Id", 11), NodeCol("Master Node"), level, nodes};
  }
  static uint32_t Key(const fmDiaphragm& d) { return d.id; }
  static void Write(const fmDiaphragm& d, RowOut& out) {
    out.Id(2, d.master);
    if (d.byLevel)
      out.Real(3, d.level);
    else
      out.Text(4, NodeListText(d.nodes));
  }
  static fmDiaphragm Read(uint32_t key, const RowIn& in, const fmDiaphragm* original, const Objects& objects) {
    fmDiaphragm d;
    d.id = key;
    d.master = in.Node(2);
    d.byLevel = !in.Empty(3);
    if (d.byLevel == !in.Empty(4))
      throw Refusal{d.byLevel ? 4 : 3, "A diaphragm takes either a level or a list of nodes, one of the two."};
    if (d.byLevel) {
      d.level = in.Real(3, original && original->byLevel ? &original->level : nullptr);
      const fmNd* master = in.NodeRecord(d.master, objects.nodes);
      if (master && !AtLevel(master->y, d.level))
        throw Refusal{2, tools::Format("The master node %u is not at the level %s.", d.master,
                                       tools::FormatG(d.level).c_str())};
      return d;
    }
    std::string why;
    const auto ids = ParseNodeList(in.Text(4), why);
    if (!ids) throw Refusal{4, why};
    std::unordered_set<uint32_t> seen;
    for (uint32_t id : *ids) {
      in.ExistingNode(4, tools::FormatInt(id));
      if (!seen.insert(id).second) throw Refusal{4, tools::Format("Node %u is listed twice.", id)};
    }
    d.nodes = *ids;
    return d;
  }
  // A node follows one master only.
  struct Seen {
    std::unordered_map<uint32_t, uint32_t> owner;  // node id to its diaphragm
    std::vector<fmNd> nodes;
  };
  static void CheckAgainst(const fmDiaphragm& d, Seen& seen, const Objects& objects) {
    if (seen.nodes.empty()) seen.nodes.assign(objects.nodes.begin(), objects.nodes.end());
    const std::vector<uint32_t> mine = DiaphragmNodes(d, seen.nodes);
    for (uint32_t id : mine)
      if (const auto at = seen.owner.find(id); at != seen.owner.end())
        throw Refusal{d.byLevel || id == d.master ? 2 : 4,
                      tools::Format("Node %u is already in diaphragm %u.", id, at->second)};
    for (uint32_t id : mine) seen.owner.emplace(id, d.id);
  }
};

template <>
struct Traits<DriftNode> {
  static constexpr Kind kKind = Kind::DriftNodes;
  static constexpr KeyKind kKey = KeyKind::Node;
  static std::vector<ColumnSpec> Columns(const fmUnit&) { return {KeyCol("Node Id", 12)}; }
  static uint32_t Key(const DriftNode& d) { return d.node; }
  static void Write(const DriftNode&, RowOut&) {}
  static DriftNode Read(uint32_t key, const RowIn&, const DriftNode*, const Objects&) { return {key}; }
};

// What a table remembers of the rows read so far, to refuse a record that clashes with an
// earlier one (constraints, diaphragms); nothing for the others.
template <class T>
struct SeenOf {
  struct type {};
};
template <class T>
  requires requires { typename T::Seen; }
struct SeenOf<T> {
  using type = typename T::Seen;
};

std::vector<ColumnSpec> ColumnsOf(Kind kind, const fmUnit& units) {
  switch (kind) {
    case Kind::Supports: return Traits<fmSupport>::Columns(units);
    case Kind::NodalSprings: return Traits<fmNodalSpring>::Columns(units);
    case Kind::LineSprings: return Traits<fmLineSpring>::Columns(units);
    case Kind::SurfaceSprings: return Traits<fmSurfaceSpring>::Columns(units);
    case Kind::CoupledSprings: return Traits<fmCoupledSpring>::Columns(units);
    case Kind::Releases: return Traits<fmMemberRelease>::Columns(units);
    case Kind::Constraints: return Traits<fmConstraint>::Columns(units);
    case Kind::Diaphragms: return Traits<fmDiaphragm>::Columns(units);
    case Kind::DriftNodes: return Traits<DriftNode>::Columns(units);
  }
  return {};
}

// The units only change headings; the columns' kinds and defaults are the same in any units.
const std::vector<ColumnSpec>& Layout(Kind kind) {
  static const fmUnit none;
  static std::vector<std::vector<ColumnSpec>> layouts;
  if (layouts.empty())
    for (int k = 0; k <= static_cast<int>(Kind::DriftNodes); ++k) layouts.push_back(ColumnsOf(static_cast<Kind>(k), none));
  return layouts[static_cast<size_t>(kind)];
}

bool IsNumbered(Kind kind) { return kind == Kind::Constraints || kind == Kind::Diaphragms; }

// Objects whose selection bit is set, for a grid that shows only selected entities.
struct Selection {
  std::unordered_set<uint32_t> nodes, members, shells;
  explicit Selection(const Objects& o) {
    for (const fmNd& n : o.nodes)
      if (n.IsSelected()) nodes.insert(n.id);
    for (const fmBm& m : o.members)
      if (m.flags & fmElementBase::kSelected) members.insert(m.id);
    for (const fmShell4& s : o.shells)
      if (s.flags & fmElementBase::kSelected) shells.insert(s.id);
  }
};

template <class Record>
bool IsShown(const Record& r, const Selection& s) {
  if constexpr (std::is_same_v<Record, fmConstraint>)
    return s.nodes.count(r.node[0]) || s.nodes.count(r.node[1]);
  else if constexpr (std::is_same_v<Record, fmDiaphragm>)
    return s.nodes.count(r.master) != 0;
  else if constexpr (Traits<Record>::kKey == KeyKind::Member)
    return s.members.count(Traits<Record>::Key(r)) != 0;
  else if constexpr (Traits<Record>::kKey == KeyKind::Shell)
    return s.shells.count(Traits<Record>::Key(r)) != 0;
  else
    return s.nodes.count(Traits<Record>::Key(r)) != 0;
}

}  // namespace

bool TableBase::NumberedKeys() const { return IsNumbered(kind_); }

void TableBase::SetUp(grid::Sheet& sheet, const fmUnit& units, int rows, grid::Color alternateRowColor,
                      bool lockAll) const {
  const std::vector<ColumnSpec> columns = ColumnsOf(kind_, units);
  std::vector<std::string> headers;
  std::vector<double> widths;
  for (const ColumnSpec& c : columns) {
    headers.push_back(c.heading);
    widths.push_back(c.width);
  }
  grid::InitializeGrid(sheet, alternateRowColor, rows, static_cast<int>(columns.size()), headers, widths, lockAll);
  if (IsNumbered(kind_)) sheet.SetColumnLock(1, true);
  for (int col = 2; col <= static_cast<int>(columns.size()); ++col) {
    const ColumnSpec& c = columns[static_cast<size_t>(col - 1)];
    if (c.type == ColType::Choice) {
      grid::CellType combo;
      combo.kind = grid::CellType::Combo;
      combo.items = *c.items;
      sheet.SetColumnType(col, combo);
      sheet.SetColAlign(col, grid::Align::Left);
    }
    if (c.type == ColType::Text && c.name == "Nodes") sheet.SetColAlign(col, grid::Align::Left);
    sheet.AddFillColumn(col);
  }
}

void TableBase::PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) {
  const std::vector<ColumnSpec>& columns = Layout(kind_);
  for (int row = std::max(firstRow, 1); row <= lastRow && row <= sheet.MaxRows(); ++row) {
    if (!IsNumbered(kind_)) {
      // The user types the node, member or shell here.
      sheet.ClearData(1, row);
      sheet.SetLock(1, row, false);
    }
    for (int col = 2; col <= static_cast<int>(columns.size()); ++col)
      sheet.SetData(col, row, columns[static_cast<size_t>(col - 1)].newRowText);
  }
  origins_.resize(static_cast<size_t>(sheet.MaxRows()), -1);
}

void TableBase::DeleteRows(grid::Sheet& sheet, int row1, int row2) {
  const int rows = sheet.MaxRows();
  row1 = std::max(row1, 1);
  const int count = grid::RemoveRows(sheet, row1, row2);
  if (count == 0) return;
  origins_.resize(static_cast<size_t>(rows), -1);
  origins_.erase(origins_.begin() + (row1 - 1), origins_.begin() + (row1 - 1 + count));
  if (sheet.ActiveCell().row > sheet.MaxRows()) sheet.SetActiveCell(1, sheet.MaxRows());
}

template <class Record>
Table<Record>::Table() : TableBase(Traits<Record>::kKind) {}

template <class Record>
std::vector<std::string> Table<Record>::Headers(const fmUnit& units) const {
  std::vector<std::string> headers;
  for (const ColumnSpec& c : Traits<Record>::Columns(units)) headers.push_back(c.heading);
  return headers;
}

template <class Record>
int Table<Record>::Fill(grid::Sheet& sheet, std::span<const Record> records, const Objects& objects,
                        const fmUnit& units, grid::Color alternateRowColor, bool lockAll, bool selectedOnly) {
  filled_.clear();
  origins_.clear();
  std::optional<Selection> selection;
  if (selectedOnly) selection.emplace(objects);
  for (size_t i = 0; i < records.size(); ++i)
    if (!selection || IsShown(records[i], *selection)) {
      filled_.push_back(records[i]);
      origins_.push_back(static_cast<int64_t>(filled_.size() - 1));
    }
  const int rows = static_cast<int>(filled_.size());
  SetUp(sheet, units, rows, alternateRowColor, lockAll);
  for (int row = 1; row <= rows; ++row) {
    const Record& r = filled_[static_cast<size_t>(row - 1)];
    sheet.SetNumber(1, row, tools::FormatInt(Traits<Record>::Key(r)));
    RowOut out(sheet, row);
    Traits<Record>::Write(r, out);
  }
  return rows;
}

template <class Record>
ReadResult<Record> Table<Record>::Read(const grid::Sheet& sheet, const Objects& objects) const {
  using T = Traits<Record>;
  ReadResult<Record> result;
  const KindTexts& texts = Texts();
  const std::vector<ColumnSpec>& columns = Layout(kind_);
  const int cols = static_cast<int>(columns.size());

  // Used rows: the last row with text in a column the user types into.
  int used = 0;
  for (int col = 1; col <= cols; ++col)
    if (columns[static_cast<size_t>(col - 1)].typed && !(col == 1 && IsNumbered(kind_)))
      used = std::max(used, sheet.LastUsedRow(col, col));

  if (!IsNumbered(kind_))
    for (int row = 1; row <= used; ++row)
      if (tools::Trim(sheet.GetData(1, row)).empty()) {
        result.failure = grid::GridFailure{
            tools::Format("Invalid empty input for %s in row %d", columns[0].name.c_str(), row), {1, row}};
        return result;
      }
  // Columns every row must fill: all but the key, the optional diaphragm columns and the
  // drift stack's none.
  const int lastRequired = std::is_same_v<Record, fmDiaphragm> ? 2 : cols;
  if (lastRequired >= 2)
    if ((result.failure = grid::CheckEmptyCells(sheet, used, 2, lastRequired, texts.entity))) return result;
  // Rows of existing records stand first; a typed key may have been emptied with its row, so
  // the refusal names the records' own keys.
  const int filledRows = static_cast<int>(std::count_if(origins_.begin(), origins_.end(), [](int64_t o) { return o >= 0; }));
  if (used < filledRows) {
    grid::Sheet keys;
    keys.SetMaxCols(1);
    keys.SetMaxRows(filledRows);
    for (int row = 1; row <= filledRows; ++row)
      keys.SetData(1, row, tools::FormatInt(T::Key(filled_[static_cast<size_t>(origins_[static_cast<size_t>(row - 1)])])));
    result.failure = grid::CheckDeletedRows(keys, used, filledRows, texts.plural);
    return result;
  }

  const model::NodeIndex nodeIndex(objects.nodes);
  std::unordered_set<uint32_t> members, shells;
  if constexpr (T::kKey == KeyKind::Member)
    for (const fmBm& m : objects.members) members.insert(m.id);
  if constexpr (T::kKey == KeyKind::Shell)
    for (const fmShell4& s : objects.shells) shells.insert(s.id);

  std::unordered_map<uint32_t, int> rowOfKey;
  typename SeenOf<T>::type seen;
  std::vector<Record> records;
  records.reserve(static_cast<size_t>(used));
  for (int row = 1; row <= used; ++row) {
    const std::string keyText(tools::Trim(sheet.GetData(1, row)));
    const auto key = tools::ParseUInt32(keyText);
    const char* word = T::kKey == KeyKind::Number ? texts.entity : KeyWord(T::kKey);
    if (!key) {
      result.failure =
          grid::GridFailure{tools::Format("Invalid %s id \"%s\" in row %d.", word, keyText.c_str(), row), {1, row}};
      return result;
    }
    if (*key > kMaxId) {
      result.failure = grid::GridFailure{
          tools::Format("Invalid %s id %u in row %d: the highest id is %u.", word, *key, row, kMaxId), {1, row}};
      return result;
    }
    const auto refuse = [&](int col, const std::string& why) {
      result.failure = grid::GridFailure{tools::Format("Invalid input for %s %u.\n%s", texts.entity, *key, why.c_str()),
                                         {col, row}};
    };
    if constexpr (T::kKey == KeyKind::Node) {
      if (!nodeIndex.Find(*key)) {
        refuse(1, tools::Format("Node %u does not exist.", *key));
        return result;
      }
    } else if constexpr (T::kKey == KeyKind::Member) {
      if (!members.count(*key)) {
        refuse(1, tools::Format("Member %u does not exist.", *key));
        return result;
      }
    } else if constexpr (T::kKey == KeyKind::Shell) {
      if (!shells.count(*key)) {
        refuse(1, tools::Format("Shell %u does not exist.", *key));
        return result;
      }
    }
    if (const auto [at, added] = rowOfKey.emplace(*key, row); !added) {
      const char* object = T::kKey != KeyKind::Number       ? KeyWordCapital(T::kKey)
                           : kind_ == Kind::Constraints ? "Constraint"
                                                        : "Diaphragm";
      refuse(1, tools::Format("%s %u %s in row %d.", object, *key, texts.duplicate, at->second));
      return result;
    }
    const int64_t origin = static_cast<size_t>(row - 1) < origins_.size() ? origins_[static_cast<size_t>(row - 1)] : -1;
    const Record* original = origin >= 0 ? &filled_[static_cast<size_t>(origin)] : nullptr;
    try {
      Record record = T::Read(*key, RowIn(sheet, row, columns, nodeIndex), original, objects);
      if constexpr (requires { typename T::Seen; }) T::CheckAgainst(record, seen, objects);
      records.push_back(std::move(record));
    } catch (const Refusal& r) {
      refuse(r.col, r.why);
      return result;
    }
  }
  result.records = std::move(records);
  return result;
}

template class Table<fmSupport>;
template class Table<fmNodalSpring>;
template class Table<fmLineSpring>;
template class Table<fmSurfaceSpring>;
template class Table<fmCoupledSpring>;
template class Table<fmMemberRelease>;
template class Table<fmConstraint>;
template class Table<fmDiaphragm>;
template class Table<DriftNode>;

std::vector<DriftNode> DriftNodesOf(std::span<const uint32_t> ids) {
  std::vector<DriftNode> out;
  out.reserve(ids.size());
  for (uint32_t id : ids) out.push_back({id});
  return out;
}

std::vector<uint32_t> DriftNodeIds(std::span<const DriftNode> nodes) {
  std::vector<uint32_t> out;
  out.reserve(nodes.size());
  for (const DriftNode& d : nodes) out.push_back(d.node);
  return out;
}

std::string NodeListText(std::span<const uint32_t> ids) {
  std::string text;
  for (size_t i = 0; i < ids.size();) {
    size_t j = i;
    while (j + 1 < ids.size() && ids[j + 1] == ids[j] + 1) ++j;
    if (!text.empty()) text += ", ";
    text += tools::FormatInt(ids[i]);
    if (j > i) text += (j == i + 1 ? ", " : "-") + tools::FormatInt(ids[j]);
    i = j + 1;
  }
  return text;
}

std::optional<std::vector<uint32_t>> ParseNodeList(const std::string& text, std::string& why) {
  constexpr uint32_t kLongestRun = 1000000;
  std::vector<uint32_t> ids;
  size_t at = 0;
  const auto isSeparator = [](char c) { return c == ',' || c == ' ' || c == '\t'; };
  while (at < text.size()) {
    while (at < text.size() && isSeparator(text[at])) ++at;
    if (at >= text.size()) break;
    size_t end = at;
    while (end < text.size() && !isSeparator(text[end])) ++end;
    const std::string item = text.substr(at, end - at);
    at = end;
    const size_t dash = item.find('-', 1);
    const auto first = tools::ParseUInt32(item.substr(0, dash));
    const auto last = dash == std::string::npos ? first : tools::ParseUInt32(item.substr(dash + 1));
    if (!first || !last || *first > kMaxId || *last > kMaxId || *last < *first) {
      why = tools::Format("\"%s\" is not a node id or a run of node ids such as 5-9.", item.c_str());
      return std::nullopt;
    }
    if (*last - *first >= kLongestRun) {
      why = tools::Format("The run \"%s\" is longer than %u nodes.", item.c_str(), kLongestRun);
      return std::nullopt;
    }
    for (uint32_t id = *first;; ++id) {
      ids.push_back(id);
      if (id == *last) break;
    }
  }
  if (ids.empty()) {
    why = "The list of nodes is empty.";
    return std::nullopt;
  }
  return ids;
}

}  // namespace boundarygrid
