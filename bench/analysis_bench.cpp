// A regular 3-D building frame, 25 × 20 bays in plan, from 8 to 91 storeys (4,914 to 50,232
// nodes, six degrees of freedom each): assembly and factorisation, the ten load cases solved on
// that factorisation, and the lowest 20 modes. Peak memory (the process's maximum resident size
// so far) is reported as a counter.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include "analysis/linear_static.h"
#include "analysis/modal.h"
#include "analysis/sparse_factor.h"

namespace {

using namespace analysis;

Model BuildingFrame(int storeys) {
  const int bx = 25, bz = 20;
  const double span = 240, height = 144;
  Model m;
  m.materials.push_back({29000, 0.3, 0.000283, 6.5e-6});
  m.sections.push_back({26.5, 10, 15, 362, 999, 4.06});  // columns
  m.sections.push_back({20.1, 9, 8, 70.4, 1830, 1.87});  // beams
  auto id = [&](int i, int j, int k) { return static_cast<size_t>((j * (bz + 1) + k) * (bx + 1) + i); };
  for (int j = 0; j <= storeys; ++j)
    for (int k = 0; k <= bz; ++k)
      for (int i = 0; i <= bx; ++i)
        m.nodes.push_back({static_cast<uint32_t>(m.nodes.size() + 1), span * i, height * j, span * k});
  auto member = [&](size_t a, size_t b, size_t section) {
    Member mb;
    mb.id = static_cast<uint32_t>(m.members.size() + 1);
    mb.nodes = {a, b};
    mb.section = section;
    m.members.push_back(mb);
  };
  for (int j = 0; j < storeys; ++j)
    for (int k = 0; k <= bz; ++k)
      for (int i = 0; i <= bx; ++i) member(id(i, j, k), id(i, j + 1, k), 0);
  for (int j = 1; j <= storeys; ++j)
    for (int k = 0; k <= bz; ++k)
      for (int i = 0; i <= bx; ++i) {
        if (i < bx) member(id(i, j, k), id(i + 1, j, k), 1);
        if (k < bz) member(id(i, j, k), id(i, j, k + 1), 1);
      }
  for (int k = 0; k <= bz; ++k)
    for (int i = 0; i <= bx; ++i) m.supports.push_back({id(i, 0, k), {true, true, true, true, true, true}, {}});
  // Ten cases: self weight, gravity on the floors, and lateral loads of different patterns.
  for (int c = 0; c < 10; ++c) {
    LoadCase lc;
    lc.name = "Case " + std::to_string(c + 1);
    if (c == 0) lc.selfWeight = 1;
    for (int j = 1; j <= storeys; ++j)
      for (int k = 0; k <= bz; ++k)
        for (int i = 0; i <= bx; ++i) {
          if (c == 1) lc.nodal.push_back({id(i, j, k), Uy, -5.0});
          if (c >= 2 && (i == 0 || k == 0)) lc.nodal.push_back({id(i, j, k), c % 2 ? Ux : Uz, 0.1 * (c - 1) * j});
        }
    m.cases.push_back(std::move(lc));
  }
  return m;
}

double PeakMemoryMiB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void Report(benchmark::State& state, const Model& m) {
  state.counters["nodes"] = static_cast<double>(m.nodes.size());
  state.counters["peak_MiB"] = PeakMemoryMiB();
}

void BM_AssembleAndFactor(benchmark::State& state) {
  const Model m = BuildingFrame(static_cast<int>(state.range(0)));
  Eigen::Index factorNonZeros = 0;
  for (auto _ : state) {
    const GlobalStiffness k = AssembleStiffness(m, {});
    StiffnessFactor factor;
    factor.Factor(k.free, k.numbering.freeDofs, [](Eigen::Index) { return std::string(); });
    factorNonZeros = factor.FactorNonZeros();
  }
  Report(state, m);
  state.counters["factor_nnz"] = static_cast<double>(factorNonZeros);
}
BENCHMARK(BM_AssembleAndFactor)->Arg(8)->Arg(17)->Arg(45)->Arg(91)->Unit(benchmark::kSecond)->Iterations(1)->MeasureProcessCPUTime()->UseRealTime();

void BM_StaticTenCases(benchmark::State& state) {
  const Model m = BuildingFrame(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(SolveLinearStatic(m).results.size());
  Report(state, m);
}
BENCHMARK(BM_StaticTenCases)->Arg(8)->Arg(17)->Arg(45)->Arg(91)->Unit(benchmark::kSecond)->Iterations(1)->MeasureProcessCPUTime()->UseRealTime();

void BM_TwentyModes(benchmark::State& state) {
  const Model m = BuildingFrame(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(SolveModes(m, 20).modes.size());
  Report(state, m);
}
BENCHMARK(BM_TwentyModes)->Arg(8)->Arg(17)->Arg(45)->Arg(91)->Unit(benchmark::kSecond)->Iterations(1)->MeasureProcessCPUTime()->UseRealTime();

// The same with consistent masses: the mass matrix has the stiffness's pattern.
void BM_TwentyModesConsistent(benchmark::State& state) {
  const Model m = BuildingFrame(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(SolveModes(m, 20, MassModel::Consistent).modes.size());
  Report(state, m);
}
BENCHMARK(BM_TwentyModesConsistent)->Arg(8)->Arg(17)->Unit(benchmark::kSecond)->Iterations(1)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace
