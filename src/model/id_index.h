#pragma once
#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace model {

// Position of a record by its number, for tables of up to millions of rows: a direct table
// when the numbers are compact (the usual 1..n), else a sorted list searched by halves.
// The first of several records with one number is found.
class IdIndex {
 public:
  template <class Range, class IdOf>
  void Build(const Range& records, IdOf idOf) {
    direct_.clear();
    sorted_.clear();
    const size_t n = records.size();
    if (n == 0) return;
    int64_t lo = idOf(records[0]), hi = lo;
    for (size_t i = 1; i < n; ++i) {
      const int64_t id = idOf(records[i]);
      lo = std::min(lo, id);
      hi = std::max(hi, id);
    }
    if (hi - lo < static_cast<int64_t>(4 * n + 1024)) {
      base_ = lo;
      direct_.assign(static_cast<size_t>(hi - lo + 1), -1);
      for (size_t i = n; i-- > 0;) direct_[static_cast<size_t>(idOf(records[i]) - lo)] = static_cast<int64_t>(i);
      return;
    }
    sorted_.reserve(n);
    for (size_t i = 0; i < n; ++i) sorted_.emplace_back(idOf(records[i]), static_cast<int64_t>(i));
    std::stable_sort(sorted_.begin(), sorted_.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  }

  // Position of the record, or -1.
  int64_t Find(int64_t id) const {
    if (!direct_.empty()) {
      if (id < base_ || id - base_ >= static_cast<int64_t>(direct_.size())) return -1;
      return direct_[static_cast<size_t>(id - base_)];
    }
    const auto it = std::lower_bound(sorted_.begin(), sorted_.end(), id,
                                     [](const auto& entry, int64_t key) { return entry.first < key; });
    return it != sorted_.end() && it->first == id ? it->second : -1;
  }

 private:
  int64_t base_ = 0;
  std::vector<int64_t> direct_;
  std::vector<std::pair<int64_t, int64_t>> sorted_;
};

// Whether a number is that of one of a table's records: one block of memory, however many
// records (a hash set costs an allocation per record).
class IdSet {
 public:
  template <class Records>
  explicit IdSet(const Records& records) {
    index_.Build(records, [](const auto& r) { return static_cast<int64_t>(r.id); });
  }
  size_t count(uint32_t id) const { return index_.Find(id) >= 0 ? 1 : 0; }

 private:
  IdIndex index_;
};

}  // namespace model
