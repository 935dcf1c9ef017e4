// The texts the netlist builder and the writers compose: range texts and wire keys, and integer helpers.
#pragma once

#include <string>
#include <string_view>

#include "cnx/Bounds.h"

namespace plovix {

// "[" + upper + ":" + low + "]" of a range whose width is not "0", else empty.
std::string rangeText(Bound width, Bound low);
inline std::string rangeText(const Range& range) {
  return rangeText(range.width, range.low);
}

// Appends the key text of a connection end to `out`: "!" (inverted only) + instance + "_component." + port,
// or for a variation port (empty instance) "!" (inverted only) + port.
void appendEndKey(std::string& out, std::string_view instance, std::string_view port, bool inverted);

// The decimal text of an integer.
std::string decimalText(long long value);

// Sum and product of bound numbers that wrap around instead of overflowing, whatever a description holds.
long long wrappingSum(long long a, long long b);
long long wrappingProduct(long long a, long long b);

}  // namespace plovix
