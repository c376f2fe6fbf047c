#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "dialogs/results/nodal_reports.h"
#include "model/fm_struct.h"
#include "tools/format.h"

namespace {

constexpr int kNodes = 1000000;
constexpr int kCases = 100;

// A solved model of a million nodes and 100 load cases (about 5.6 GB of displacements),
// built once for all the benchmarks here. Every case moves every node differently, so each
// case wins somewhere in the envelope.
const CfmStruct& BigModel() {
  static const CfmStruct model = [] {
    CfmStruct s;
    s.m_Units.SetEnglish();
    s.m_DisplayFormat.fill(2);
    s.m_Nodes.resize(kNodes);
    for (int i = 0; i < kNodes; ++i) s.m_Nodes[static_cast<size_t>(i)] = {static_cast<uint32_t>(i + 1), 0, 0.0, 0.0, 0.0};
    s.m_Solution.units = s.m_Units;
    s.m_Solution.results.resize(kCases);
    for (int c = 0; c < kCases; ++c) {
      s.m_Solution.cases.emplace_back(c + 1, tools::Format("Case %d", c + 1), "Other");
      s.m_EnvelopeCombinations.push_back(tools::Format("Case %d", c + 1));
      std::vector<fmResult6Val>& d = s.m_Solution.results[static_cast<size_t>(c)].displacements;
      d.resize(kNodes);
      for (int i = 0; i < kNodes; ++i) {
        const double phase = 0.001 * i + 0.37 * c;
        d[static_cast<size_t>(i)] = {i + 1, {std::sin(phase), std::cos(phase), 0.5 * std::sin(2 * phase),
                                             1e-3 * std::cos(3 * phase), 1e-3 * std::sin(phase), 2e-3 * std::cos(phase)}};
      }
    }
    return s;
  }();
  return model;
}

// The displacement report of one case: a million rows of seven cells.
void BM_NodeDisplacementsReport(benchmark::State& state) {
  const CfmStruct& model = BigModel();
  grid::Sheet sheet;
  const results::ReportContext ctx{sheet, model, 0};
  for (auto _ : state) {
    results::Node_Displacements(ctx, model.m_Solution.results[0].displacements);
    benchmark::DoNotOptimize(sheet.GetData(7, kNodes));
  }
  state.counters["rows"] = sheet.MaxRows();
}
BENCHMARK(BM_NodeDisplacementsReport)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

// The nodal displacement envelope of the model over all 100 cases.
void BM_NodalDisplacementEnvelope(benchmark::State& state) {
  const CfmStruct& model = BigModel();
  const std::vector<bool> all(kCases, true);
  std::vector<fmEnvelopeValue6> envelope;
  for (auto _ : state) {
    model.CalcNodalDisplacementEnvelope(envelope, all);
    benchmark::DoNotOptimize(envelope.data());
  }
  state.counters["nodes"] = static_cast<double>(envelope.size());
}
BENCHMARK(BM_NodalDisplacementEnvelope)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

// The envelope report as the dialog opens it: the envelope over the 100 cases and two
// million rows of 14 cells in a new grid. Clearing the grid afterwards is not timed (it is
// the next action's work); BM_NodeDisplacementsEnvelopeRebuild times both.
void BM_NodeDisplacementsEnvelopeReport(benchmark::State& state) {
  const CfmStruct& model = BigModel();
  int rows = 0;
  for (auto _ : state) {
    auto sheet = std::make_unique<grid::Sheet>();
    const results::ReportContext ctx{*sheet, model, 55};
    results::Node_Displacements_Envelope(ctx);
    benchmark::DoNotOptimize(sheet->GetData(14, 2 * kNodes));
    rows = sheet->MaxRows();
    state.PauseTiming();
    sheet.reset();
    state.ResumeTiming();
  }
  state.counters["rows"] = rows;
}
BENCHMARK(BM_NodeDisplacementsEnvelopeReport)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

// The same report built again over the last one, as "Show selected only" rebuilds it.
void BM_NodeDisplacementsEnvelopeRebuild(benchmark::State& state) {
  const CfmStruct& model = BigModel();
  grid::Sheet sheet;
  const results::ReportContext ctx{sheet, model, 55};
  results::Node_Displacements_Envelope(ctx);
  for (auto _ : state) {
    results::Node_Displacements_Envelope(ctx);
    benchmark::DoNotOptimize(sheet.GetData(14, 2 * kNodes));
  }
}
BENCHMARK(BM_NodeDisplacementsEnvelopeRebuild)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

// Reading every displacement once: the floor for any envelope over the 100 cases.
void BM_ReadAllDisplacements(benchmark::State& state) {
  const CfmStruct& model = BigModel();
  for (auto _ : state) {
    double sum = 0;
    for (const fmCaseResults& r : model.m_Solution.results)
      for (const fmResult6Val& d : r.displacements) sum += d.v[0] + d.v[5];
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(BM_ReadAllDisplacements)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
