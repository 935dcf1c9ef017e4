// The VHDL declaration step: widened main-module wires, wires declared once per key with their users renamed,
// and the conversion signals of ports fed by several connections.
#include "hdl/VhdlNetlist.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

#include "base/Format.h"
#include "hdl/MainModuleWires.h"
#include "hdl/SeenItems.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// Decides which wires are declared and renames the connections of the others: a connection fed by a wire
// whose key was declared already takes the name of the wire declared last before it.
std::vector<bool> declareWires(Netlist::Parts& parts, const MainModuleWidening& widening, TextPool& texts) {
  std::vector<bool> declared(parts.wires.size(), true);
  std::unordered_map<Name, Name> renamed;  // a wire not declared -> the wire declared last before it
  SeenItems declaredKeys(',', SeenItems::Layout::kSharedSeparators);
  Name lastDeclared;
  for (size_t w = 0; w < parts.wires.size(); ++w) {
    NetlistWire& wire = parts.wires[w];
    if (wire.isConstant) continue;
    widening.widen(wire, texts);
    if (!declaredKeys.contains(wire.sourceKey.view())) {
      declaredKeys.add(wire.sourceKey);
      lastDeclared = wire.name;
      continue;
    }
    declared[w] = false;
    if (wire.name != lastDeclared) renamed.emplace(wire.name, lastDeclared);
  }
  // A name given by a rename is a declared wire's, so no connection is renamed twice.
  if (!renamed.empty()) {
    for (NetlistConnection& c : parts.connections) {
      if (const auto it = renamed.find(c.peerName); it != renamed.end()) c.peerName = it->second;
    }
  }
  return declared;
}

// The connections that feed one port of an instance, consecutive in the connection list.
struct ConversionGroup {
  Name port;
  int members = 0;
  long long rowsWidth = 0, bitsWidth = 0;
  std::string joined;
};

std::vector<NetlistConversion> conversionsOf(Netlist::Parts& parts, const CnxDescription& description,
                                             TextPool& texts) {
  std::unordered_map<Name, std::vector<size_t>> byInstance;
  for (size_t i = 0; i < parts.connections.size(); ++i)
    byInstance[parts.connections[i].ownInstance].push_back(i);

  std::vector<NetlistConversion> conversions;
  for (const CnxModule& module : description.modules) {
    const Name instance = module.instanceName;
    const auto taken = byInstance.find(instance);
    if (taken == byInstance.end()) continue;
    ConversionGroup group;
    auto close = [&] {
      if (group.members >= 2) {
        NetlistConversion conversion;
        conversion.name = texts.intern(formatText("sub_wire%d", parts.nextWireNumber++));
        conversion.joinedText = std::move(group.joined);
        conversion.key = instance.str() + "." + group.port.str();
        conversion.port = group.port;
        conversion.rowsWidth = Bound::ofNumber(group.rowsWidth, texts);
        conversion.bitsWidth = Bound::ofNumber(group.bitsWidth, texts);
        conversions.push_back(std::move(conversion));
      }
      group = ConversionGroup{};
    };
    for (size_t i : taken->second) {
      const NetlistConnection& connection = parts.connections[i];
      if (group.members > 0 && connection.ownPort != group.port) close();
      if (group.members == 0) group.port = connection.ownPort;
      group.rowsWidth += vhdlIntegerOf(connection.own.rows.width);
      group.bitsWidth += vhdlIntegerOf(connection.own.bits.width);
      if (group.members > 0) group.joined += " & ";
      group.joined += connection.peerName.view();
      group.joined += vhdlRangeText(connection.peer);
      ++group.members;
    }
    close();
  }
  return conversions;
}

}  // namespace

VhdlNetlist declareVhdlSignals(const Netlist& netlist, const CnxDescription& description,
                               std::string_view signatureName) {
  Netlist::Parts parts = netlist.parts();
  auto texts = std::make_unique<TextPool>();
  VhdlNetlist result;
  result.declared = declareWires(parts, MainModuleWidening(description, signatureName), *texts);
  result.conversions = conversionsOf(parts, description, *texts);
  result.netlist = Netlist(std::move(parts), std::move(texts));
  return result;
}

}  // namespace plovix
