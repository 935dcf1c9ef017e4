// Range texts and wire keys of the connection netlist.
#include "hdl/NetlistKeys.h"

#include "base/Format.h"

namespace plovix {

std::string rangeText(Bound width, Bound low) {
  if (width.isZero()) return {};
  std::string text = "[" + Range{width, low}.upperText() + ":";
  low.appendTo(text);
  return text + "]";
}

void appendEndKey(std::string& out, std::string_view instance, std::string_view port, bool inverted) {
  if (inverted) out += '!';
  if (!instance.empty()) {
    out += instance;
    out += "_component.";
  }
  out += port;
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
