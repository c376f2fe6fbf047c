#pragma once
#include <algorithm>
#include <cstddef>
#include <exception>
#include <system_error>
#include <thread>
#include <vector>

// Work over a million nodes split across the machine's cores.
namespace tools {

// The most threads one call uses; past a few cores the work is bound by memory anyway.
inline constexpr unsigned kMaxWorkThreads = 8;

// Calls work(begin, end) for contiguous ranges covering [0, count), one range per core, each
// of at least minPerRange items; on the calling thread alone when there is not enough work
// to share. The ranges must be independent of each other. Returns when every range is done;
// the first exception a range threw is then thrown again. A thread that cannot be started
// leaves its range to the calling thread.
template <class Work>
void ParallelRanges(size_t count, size_t minPerRange, Work&& work) {
  const size_t cores = std::clamp<size_t>(std::thread::hardware_concurrency(), 1, kMaxWorkThreads);
  const size_t ranges = std::min(cores, count / std::max<size_t>(minPerRange, 1));
  if (ranges <= 1) {
    if (count > 0) work(size_t{0}, count);
    return;
  }
  std::vector<std::exception_ptr> failures(ranges);
  auto run = [&](size_t r) {
    try {
      work(count * r / ranges, count * (r + 1) / ranges);
    } catch (...) {
      failures[r] = std::current_exception();
    }
  };
  std::vector<std::thread> threads;
  threads.reserve(ranges - 1);
  std::vector<size_t> leftOver;
  for (size_t r = 1; r < ranges; ++r) {
    try {
      threads.emplace_back(run, r);
    } catch (const std::system_error&) {
      leftOver.push_back(r);
    }
  }
  run(0);
  for (size_t r : leftOver) run(r);
  for (std::thread& t : threads) t.join();
  for (const std::exception_ptr& failure : failures)
    if (failure) std::rethrow_exception(failure);
}

}  // namespace tools
