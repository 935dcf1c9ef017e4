// The texts the netlist builder and the writers compose: range texts and wire keys.
#pragma once

#include <string>

namespace plovix {

// "[" + upper + ":" + low + "]" for a width other than "0", else empty.
std::string rangeText(const std::string& width, const std::string& low);

// The key text of a connection end: "!" (inverted only) + instance + "_component." + port, or for a variation
// port ("" instance) "!" (inverted only) + port.
std::string endKeyText(const std::string& instance, const std::string& port, bool inverted);

// The decimal text of an integer.
std::string decimalText(long long value);

// Sum and product of bound numbers that wrap around instead of overflowing, whatever a description holds.
long long wrappingSum(long long a, long long b);
long long wrappingProduct(long long a, long long b);

}  // namespace plovix
