#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cmath>
#include <fstream>
#include <memory>

#include "dialogs/results/report_kinds.h"
#include "model/fm_struct.h"
#include "tools/format.h"
#include "tools/stress.h"

// Member envelopes, brick principal stresses and a report of a million rows.
namespace {

constexpr int kMembers = 100000;
constexpr int kStations = 11;
constexpr int kCases = 20;
constexpr int kCombinations = 100;

double CurrentRssMB() {
  std::ifstream statm("/proc/self/statm");
  long pages = 0, resident = 0;
  statm >> pages >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

// 100,000 members of 11 stations with results in 20 load cases, and 100 combinations of
// three cases each, stored without member results so that the envelope forms them.
const CfmStruct& BigFrame() {
  static const CfmStruct model = [] {
    CfmStruct s;
    s.m_Units.SetEnglish();
    s.m_DisplayFormat.fill(2);
    s.m_Solution.units = s.m_Units;
    for (int c = 0; c < kCases; ++c) s.m_Solution.cases.emplace_back(c + 1, tools::Format("Case %d", c + 1), "Other");
    for (int k = 0; k < kCombinations; ++k) {
      fmLoadComb comb(tools::Format("Comb %d", k + 1));
      comb.items = {{tools::Format("Case %d", k % kCases + 1), 1.2},
                    {tools::Format("Case %d", (k * 7 + 3) % kCases + 1), 1.6},
                    {tools::Format("Case %d", (k * 13 + 5) % kCases + 1), -0.5}};
      s.m_LoadCombs.push_back(comb);
      s.m_Solution.cases.emplace_back(kCases + k + 1, comb.name);
    }
    s.m_Solution.results.resize(s.m_Solution.cases.size());
    for (int c = 0; c < kCases; ++c) {
      auto& members = s.m_Solution.results[static_cast<size_t>(c)].memberStations;
      members.resize(kMembers);
      for (int m = 0; m < kMembers; ++m) {
        fmBmVMD& b = members[static_cast<size_t>(m)];
        b.number = m + 1;
        b.m_VMD.resize(kStations);
        for (int k = 0; k < kStations; ++k) {
          const double phase = 0.001 * m + 0.37 * c + 0.1 * k;
          fmBmStation& st = b.m_VMD[static_cast<size_t>(k)];
          st.distance = 2.0 * k;
          st.force = {std::sin(phase), std::cos(phase), 0.5 * std::sin(2 * phase), 0.1 * std::cos(3 * phase),
                      std::sin(phase + 1), 10 * std::cos(phase)};
          st.Dy = 0.01 * std::sin(phase);
        }
      }
      // Every combination needs displacements to count as solved; a single record will do.
      s.m_Solution.results[static_cast<size_t>(c)].displacements = {{1, {}}};
    }
    for (int k = 0; k < kCombinations; ++k)
      s.m_Solution.results[static_cast<size_t>(kCases + k)].displacements = {{1, {}}};
    for (const fmLoadCase& c : s.m_Solution.cases) s.m_EnvelopeCombinations.push_back(c.name);
    return s;
  }();
  return model;
}

// The member force envelope over the 20 cases and the 100 combinations formed from them.
void BM_BeamEnvelopeOfFormedCombinations(benchmark::State& state) {
  const CfmStruct& model = BigFrame();
  const std::vector<bool> all(model.m_Solution.cases.size(), true);
  const double before = CurrentRssMB();
  double extra = 0;
  for (auto _ : state) {
    std::vector<fmEnvelopeBmVMD> envelope;
    model.CalcBeamEnvelopVMD(envelope, all);
    extra = CurrentRssMB() - before;
    benchmark::DoNotOptimize(envelope.data());
  }
  state.counters["members"] = kMembers;
  state.counters["case_results_MB"] = before;
  state.counters["extra_MB"] = extra;
}
BENCHMARK(BM_BeamEnvelopeOfFormedCombinations)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

// The principal stresses and directions of 100,000 bricks: 900,000 points.
void BM_BrickPrincipalStresses(benchmark::State& state) {
  const size_t points = 900000;
  std::vector<std::array<double, 6>> stresses(points);
  for (size_t i = 0; i < points; ++i) {
    const double p = 0.001 * static_cast<double>(i);
    stresses[i] = {std::sin(p), std::cos(p), 0.3 * std::sin(2 * p), 0.2 * std::cos(p), -0.1 * std::sin(3 * p), 0.4};
  }
  std::vector<tools::Principal3D> out(points);
  for (auto _ : state) {
    tools::PrincipalStresses3D(stresses.data(), out.data(), points);
    benchmark::DoNotOptimize(out.data());
  }
  state.counters["points"] = static_cast<double>(points);
}
BENCHMARK(BM_BrickPrincipalStresses)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();

// Member segmental results of 100,000 members with 9 stations: 1,000,000 rows of 10 cells.
void BM_MemberSegmentalReport(benchmark::State& state) {
  static const CfmStruct model = [] {
    CfmStruct s;
    s.m_Units.SetEnglish();
    s.m_DisplayFormat.fill(2);
    s.m_Solution.units = s.m_Units;
    s.m_Nodes.reserve(2 * kMembers);
    for (int m = 0; m < kMembers; ++m) {
      s.m_Nodes.push_back({static_cast<uint32_t>(2 * m + 1), 0, 0, 0, 0});
      s.m_Nodes.push_back({static_cast<uint32_t>(2 * m + 2), 0, 16, 0, 0});
      CfmStruct::Member member;
      member.id = static_cast<uint32_t>(m + 1);
      member.node = {static_cast<uint32_t>(2 * m + 1), static_cast<uint32_t>(2 * m + 2)};
      s.m_Members.push_back(member);
    }
    s.m_Solution.cases.emplace_back(1, "Dead", "Dead-D");
    s.m_Solution.results.resize(1);
    auto& members = s.m_Solution.results[0].memberStations;
    members.resize(kMembers);
    for (int m = 0; m < kMembers; ++m) {
      members[static_cast<size_t>(m)].number = m + 1;
      for (int k = 0; k < 9; ++k) {
        fmBmStation st;
        st.distance = 2.0 * k;
        st.force = {1.5 * m, -0.25 * k, 0.125, 0, 3.5, 1000.0 / (k + 1)};
        st.Dy = -0.001 * k;
        members[static_cast<size_t>(m)].m_VMD.push_back(st);
      }
    }
    return s;
  }();
  int rows = 0;
  for (auto _ : state) {
    auto sheet = std::make_unique<grid::Sheet>();
    const results::ReportContext ctx{*sheet, model, 7};
    results::BuildReport(ctx, 0);
    rows = sheet->MaxRows();
    benchmark::DoNotOptimize(sheet->GetData(10, rows - 1));
    state.PauseTiming();
    sheet.reset();  // clearing the grid is the next report's work
    state.ResumeTiming();
  }
  state.counters["rows"] = rows;
  state.counters["cells"] = static_cast<double>(rows) * 10;
}
BENCHMARK(BM_MemberSegmentalReport)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
