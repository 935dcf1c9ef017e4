// The largest CNX description plovix reads: a bound on its size and on the length of one line, so that every
// text built from it stays far from any limit of the formatting and of memory.
#pragma once

#include <cstddef>

namespace plovix {

inline constexpr size_t kMaxDescriptionBytes = size_t{64} << 20;     // 64 MiB
inline constexpr size_t kMaxDescriptionLineBytes = size_t{1} << 20;  // 1 MiB

}  // namespace plovix
