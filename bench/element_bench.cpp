#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/model/element_grid.h"

// OK of a big member grid: the engine's read, validation and record building, as the member
// dialog runs it, over 1,000,000 members and 500,000 nodes.
namespace {

constexpr int kNodes = 500000;
constexpr int kMembers = 1000000;

// A large frame: every member joins two nodes; ids dense (1, 2, 3 ...) or sparse and out of
// order (the node index then has to sort and search).
struct BigModel {
  explicit BigModel(bool sparseIds) {
    std::mt19937 random(7);
    std::vector<uint32_t> ids(kNodes);
    for (int i = 0; i < kNodes; ++i) ids[i] = sparseIds ? 3u * i + 1000u : i + 1u;
    if (sparseIds) std::shuffle(ids.begin(), ids.end(), random);
    for (uint32_t id : ids) nodes.push_back({id, 0, 0, 0, 0});
    materials = {fmMat(1), fmMat(2), fmMat(3)};
    materials[0].label = "Steel-A992-Fy50";
    materials[1].label = "Concrete4000";
    materials[2].label = "Aluminium6061";
    for (int s = 1; s <= 40; ++s) {
      sections.emplace_back(s);
      sections.back().label = "W14X" + std::to_string(40 + 2 * s);
    }
    members.reserve(kMembers);
    for (uint32_t m = 0; m < kMembers; ++m) {
      fmBm bm;
      bm.id = m + 1;
      bm.nodes = {ids[m % kNodes], ids[(m * 7 + 1) % kNodes]};
      bm.mat = static_cast<int32_t>(m % 3) + 1;
      bm.sect = static_cast<int32_t>(m % 40) + 1;
      bm.angle = (m % 4) * 30.0 + (m % 3 == 0 ? 1.0 / 3.0 : 0.0);
      bm.nonlinear = static_cast<fmNonlinear>(m % 3);
      bm.flags = m % 10 == 0 ? fmElementBase::kInactive : 0;
      members.push_back(bm);
    }
    elementgrid::Fill(sheet, std::span<const fmBm>(members), Lists(), 0xF0F5FF, false);
  }
  elementgrid::ElementLists Lists() const { return {nodes, materials, sections, {}}; }

  std::vector<fmNd> nodes;
  std::vector<fmMat> materials;
  std::vector<fmSect> sections;
  std::vector<fmBm> members;
  grid::Sheet sheet;
};

const BigModel& Model(bool sparseIds) {
  static const BigModel dense(false);
  static const BigModel sparse(true);
  return sparseIds ? sparse : dense;
}

void RunOk(benchmark::State& state, const grid::Sheet& sheet, std::span<const fmBm> filled, const BigModel& model) {
  for (auto _ : state) {
    auto result = elementgrid::Read(sheet, filled, model.Lists());
    if (result.failure || result.elements.size() != static_cast<size_t>(kMembers)) {
      state.SkipWithError(result.failure ? result.failure->message.c_str() : "rows lost");
      return;
    }
    benchmark::DoNotOptimize(result.elements.data());
  }
  state.SetItemsProcessed(state.iterations() * kMembers);
}

// OK on the grid as it was opened: every row an existing member, left as filled.
void BM_MemberGridOk(benchmark::State& state) {
  const BigModel& model = Model(state.range(0) != 0);
  RunOk(state, model.sheet, model.members, model);
}

// OK with every row read from its text alone, as if all had been typed or pasted: no cell
// matches a filled value, so every reference goes through the item look-up and every angle
// is parsed.
void BM_MemberGridOkAllTyped(benchmark::State& state) {
  const BigModel& model = Model(state.range(0) != 0);
  RunOk(state, model.sheet, {}, model);
}

// Opening the grid: filling a million rows.
void BM_MemberGridFill(benchmark::State& state) {
  const BigModel& model = Model(false);
  for (auto _ : state) {
    grid::Sheet sheet;
    elementgrid::Fill(sheet, std::span<const fmBm>(model.members), model.Lists(), 0xF0F5FF, false);
    benchmark::DoNotOptimize(sheet.MaxRows());
  }
  state.SetItemsProcessed(state.iterations() * kMembers);
}

}  // namespace

// Argument: 0 dense node ids, 1 sparse and shuffled ones.
BENCHMARK(BM_MemberGridOk)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_MemberGridOkAllTyped)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_MemberGridFill)->Unit(benchmark::kMillisecond)->Iterations(3);
