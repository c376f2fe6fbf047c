#pragma once
#include <cstddef>
#include <cstdlib>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

// An allocator for vectors that grow to hundreds of megabytes (the cells of a million-row
// grid). Blocks of kLargeBlock bytes and more are aligned to 2 MB and offered to the kernel
// for transparent huge pages, so filling them takes one page fault per 2 MB instead of one
// per 4 KB; smaller blocks come from the ordinary heap. Where the kernel gives no huge pages
// the memory is ordinary memory.
namespace tools {

inline constexpr size_t kHugePage = size_t{2} << 20;
inline constexpr size_t kLargeBlock = size_t{4} << 20;

template <class T>
struct LargeBlockAllocator {
  using value_type = T;

  LargeBlockAllocator() = default;
  template <class U>
  LargeBlockAllocator(const LargeBlockAllocator<U>&) noexcept {}

  T* allocate(size_t n) {
    if (n > static_cast<size_t>(-1) / sizeof(T)) throw std::bad_array_new_length();
    const size_t bytes = n * sizeof(T);
    if (bytes < kLargeBlock) return static_cast<T*>(::operator new(bytes, std::align_val_t{alignof(T)}));
    const size_t rounded = (bytes + kHugePage - 1) / kHugePage * kHugePage;
    void* p = std::aligned_alloc(kHugePage, rounded);
    if (!p) throw std::bad_alloc();
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    madvise(p, rounded, MADV_HUGEPAGE);  // advice only: failure leaves ordinary pages
#endif
    return static_cast<T*>(p);
  }

  void deallocate(T* p, size_t n) noexcept {
    if (n * sizeof(T) < kLargeBlock)
      ::operator delete(p, std::align_val_t{alignof(T)});
    else
      std::free(p);
  }

  template <class U>
  bool operator==(const LargeBlockAllocator<U>&) const noexcept {
    return true;
  }
};

}  // namespace tools
