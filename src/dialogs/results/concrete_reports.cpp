#include "dialogs/results/concrete_reports.h"

#include <cmath>

#include "dialogs/results/plate_reports.h"
#include "dialogs/results/report_cells.h"
#include "tools/format.h"

namespace results {
namespace {

const fmConcreteDesign& Design(const ReportContext& ctx) { return ctx.model.m_Solution.concreteDesign; }

// The steel area heading: "[in^2] (-1.0 means section too small)" after the name.
std::string AreaHeading(const CfmStruct& m, const char* name) {
  return std::string(name) + " [" + m.m_Units.Label(fmUnit::Dimension) + "^2] (-1.0 means section too small)";
}

// The member's length in the results' length unit; 0 when it cannot be found.
double LengthOf(const CfmStruct& m, int64_t id) {
  const CfmStruct::Member* member = m.FindMember(id);
  const fmNd* a = member ? m.FindNode(member->node[0]) : nullptr;
  const fmNd* b = member ? m.FindNode(member->node[1]) : nullptr;
  if (!a || !b) return 0;
  return std::hypot(b->x - a->x, b->y - a->y, b->z - a->z) / m.ResultFactor(fmUnit::Length);
}

// Column 1 the member, column 2 its distance in percent; false (with the error text) when
// the member is not in the model.
bool MemberAndDistance(CellWriter& out, const CfmStruct& m, int row, int32_t member, double distance, int distanceCol) {
  out.Id(1, row, member);
  const double length = LengthOf(m, member);
  if (length <= 0) {
    out.Text(2, row, tools::Format("error finding member %ld", static_cast<long>(member)));
    return false;
  }
  out.Fixed3(distanceCol, row, 100.0 * distance / length);
  return true;
}

template <class Records, class Selected>
std::vector<size_t> ShownRows(const ReportContext& ctx, const Records& records, Selected selected) {
  std::vector<size_t> shown;
  for (size_t i = 0; i < records.size(); ++i)
    if (!ShowSelected(ctx) || selected(records[i])) shown.push_back(i);
  return shown;
}

}  // namespace

void Beam_Concrete_Design(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  const auto& beams = Design(ctx).beams;
  const auto rows = ShownRows(ctx, beams, [&](const fmConcreteDesign::Beam& b) { return m.IsMemberSelected(b.member); });
  SetUpGrid(ctx, static_cast<int>(rows.size()),
            {"Member Id", "Distance (%L)", m.m_Units.Heading("Bot-Mu", fmUnit::Moment), AreaHeading(m, "Bot-As"),
             "Bot-Mu Comb#", m.m_Units.Heading("Top-Mu", fmUnit::Moment), AreaHeading(m, "Top-As"), "Top-Mu Comb#"},
            11);
  const Shown moment = ShownAs(m, fmUnit::Moment), area = ShownAs(m, fmUnit::Dimension);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < rows.size(); ++i) {
    const auto& b = beams[rows[i]];
    const int row = static_cast<int>(i + 1);
    if (!MemberAndDistance(out, m, row, b.member, b.distance, 2)) continue;
    out.Value(3, row, b.botMu, moment);
    // -1 marks a section too small, whatever the unit.
    out.Value(4, row, b.botAs < 0 ? -1.0 : b.botAs * area.factor * area.factor, area.format);
    out.Id(5, row, static_cast<int64_t>(b.botComb) + 1);
    out.Value(6, row, b.topMu, moment);
    out.Value(7, row, b.topAs < 0 ? -1.0 : b.topAs * area.factor * area.factor, area.format);
    out.Id(8, row, static_cast<int64_t>(b.topComb) + 1);
  }
}

void Column_Concrete_Design(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  const auto& columns = Design(ctx).columns;
  const auto rows =
      ShownRows(ctx, columns, [&](const fmConcreteDesign::Column& c) { return m.IsMemberSelected(c.member); });
  SetUpGrid(ctx, static_cast<int>(rows.size()),
            {"Member Id", "Section", "Unity Check", "Comb#", "Distance (%L)", m.m_Units.Heading("Pu", fmUnit::Force),
             m.m_Units.Heading("Muz", fmUnit::Moment), m.m_Units.Heading("Muy", fmUnit::Moment), "Mz-Factor",
             "My-Factor", "Beta-d", AreaHeading(m, "As"), "Rho (%)"},
            7);
  const Shown force = ShownAs(m, fmUnit::Force), moment = ShownAs(m, fmUnit::Moment),
              area = ShownAs(m, fmUnit::Dimension);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < rows.size(); ++i) {
    const auto& c = columns[rows[i]];
    const int row = static_cast<int>(i + 1);
    if (!MemberAndDistance(out, m, row, c.member, c.distance, 5)) continue;
    out.Text(2, row, c.section);
    out.Text(3, row, tools::Format("%.2f", c.unityCheck));
    out.Id(4, row, static_cast<int64_t>(c.comb) + 1);
    out.Value(6, row, c.Pu, force);
    out.Value(7, row, c.Muz, moment);
    out.Value(8, row, c.Muy, moment);
    out.Text(9, row, tools::Format("%.3f", c.MzFactor));
    out.Text(10, row, tools::Format("%.3f", c.MyFactor));
    out.Text(11, row, tools::Format("%.3f", c.betaD));
    out.Value(12, row, c.As < 0 ? -1.0 : c.As * area.factor * area.factor, area.format);
    out.Text(13, row, tools::Format("%.2f", c.rho));
  }
}

void Concrete_Shear_Design(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  const auto& shear = Design(ctx).shear;
  const auto rows = ShownRows(ctx, shear, [&](const fmConcreteDesign::Shear& s) { return m.IsMemberSelected(s.member); });
  SetUpGrid(ctx, static_cast<int>(rows.size()),
            {"Member Id", "Distance (%L)", "Stirrup/tie-size", "Stirrup/tie-legs", m.m_Units.Heading("Shear", fmUnit::Force),
             m.m_Units.Heading("Axial", fmUnit::Force),
             "Stirrup/tie-spacing [" + m.m_Units.Label(fmUnit::Dimension) +
                 "] (blank means stirrup not needed, -1.0 means section too small)",
             m.m_Units.Heading("phi-Vc", fmUnit::Force), "Comb#"},
            11);
  const Shown force = ShownAs(m, fmUnit::Force), length = ShownAs(m, fmUnit::Dimension);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < rows.size(); ++i) {
    const auto& s = shear[rows[i]];
    const int row = static_cast<int>(i + 1);
    if (!MemberAndDistance(out, m, row, s.member, s.distance, 2)) continue;
    out.Text(3, row, s.size);
    out.Id(4, row, s.legs);
    out.Value(5, row, s.shear, force);
    out.Value(6, row, s.axial, force);
    if (s.spacing < 0)
      out.Value(7, row, -1.0, length.format);
    else if (s.spacing > 0)
      out.Value(7, row, s.spacing, length);
    out.Value(8, row, s.phiVc, force);
    out.Id(9, row, static_cast<int64_t>(s.comb) + 1);
  }
}

void Plate_Concrete_Design(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  const auto& plates = Design(ctx).plates;
  const auto shown = ShownRows(ctx, plates, [&](const fmConcreteDesign::Plate& p) { return m.IsShellSelected(p.shell); });
  const std::vector<int> points = ShellPoints(m.m_nShellResultLocation);
  const int per = static_cast<int>(points.size()) + 1;
  SetUpGrid(ctx, static_cast<int>(shown.size()) * per,
            {"Shell Id", "Node Id", "Design-H", "Bot-Mux", "Bot-Muy", "Top-Mux", "Top-Muy", "Bot-Asx", "Bot-Asy",
             "Top-Asx", "Top-Asy"},
            7);
  const Shown h = ShownAs(m, fmUnit::Dimension), mm = ShownAs(m, fmUnit::LinearMoment),
              area = ShownAs(m, fmUnit::Dimension);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < shown.size(); ++i) {
    const auto& p = plates[shown[i]];
    const int first = 1 + static_cast<int>(i) * per;
    out.Id(1, first, p.shell);
    const CfmStruct::Shell4* shell = m.FindShell(p.shell);
    if (!shell) {
      out.Text(2, first, tools::Format("error finding shell4 %ld", static_cast<long>(p.shell)));
      continue;
    }
    if (p.failed) {
      out.Text(3, first, "Error");
      continue;
    }
    int row = first;
    for (int point : points) {
      if (point == 0)
        out.Text(2, row, "Center");
      else
        out.Id(2, row, shell->node[static_cast<size_t>(point - 1)]);
      const auto& v = p.point[static_cast<size_t>(point)];
      out.Value(3, row, v[0], h);
      for (int k = 0; k < 4; ++k) out.Value(4 + k, row, v[static_cast<size_t>(1 + k)], mm);
      // Areas per length: length² per length is one length factor.
      for (int k = 0; k < 4; ++k) out.Value(8 + k, row, v[static_cast<size_t>(5 + k)], area);
      ++row;
    }
  }
}

}  // namespace results
