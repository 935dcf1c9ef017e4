// Range texts and wire keys of the connection netlist.
#include "hdl/NetlistKeys.h"

#include "base/Format.h"
#include "base/TextHelpers.h"

namespace plovix {

std::string rangeText(const std::string& width, const std::string& low) {
  if (width == "0") return {};
  return "[" + upperBoundText(width, low) + ":" + low + "]";
}

std::string endKeyText(const std::string& instance, const std::string& port, bool inverted) {
  std::string key = inverted ? "!" : "";
  if (!instance.empty()) key += instance + "_component" + ".";
  return key + port;
}

std::string decimalText(long long value) {
  return formatText("%lld", value);
}

long long wrappingSum(long long a, long long b) {
  return static_cast<long long>(static_cast<unsigned long long>(a) + static_cast<unsigned long long>(b));
}

long long wrappingProduct(long long a, long long b) {
  return static_cast<long long>(static_cast<unsigned long long>(a) * static_cast<unsigned long long>(b));
}

}  // namespace plovix
