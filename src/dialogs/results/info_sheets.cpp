#include "dialogs/results/info_sheets.h"

#include <cmath>
#include <functional>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/results/display_format.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace results {
namespace {

using Q = fmUnit::Quantity;
using Vec3 = std::array<double, 3>;

// The lines of one sheet and the model they describe.
class Lines {
 public:
  Lines(const CfmStruct& model, std::vector<std::string>& lines) : m_(model), lines_(lines) { lines_.clear(); }

  void Add(std::string line) { lines_.push_back(std::move(line)); }

  // A line whose pattern holds one "%%.%d%c" per value and ends with "(%s)": the display
  // format of the quantity and its unit label go in first, then the values.
  template <class... V>
  void Values(const char* pattern, Q q, const std::string& unit, V... values) {
    const DisplayFormatSpec f = GetDisplayFormat(m_.DisplayFormat(q));
    Add(Build(pattern, f, unit, values...));
  }

  // "  Direction = %s;  Magnitude = %%.%d%c (%s)": the direction, format and unit first.
  void DirectionAndMagnitude(const char* direction, Q q, const std::string& unit, double value) {
    const DisplayFormatSpec f = GetDisplayFormat(m_.DisplayFormat(q));
    const std::string format =
        tools::Format("  Direction = %s;  Magnitude = %%.%d%c (%s)", direction, f.precision, f.letter, unit.c_str());
    Add(tools::Format(format.c_str(), value));
  }

  const CfmStruct& model() const { return m_; }
  const std::string& Label(Q q) const { return m_.m_Units.Label(q); }

 private:
  template <class... V>
  static std::string Build(const char* pattern, const DisplayFormatSpec& f, const std::string& unit, V... values) {
    std::string format;
    if constexpr (sizeof...(V) == 1)
      format = tools::Format(pattern, f.precision, f.letter, unit.c_str());
    else if constexpr (sizeof...(V) == 2)
      format = tools::Format(pattern, f.precision, f.letter, f.precision, f.letter, unit.c_str());
    else
      format = tools::Format(pattern, f.precision, f.letter, f.precision, f.letter, f.precision, f.letter,
                             unit.c_str());
    return tools::Format(format.c_str(), values...);
  }

  const CfmStruct& m_;
  std::vector<std::string>& lines_;
};

std::string ErrorFinding(const char* what, long id) { return tools::Format("error finding %s %ld", what, id); }

const char* YesNo(bool yes) { return yes ? "Yes" : "No"; }
const char* SelfWeight(uint32_t flags) { return flags & CfmStruct::kSelfWeightExcluded ? "Exclude" : "Include"; }
const char* Activation(uint32_t flags) { return flags & CfmStruct::kInactive ? "Inactive" : "Active"; }
const char* Named(const std::string& name) { return name.empty() ? "None" : name.c_str(); }
const char* DirectionName(int32_t d) { return d >= 0 && d < 6 ? DofNames()[static_cast<size_t>(d)] : "?"; }

// The record of an object in a result vector. Vectors of one run list objects in the order
// of the model's table, so the object's own position is tried first.
const fmResult6Val* FindRecord(const std::vector<fmResult6Val>& records, long id, size_t guess) {
  if (guess < records.size() && records[guess].number == id) return &records[guess];
  for (const fmResult6Val& r : records)
    if (r.number == id) return &r;
  return nullptr;
}

bool AnyRecord(const CfmStruct& m, long id, std::vector<fmResult6Val> fmCaseResults::*vector) {
  for (int c = 0; c < m.GetNumLoadCases(); ++c)
    if (const fmCaseResults* r = m.GetCaseResults(c); r && FindRecord(r->*vector, id, 0)) return true;
  return false;
}

template <class Table>
const typename Table::value_type* ByPosition(const Table& table, int32_t reference) {
  return reference >= 1 && static_cast<size_t>(reference) <= table.size() ? &table[static_cast<size_t>(reference - 1)]
                                                                          : nullptr;
}

std::string MaterialName(const CfmStruct& m, int32_t reference) {
  const fmMat* mat = ByPosition(m.m_Materials, reference);
  return mat ? mat->label : "None";
}

// The loads of one object, case by case in the model's order under "*load case [%s]";
// "  None" when no case has one. `list` picks the kind from a case's loads.
template <class List, class Mine, class Write>
void LoadSection(Lines& s, List list, Mine mine, Write write) {
  const CfmStruct& m = s.model();
  bool any = false;
  for (size_t c = 0; c < m.m_CaseLoads.size() && c < m.m_LoadCases.size(); ++c) {
    bool headed = false;
    for (const auto& load : list(m.m_CaseLoads[c])) {
      if (!mine(load)) continue;
      if (!headed) s.Add(tools::Format("*load case [%s]", m.m_LoadCases[c].name.c_str()));
      headed = any = true;
      write(load);
    }
  }
  if (!any) s.Add("  None");
}

template <class Record, class Key>
std::vector<Record> Of(const std::vector<Record>& all, Key key, long id) {
  std::vector<Record> mine;
  for (const Record& r : all)
    if (key(r) == id) mine.push_back(r);
  return mine;
}

// Per load case or combination, the object's two result lines, or the error line.
void ResultSection(Lines& s, long id, const char* word, size_t guess,
                   std::vector<fmResult6Val> fmCaseResults::*vector,
                   const std::function<void(const fmResult6Val&)>& write) {
  const CfmStruct& m = s.model();
  if (m.GetNumLoadCases() == 0) s.Add("  None");
  for (int c = 0; c < m.GetNumLoadCases(); ++c) {
    s.Add(tools::Format("*Load Combination [%s]", m.GetCaseName(c).c_str()));
    const fmCaseResults* results = m.GetCaseResults(c);
    const fmResult6Val* r = results ? FindRecord(results->*vector, id, guess) : nullptr;
    if (r)
      write(*r);
    else
      s.Add(ErrorFinding(word, id));
  }
}

// Per load case or combination, the element's result lines, or the error line when the
// case has no record of it (or its results cannot be formed).
template <class Record, class Find, class Write>
void ElementSection(Lines& s, long id, const char* word, Find find, Write write) {
  const CfmStruct& m = s.model();
  if (m.GetNumLoadCases() == 0) s.Add("  None");
  fmCaseResults scratch;
  for (int c = 0; c < m.GetNumLoadCases(); ++c) {
    s.Add(tools::Format("*Load Combination [%s]", m.GetCaseName(c).c_str()));
    const Record* record = nullptr;
    try {
      if (m.GetCaseResults(c)) record = find(m.GetElementResults(c, scratch));
    } catch (const fmException&) {
      record = nullptr;
    }
    if (record)
      write(*record);
    else
      s.Add(ErrorFinding(word, id));
  }
}

template <class Record>
const Record* ById(const std::vector<Record>& records, long id) {
  for (const Record& r : records)
    if (r.number == id) return &r;
  return nullptr;
}

void MemberResultLines(Lines& s, const fmBmVMD& b) {
  const CfmStruct& m = s.model();
  const double f = m.ResultFactor(fmUnit::Force), mm = m.ResultFactor(fmUnit::Moment);
  const double d = m.ResultFactor(fmUnit::Displacement), l = m.ResultFactor(fmUnit::Length);
  if (b.m_VMD.empty()) return;
  const char* ends[2] = {"  @Start: Fx = %%.%d%c;  Fy = %%.%d%c;  Fz = %%.%d%c (%s)",
                         "  @End: Fx = %%.%d%c;  Fy = %%.%d%c;  Fz = %%.%d%c (%s)"};
  const fmBmStation* stations[2] = {&b.m_VMD.front(), &b.m_VMD.back()};
  for (int e = 0; e < 2; ++e) {
    const auto& v = stations[e]->force;
    s.Values(ends[e], fmUnit::Force, s.Label(fmUnit::Force), v[0] * f, v[1] * f, v[2] * f);
    s.Values("        Mx = %%.%d%c;  My = %%.%d%c;  Mz = %%.%d%c (%s)", fmUnit::Moment, s.Label(fmUnit::Moment),
             v[3] * mm, v[4] * mm, v[5] * mm);
  }
  // The largest moment and deflection by size, shown with their signs.
  const fmBmStation* maxMz = stations[0];
  const fmBmStation* maxDy = stations[0];
  for (const fmBmStation& st : b.m_VMD) {
    if (std::fabs(st.force[5]) > std::fabs(maxMz->force[5])) maxMz = &st;
    if (std::fabs(st.Dy) > std::fabs(maxDy->Dy)) maxDy = &st;
  }
  const std::string& length = s.Label(fmUnit::Length);
  // One value in its display format, then the distance with three decimals.
  auto at = [&](const char* pattern, Q q, double value, double distance) {
    const DisplayFormatSpec display = GetDisplayFormat(m.DisplayFormat(q));
    const std::string format = tools::Format(pattern, display.precision, display.letter, s.Label(q).c_str());
    s.Add(tools::Format(format.c_str(), value, distance, length.c_str()));
  };
  at("  Max Mz = %%.%d%c (%s) @ Distance = %%.3f (%%s)", fmUnit::Moment, maxMz->force[5] * mm, maxMz->distance * l);
  at("  Absolute Max Dy = %%.%d%c (%s) @ Distance = %%.3f (%%s)", fmUnit::Displacement, maxDy->Dy * d,
     maxDy->distance * l);
}

void ShellResultLines(Lines& s, const fmShellForce& r) {
  const CfmStruct& m = s.model();
  const double f = m.ResultFactor(fmUnit::LinearForce), mm = m.ResultFactor(fmUnit::LinearMoment);
  // The nodes, then the centre (point 0).
  for (size_t p : {1, 2, 3, 4, 0}) {
    s.Add(p == 0 ? std::string("  @Center") : tools::Format("  @Node-%d", static_cast<int>(p)));
    const auto& v = r.point[p];
    s.Values("  Fxx = %%.%d%c;  Fyy = %%.%d%c;  Fxy = %%.%d%c (%s)", fmUnit::LinearForce, s.Label(fmUnit::LinearForce),
             v[0] * f, v[1] * f, v[2] * f);
    s.Values("  Mxx = %%.%d%c;  Myy = %%.%d%c;  Mxy = %%.%d%c (%s)", fmUnit::LinearMoment,
             s.Label(fmUnit::LinearMoment), v[3] * mm, v[4] * mm, v[5] * mm);
    s.Values("  Vxx = %%.%d%c;  Vyy = %%.%d%c (%s)", fmUnit::LinearForce, s.Label(fmUnit::LinearForce), v[6] * f,
             v[7] * f);
  }
}

void BrickResultLines(Lines& s, const fmBrickStress& r) {
  const double f = s.model().ResultFactor(fmUnit::Stress);
  for (size_t p : {1, 2, 3, 4, 5, 6, 7, 8, 0}) {
    s.Add(p == 0 ? std::string("  @Center") : tools::Format("  @Node-%d", static_cast<int>(p)));
    const auto& v = r.point[p];
    s.Values("  Sx = %%.%d%c;  Sy = %%.%d%c;  Sz = %%.%d%c (%s)", fmUnit::Stress, s.Label(fmUnit::Stress), v[0] * f,
             v[1] * f, v[2] * f);
    s.Values("  Sxy = %%.%d%c;  Syz = %%.%d%c;  Sxz = %%.%d%c (%s)", fmUnit::Stress, s.Label(fmUnit::Stress),
             v[3] * f, v[4] * f, v[5] * f);
  }
}

void ReactionLines(Lines& s, const fmResult6Val& r) {
  const CfmStruct& m = s.model();
  const double f = m.ResultFactor(fmUnit::Force), mm = m.ResultFactor(fmUnit::Moment);
  s.Values("  Rx = %%.%d%c;  Ry = %%.%d%c;  Rz = %%.%d%c (%s)", fmUnit::Force, s.Label(fmUnit::Force), r.v[0] * f,
           r.v[1] * f, r.v[2] * f);
  s.Values("  Rox = %%.%d%c;  Roy = %%.%d%c;  Roz = %%.%d%c (%s)", fmUnit::Moment, s.Label(fmUnit::Moment),
           r.v[3] * mm, r.v[4] * mm, r.v[5] * mm);
}

void ForceLine(Lines& s, const fmResult6Val& r) {
  const double f = s.model().ResultFactor(fmUnit::Force);
  s.Values("  Rx = %%.%d%c;  Ry = %%.%d%c;  Rz = %%.%d%c (%s)", fmUnit::Force, s.Label(fmUnit::Force), r.v[0] * f,
           r.v[1] * f, r.v[2] * f);
}

Vec3 Minus(const Vec3& a, const Vec3& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
double Dot(const Vec3& a, const Vec3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vec3 Cross(const Vec3& a, const Vec3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
Vec3 Unit(const Vec3& a) {
  const double n = std::sqrt(Dot(a, a));
  return n > 0 ? Vec3{a[0] / n, a[1] / n, a[2] / n} : Vec3{0, 0, 0};
}
Vec3 Combine(const Vec3& a, double ka, const Vec3& b, double kb) {
  return {a[0] * ka + b[0] * kb, a[1] * ka + b[1] * kb, a[2] * ka + b[2] * kb};
}
Vec3 At(const fmNd& n) { return {n.x, n.y, n.z}; }

// Member axes, Y being vertical: local x from start to end; local z horizontal, normal to x
// and Y (global Z for a vertical member); local y = z x x; then y and z turned about x by
// the local angle.
std::array<Vec3, 3> MemberAxes(const fmNd& a, const fmNd& b, double angleDeg) {
  const Vec3 x = Unit(Minus(At(b), At(a)));
  Vec3 z = Unit(Cross(x, {0, 1, 0}));
  if (Dot(z, z) == 0) z = Unit(Cross({1, 0, 0}, x));
  const Vec3 y = Cross(z, x);
  const double t = angleDeg * 3.14159265358979323846 / 180.0, c = std::cos(t), s = std::sin(t);
  return {x, Combine(y, c, z, s), Combine(y, -s, z, c)};
}

// Shell axes: local x along node 1 to node 2, local z normal to the diagonals, local y = z x x;
// then x and y turned about z by the local angle.
std::array<Vec3, 3> ShellAxes(const std::array<const fmNd*, 4>& n, double angleDeg) {
  const Vec3 z = Unit(Cross(Minus(At(*n[2]), At(*n[0])), Minus(At(*n[3]), At(*n[1]))));
  Vec3 x = Minus(At(*n[1]), At(*n[0]));
  x = Unit(Combine(x, 1, z, -Dot(x, z)));
  const Vec3 y = Cross(z, x);
  const double t = angleDeg * 3.14159265358979323846 / 180.0, c = std::cos(t), s = std::sin(t);
  return {Combine(x, c, y, s), Combine(x, -s, y, c), z};
}

void AxisLines(Lines& s, const std::array<Vec3, 3>& axes) {
  const char* names[] = {"x", "y", "z"};
  // Components that print as zero print without a sign.
  auto clean = [](double v) { return std::fabs(v) < 5e-5 ? 0.0 : v; };
  for (int i = 0; i < 3; ++i)
    s.Add(tools::Format("  Local %s vector (%.4f, %.4f, %.4f)", names[i], clean(axes[i][0]), clean(axes[i][1]),
                        clean(axes[i][2])));
}

void ThermalSection(Lines& s, std::vector<fmThermalLoad> fmCaseLoad::*kind, long id) {
  const std::string unit = s.Label(fmUnit::Temperature);
  LoadSection(
      s, [&](const fmCaseLoad& cl) -> const std::vector<fmThermalLoad>& { return cl.*kind; },
      [&](const fmThermalLoad& l) { return l.element == id; },
      [&](const fmThermalLoad& l) { s.Add(tools::Format("  Magnitude = %.3f (%s)", l.temperature, unit.c_str())); });
}

// Standard gravity in the model's length unit per second squared: a weight over it is a mass.
double Gravity(const fmUnit& units) { return 386.08858267716535 / units.Factor(fmUnit::Length); }

}  // namespace

bool GetNodeInfo(const CfmStruct& m, std::vector<std::string>& lines, long id) {
  Lines s(m, lines);
  const fmNd* node = m.FindNode(id);
  if (!node) {
    s.Add(ErrorFinding("node", id));
    return false;
  }
  const size_t guess = static_cast<size_t>(node - m.m_Nodes.data());
  const double disp = m.ResultFactor(fmUnit::Displacement), rot = m.ResultFactor(fmUnit::Rotation);

  s.Add("**COORDINATES");
  s.Values("  x = %%.%d%c;  y = %%.%d%c;  z = %%.%d%c (%s)", fmUnit::Length, s.Label(fmUnit::Length), node->x, node->y,
           node->z);

  // The model's own records, in its units: shown as they are.
  s.Add("**SUPPORT");
  const auto supports = Of(m.m_Supports, [](const fmSupport& r) { return r.node; }, id);
  if (supports.empty()) s.Add("  None");
  for (const fmSupport& r : supports) {
    const auto& d = r.displacement;
    s.Add(tools::Format("  Flag: %s", r.RestraintText().c_str()));
    s.Values("  Dx = %%.%d%c;  Dy = %%.%d%c;  Dz = %%.%d%c (%s)", fmUnit::Displacement, s.Label(fmUnit::Displacement),
             d[0], d[1], d[2]);
    // Prescribed rotations always with three decimals.
    s.Add(tools::Format("  Dox = %.3f;  Doy = %.3f;  Doz = %.3f (%s)", d[3], d[4], d[5],
                        s.Label(fmUnit::Rotation).c_str()));
  }

  s.Add("**NODAL SPRING");
  const auto springs = Of(m.m_NodalSprings, [](const fmNodalSpring& r) { return r.node; }, id);
  if (springs.empty()) s.Add("  None");
  for (const fmNodalSpring& r : springs) {
    s.Add(tools::Format("  Flag: %s", r.Flag().c_str()));
    s.Values("  Kx = %%.%d%c;  Ky = %%.%d%c;  Kz = %%.%d%c (%s)", fmUnit::NodeSpring, s.Label(fmUnit::NodeSpring),
             r.k[0], r.k[1], r.k[2]);
    s.Values("  Kox = %%.%d%c;  Koy = %%.%d%c;  Koz = %%.%d%c (%s)", fmUnit::NodeRotationalSpring,
             s.Label(fmUnit::NodeRotationalSpring), r.k[3], r.k[4], r.k[5]);
  }

  s.Add("**NODAL COUPLED SPRING");
  const auto coupled = Of(m.m_CoupledSprings, [](const fmCoupledSpring& r) { return r.node; }, id);
  if (coupled.empty()) s.Add("  None");
  // Terms coupling a translation with a rotation are forces per radian.
  const std::string couplingUnit = s.Label(fmUnit::Force) + "/rad";
  for (const fmCoupledSpring& r : coupled) {
    const auto& k = r.k;  // upper triangle, row by row
    const std::string& t = s.Label(fmUnit::NodeSpring);
    const std::string& o = s.Label(fmUnit::NodeRotationalSpring);
    s.Values("  Kx_Kx = %%.%d%c;  Kx_Ky = %%.%d%c;  Kx_Kz = %%.%d%c; (%s)", fmUnit::NodeSpring, t, k[0], k[1], k[2]);
    s.Values("  Ky_Ky = %%.%d%c;  Ky_Kz = %%.%d%c;  Kz_Kz = %%.%d%c (%s)", fmUnit::NodeSpring, t, k[6], k[7], k[11]);
    s.Values("  Kx_Kox = %%.%d%c;  Kx_Koy = %%.%d%c;  Kx_Koz = %%.%d%c (%s)", fmUnit::NodeSpring, couplingUnit, k[3],
             k[4], k[5]);
    s.Values("  Ky_Kox = %%.%d%c;  Ky_Koy = %%.%d%c;  Ky_Koz = %%.%d%c (%s)", fmUnit::NodeSpring, couplingUnit, k[8],
             k[9], k[10]);
    s.Values("  Kz_Kox = %%.%d%c;  Kz_Koy = %%.%d%c;  Kz_Koz = %%.%d%c (%s)", fmUnit::NodeSpring, couplingUnit, k[12],
             k[13], k[14]);
    s.Values("  Kox_Kox = %%.%d%c;  Kox_Koy = %%.%d%c;  Kox_Koz = %%.%d%c; (%s)", fmUnit::NodeRotationalSpring, o,
             k[15], k[16], k[17]);
    s.Values("  Koy_Koy = %%.%d%c;  Koy_Koz = %%.%d%c;  Koz_Koz = %%.%d%c (%s)", fmUnit::NodeRotationalSpring, o,
             k[18], k[19], k[20]);
  }

  // Loads and masses are in the model's units, which the sheets show.
  s.Add("**NODAL LOADS");
  LoadSection(
      s, [](const fmCaseLoad& cl) -> const std::vector<fmNodalLoad>& { return cl.nodal; },
      [&](const fmNodalLoad& l) { return l.node == id; },
      [&](const fmNodalLoad& l) {
        const Q q = l.direction >= 3 ? fmUnit::Moment : fmUnit::Force;
        s.DirectionAndMagnitude(DirectionName(l.direction), q, s.Label(q), l.magnitude);
      });

  // The tables give a mass as its weight (times length squared for a rotational mass).
  s.Add("**ADDITIONAL NODAL MASS");
  const double g = Gravity(m.m_Units);
  LoadSection(
      s, [](const fmCaseLoad& cl) -> const std::vector<fmNodalMass>& { return cl.nodalMasses; },
      [&](const fmNodalMass& r) { return r.node == id; },
      [&](const fmNodalMass& r) {
        const bool rotational = r.direction >= 3;
        const std::string unit = tools::Format(rotational ? "%s-sec^2-%s" : "%s-sec^2/%s",
                                               s.Label(fmUnit::Force).c_str(), s.Label(fmUnit::Length).c_str());
        s.DirectionAndMagnitude(DirectionName(r.direction), fmUnit::Force, unit, r.weight / g);
      });

  s.Add("**DISPLACEMENTS");
  ResultSection(s, id, "node", guess, &fmCaseResults::displacements, [&](const fmResult6Val& r) {
    s.Values("  Dx = %%.%d%c;  Dy = %%.%d%c;  Dz = %%.%d%c (%s)", fmUnit::Displacement, s.Label(fmUnit::Displacement),
             r.v[0] * disp, r.v[1] * disp, r.v[2] * disp);
    s.Add(tools::Format("  Dox = %.3f;  Doy = %.3f;  Doz = %.3f (%s)", r.v[3] * rot, r.v[4] * rot, r.v[5] * rot,
                        s.Label(fmUnit::Rotation).c_str()));
  });

  // A reaction section lists every case for a node that has a support or spring of that
  // kind; other nodes have none.
  struct ReactionKind {
    const char* heading;
    std::vector<fmResult6Val> fmCaseResults::*vector;
    bool has;
  };
  const ReactionKind kinds[] = {
      {"**SUPPORT REACTIONS", &fmCaseResults::reactions, !supports.empty()},
      {"**NODAL SPRING REACTIONS", &fmCaseResults::nodalSpringReactions, !springs.empty()},
      {"**NODAL COUPLED SPRING REACTIONS", &fmCaseResults::coupledSpringReactions, !coupled.empty()},
  };
  for (const ReactionKind& k : kinds) {
    s.Add(k.heading);
    if (!k.has && !AnyRecord(m, id, k.vector)) {
      s.Add("  None");
      continue;
    }
    ResultSection(s, id, "node", 0, k.vector, [&](const fmResult6Val& r) { ReactionLines(s, r); });
  }
  return true;
}

bool GetBeamInfo(const CfmStruct& m, std::vector<std::string>& lines, long id) {
  Lines s(m, lines);
  const CfmStruct::Member* member = m.FindMember(id);
  if (!member) {
    s.Add(ErrorFinding("member", id));
    return false;
  }
  const fmNd* a = m.FindNode(member->node[0]);
  const fmNd* b = m.FindNode(member->node[1]);
  if (a && b) {
    const Vec3 d = Minus(At(*b), At(*a));
    s.Values("**Length = %%.%d%c (%s)", fmUnit::Length, s.Label(fmUnit::Length), std::sqrt(Dot(d, d)));
  } else {
    s.Add(ErrorFinding("node", a ? member->node[1] : member->node[0]));
  }
  s.Add("**NODES");
  s.Add(tools::Format("  Start Node = %d;  End Node = %d", member->node[0], member->node[1]));

  s.Add("**PROPERTIES");
  s.Add(tools::Format("  Material: %s", MaterialName(m, member->material).c_str()));
  const fmSect* section = ByPosition(m.m_Sections, member->section);
  s.Add(tools::Format("  Section: %s", section ? section->label.c_str() : "None"));
  s.Add(tools::Format("  Local Angle: %.2f (deg)", member->angle));
  if (a && b) AxisLines(s, MemberAxes(*a, *b, member->angle));
  s.Add(tools::Format("  Cracking Factor: %.3f", member->crackingFactor));
  const char* nonlinearity[] = {"Linear", "Tension only", "Compression Only"};
  s.Add(tools::Format("  Nonlinearity: %s",
                      member->nonlinearity >= 0 && member->nonlinearity < 3 ? nonlinearity[member->nonlinearity]
                                                                             : "Linear"));
  s.Add(tools::Format("  Self Weight: %s", SelfWeight(member->flags)));
  s.Add(tools::Format("  Activation: %s", Activation(member->flags)));
  s.Add(tools::Format("  Member Type: %s", member->column ? "Column" : "Beam"));
  s.Add(tools::Format("  RC Design Criteria: %s", Named(member->rcCriteria)));
  s.Add(tools::Format("  Concrete Design Exclusion: %s", YesNo(member->rcExcluded)));
  s.Add(tools::Format("  Steel Design Criteria: %s", Named(member->steelCriteria)));
  s.Add(tools::Format("  Steel Design Exclusion: %s", YesNo(member->steelExcluded)));

  s.Add("**LINE SPRING");
  const auto springs = Of(m.m_LineSprings, [](const fmLineSpring& r) { return r.member; }, id);
  if (springs.empty()) s.Add("  None");
  for (const fmLineSpring& r : springs) {
    s.Add(tools::Format("  Flag: %s", r.Flag().c_str()));
    s.Values("  Kx = %%.%d%c;  Ky = %%.%d%c;  Kz = %%.%d%c (%s)", fmUnit::LineSpring, s.Label(fmUnit::LineSpring),
             r.k[0], r.k[1], r.k[2]);
  }

  const std::string& length = s.Label(fmUnit::Length);
  // Positions are kept as ratios of the member's length; the sheet gives distances.
  const double memberLength = a && b ? std::sqrt(Dot(Minus(At(*b), At(*a)), Minus(At(*b), At(*a)))) : 0.0;
  s.Add("**POINT LOADS");
  LoadSection(
      s, [](const fmCaseLoad& cl) -> const std::vector<fmPtLoad>& { return cl.point; },
      [&](const fmPtLoad& l) { return l.member == id; },
      [&](const fmPtLoad& l) {
        const Q q = l.direction >= 3 ? fmUnit::Moment : fmUnit::Force;
        s.Add(tools::Format("  Direction = %s;  System = %s", DirectionName(l.direction), l.local ? "local" : "global"));
        const DisplayFormatSpec f = GetDisplayFormat(m.DisplayFormat(q));
        const std::string format = tools::Format("  Magnitude = %%.%d%c (%s);  Distance = %%.3f (%%s)", f.precision,
                                                 f.letter, s.Label(q).c_str());
        s.Add(tools::Format(format.c_str(), l.magnitude, l.ratio * memberLength, length.c_str()));
      });

  s.Add("**LINE LOADS");
  LoadSection(
      s, [](const fmCaseLoad& cl) -> const std::vector<fmLineLoad>& { return cl.line; },
      [&](const fmLineLoad& l) { return l.member == id; },
      [&](const fmLineLoad& l) {
        const Q q = l.direction >= 3 ? fmUnit::LinearMoment : fmUnit::LinearForce;
        s.Add(tools::Format("  Direction = %s;  System = %s", DirectionName(l.direction), l.local ? "local" : "global"));
        s.Values("  Magnitude: Start = %%.%d%c;  End = %%.%d%c (%s)", q, s.Label(q), l.magnitude[0], l.magnitude[1]);
        s.Add(tools::Format("  Distances: Start = %.3f;  End = %.3f (%s)", l.ratio[0] * memberLength,
                            l.ratio[1] * memberLength, length.c_str()));
      });

  s.Add("**Member Thermal Loads");
  ThermalSection(s, &fmCaseLoad::memberThermal, id);

  s.Add("**INTERNAL FORCES AND MOMENTS");
  ElementSection<fmBmVMD>(s, id, "member", [id](const fmCaseResults& r) { return ById(r.memberStations, id); },
                          [&](const fmBmVMD& b) { MemberResultLines(s, b); });

  s.Add("**LINE SPRING REACTIONS");
  if (springs.empty() && !AnyRecord(m, id, &fmCaseResults::lineSpringReactions))
    s.Add("  None");
  else
    ResultSection(s, id, "member", 0, &fmCaseResults::lineSpringReactions,
                  [&](const fmResult6Val& r) { ForceLine(s, r); });
  return true;
}

bool GetShell4Info(const CfmStruct& m, std::vector<std::string>& lines, long id) {
  Lines s(m, lines);
  const CfmStruct::Shell4* shell = m.FindShell(id);
  if (!shell) {
    s.Add(ErrorFinding("shell4", id));
    return false;
  }
  s.Add("**NODES");
  s.Add(tools::Format("  Node-1 = %d;  Node-2 = %d;  Node-3 = %d;  Node-4 = %d", shell->node[0], shell->node[1],
                      shell->node[2], shell->node[3]));

  s.Add("**PROPERTIES");
  s.Add(tools::Format("  Material: %s", MaterialName(m, shell->material).c_str()));
  const fmThick* thick = ByPosition(m.m_Thicknesses, shell->thickness);
  s.Add(tools::Format("  Thickness: %g (%s)", thick ? thick->thickness : 0.0, s.Label(fmUnit::Length).c_str()));
  s.Add(tools::Format("  Local Angle: %.2f (deg)", shell->angle));
  std::array<const fmNd*, 4> corners{};
  bool allCorners = true;
  for (int i = 0; i < 4; ++i) allCorners = (corners[i] = m.FindNode(shell->node[i])) != nullptr && allCorners;
  if (allCorners)
    AxisLines(s, ShellAxes(corners, shell->angle));
  else
    for (int i = 0; i < 4; ++i)
      if (!corners[i]) s.Add(ErrorFinding("node", shell->node[i]));
  s.Add(tools::Format("  Cracking Factor: %.3f", shell->crackingFactor));
  s.Add(tools::Format("  Self Weight: %s", SelfWeight(shell->flags)));
  s.Add(tools::Format("  Activation: %s", Activation(shell->flags)));
  s.Add(tools::Format("  RC Design Criteria: %s", Named(shell->rcCriteria)));
  s.Add(tools::Format("  Concrete Design Exclusion: %s", YesNo(shell->rcExcluded)));

  s.Add("**SURFACE SPRING");
  const auto springs = Of(m.m_SurfaceSprings, [](const fmSurfaceSpring& r) { return r.shell; }, id);
  if (springs.empty()) s.Add("  None");
  for (const fmSurfaceSpring& r : springs) {
    s.Add(tools::Format("  Flag: %s", r.Flag().c_str()));
    s.Values("  Kx = %%.%d%c;  Ky = %%.%d%c;  Kz = %%.%d%c (%s)", fmUnit::AreaSpring, s.Label(fmUnit::AreaSpring),
             r.k[0], r.k[1], r.k[2]);
  }

  s.Add("**SURFACE LOADS");
  LoadSection(
      s, [](const fmCaseLoad& cl) -> const std::vector<fmSurfaceLoad>& { return cl.surface; },
      [&](const fmSurfaceLoad& l) { return l.shell == id; },
      [&](const fmSurfaceLoad& l) {
        s.Add(tools::Format("  Direction = %s;  System = %s", DirectionName(l.direction), l.local ? "local" : "global"));
        s.Values("  Magnitude = %%.%d%c (%s)", fmUnit::SurfaceForce, s.Label(fmUnit::SurfaceForce), l.magnitude);
      });

  s.Add("**Shell4 Thermal Loads");
  ThermalSection(s, &fmCaseLoad::shellThermal, id);

  s.Add("**INTERNAL FORCES AND MOMENTS");
  ElementSection<fmShellForce>(s, id, "shell4", [id](const fmCaseResults& r) { return ById(r.shellForces, id); },
                               [&](const fmShellForce& f) { ShellResultLines(s, f); });

  s.Add("**SURFACE SPRING REACTIONS");
  if (springs.empty() && !AnyRecord(m, id, &fmCaseResults::surfaceSpringReactions))
    s.Add("  None");
  else
    ResultSection(s, id, "shell4", 0, &fmCaseResults::surfaceSpringReactions,
                  [&](const fmResult6Val& r) { ForceLine(s, r); });
  return true;
}

bool GetBrickInfo(const CfmStruct& m, std::vector<std::string>& lines, long id) {
  Lines s(m, lines);
  const CfmStruct::Brick* brick = m.FindBrick(id);
  if (!brick) {
    s.Add(ErrorFinding("brick", id));
    return false;
  }
  const auto& n = brick->node;
  // The first line needs no section marker.
  s.Add("NODES");
  s.Add(tools::Format("  Node-1 = %d;  Node-2 = %d;  Node-3 = %d;  Node-4 = %d", n[0], n[1], n[2], n[3]));
  s.Add(tools::Format("  Node-5 = %d;  Node-6 = %d;  Node-7 = %d;  Node-8 = %d", n[4], n[5], n[6], n[7]));
  s.Add("**PROPERTIES");
  s.Add(tools::Format("  Material: %s", MaterialName(m, brick->material).c_str()));
  s.Add(tools::Format("  Self Weight: %s", SelfWeight(brick->flags)));
  s.Add(tools::Format("  Activation: %s", Activation(brick->flags)));
  s.Add("**Brick Thermal Loads");
  ThermalSection(s, &fmCaseLoad::brickThermal, id);
  s.Add("**BRICK STRESSES");
  ElementSection<fmBrickStress>(s, id, "brick", [id](const fmCaseResults& r) { return ById(r.brickStresses, id); },
                                [&](const fmBrickStress& b) { BrickResultLines(s, b); });
  return true;
}

void FillInfoSheet(grid::Sheet& sheet, grid::Color alternateRowColor, const std::vector<std::string>& lines,
                   const std::string& heading) {
  auto isSection = [&](size_t i) { return i > 0 && lines[i].rfind("**", 0) == 0; };
  int rows = static_cast<int>(lines.size()) + 1;
  for (size_t i = 0; i < lines.size(); ++i)
    if (isSection(i)) ++rows;
  sheet = grid::Sheet();
  grid::InitializeGrid(sheet, alternateRowColor, rows, 1, {heading}, {95}, true);
  int row = 1;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (isSection(i)) ++row;
    sheet.SetData(1, row++, lines[i]);
  }
}

void Query(const ReportContext& ctx) {
  std::vector<std::string> lines;
  const long id = ctx.queryId;
  std::string heading;
  switch (ctx.reportType) {
    case 29:
      GetNodeInfo(ctx.model, lines, id);
      heading = tools::Format("Node %d Information", ctx.queryId);
      break;
    case 30:
      GetBeamInfo(ctx.model, lines, id);
      heading = tools::Format("Member %d Information", ctx.queryId);
      break;
    case 31:
      GetShell4Info(ctx.model, lines, id);
      heading = tools::Format("Shell %d Information", ctx.queryId);
      break;
    case 32:
      GetBrickInfo(ctx.model, lines, id);
      heading = tools::Format("Brick %d Information", ctx.queryId);
      break;
    default: return;
  }
  FillInfoSheet(ctx.sheet, ctx.alternateRowColor, lines, heading);
}

}  // namespace results
