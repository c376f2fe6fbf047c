// Costs of the steel shape library: reading the installed files, turning the exchange csv
// into a library, writing it back, and looking a shape up by label.
#include <benchmark/benchmark.h>

#include "tools/shape_table.h"

namespace {

const std::string kDataDir = NORVANE_SOURCE_DATA_DIR;

void BM_LoadBundledLibrary(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tools::AiscLibrary::LoadFrom(kDataDir).size());
}
BENCHMARK(BM_LoadBundledLibrary)->Unit(benchmark::kMillisecond);

void BM_ParseAiscCsv(benchmark::State& state) {
  const std::string csv = tools::WriteAiscCsv(tools::AiscLibrary::LoadFrom(kDataDir));
  for (auto _ : state) benchmark::DoNotOptimize(tools::ParseAiscCsv(csv, "bundled.csv").size());
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * csv.size()));
}
BENCHMARK(BM_ParseAiscCsv)->Unit(benchmark::kMillisecond);

void BM_WriteAiscCsv(benchmark::State& state) {
  const tools::AiscLibrary library = tools::AiscLibrary::LoadFrom(kDataDir);
  for (auto _ : state) benchmark::DoNotOptimize(tools::WriteAiscCsv(library).size());
}
BENCHMARK(BM_WriteAiscCsv)->Unit(benchmark::kMillisecond);

void BM_FindShapeByLabel(benchmark::State& state) {
  const tools::AiscLibrary library = tools::AiscLibrary::LoadFrom(kDataDir);
  for (auto _ : state) benchmark::DoNotOptimize(library.Find("hss20x12x5/8"));
}
BENCHMARK(BM_FindShapeByLabel)->Unit(benchmark::kMicrosecond);

}  // namespace
