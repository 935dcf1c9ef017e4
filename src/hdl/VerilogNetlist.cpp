// The Verilog declaration step: widened main-module wires, declared once per driving port.
#include "hdl/VerilogNetlist.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "hdl/MainModuleWires.h"
#include "hdl/NetlistKeys.h"
#include "hdl/SeenItems.h"

namespace plovix {

VerilogNetlist declareVerilogWires(const Netlist& netlist, const CnxDescription& description,
                                   std::string_view signatureName, HdlTextMode mode) {
  auto texts = std::make_unique<TextPool>();
  const MainModuleWidening widening(description, signatureName);
  const std::vector<NetlistWire>& wires = netlist.wires();
  VerilogNetlist result;
  result.declared.assign(wires.size(), true);
  // Only wires of main-module ports change, and the connections they feed; lists are copied when they do.
  std::optional<std::vector<NetlistWire>> newWires;
  std::optional<std::vector<NetlistConnection>> newConnections;

  std::unordered_map<Name, size_t> firstUser;  // peer name -> first connection
  SeenItems seenPorts(' ', SeenItems::Layout::kWrappedItems);
  Name lastDeclared;
  for (size_t w = 0; w < wires.size(); ++w) {
    if (wires[w].isConstant) continue;
    NetlistWire wire = wires[w];
    if (!widening.widen(wire, *texts)) continue;
    if (!newWires) {
      newWires = wires;
      newConnections = netlist.connections();
      for (size_t i = 0; i < newConnections->size(); ++i)
        firstUser.try_emplace((*newConnections)[i].peerName, i);
    }
    const auto found = firstUser.find(wire.name);
    NetlistConnection* user = found == firstUser.end() ? nullptr : &(*newConnections)[found->second];
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
      const bool readsSeveral = mode == HdlTextMode::kValid && user->peer.bits.present();
      user->peerBitsRange =
          texts->intern(readsSeveral ? rangeText(user->peer.bits) : "[" + low + ":" + low + "]");
    }
    (*newWires)[w] = wire;
  }
  result.netlist = Netlist(netlist, std::move(newWires), std::move(newConnections), std::move(texts));
  return result;
}

}  // namespace plovix
