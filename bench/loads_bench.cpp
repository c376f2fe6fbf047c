#include <benchmark/benchmark.h>

#include "dialogs/loads/load_combinations.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace {

// A large building model: 2,000 load cases spread over all load types, "Other" included.
std::vector<fmLoadCase> ManyCases(int count) {
  std::vector<fmLoadCase> cases;
  cases.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) {
    const LoadType& type = LoadTypes()[static_cast<size_t>(i % (kLoadTypeCount + 1))];
    cases.emplace_back(i + 1, tools::Format("%s case %d", type.longName, i + 1), type.combined);
  }
  return cases;
}

void BM_GenerateIbc2015LrfdAllRows(benchmark::State& state) {
  const auto cases = ManyCases(static_cast<int>(state.range(0)));
  const loads::StdCombCode& code = *loads::FindStandardCombinationCode(0);
  const std::vector<int32_t> checks(code.rows.size(), 1);
  // A model that already holds many combinations, all of which the prefix check reads.
  std::vector<fmLoadComb> existing;
  loads::AddUnitCaseCombinations(cases, existing);
  size_t items = 0;
  for (auto _ : state) {
    std::vector<fmLoadComb> combs = existing;
    const auto result = loads::GenerateStandardCombinations(cases, combs, code, checks, false);
    benchmark::DoNotOptimize(result.added);
    items = 0;
    for (size_t i = existing.size(); i < combs.size(); ++i) items += combs[i].items.size();
  }
  state.counters["items"] = static_cast<double>(items);
}
BENCHMARK(BM_GenerateIbc2015LrfdAllRows)->Arg(2000)->Unit(benchmark::kMillisecond);

void BM_LabelsEqualMixedScripts(benchmark::State& state) {
  const std::string a = "Überlast Σεισμός 2 Wind X", b = "ÜBERLAST ΣΕΙΣΜΌΣ 2 WIND X";
  for (auto _ : state) benchmark::DoNotOptimize(tools::LabelsEqual(a, b));
}
BENCHMARK(BM_LabelsEqualMixedScripts);

}  // namespace
