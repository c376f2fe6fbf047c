// The one main of norvane_bench; each bench/<topic>_bench.cpp only registers benchmarks.
#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
