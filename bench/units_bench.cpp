// Costs of the foundation's everyday operations: unit conversion, locale-independent number
// text, and reading and writing a large model document.
#include <benchmark/benchmark.h>

#include "model/document.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/units.h"

namespace {

void BM_ConvertUnits(benchmark::State& state) {
  const int from = tools::FindUnitLabel("kip-ft"), to = tools::FindUnitLabel("kN-m");
  double v = 1.0;
  for (auto _ : state) {
    v = tools::ConvertUnits(v, from, to) * 0.7375621;
    benchmark::DoNotOptimize(v);
  }
}
BENCHMARK(BM_ConvertUnits);

void BM_FormatG(benchmark::State& state) {
  double v = 1234.5678;
  for (auto _ : state) benchmark::DoNotOptimize(tools::Format("%.7g", v));
}
BENCHMARK(BM_FormatG);

void BM_ParseDouble(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tools::ParseDouble(" -1.2345678e+03 "));
}
BENCHMARK(BM_ParseDouble);

model::ModelDocument Nodes(int count) {
  model::ModelDocument doc;
  doc.title = "grid of nodes";
  doc.nodes.reserve(count);
  for (int i = 0; i < count; ++i)
    doc.nodes.push_back({static_cast<uint32_t>(i + 1), 0, 0.25 * (i % 400), 0.5 * (i / 400), 12.0});
  return doc;
}

void BM_SerializeModelDocument(benchmark::State& state) {
  const model::ModelDocument doc = Nodes(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(model::SerializeModelDocument(doc));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SerializeModelDocument)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_ParseModelDocument(benchmark::State& state) {
  const std::string text = model::SerializeModelDocument(Nodes(static_cast<int>(state.range(0))));
  for (auto _ : state) benchmark::DoNotOptimize(model::ParseModelDocument(text, "bench.json"));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ParseModelDocument)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

