// The VHDL declaration step: widened main-module wires, wires declared once per key with their users renamed,
// and the conversion signals of ports fed by several connections.
#include "hdl/VhdlNetlist.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "base/Format.h"
#include "hdl/InstanceGroups.h"
#include "hdl/MainModuleWires.h"
#include "hdl/SeenItems.h"
#include "hdl/ShapeTexts.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The wires as the architecture declares them, and the connections renamed: a connection fed by a wire
// whose key was declared already takes the name of the wire declared last before it. Lists that do not
// change are not copied.
struct Declaration {
  std::optional<std::vector<NetlistWire>> wires;
  std::optional<std::vector<NetlistConnection>> connections;
  std::vector<bool> declared;
};

Declaration declareWires(const Netlist& netlist, const MainModuleWidening& widening, TextPool& texts) {
  const std::vector<NetlistWire>& wires = netlist.wires();
  Declaration result;
  result.declared.assign(wires.size(), true);
  // The builder gives every wire a key of its own. Only a widened wire can repeat a key, and only a key
  // with a comma can be found inside the text of others; without either every wire is declared as it is.
  bool keysRepeat = false;
  for (const NetlistWire& wire : wires) {
    if (wire.isConstant) continue;
    NetlistWire widened = wire;
    if (widening.widen(widened, texts) || wire.sourceKey.view().find(',') != std::string_view::npos) {
      keysRepeat = true;
      break;
    }
  }
  if (!keysRepeat) return result;

  std::unordered_map<Name, Name> renamed;  // a wire not declared -> the wire declared last before it
  SeenItems declaredKeys(',', SeenItems::Layout::kSharedSeparators);
  Name lastDeclared;
  for (size_t w = 0; w < wires.size(); ++w) {
    if (wires[w].isConstant) continue;
    NetlistWire wire = wires[w];
    if (widening.widen(wire, texts)) {
      if (!result.wires) result.wires = wires;
      (*result.wires)[w] = wire;
    }
    if (!declaredKeys.contains(wire.sourceKey.view())) {
      declaredKeys.add(wire.sourceKey);
      lastDeclared = wire.name;
      continue;
    }
    result.declared[w] = false;
    if (wire.name != lastDeclared) renamed.emplace(wire.name, lastDeclared);
  }
  // A name given by a rename is a declared wire's, so no connection is renamed twice.
  if (!renamed.empty()) {
    result.connections = netlist.connections();
    for (NetlistConnection& c : *result.connections) {
      if (const auto it = renamed.find(c.peerName); it != renamed.end()) c.peerName = it->second;
    }
  }
  return result;
}

// The connections that feed one port of an instance, consecutive in the connection list.
struct ConversionGroup {
  Name port;
  std::vector<size_t> members;
  long long rowsWidth = 0, bitsWidth = 0;
};

// A constant part reads its wire, which holds just the constant's bits: the standard text reads it at the
// part's own bit positions, the valid text from bit 0.
std::vector<NetlistConversion> conversionsOf(const Netlist& netlist, const CnxDescription& description,
                                             TextPool& texts, HdlTextMode mode) {
  std::unordered_map<Name, Shape> constantWires;
  if (mode == HdlTextMode::kValid) {
    for (const NetlistWire& wire : netlist.wires())
      if (wire.isConstant) constantWires.emplace(wire.name, shapeOf(wire));
  }
  const std::vector<NetlistConnection>& connections = netlist.connections();
  const InstanceGroups byInstance(connections);

  int32_t nextWireNumber = netlist.nextWireNumber();
  ShapeTexts ranges;
  std::vector<NetlistConversion> conversions;
  for (const CnxModule& module : description.modules) {
    const Name instance = module.instanceName;
    const std::span<const uint32_t> taken = byInstance.of(instance);
    if (taken.empty()) continue;
    ConversionGroup group;
    auto close = [&] {
      if (group.members.size() >= 2) {
        NetlistConversion conversion;
        conversion.name = texts.intern(formatText("sub_wire%d", nextWireNumber++));
        for (size_t k = 0; k < group.members.size(); ++k) {
          const NetlistConnection& c = connections[group.members[k]];
          if (k > 0) conversion.joinedText += " & ";
          conversion.joinedText += c.peerName.view();
          const auto constant = constantWires.find(c.peerName);
          const Shape& read = constant == constantWires.end() ? c.peer : constant->second;
          conversion.joinedText += ranges.get(keyOf(read), [&read] { return vhdlRangeText(read); });
        }
        conversion.key = instance.str() + "." + group.port.str();
        conversion.port = group.port;
        conversion.rowsWidth = Bound::ofNumber(group.rowsWidth, texts);
        conversion.bitsWidth = Bound::ofNumber(group.bitsWidth, texts);
        conversions.push_back(std::move(conversion));
      }
      group.members.clear();
      group.rowsWidth = group.bitsWidth = 0;
    };
    for (const uint32_t i : taken) {
      const NetlistConnection& connection = connections[i];
      if (!group.members.empty() && connection.ownPort != group.port) close();
      if (group.members.empty()) group.port = connection.ownPort;
      group.rowsWidth += vhdlIntegerOf(connection.own.rows.width);
      group.bitsWidth += vhdlIntegerOf(connection.own.bits.width);
      group.members.push_back(i);
    }
    close();
  }
  return conversions;
}

}  // namespace

VhdlNetlist declareVhdlSignals(const Netlist& netlist, const CnxDescription& description,
                               std::string_view signatureName, HdlTextMode mode) {
  auto texts = std::make_unique<TextPool>();
  Declaration declaration = declareWires(netlist, MainModuleWidening(description, signatureName), *texts);
  VhdlNetlist result;
  result.declared = std::move(declaration.declared);
  TextPool& pool = *texts;
  result.netlist =
      Netlist(netlist, std::move(declaration.wires), std::move(declaration.connections), std::move(texts));
  result.conversions = conversionsOf(result.netlist, description, pool, mode);
  return result;
}

}  // namespace plovix
