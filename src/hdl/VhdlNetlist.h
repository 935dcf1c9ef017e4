// The netlist as the VHDL architecture declares it: the explicit step between the netlist and the VHDL
// sections that name its signals.
#pragma once

#include <string_view>
#include <vector>

#include "hdl/HdlTextMode.h"
#include "hdl/Netlist.h"

namespace plovix {

struct VhdlNetlist {
  // Wires from a main-module port widened to the port (MainModuleWidening); connections fed by a wire that
  // is not declared renamed to the wire declared last before it.
  Netlist netlist;
  // Per wire: it gets a SIGNAL line. Constant wires always do; any other wire unless a wire with its key was
  // declared before it.
  std::vector<bool> declared;
  // One conversion signal per group of two or more consecutive connections that feed one port of an
  // instance, numbered after the wires, in the order the groups close.
  std::vector<NetlistConversion> conversions;
};

VhdlNetlist declareVhdlSignals(const Netlist& netlist, const CnxDescription& description,
                               std::string_view signatureName, HdlTextMode mode = HdlTextMode::kStandard);

}  // namespace plovix
