// Large tables on huge pages.
#include "base/LargeTable.h"

#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>
#include <new>

namespace plovix {

void* allocateLargeTable(size_t bytes) {
  const size_t rounded = (bytes + kLargeTableBytes - 1) / kLargeTableBytes * kLargeTableBytes;
  void* storage = std::aligned_alloc(kLargeTableBytes, rounded);
  if (storage == nullptr) throw std::bad_alloc();
#ifdef MADV_HUGEPAGE
  // Only advice: where huge pages are not offered the table works the same.
  madvise(storage, rounded, MADV_HUGEPAGE);
#endif
  return storage;
}

void adviseHugePages(const void* storage, size_t bytes) {
#ifdef MADV_HUGEPAGE
  const uintptr_t start = reinterpret_cast<uintptr_t>(storage);
  const uintptr_t first = (start + kLargeTableBytes - 1) / kLargeTableBytes * kLargeTableBytes;
  const uintptr_t end = (start + bytes) / kLargeTableBytes * kLargeTableBytes;
  if (end > first) madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
#else
  (void)storage;
  (void)bytes;
#endif
}

void releaseLargeTable(void* storage) {
  std::free(storage);
}

}  // namespace plovix
