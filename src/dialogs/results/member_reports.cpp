#include "dialogs/results/member_reports.h"

#include <cmath>

#include "dialogs/results/report_cells.h"
#include "tools/format.h"

namespace results {
namespace {

const char* const kForceNames[6] = {"Fx (Axial)",   "Fy (Major Shear)",  "Fz (Minor Shear)",
                                    "Mx (Torsion)", "My (Minor Moment)", "Mz (Major Moment)"};

fmUnit::Quantity ForceQuantity(size_t k) { return k < 3 ? fmUnit::Force : fmUnit::Moment; }

// A member's length in the results' length unit, from the model's nodes; 0 when a node is
// missing.
double ResultLength(const CfmStruct& m, int64_t id) {
  const CfmStruct::Member* member = m.FindMember(id);
  if (!member) return 0;
  const fmNd* a = m.FindNode(member->node[0]);
  const fmNd* b = m.FindNode(member->node[1]);
  if (!a || !b) return 0;
  // Node coordinates are in the display units; the stations' distances in the results'.
  return std::sqrt((b->x - a->x) * (b->x - a->x) + (b->y - a->y) * (b->y - a->y) + (b->z - a->z) * (b->z - a->z)) /
         m.ResultFactor(fmUnit::Length);
}

// "Distance (%L)": the station's distance in percent of the member's length.
void Distance(CellWriter& out, int row, double distance, double length) {
  out.Fixed3(2, row, 100.0 * distance / length);
}

void MemberNotFound(CellWriter& out, int row, int64_t id) {
  out.Id(1, row, id);
  out.Text(2, row, tools::Format("error finding member %ld", static_cast<long>(id)));
}

// Combination numbers are 1-based; a value no case gave shows none.
void Comb(CellWriter& out, int col, int row, int32_t index) {
  if (index >= 0) out.Id(col, row, static_cast<int64_t>(index) + 1);
}

}  // namespace

void Beam_VMD(const ReportContext& ctx, int caseIndex) {
  const CfmStruct& m = ctx.model;
  fmCaseResults scratch;
  const std::vector<fmBmVMD>& members = m.GetElementResults(caseIndex, scratch).memberStations;
  if (members.empty()) return;
  const bool segmental = ctx.reportType == 7 || ctx.reportType == 48;
  const bool selectedOnly = ShowSelected(ctx);

  std::vector<std::string> headers = {"Member Id", "Distance (%L)"};
  for (size_t k = 0; k < 6; ++k) headers.push_back(m.m_Units.Heading(kForceNames[k], ForceQuantity(k)));
  if (segmental) {
    headers.push_back(m.m_Units.Heading("Dy (Major Deflection)", fmUnit::Displacement));
    headers.push_back(m.m_Units.Heading("Dz (Minor Deflection)", fmUnit::Displacement));
  }
  int rows = 0;
  for (const fmBmVMD& b : members)
    if (!selectedOnly || m.IsMemberSelected(b.number)) rows += segmental ? static_cast<int>(b.m_VMD.size()) + 1 : 3;
  SetUpGrid(ctx, rows, headers, 95 / static_cast<int>(headers.size()));

  const Shown force = ShownAs(m, fmUnit::Force), moment = ShownAs(m, fmUnit::Moment),
              deflection = ShownAs(m, fmUnit::Displacement);
  CellWriter out(ctx.sheet);
  int row = 1;
  for (const fmBmVMD& b : members) {
    if (selectedOnly && !m.IsMemberSelected(b.number)) continue;
    const int first = row;
    row += segmental ? static_cast<int>(b.m_VMD.size()) + 1 : 3;
    const double length = ResultLength(m, b.number);
    if (length <= 0) {
      MemberNotFound(out, first, b.number);
      continue;
    }
    out.Id(1, first, b.number);
    // End results: the first station, then straight to the last.
    std::vector<const fmBmStation*> shown;
    if (segmental) {
      for (const fmBmStation& st : b.m_VMD) shown.push_back(&st);
    } else if (!b.m_VMD.empty()) {
      shown = {&b.m_VMD.front(), &b.m_VMD.back()};
      if (b.m_VMD.size() == 1) shown.pop_back();
    }
    int r = first;
    for (const fmBmStation* st : shown) {
      Distance(out, r, st->distance, length);
      for (size_t k = 0; k < 6; ++k) out.Value(3 + static_cast<int>(k), r, st->force[k], k < 3 ? force : moment);
      if (segmental) {
        out.Value(9, r, st->Dy, deflection);
        out.Value(10, r, st->Dz, deflection);
      }
      ++r;
    }
  }
}

void Beam_Mode_Combination_VMD(const ReportContext& ctx) { Beam_VMD(ctx, -1); }

void Beam_VMD_Envelope(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  std::vector<fmEnvelopeBmVMD> envelope;
  m.CalcBeamEnvelopVMD(envelope, EnvelopeLoadCombs(m));
  if (envelope.empty()) return;
  const bool selectedOnly = ShowSelected(ctx);
  std::vector<std::string> headers = {"Member Id", "Distance (%L)", "max/min"};
  for (size_t k = 0; k < 6; ++k) {
    headers.push_back(m.m_Units.Heading(kForceNames[k], ForceQuantity(k)));
    headers.push_back("Comb#");
  }
  int rows = 0;
  for (const fmEnvelopeBmVMD& e : envelope)
    if (!selectedOnly || m.IsMemberSelected(e.number)) rows += 2 * static_cast<int>(e.station.size()) + 1;
  SetUpGrid(ctx, rows, headers, 6);

  const Shown force = ShownAs(m, fmUnit::Force), moment = ShownAs(m, fmUnit::Moment);
  CellWriter out(ctx.sheet);
  int row = 1;
  for (const fmEnvelopeBmVMD& e : envelope) {
    if (selectedOnly && !m.IsMemberSelected(e.number)) continue;
    const int first = row;
    row += 2 * static_cast<int>(e.station.size()) + 1;
    const double length = ResultLength(m, e.number);
    if (length <= 0) {
      MemberNotFound(out, first, e.number);
      continue;
    }
    out.Id(1, first, e.number);
    for (size_t k = 0; k < e.station.size(); ++k) {
      const int r = first + 2 * static_cast<int>(k);
      const fmEnvelopeValue6& v = e.station[k];
      Distance(out, r, e.distance[k], length);
      out.Text(3, r, "max");
      out.Text(3, r + 1, "min");
      for (size_t f = 0; f < 6; ++f) {
        const int col = 4 + 2 * static_cast<int>(f);
        const Shown& s = f < 3 ? force : moment;
        out.Value(col, r, v.max[f], s);
        out.Value(col, r + 1, v.min[f], s);
        Comb(out, col + 1, r, v.maxCase[f]);
        Comb(out, col + 1, r + 1, v.minCase[f]);
      }
    }
  }
}

void Beam_Envelop(const ReportContext& ctx) {
  const CfmStruct& m = ctx.model;
  std::vector<fmBmDesignEnvelope> envelope;
  m.CalcBeamDesignEnvelope(envelope);
  const bool selectedOnly = ShowSelected(ctx);
  std::vector<std::string> headers = {"Member Id",
                                      "Distance (%L)",
                                      m.m_Units.Heading("max Mz (Major Moment)", fmUnit::Moment),
                                      m.m_Units.Heading("min Mz (Major Moment)", fmUnit::Moment),
                                      m.m_Units.Heading("abs Fy (Major Shear)", fmUnit::Force),
                                      "max Mz Comb#",
                                      "min Mz Comb#",
                                      "abs Fy Comb#"};
  int rows = 0;
  for (const fmBmDesignEnvelope& e : envelope)
    if (!selectedOnly || m.IsMemberSelected(e.number)) rows += static_cast<int>(e.station.size()) + 1;
  SetUpGrid(ctx, rows, headers, 11);

  const Shown force = ShownAs(m, fmUnit::Force), moment = ShownAs(m, fmUnit::Moment);
  CellWriter out(ctx.sheet);
  int row = 1;
  for (const fmBmDesignEnvelope& e : envelope) {
    if (selectedOnly && !m.IsMemberSelected(e.number)) continue;
    const int first = row;
    row += static_cast<int>(e.station.size()) + 1;
    const double length = ResultLength(m, e.number);
    if (length <= 0) {
      MemberNotFound(out, first, e.number);
      continue;
    }
    out.Id(1, first, e.number);
    for (size_t k = 0; k < e.station.size(); ++k) {
      const int r = first + static_cast<int>(k);
      const fmBmDesignEnvelope::Station& s = e.station[k];
      Distance(out, r, s.distance, length);
      out.Value(3, r, s.maxMz, moment);
      out.Value(4, r, s.minMz, moment);
      out.Value(5, r, s.absFy, force);
      Comb(out, 6, r, s.maxMzComb);
      Comb(out, 7, r, s.minMzComb);
      Comb(out, 8, r, s.absFyComb);
    }
  }
}

}  // namespace results
