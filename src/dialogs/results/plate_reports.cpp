#include "dialogs/results/plate_reports.h"

#include "dialogs/results/report_cells.h"
#include "tools/format.h"
#include "tools/stress.h"

namespace results {
namespace {

constexpr std::array<int, 9> kBrickPointList = {0, 1, 2, 3, 4, 5, 6, 7, 8};

// How a table reaches its elements: shells or bricks.
struct ShellKind {
  static const CfmStruct::Shell4* Find(const CfmStruct& m, int64_t id) { return m.FindShell(id); }
  static bool Selected(const CfmStruct& m, int64_t id) { return m.IsShellSelected(id); }
  static constexpr const char* kWord = "shell4";
};
struct BrickKind {
  static const CfmStruct::Brick* Find(const CfmStruct& m, int64_t id) { return m.FindBrick(id); }
  static bool Selected(const CfmStruct& m, int64_t id) { return m.IsBrickSelected(id); }
  static constexpr const char* kWord = "brick";
};

// Rows of the chosen points per element and an empty row after each; the element number in
// column 1 of its first row, "Center" or the node number in column 2. write(out, row, record,
// point) fills the values.
template <class Kind, class Record, class Points, class Write>
void PointTable(const ReportContext& ctx, const std::vector<Record>& records, const std::vector<std::string>& headers,
                double width, const Points& points, Write write) {
  const CfmStruct& m = ctx.model;
  const bool selectedOnly = ShowSelected(ctx);
  const int per = static_cast<int>(points.size()) + 1;
  int shown = 0;
  for (const Record& r : records) shown += !selectedOnly || Kind::Selected(m, r.number);
  SetUpGrid(ctx, shown * per, headers, width);
  CellWriter out(ctx.sheet);
  int row = 1;
  for (const Record& r : records) {
    if (selectedOnly && !Kind::Selected(m, r.number)) continue;
    const int first = row;
    row += per;
    out.Id(1, first, r.number);
    const auto* element = Kind::Find(m, r.number);
    if (!element) {
      out.Text(2, first, tools::Format("error finding %s %ld", Kind::kWord, static_cast<long>(r.number)));
      continue;
    }
    int at = first;
    for (int p : points) {
      if (p == 0)
        out.Text(2, at, "Center");
      else
        out.Id(2, at, element->node[static_cast<size_t>(p - 1)]);
      write(out, at, r, static_cast<size_t>(p));
      ++at;
    }
  }
}

std::vector<std::string> WithUnits(const CfmStruct& m, std::vector<std::string> ids,
                                   const std::vector<std::pair<const char*, fmUnit::Quantity>>& values) {
  for (const auto& [name, q] : values) ids.push_back(m.m_Units.Heading(name, q));
  return ids;
}

constexpr fmUnit::Quantity kPerLength = fmUnit::LinearForce;
constexpr fmUnit::Quantity kMomentPerLength = fmUnit::LinearMoment;
constexpr fmUnit::Quantity kStress = fmUnit::Stress;

}  // namespace

std::vector<int> ShellPoints(int location) {
  if (location == 1) return {1, 2, 3, 4};
  if (location == 2) return {0, 1, 2, 3, 4};
  return {0};
}

void Shell4_ForceMoments(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  fmCaseResults scratch;
  const auto& records = m.GetElementResults(caseIndex, scratch).shellForces;
  if (records.empty()) return;
  const auto headers = WithUnits(m, {"Shell Id", "Node Id"},
                                 {{"Fxx", kPerLength}, {"Fyy", kPerLength}, {"Fxy", kPerLength},
                                  {"Mxx", kMomentPerLength}, {"Myy", kMomentPerLength}, {"Mxy", kMomentPerLength},
                                  {"Vxx", kPerLength}, {"Vyy", kPerLength}});
  const Shown f = ShownAs(m, kPerLength), mm = ShownAs(m, kMomentPerLength);
  PointTable<ShellKind>(ctx, records, headers, 9, ShellPoints(m.m_nShellResultLocation),
                        [&](CellWriter& out, int row, const fmShellForce& r, size_t p) {
                          const auto& v = r.point[p];
                          for (int k = 0; k < 8; ++k)
                            out.Value(3 + k, row, v[static_cast<size_t>(k)], k >= 3 && k < 6 ? mm : f);
                        });
}

void Shell4_Nodal_Resultants(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  fmCaseResults scratch;
  const auto& records = m.GetElementResults(caseIndex, scratch).shellResultants;
  if (records.empty()) return;
  const auto headers = WithUnits(m, {"Shell Id", "Node"},
                                 {{"Fx", fmUnit::Force}, {"Fy", fmUnit::Force}, {"Fz", fmUnit::Force},
                                  {"Mx", fmUnit::Moment}, {"My", fmUnit::Moment}});
  const Shown f = ShownAs(m, fmUnit::Force), mm = ShownAs(m, fmUnit::Moment);
  PointTable<ShellKind>(ctx, records, headers, 13, std::vector<int>{1, 2, 3, 4},
                        [&](CellWriter& out, int row, const fmShellNodalResultant& r, size_t p) {
                          const auto& v = r.node[p - 1];
                          for (int k = 0; k < 5; ++k) out.Value(3 + k, row, v[static_cast<size_t>(k)], k < 3 ? f : mm);
                        });
}

void Shell4_Principal_ForceMoments(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  // Principal values of spectral results, each combined without its sign, mean nothing.
  if (m.IsResponseSpectrumLoadCombination(caseIndex)) {
    Tell(ctx, kNoPrincipalForces);
    return;
  }
  fmCaseResults scratch;
  const auto& records = m.GetElementResults(caseIndex, scratch).shellForces;
  if (records.empty()) return;
  const auto headers = WithUnits(m, {"Shell Id", "Node Id"},
                                 {{"Fmax", kPerLength}, {"Fmin", kPerLength}}) ;
  std::vector<std::string> all = headers;
  all.push_back("F-Angle [deg]");
  all.push_back(m.m_Units.Heading("Mmax", kMomentPerLength));
  all.push_back(m.m_Units.Heading("Mmin", kMomentPerLength));
  all.push_back("M-Angle [deg]");
  all.push_back(m.m_Units.Heading("Vmax", kPerLength));
  all.push_back("V-Angle [deg]");
  const Shown f = ShownAs(m, kPerLength), mm = ShownAs(m, kMomentPerLength);
  PointTable<ShellKind>(ctx, records, all, 9, ShellPoints(m.m_nShellResultLocation),
                        [&](CellWriter& out, int row, const fmShellForce& r, size_t p) {
                          const auto& v = r.point[p];
                          double s1, s2, angle;
                          tools::Calc_Principal_Stress_2D(s1, s2, angle, v[0], v[1], v[2]);
                          out.Value(3, row, s1, f);
                          out.Value(4, row, s2, f);
                          out.Fixed3(5, row, angle);
                          tools::Calc_Principal_Stress_2D(s1, s2, angle, v[3], v[4], v[5]);
                          out.Value(6, row, s1, mm);
                          out.Value(7, row, s2, mm);
                          out.Fixed3(8, row, angle);
                          tools::Calc_Result_Stress_2D(s1, angle, v[6], v[7]);
                          out.Value(9, row, s1, f);
                          out.Fixed3(10, row, angle);
                        });
}

void Shell4_Stresses(const ReportContext& ctx, int caseIndex, int surface) {
  const CfmStruct& m = ctx.model;
  fmCaseResults scratch;
  const auto& records = m.GetElementResults(caseIndex, scratch).shellStresses[surface == 1 ? 1 : 0];
  if (records.empty()) return;
  const auto headers = WithUnits(m, {"Shell Id", "Node Id"},
                                 {{"Sxx", kStress}, {"Syy", kStress}, {"Szz", kStress}, {"Sxy", kStress},
                                  {"Sxz", kStress}, {"Syz", kStress}});
  const Shown s = ShownAs(m, kStress);
  PointTable<ShellKind>(ctx, records, headers, 11, ShellPoints(m.m_nShellResultLocation),
                        [&](CellWriter& out, int row, const fmShellStress& r, size_t p) {
                          for (int k = 0; k < 6; ++k) out.Value(3 + k, row, r.point[p][static_cast<size_t>(k)], s);
                        });
}

void Shell4_Principal_Stresses(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  if (m.IsResponseSpectrumLoadCombination(caseIndex)) {
    Tell(ctx, kNoPrincipalStresses);
    return;
  }
  fmCaseResults scratch;
  const fmCaseResults& r = m.GetElementResults(caseIndex, scratch);
  const auto& top = r.shellStresses[0];
  const auto& bottom = r.shellStresses[1];
  if (top.empty() && bottom.empty()) return;
  const auto headers = WithUnits(m, {"Shell Id", "Node Id"},
                                 {{"Top-S1", kStress}, {"Top-S2", kStress}, {"Top-Von Mises", kStress},
                                  {"Bot-S1", kStress}, {"Bot-S2", kStress}, {"Bot-Von Mises", kStress}});
  const Shown s = ShownAs(m, kStress);
  // The faces of one shell are found by position while the lists line up.
  const auto& rows = top.empty() ? bottom : top;
  const auto& other = top.empty() ? top : bottom;
  size_t at = 0;
  PointTable<ShellKind>(ctx, rows, headers, 9, ShellPoints(m.m_nShellResultLocation),
                        [&](CellWriter& out, int row, const fmShellStress& rec, size_t p) {
                          const fmShellStress* faces[2] = {&rec, nullptr};
                          at = static_cast<size_t>(&rec - rows.data());
                          if (at < other.size() && other[at].number == rec.number)
                            faces[1] = &other[at];
                          else
                            for (const fmShellStress& o : other)
                              if (o.number == rec.number) faces[1] = &o;
                          if (top.empty()) std::swap(faces[0], faces[1]);
                          for (int face = 0; face < 2; ++face) {
                            if (!faces[face]) continue;
                            const auto& v = faces[face]->point[p];
                            double s1, s2, angle;
                            tools::Calc_Principal_Stress_2D(s1, s2, angle, v[0], v[1], v[3]);
                            out.Value(3 + 3 * face, row, s1, s);
                            out.Value(4 + 3 * face, row, s2, s);
                            out.Value(5 + 3 * face, row, tools::VonMises(s1, s2, 0), s);
                          }
                        });
}

void Brick_Stresses(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  fmCaseResults scratch;
  const auto& records = m.GetElementResults(caseIndex, scratch).brickStresses;
  if (records.empty()) return;
  const auto headers = WithUnits(m, {"Brick Id", "Node Id"},
                                 {{"Sx", kStress}, {"Sy", kStress}, {"Sz", kStress}, {"Sxy", kStress},
                                  {"Syz", kStress}, {"Sxz", kStress}});
  const Shown s = ShownAs(m, kStress);
  PointTable<BrickKind>(ctx, records, headers, 11, kBrickPointList,
                        [&](CellWriter& out, int row, const fmBrickStress& r, size_t p) {
                          for (int k = 0; k < 6; ++k) out.Value(3 + k, row, r.point[p][static_cast<size_t>(k)], s);
                        });
}

void Brick_Principal_Stresses(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  if (m.IsResponseSpectrumLoadCombination(caseIndex)) {
    Tell(ctx, kNoPrincipalStresses);
    return;
  }
  fmCaseResults scratch;
  const auto& records = m.GetElementResults(caseIndex, scratch).brickStresses;
  if (records.empty()) return;
  std::vector<std::string> headers =
      WithUnits(m, {"Brick Id", "Node Id"}, {{"S1", kStress}, {"S2", kStress}, {"S3", kStress}, {"Von Mises", kStress}});
  for (const char* v : {"v1", "v2", "v3"})
    for (const char* axis : {"x", "y", "z"}) headers.push_back(std::string(v) + axis);
  // Every point solved at once, shared among the cores.
  std::vector<std::array<double, 6>> states;
  states.reserve(records.size() * kBrickPoints);
  for (const fmBrickStress& r : records) states.insert(states.end(), r.point.begin(), r.point.end());
  std::vector<tools::Principal3D> principal(states.size());
  tools::PrincipalStresses3D(states.data(), principal.data(), states.size());
  const Shown s = ShownAs(m, kStress);
  PointTable<BrickKind>(ctx, records, headers, 9, kBrickPointList,
                        [&](CellWriter& out, int row, const fmBrickStress& r, size_t p) {
                          const tools::Principal3D& q =
                              principal[static_cast<size_t>(&r - records.data()) * kBrickPoints + p];
                          for (int k = 0; k < 3; ++k) out.Value(3 + k, row, q.value[static_cast<size_t>(k)], s);
                          out.Value(6, row, tools::VonMises(q.value[0], q.value[1], q.value[2]), s);
                          for (size_t d = 0; d < 3; ++d)
                            for (size_t k = 0; k < 3; ++k)
                              out.Fixed3(7 + static_cast<int>(3 * d + k), row, q.direction[d][k] + 0.0);
                        });
}

void Shell4_WoodArmerMoments(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  std::vector<fmWoodArmerMoment> moments;
  m.CalcWoodArmerMoments(moments);
  std::vector<std::string> headers =
      WithUnits(m, {"Shell Id", "Node Id"},
                {{"Bot-Mux", kMomentPerLength}, {"Bot-Muy", kMomentPerLength}, {"Top-Mux", kMomentPerLength},
                 {"Top-Muy", kMomentPerLength}});
  for (const char* name : {"Bot-Mux Comb#", "Bot-Muy Comb#", "Top-Mux Comb#", "Top-Muy Comb#"}) headers.push_back(name);
  const Shown mm = ShownAs(m, kMomentPerLength);
  PointTable<ShellKind>(ctx, moments, headers, 9, ShellPoints(m.m_nShellResultLocation),
                        [&](CellWriter& out, int row, const fmWoodArmerMoment& w, size_t p) {
                          for (size_t k = 0; k < 4; ++k) {
                            if (w.comb[p][k] < 0) continue;
                            out.Value(3 + static_cast<int>(k), row, w.moment[p][k], mm);
                            out.Id(7 + static_cast<int>(k), row, static_cast<int64_t>(w.comb[p][k]) + 1);
                          }
                        });
}

}  // namespace results
