#include "dialogs/results/nodal_reports.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/results/display_format.h"
#include "dialogs/results/report_cells.h"
#include "model/id_index.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parallel.h"

namespace results {

void ResetReportGrid(const ReportContext& ctx) {
  ctx.sheet = grid::Sheet();
  grid::InitializeGrid(ctx.sheet, ctx.alternateRowColor, 0, 1, {""}, {13}, true);
}

std::vector<bool> EnvelopeLoadCombs(const CfmStruct& model) {
  const auto& names = model.m_EnvelopeCombinations;
  std::vector<bool> marked(static_cast<size_t>(model.GetNumLoadCases()), false);
  for (size_t i = 0; i < marked.size(); ++i)
    marked[i] = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
      return tools::LabelsEqual(model.GetCaseName(static_cast<int>(i)), name);
    });
  return marked;
}

void SetUpGrid(const ReportContext& ctx, int rows, const std::vector<std::string>& headers, double width) {
  ctx.sheet = grid::Sheet();
  grid::InitializeGrid(ctx.sheet, ctx.alternateRowColor, rows, static_cast<int>(headers.size()), headers,
                       std::vector<double>(headers.size(), width), true);
}

void CellWriter::Fixed3(int col, int row, double value) {
  const auto [end, ec] = std::to_chars(buffer_, buffer_ + sizeof buffer_, value, std::chars_format::fixed, 3);
  sheet_.SetNumber(col, row, value, std::string_view(buffer_, static_cast<size_t>(end - buffer_)));
}

namespace {

constexpr fmUnit::Quantity kDisplacement = fmUnit::Displacement;
constexpr fmUnit::Quantity kRotation = fmUnit::Rotation;
constexpr fmUnit::Quantity kForce = fmUnit::Force;
constexpr fmUnit::Quantity kMoment = fmUnit::Moment;

// Every nodal report names a record it cannot match to a node of the model, and shows (and
// sums) none of its values.
void NodeNotFound(CellWriter& out, int row, int64_t id) {
  out.Id(1, row, id);
  out.Text(2, row, tools::Format("error finding node %ld", static_cast<long>(id)));
}

// Records of a node vector that get a row.
template <class Shows>
int CountShown(const std::vector<fmResult6Val>& records, bool selectedOnly, Shows shows) {
  if (!selectedOnly) return static_cast<int>(records.size());
  return static_cast<int>(std::count_if(records.begin(), records.end(), [&](const fmResult6Val& r) { return shows(r.number); }));
}

// "Node Id" and six values, the first three of one quantity and the last three of another.
void SixValueReport(const ReportContext& ctx, const std::vector<fmResult6Val>& records,
                    const std::array<const char*, 6>& names, fmUnit::Quantity first, fmUnit::Quantity second) {
  // No records: no rows, but the headings all the same, so screen and exports agree.
  const CfmStruct& m = ctx.model;
  const bool selectedOnly = ShowSelected(ctx);
  auto shows = [&](int64_t node) { return m.IsNodeSelected(node); };
  std::vector<std::string> headers = {"Node Id"};
  for (int k = 0; k < 6; ++k) headers.push_back(m.m_Units.Heading(names[k], k < 3 ? first : second));
  SetUpGrid(ctx, CountShown(records, selectedOnly, shows), headers, 13);

  const Shown a = ShownAs(m, first), b = ShownAs(m, second);
  CellWriter out(ctx.sheet);
  int row = 0;
  for (const fmResult6Val& r : records) {
    if (selectedOnly && !shows(r.number)) continue;
    ++row;
    if (!m.FindNode(r.number)) {
      NodeNotFound(out, row, r.number);
      continue;
    }
    out.Id(1, row, r.number);
    for (int k = 0; k < 6; ++k) out.Value(2 + k, row, r.v[k], k < 3 ? a : b);
  }
}

}  // namespace

void Node_Displacements(const ReportContext& ctx, const std::vector<fmResult6Val>& displacements) {
  SixValueReport(ctx, displacements, {"Dx", "Dy", "Dz", "Dox", "Doy", "Doz"}, kDisplacement, kRotation);
}

void Node_Forces(const ReportContext& ctx, int /*mode*/, const std::vector<fmResult6Val>& forces) {
  SixValueReport(ctx, forces, {"Fx", "Fy", "Fz", "Mx", "My", "Mz"}, kForce, kMoment);
}

void Support_Reactions(const ReportContext& ctx, int caseIndex) {
  const std::vector<fmResult6Val>& reactions = ctx.model.GetResults(caseIndex).reactions;
  const CfmStruct& m = ctx.model;
  const bool selectedOnly = ShowSelected(ctx);
  auto shows = [&](int64_t node) { return m.IsNodeSelected(node); };
  // No reactions: the headings without rows, and no sum of nothing.
  const int rows = reactions.empty() ? 0 : CountShown(reactions, selectedOnly, shows) + 1;
  std::vector<std::string> headers = {"Node Id"};
  const char* names[] = {"Rx", "Ry", "Rz", "Rox", "Roy", "Roz"};
  for (int k = 0; k < 6; ++k) headers.push_back(m.m_Units.Heading(names[k], k < 3 ? kForce : kMoment));
  SetUpGrid(ctx, rows, headers, 13);

  if (reactions.empty()) return;
  const Shown force = ShownAs(m, kForce), moment = ShownAs(m, kMoment);
  CellWriter out(ctx.sheet);
  std::array<double, 6> sum{};
  int row = 0;
  for (const fmResult6Val& r : reactions) {
    if (selectedOnly && !shows(r.number)) continue;
    ++row;
    if (!m.FindNode(r.number)) {
      NodeNotFound(out, row, r.number);
      continue;
    }
    out.Id(1, row, r.number);
    for (int k = 0; k < 6; ++k) {
      const Shown& s = k < 3 ? force : moment;
      const double value = r.v[k] * s.factor;
      sum[k] += value;  // the sum of what the rows show
      out.Value(2 + k, row, value, s.format);
    }
  }
  // Moments are summed as they are, not carried to a common point.
  ++row;
  out.Text(1, row, "Sum");
  ctx.sheet.SetColor(1, row, ctx.sheet.GetBackColor(1, row), grid::kRed);
  for (int k = 0; k < 6; ++k) out.Value(2 + k, row, sum[k], (k < 3 ? force : moment).format);
}

SpringKind SpringKindOf(int reportType) {
  switch (reportType) {
    case 3: case 44: case 53: case 54: return SpringKind::Coupled;
    case 4: case 45: return SpringKind::Line;
    case 5: case 46: return SpringKind::Surface;
    default: return SpringKind::Nodal;
  }
}

void Spring_Reactions(const ReportContext& ctx, int caseIndex) {
  const fmCaseResults* results = &ctx.model.GetResults(caseIndex);
  const CfmStruct& m = ctx.model;
  const SpringKind kind = SpringKindOf(ctx.reportType);
  const std::vector<fmResult6Val>* records = &results->nodalSpringReactions;
  const char* idHeading = "Node Id";
  const char* word = "node";
  switch (kind) {
    case SpringKind::Nodal: break;
    case SpringKind::Coupled: records = &results->coupledSpringReactions; break;
    case SpringKind::Line:
      records = &results->lineSpringReactions;
      idHeading = "Member Id";
      word = "member";
      break;
    case SpringKind::Surface:
      records = &results->surfaceSpringReactions;
      idHeading = "Shell4 Id";
      word = "shell4";
      break;
  }
  auto exists = [&](int64_t id) {
    if (kind == SpringKind::Line) return m.FindMember(id) != nullptr;
    if (kind == SpringKind::Surface) return m.FindShell(id) != nullptr;
    return m.FindNode(id) != nullptr;
  };
  auto selected = [&](int64_t id) {
    if (kind == SpringKind::Line) return m.IsMemberSelected(id);
    if (kind == SpringKind::Surface) return m.IsShellSelected(id);
    return m.IsNodeSelected(id);
  };
  const bool selectedOnly = ShowSelected(ctx);
  std::vector<std::string> headers = {idHeading};
  const char* names[] = {"SRx", "SRy", "SRz", "SRox", "SRoy", "SRoz"};
  for (int k = 0; k < 6; ++k) headers.push_back(m.m_Units.Heading(names[k], k < 3 ? kForce : kMoment));
  SetUpGrid(ctx, CountShown(*records, selectedOnly, selected), headers, 13);

  const Shown force = ShownAs(m, kForce), moment = ShownAs(m, kMoment);
  CellWriter out(ctx.sheet);
  int row = 0;
  for (const fmResult6Val& r : *records) {
    if (selectedOnly && !selected(r.number)) continue;
    ++row;
    out.Id(1, row, r.number);
    if (!exists(r.number)) {
      out.Text(2, row, tools::Format("error finding %s %ld", word, static_cast<long>(r.number)));
      continue;
    }
    for (int k = 0; k < 6; ++k) out.Value(2 + k, row, r.v[k], k < 3 ? force : moment);
  }
}

void Multi_DOF_Constraint_Forces(const ReportContext& ctx, int caseIndex) {
  const fmCaseResults* results = &ctx.model.GetResults(caseIndex);
  const CfmStruct& m = ctx.model;
  const bool selectedOnly = ShowSelected(ctx);
  // A constraint belongs to the selection when either of its nodes is selected.
  auto shows = [&](const fmConstraintForce& f) { return m.IsNodeSelected(f.node[0]) || m.IsNodeSelected(f.node[1]); };
  const auto& forces = results->constraintForces;
  const int rows = selectedOnly ? static_cast<int>(std::count_if(forces.begin(), forces.end(), shows))
                                : static_cast<int>(forces.size());
  const std::string unit = " [" + m.m_Units.Label(kForce) + " or " + m.m_Units.Label(kMoment) + "]";
  SetUpGrid(ctx, rows,
            {"Constraint Id", "Node-1", "DOF-1", "Value-1" + unit, "Node-2", "DOF-2", "Value-2" + unit}, 13);

  const Shown force = ShownAs(m, kForce), moment = ShownAs(m, kMoment);
  CellWriter out(ctx.sheet);
  int row = 0;
  for (const fmConstraintForce& f : forces) {
    if (selectedOnly && !shows(f)) continue;
    ++row;
    if (!m.FindNode(f.node[0]) || !m.FindNode(f.node[1])) {
      const long missing = m.FindNode(f.node[0]) ? f.node[1] : f.node[0];
      out.Id(1, row, f.id);
      out.Text(2, row, tools::Format("error finding node %ld", missing));
      continue;
    }
    out.Id(1, row, f.id);
    for (int end = 0; end < 2; ++end) {
      const int col = 2 + 3 * end;
      const int dof = f.dof[end];
      out.Id(col, row, f.node[end]);
      if (dof >= 0 && dof < 6)
        out.Text(col + 1, row, DofNames()[static_cast<size_t>(dof)]);
      else
        out.Id(col + 1, row, dof);
      out.Value(col + 2, row, f.value[end], dof >= 3 && dof < 6 ? moment : force);
    }
  }
}

void Story_Drift(const ReportContext& ctx, int /*caseIndex*/, const std::vector<fmResult6Val>& displacements) {
  const CfmStruct& m = ctx.model;
  const std::vector<uint32_t>& driftNodes = m.m_DriftNodes;
  const bool nothing = driftNodes.empty() || displacements.empty();
  const bool selectedOnly = ShowSelected(ctx);
  const int rows = nothing        ? 0
                   : selectedOnly ? static_cast<int>(std::count_if(driftNodes.begin(), driftNodes.end(),
                                                                   [&](uint32_t id) { return m.IsNodeSelected(id); }))
                                  : static_cast<int>(driftNodes.size());
  const std::string length = m.m_Units.Label(fmUnit::Length);
  SetUpGrid(ctx, rows,
            {"Node Id", m.m_Units.Heading("Story Height", fmUnit::Length), m.m_Units.Heading("Dx", kDisplacement),
             m.m_Units.Heading("X Drift", kDisplacement), "X Drift Ratio", m.m_Units.Heading("Dz", kDisplacement),
             m.m_Units.Heading("Z Drift", kDisplacement), "Z Drift Ratio"},
            13);
  if (nothing) return;

  model::IdIndex index;
  index.Build(displacements, [](const fmResult6Val& r) { return static_cast<int64_t>(r.number); });
  const Shown d = ShownAs(m, kDisplacement);
  // The ratio of a drift to its story height, both in inches, whatever units they are shown in.
  // The grid shows it as a percentage; a workbook gets the ratio itself, in a percent format.
  const double displacementSize = m.m_Units.Factor(kDisplacement);
  const double lengthSize = m.m_Units.Factor(fmUnit::Length);
  auto ratio = [&](int col, int row, double drift, double height) {
    const double value = drift * displacementSize / (height * lengthSize);
    ctx.sheet.SetNumber(col, row, value, tools::Format("%.3f %%", value * 100.0));
  };

  CellWriter out(ctx.sheet);
  // The base does not move.
  double belowY = m.BaseLevel(), belowDx = 0, belowDz = 0;
  int row = 0;
  for (uint32_t id : driftNodes) {
    const bool shown = !selectedOnly || m.IsNodeSelected(id);
    if (shown) ++row;
    const fmNd* node = m.FindNode(id);
    const int64_t at = index.Find(id);
    if (!node || at < 0) {
      if (shown) NodeNotFound(out, row, id);
      continue;
    }
    const fmResult6Val& r = displacements[static_cast<size_t>(at)];
    const double height = node->y - belowY;
    const double dx = r.v[0] * d.factor, dz = r.v[2] * d.factor;
    if (shown) {
      out.Id(1, row, id);
      out.Fixed3(2, row, height);
      out.Value(3, row, dx, d.format);
      out.Value(4, row, dx - belowDx, d.format);
      out.Value(6, row, dz, d.format);
      out.Value(7, row, dz - belowDz, d.format);
      // A drift node level with the one below has no story and no ratio.
      if (height != 0) {
        ratio(5, row, dx - belowDx, height);
        ratio(8, row, dz - belowDz, height);
      }
    }
    belowY = node->y;
    belowDx = dx;
    belowDz = dz;
  }
}

namespace {

void EnvelopeReport(const ReportContext& ctx, const std::vector<fmEnvelopeValue6>& envelope,
                    const std::array<const char*, 6>& names, fmUnit::Quantity first, fmUnit::Quantity second) {
  const CfmStruct& m = ctx.model;
  const bool selectedOnly = ShowSelected(ctx);
  // The nodes in the model's order (the envelope takes the order of a case's vector); those
  // the model does not have come last, as the envelope holds them.
  std::vector<std::pair<size_t, const fmEnvelopeValue6*>> ordered;
  ordered.reserve(envelope.size());
  for (const fmEnvelopeValue6& e : envelope)
    if (!selectedOnly || m.IsNodeSelected(e.number)) {
      const fmNd* node = m.FindNode(e.number);
      ordered.emplace_back(node ? static_cast<size_t>(node - m.m_Nodes.data()) : m.m_Nodes.size(), &e);
    }
  const auto byModelOrder = [](const auto& a, const auto& b) { return a.first < b.first; };
  if (!std::is_sorted(ordered.begin(), ordered.end(), byModelOrder))
    std::stable_sort(ordered.begin(), ordered.end(), byModelOrder);
  std::vector<const fmEnvelopeValue6*> shown;
  std::vector<char> found;
  shown.reserve(ordered.size());
  found.reserve(ordered.size());
  for (const auto& [position, e] : ordered) {
    shown.push_back(e);
    found.push_back(position < m.m_Nodes.size());
  }
  std::vector<std::string> headers = {"Node Id", "max/min"};
  for (int k = 0; k < 6; ++k) {
    headers.push_back(m.m_Units.Heading(names[k], k < 3 ? first : second));
    headers.push_back("Comb#");
  }
  SetUpGrid(ctx, 2 * static_cast<int>(shown.size()), headers, 6);

  const Shown a = ShownAs(m, first), b = ShownAs(m, second);
  // Each core fills the rows of its share of the nodes. Within a share, a block of nodes at a
  // time, one column after the other: each column's cells are written in order while the
  // block's envelope stays in the cache.
  tools::ParallelRanges(shown.size(), 32768, [&](size_t rangeBegin, size_t rangeEnd) {
    CellWriter out(ctx.sheet);
    constexpr size_t kBlock = 2048;
    for (size_t begin = rangeBegin; begin < rangeEnd; begin += kBlock) {
      const int count = static_cast<int>(std::min(kBlock, rangeEnd - begin));
      const fmEnvelopeValue6* const* block = shown.data() + begin;
      const int firstRow = 1 + 2 * static_cast<int>(begin);
      const char* blockFound = found.data() + begin;
      for (int i = 0; i < count; ++i) {
        if (!blockFound[i]) {
          NodeNotFound(out, firstRow + 2 * i, block[i]->number);
          continue;
        }
        out.Id(1, firstRow + 2 * i, block[i]->number);
        out.Text(2, firstRow + 2 * i, "max");
        out.Text(2, firstRow + 2 * i + 1, "min");
      }
      for (int k = 0; k < 6; ++k) {
        const Shown& s = k < 3 ? a : b;
        for (int i = 0; i < count; ++i) {
          if (!blockFound[i]) continue;
          out.Value(3 + 2 * k, firstRow + 2 * i, block[i]->max[k], s);
          out.Value(3 + 2 * k, firstRow + 2 * i + 1, block[i]->min[k], s);
        }
        for (int i = 0; i < count; ++i) {
          if (!blockFound[i]) continue;
          out.Id(4 + 2 * k, firstRow + 2 * i, static_cast<int64_t>(block[i]->maxCase[k]) + 1);
          out.Id(4 + 2 * k, firstRow + 2 * i + 1, static_cast<int64_t>(block[i]->minCase[k]) + 1);
        }
      }
    }
  });
}

}  // namespace

void Node_Displacements_Envelope(const ReportContext& ctx) {
  std::vector<fmEnvelopeValue6> envelope;
  ctx.model.CalcNodalDisplacementEnvelope(envelope, EnvelopeLoadCombs(ctx.model));
  EnvelopeReport(ctx, envelope, {"Dx", "Dy", "Dz", "Dox", "Doy", "Doz"}, kDisplacement, kRotation);
}

void Support_Reactions_Envelope(const ReportContext& ctx) {
  std::vector<fmEnvelopeValue6> envelope;
  ctx.model.CalcSupportReactionEnvelope(envelope, EnvelopeLoadCombs(ctx.model));
  EnvelopeReport(ctx, envelope, {"Rx", "Ry", "Rz", "Rox", "Roy", "Roz"}, kForce, kMoment);
}

}  // namespace results
