// Opening and saving model documents of 100,000 and 1,000,000 nodes, from and to a file, and
// the memory the reading takes beyond the records it returns.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "model/document.h"

namespace {

// Nodes at random coordinates with three decimals, as a surveyed model has them.
model::ModelDocument RandomNodes(int count) {
  model::ModelDocument doc;
  doc.title = "random nodes";
  std::mt19937_64 random(1);
  std::uniform_int_distribution<int64_t> thousandths(-1000000000, 1000000000);
  doc.nodes.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i)
    doc.nodes.push_back({static_cast<uint32_t>(i + 1), 0, thousandths(random) / 1000.0, thousandths(random) / 1000.0,
                         thousandths(random) / 1000.0});
  return doc;
}

std::string ScratchPath(const char* name) {
  return (std::filesystem::temp_directory_path() / (std::string("norvane-bench-") + std::to_string(getpid()) + name))
      .string();
}

// Resident and peak resident memory in MB, from /proc; writing 5 to clear_refs starts a new peak.
double StatusMB(const char* field) {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind(field, 0) == 0) return std::stod(line.substr(line.find(':') + 1)) / 1024.0;
  return 0;
}

void RestartPeak() { std::ofstream("/proc/self/clear_refs") << "5"; }

void BM_LoadModelDocument(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const std::string path = ScratchPath("-load.json");
  model::SaveModelDocument(RandomNodes(count), path);
  const auto bytes = static_cast<int64_t>(std::filesystem::file_size(path));
  for (auto _ : state) benchmark::DoNotOptimize(model::LoadModelDocument(path).nodes.data());
  std::remove(path.c_str());
  state.SetBytesProcessed(state.iterations() * bytes);
  state.SetItemsProcessed(state.iterations() * count);
  state.counters["file_MB"] = static_cast<double>(bytes) / (1024.0 * 1024.0);
}
BENCHMARK(BM_LoadModelDocument)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();

// Run alone (--benchmark_filter=LoadModelDocumentMemory): once the allocator holds memory of
// earlier runs, it is reused and no longer shows. The peak beyond the records is the text and
// its index.
void BM_LoadModelDocumentMemory(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const std::string path = ScratchPath("-memory.json");
  model::SaveModelDocument(RandomNodes(count), path);
  double beyondRecords = 0;
  for (auto _ : state) {
    const double before = StatusMB("VmRSS");
    RestartPeak();
    const model::ModelDocument doc = model::LoadModelDocument(path);
    const double records = doc.nodes.capacity() * sizeof(fmNd) / (1024.0 * 1024.0);
    beyondRecords = StatusMB("VmHWM") - before - records;
  }
  std::remove(path.c_str());
  state.counters["peak_beyond_records_MB"] = beyondRecords;
}
BENCHMARK(BM_LoadModelDocumentMemory)->Arg(1000000)->Iterations(1)->Unit(benchmark::kMillisecond);

void BM_SaveModelDocument(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const model::ModelDocument doc = RandomNodes(count);
  const std::string path = ScratchPath("-save.json");
  double beyondRecords = 0;
  bool first = true;
  for (auto _ : state) {
    state.PauseTiming();
    const double before = StatusMB("VmRSS");
    RestartPeak();
    state.ResumeTiming();
    model::SaveModelDocument(doc, path);
    state.PauseTiming();
    if (first) beyondRecords = StatusMB("VmHWM") - before;
    first = false;
    state.ResumeTiming();
  }
  const auto bytes = static_cast<int64_t>(std::filesystem::file_size(path));
  std::remove(path.c_str());
  state.SetBytesProcessed(state.iterations() * bytes);
  state.SetItemsProcessed(state.iterations() * count);
  state.counters["peak_beyond_records_MB"] = beyondRecords;
}
BENCHMARK(BM_SaveModelDocument)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
