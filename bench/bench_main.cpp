#include <benchmark/benchmark.h>

// The one entry point of norvane_bench; each topic adds its own bench/<topic>_bench.cpp.
BENCHMARK_MAIN();
