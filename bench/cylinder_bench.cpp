// Generating the largest cylindrical frame one generation allows, and reading its lists.
#include <benchmark/benchmark.h>

#include "dialogs/geometry/cylindrical_frame.h"
#include "tools/parse_list.h"

namespace {

void BM_GenerateLargestCylindricalFrame(benchmark::State& state) {
  geometry::CylindricalFrameParameters p;
  p.radialList = "100@1";
  p.angleList = "0, 99@1";
  p.axialList = "98@1";  // 99 levels x 100 rings x 100 angles = 990000 nodes
  p.supports = 2;
  p.rotationAngle = 30;
  for (auto _ : state) {
    auto r = geometry::GenerateCylindricalFrame(p, 1, 1);
    benchmark::DoNotOptimize(r.frame.nodes.data());
  }
  state.SetItemsProcessed(state.iterations() * 990000);
}
BENCHMARK(BM_GenerateLargestCylindricalFrame)->Unit(benchmark::kMillisecond);

void BM_ParseLongestList(benchmark::State& state) {
  std::string text;
  for (int i = 0; i < 50000; ++i) text += "12.5, ";
  text += "49999@-3.25e-2";
  for (auto _ : state) {
    auto r = tools::ParseList(text);
    benchmark::DoNotOptimize(r.values.data());
  }
}
BENCHMARK(BM_ParseLongestList)->Unit(benchmark::kMillisecond);

}  // namespace
