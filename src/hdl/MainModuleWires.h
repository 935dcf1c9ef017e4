// The widening of wires that come from a port of the modulon's own main module: the VHDL and Verilog texts
// declare such a wire with the port's full widths.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "cnx/CnxDescription.h"
#include "hdl/NetlistRecords.h"

namespace plovix {

class MainModuleWidening {
 public:
  MainModuleWidening(const CnxDescription& description, std::string_view signatureName);

  // When the wire's key, cut before its first "[", equals signatureName + "_component." + port name in lower
  // case for a port of the description's main-module ports (the first such port), the wire takes the port's
  // widths and its key and source text become the cut key followed by the range texts of those widths from
  // 0 (kept in `texts`). Whether the wire was widened.
  bool widen(NetlistWire& wire, TextPool& texts) const;

 private:
  std::unordered_map<std::string, const CnxUsedPort*> portOfKey_;
};

}  // namespace plovix
