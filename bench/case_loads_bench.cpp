#include <benchmark/benchmark.h>

#include <vector>

#include "dialogs/grid/sheet.h"
#include "dialogs/loads/case_load_grid.h"
#include "model/moving_load.h"
#include "model/pattern_load.h"

// The applied loads at their largest: the moving-load and pattern-load generators on long
// chains of members, and every load table filled and read back with a million loads.
namespace {

// A straight chain of `count` members of 10 ft along X (ids 1 ..., nodes 1 ... count + 1),
// and two cases, the second one to generate from, with one combination using it.
struct Chain {
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmLoadCase> cases{fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L")};
  std::vector<fmCaseLoad> loads = std::vector<fmCaseLoad>(2);
  std::vector<fmLoadComb> combs;

  explicit Chain(int count) {
    for (int i = 0; i <= count; ++i) nodes.push_back({static_cast<uint32_t>(i + 1), 0, 10.0 * i, 0, 0});
    for (int i = 0; i < count; ++i) {
      fmBm m;
      m.id = static_cast<uint32_t>(i + 1);
      m.nodes = {static_cast<uint32_t>(i + 1), static_cast<uint32_t>(i + 2)};
      members.push_back(m);
    }
    fmLoadComb c("1.2D + 1.6L");
    c.items = {{"Dead", 1.2}, {"Live", 1.6}};
    combs = {c};
  }
  std::vector<int64_t> Path() const {
    std::vector<int64_t> ids;
    for (const fmBm& m : members) ids.push_back(m.id);
    return ids;
  }
  template <class G>
  G Generator() {
    G g;
    g.m_pMembers = &members;
    g.m_pNodes = &nodes;
    g.m_pLoadCases = &cases;
    g.m_pCaseLoads = &loads;
    g.m_pLoadCombs = &combs;
    g.m_nCase = 1;
    return g;
  }
};

const auto kYes = [](const std::string&) { return true; };

// 1,000 point loads (a convoy on the first 10 members) moved along 1,000 members of 10 ft in
// steps of 1 ft: 10,001 positions, each a new case with its loads, and a copy of the
// combination per position.
void BM_MovingLoad1000Members10000Positions(benchmark::State& state) {
  Chain base(1000);
  for (int i = 0; i < 1000; ++i)
    base.loads[1].point.push_back({static_cast<uint32_t>(1 + i / 100), (i % 100) / 100.0, 1, false, -1.0});
  const std::vector<int64_t> path = base.Path();
  size_t cases = 0, moved = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Chain chain = base;
    state.ResumeTiming();
    auto g = chain.Generator<model::MovingLoadGenerator>();
    if (!g.Run(path, 1.0, false, kYes)) state.SkipWithError(g.Refusal().c_str());
    cases = chain.cases.size() - 2;
    moved = 0;
    for (size_t c = 2; c < chain.loads.size(); ++c) moved += chain.loads[c].point.size();
    state.PauseTiming();
    chain = Chain(0);  // the result's memory is freed outside the measured time
    state.ResumeTiming();
  }
  state.counters["cases"] = static_cast<double>(cases);
  state.counters["loads"] = static_cast<double>(moved);
}
BENCHMARK(BM_MovingLoad1000Members10000Positions)->Unit(benchmark::kMillisecond)->Iterations(3);

// 10,000 line loads, ten on each of 1,000 spans, patterned: 1,001 cases (Odd, Even, S1 to
// S999) and as many combinations.
void BM_PatternLoad1000Spans10000LineLoads(benchmark::State& state) {
  Chain base(1000);
  for (int i = 0; i < 10000; ++i) {
    const double r = (i % 10) / 10.0;
    base.loads[1].line.push_back({static_cast<uint32_t>(1 + i / 10), {r, r + 0.1}, {-1.0, -2.0}, 1, false});
  }
  const std::vector<int64_t> path = base.Path();
  size_t cases = 0, lines = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Chain chain = base;
    state.ResumeTiming();
    auto g = chain.Generator<model::PatternLoadGenerator>();
    if (!g.Run(path, kYes)) state.SkipWithError(g.Refusal().c_str());
    cases = chain.cases.size() - 2;
    lines = 0;
    for (size_t c = 2; c < chain.loads.size(); ++c) lines += chain.loads[c].line.size();
    state.PauseTiming();
    chain = Chain(0);
    state.ResumeTiming();
  }
  state.counters["cases"] = static_cast<double>(cases);
  state.counters["loads"] = static_cast<double>(lines);
}
BENCHMARK(BM_PatternLoad1000Spans10000LineLoads)->Unit(benchmark::kMillisecond)->Iterations(3);

// A model for the tables: 500,000 nodes, 500,000 members, shells and bricks, ten cases, and a
// million loads of every kind spread over the cases, with values beyond the six digits shown.
struct TableModel {
  std::vector<fmLoadCase> cases;
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  std::vector<fmBrick> bricks;
  std::vector<fmCaseLoad> caseLoads;

  TableModel() {
    constexpr uint32_t kElements = 500000;
    for (int c = 0; c < 10; ++c) cases.emplace_back(c + 1, "Case " + std::to_string(c + 1), "Other");
    nodes.reserve(kElements);
    for (uint32_t id = 1; id <= kElements; ++id) nodes.push_back({id, 0, 1.0 * id, 0, 0});
    for (uint32_t id = 1; id <= kElements; ++id) {
      fmBm m;
      m.id = id;
      m.nodes = {id, id % kElements + 1};
      members.push_back(m);
      fmShell4 s;
      s.id = id;
      shells.push_back(s);
      fmBrick b;
      b.id = id;
      bricks.push_back(b);
    }
    caseLoads.resize(cases.size());
    constexpr int kLoads = 1000000;
    for (int i = 0; i < kLoads; ++i) {
      fmCaseLoad& cl = caseLoads[static_cast<size_t>(i % 10)];
      const uint32_t id = static_cast<uint32_t>(i % kElements + 1);
      const double v = -1.0 - i / 3.0;
      cl.nodal.push_back({id, i % 6, v});
      cl.point.push_back({id, (i % 9) / 8.0, i % 6, i % 2 == 0, v});
      cl.line.push_back({id, {0.125, 0.875}, {v, 2 * v}, i % 3, false});
      cl.surface.push_back({id, 2, true, v});
      cl.area.push_back({{id, id % kElements + 1, (id + 1) % kElements + 1, (id + 2) % kElements + 1}, 1, v, 0});
      cl.memberThermal.push_back({id, v});
      cl.shellThermal.push_back({id, v});
      cl.brickThermal.push_back({id, v});
      cl.nodalMasses.push_back({id, i % 6, -v});
    }
    for (int c = 0; c < 10; ++c) caseLoads[static_cast<size_t>(c)].massFactor = 0.1 * (c + 1);
  }
  caseloadgrid::LoadLists Lists() const { return {cases, nodes, members, shells, bricks}; }
};

const TableModel& Tables() {
  static const TableModel model;
  return model;
}

void BM_LoadTableFill(benchmark::State& state) {
  const auto kind = static_cast<caseloadgrid::LoadKind>(state.range(0));
  const TableModel& m = Tables();
  int rows = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto table = caseloadgrid::LoadTable::Create(kind);
    auto sheet = std::make_unique<grid::Sheet>();
    state.ResumeTiming();
    rows = table->Fill(*sheet, m.caseLoads, m.Lists(), fmUnit(), 0xF0F5FF, false);
    state.PauseTiming();
    sheet.reset();
    state.ResumeTiming();
  }
  state.SetLabel(caseloadgrid::TextsOf(kind).className);
  state.counters["rows"] = rows;
}

// OK: the whole table read back and checked, every case's loads of the kind rebuilt.
void BM_LoadTableRead(benchmark::State& state) {
  const auto kind = static_cast<caseloadgrid::LoadKind>(state.range(0));
  const TableModel& m = Tables();
  auto table = caseloadgrid::LoadTable::Create(kind);
  grid::Sheet sheet;
  table->Fill(sheet, m.caseLoads, m.Lists(), fmUnit(), 0xF0F5FF, false);
  for (auto _ : state) {
    caseloadgrid::ReadResult result = table->Read(sheet, m.caseLoads, m.Lists());
    if (result.failure) state.SkipWithError(result.failure->message.c_str());
    state.PauseTiming();
    result = {};
    state.ResumeTiming();
  }
  state.SetLabel(caseloadgrid::TextsOf(kind).className);
}

void EveryKind(benchmark::internal::Benchmark* b) {
  for (int k = 0; k < static_cast<int>(caseloadgrid::LoadKind::Count); ++k) b->Arg(k);
}
BENCHMARK(BM_LoadTableFill)->Apply(EveryKind)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(BM_LoadTableRead)->Apply(EveryKind)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace
