// The Verilog declaration step: widened main-module wires, declared once per driving port.
#include "hdl/VerilogNetlist.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

#include "hdl/MainModuleWires.h"
#include "hdl/SeenItems.h"

namespace plovix {

VerilogNetlist declareVerilogWires(const Netlist& netlist, const CnxDescription& description,
                                   std::string_view signatureName) {
  Netlist::Parts parts = netlist.parts();
  auto texts = std::make_unique<TextPool>();
  const MainModuleWidening widening(description, signatureName);
  VerilogNetlist result;
  result.declared.assign(parts.wires.size(), true);

  std::unordered_map<Name, size_t> firstUser;  // peer name -> first connection, made when first needed
  SeenItems seenPorts(' ', SeenItems::Layout::kWrappedItems);
  Name lastDeclared;
  for (size_t w = 0; w < parts.wires.size(); ++w) {
    NetlistWire& wire = parts.wires[w];
    if (wire.isConstant || !widening.widen(wire, *texts)) continue;
    if (firstUser.empty()) {
      for (size_t i = 0; i < parts.connections.size(); ++i)
        firstUser.try_emplace(parts.connections[i].peerName, i);
    }
    const auto found = firstUser.find(wire.name);
    NetlistConnection* user = found == firstUser.end() ? nullptr : &parts.connections[found->second];
    if (!seenPorts.contains(wire.drivingPort.view())) {
      lastDeclared = wire.name;
      seenPorts.add(wire.drivingPort);
    } else {
      result.declared[w] = false;
      if (user != nullptr) user->peerName = lastDeclared;
      wire.name = lastDeclared;
    }
    if (user != nullptr) {
      const std::string low = user->peer.bits.low.text();
      user->peerBitsRange = texts->intern("[" + low + ":" + low + "]");
    }
  }
  result.netlist = Netlist(std::move(parts), std::move(texts));
  return result;
}

}  // namespace plovix
