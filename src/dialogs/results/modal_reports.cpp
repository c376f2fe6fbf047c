#include "dialogs/results/modal_reports.h"

#include <cmath>

#include "dialogs/results/report_cells.h"
#include "tools/format_number.h"

namespace results {
namespace {

// With exactly these digits wherever a period is shown.
constexpr double kTwoPi = 6.283185308;

std::string N4(double value) { return tools::format_number(value, 4); }

template <class Mode>
std::vector<double> Omega2Of(const std::vector<Mode>& modes) {
  std::vector<double> omega2;
  for (const Mode& m : modes) omega2.push_back(m.omega2);
  return omega2;
}

}  // namespace

void Eigen_Values(const ReportContext& ctx) {
  const auto& modes = ctx.model.m_Solution.eigenModes;
  SetUpGrid(ctx, static_cast<int>(modes.size()),
            {"Mode", "Period (sec)", "Frequency (cycle/sec)", "Circular Frequency (rad/sec)", "Eigenvalue (rad/sec)^2",
             "Error Measure"},
            15);
  const std::vector<double> omega2 = Omega2Of(modes);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < modes.size(); ++i) {
    const int row = static_cast<int>(i + 1);
    out.Id(1, row, row);
    const double lambda = modes[i].omega2;
    if (IsRigidBodyMode(lambda, omega2)) {
      out.Text(2, row, "(rigid-body mode)");
      out.Text(3, row, "0");
      out.Text(4, row, "0");
    } else {
      const double omega = std::sqrt(lambda);
      out.Text(2, row, N4(kTwoPi / omega));
      out.Text(3, row, N4(omega / kTwoPi));
      out.Text(4, row, N4(omega));
    }
    out.Text(5, row, N4(lambda));
    out.Text(6, row, N4(modes[i].error));
  }
}

void Mode_Participation_Factors(const ReportContext& ctx) {
  const auto& modes = ctx.model.m_Solution.spectrumModes;
  SetUpGrid(ctx, static_cast<int>(modes.size()),
            {"Mode", "Period (sec)", "SX Participation", "SY Participation", "SZ Participation"}, 19);
  const std::vector<double> omega2 = Omega2Of(modes);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < modes.size(); ++i) {
    const int row = static_cast<int>(i + 1);
    out.Id(1, row, row);
    out.Text(2, row, IsRigidBodyMode(modes[i].omega2, omega2) ? std::string("(rigid-body mode)")
                                                               : N4(kTwoPi / std::sqrt(modes[i].omega2)));
    for (size_t d = 0; d < 3; ++d) out.Text(3 + static_cast<int>(d), row, N4(modes[i].participation[d]));
  }
}

std::vector<std::pair<std::string, int>> StatisticsItems(const CfmStruct& m) {
  std::vector<std::pair<std::string, int>> items;
  auto add = [&](const char* name, size_t count) { items.emplace_back(name, static_cast<int>(count)); };
  add("Materials", m.m_Materials.size());
  add("Member Sections", m.m_Sections.size());
  add("Shell Thicknesses", m.m_Thicknesses.size());
  add("Beam RC Design Criteria", static_cast<size_t>(m.m_Counts.beamRcCriteria));
  add("column RC design criteria", static_cast<size_t>(m.m_Counts.columnRcCriteria));
  add("Plate RC design criteria", static_cast<size_t>(m.m_Counts.plateRcCriteria));
  add("Steel design criteria", static_cast<size_t>(m.m_Counts.steelCriteria));
  add("Nodes", m.m_Nodes.size());
  add("Members", m.m_Members.size());
  add("Shells", m.m_Shells.size());
  add("Bricks", m.m_Bricks.size());
  add("Supports", m.m_Supports.size());
  add("Nodal Springs", m.m_NodalSprings.size());
  add("Nodal Coupled Springs", m.m_CoupledSprings.size());
  add("Line Springs", m.m_LineSprings.size());
  add("Surface Springs", m.m_SurfaceSprings.size());
  add("Beam Releases", static_cast<size_t>(m.m_Counts.beamReleases));
  add("Load Cases", m.m_LoadCases.size());
  add("Load Combinations", m.m_LoadCombs.size());
  size_t masses = 0;
  for (size_t c = 0; c < m.m_LoadCases.size(); ++c) {
    items.emplace_back("Loads in case - " + m.m_LoadCases[c].name, -1);
    static const fmCaseLoad kNone;
    const fmCaseLoad& l = c < m.m_CaseLoads.size() ? m.m_CaseLoads[c] : kNone;
    add("Nodal Loads", l.nodal.size());
    add("Point Loads", l.point.size());
    add("Line Loads", l.line.size());
    add("Surface Loads", l.surface.size());
    add("Area Loads", l.area.size());
    add("Member Thermal Loads", l.memberThermal.size());
    add("Shell4 Thermal Loads", l.shellThermal.size());
    add("Brick Thermal Loads", l.brickThermal.size());
    masses += l.nodalMasses.size();
  }
  add("Additional Nodal Masses", masses);
  return items;
}

void Statistics(const ReportContext& ctx) {
  const auto items = StatisticsItems(ctx.model);
  SetUpGrid(ctx, static_cast<int>(items.size()), {"Item", "Value"}, 20);
  ctx.sheet.SetColAlign(1, grid::Align::Left);
  CellWriter out(ctx.sheet);
  for (size_t i = 0; i < items.size(); ++i) {
    const int row = static_cast<int>(i + 1);
    out.Text(1, row, items[i].first);
    if (items[i].second >= 0) out.Id(2, row, items[i].second);
  }
}

}  // namespace results
