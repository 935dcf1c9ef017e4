// An allocator for large hash tables, which are read at random: an allocation of 2 MiB or more is placed on
// huge pages where the system offers them, so that a lookup does not also miss the address translation.
#pragma once

#include <cstddef>
#include <memory>
#include <new>

namespace plovix {

// Places `bytes` of storage on huge pages where possible; for LargeTableAllocator.
void* allocateLargeTable(size_t bytes);
void releaseLargeTable(void* storage);

inline constexpr size_t kLargeTableBytes = size_t{2} << 20;

// Asks for huge pages under the whole 2 MiB pages of a large buffer that is about to be filled (a file's
// text, a long list), so that filling it takes one page fault per 2 MiB instead of one per 4 KiB. Only
// advice: the buffer works the same where the system does not follow it.
void adviseHugePages(const void* storage, size_t bytes);

template <class T>
struct LargeTableAllocator {
  using value_type = T;

  LargeTableAllocator() = default;
  template <class U>
  LargeTableAllocator(const LargeTableAllocator<U>&) {}

  T* allocate(size_t n) {
    if (n * sizeof(T) < kLargeTableBytes) return std::allocator<T>().allocate(n);
    return static_cast<T*>(allocateLargeTable(n * sizeof(T)));
  }
  void deallocate(T* storage, size_t n) {
    if (n * sizeof(T) < kLargeTableBytes) return std::allocator<T>().deallocate(storage, n);
    releaseLargeTable(storage);
  }

  template <class U>
  friend bool operator==(const LargeTableAllocator&, const LargeTableAllocator<U>&) {
    return true;
  }
};

}  // namespace plovix
