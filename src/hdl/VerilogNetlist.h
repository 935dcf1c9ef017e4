// The netlist as the Verilog module declares its wires: the explicit step that widens and renames wires
// before the Verilog sections print them.
#pragma once

#include <string_view>
#include <vector>

#include "hdl/HdlTextMode.h"
#include "hdl/Netlist.h"

namespace plovix {

struct VerilogNetlist {
  // Wires from a main-module port widened to the port (MainModuleWidening). Of several such wires with the
  // same driving port only the first is declared: each later one takes the name of the wire declared last,
  // and so does the first connection it fed. The first connection fed by any widened wire reads one bit of
  // it: its bits range becomes "[low:low]"; in the valid text it reads the bits it names, "[high:low]".
  Netlist netlist;
  // Per wire: it gets a wire line.
  std::vector<bool> declared;
};

VerilogNetlist declareVerilogWires(const Netlist& netlist, const CnxDescription& description,
                                   std::string_view signatureName, HdlTextMode mode = HdlTextMode::kStandard);

}  // namespace plovix
