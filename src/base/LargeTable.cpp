// Large tables on huge pages.
#include "base/LargeTable.h"

#include <sys/mman.h>

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

void releaseLargeTable(void* storage) {
  std::free(storage);
}

}  // namespace plovix
