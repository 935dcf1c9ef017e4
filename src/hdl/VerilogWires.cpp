// The first part of the Verilog body: the internal wires with their values, then the variation's outputs
// assigned from the wires and ports that feed them.
#include <string>
#include <unordered_map>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/NetlistKeys.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {

namespace {

std::string wireLine(const NetlistWire& wire, const std::string& value) {
  return formatText("\twire %s%s %s%s;\n", rangeText(wire.width1, "0").c_str(),
                    rangeText(wire.width2, "0").c_str(), wire.name.c_str(), value.c_str());
}

// The value a plain wire is declared with: the inverted port, the port itself, or none.
std::string plainWireValue(const NetlistWire& wire) {
  if (wire.isInverted) return " = ~" + wire.drivingPort;
  if (wire.sourceText == wire.drivingPort && wire.drivingPort == wire.sourceKey)
    return " = " + wire.drivingPort;
  return {};
}

// One group of consecutive connections that drive the same variation port.
struct OutputGroup {
  std::string port, low1, low2, rightHand;
  long long width1 = 0, width2 = 0;
  int members = 0;

  std::string text() const {
    if (rightHand.empty()) return {};
    const std::string value = members == 1 ? rightHand + ";\n" : "{" + rightHand + "};\n";
    return "\twire " + rangeText(decimalText(width1), low1) + rangeText(decimalText(width2), low2) + " " +
           port + " = " + value;
  }
};

}  // namespace

std::string VerilogFileWriter::wireText() {
  // The netlist is built afresh, so that building the text twice gives the same text.
  wires.clear();
  connections.clear();
  wireCounter = 0;
  netlistFlag = 0;
  wireIndex_.invalidate();
  buildNetlist();

  std::string text;
  std::string seenPorts;
  std::string lastDeclared;
  std::unordered_map<std::string, size_t> firstUser;  // peerName -> first connection, made when first needed
  for (NetlistWire& wire : wires) {
    if (wire.isConstant) {
      text += toLowerText(wireLine(wire, " = " + verilogConstantValue(wire.drivingPort, wire.width2)));
      continue;
    }
    bool declared = true;
    if (fixMainModuleWire(wire)) {
      // Wires of one main-module port are declared once; the later ones reuse the first name.
      if (firstUser.empty()) {
        for (size_t i = 0; i < connections.size(); ++i) firstUser.try_emplace(connections[i].peerName, i);
      }
      const auto found = firstUser.find(wire.name);
      NetlistConnection& user = found == firstUser.end() ? connections.back() : connections[found->second];
      const std::string seenText = " " + wire.drivingPort + " ";
      if (seenPorts.find(seenText) == std::string::npos) {
        lastDeclared = wire.name;
        seenPorts += seenText;
      } else {
        declared = false;
        user.peerName = lastDeclared;
        wire.name = lastDeclared;
      }
      user.peerRange2 = "[" + user.peerLow2 + ":" + user.peerLow2 + "]";
    }
    if (declared) text += toLowerText(wireLine(wire, plainWireValue(wire)));
  }

  OutputGroup group;
  bool open = false;
  for (const NetlistConnection& c : connections) {
    if (!c.ownInstance.empty()) continue;
    if (open && c.ownPort != group.port) {
      text += toLowerText(group.text());
      open = false;
    }
    if (!open) {
      group = OutputGroup{};
      group.port = c.ownPort;
      group.low1 = c.ownLow1;
      group.low2 = c.ownLow2;
      open = true;
    }
    group.width1 =
        wrappingSum(group.width1, verilogWidthNumber(c.peerIsConstant ? c.ownWidth1 : c.peerWidth1));
    group.width2 =
        wrappingSum(group.width2, verilogWidthNumber(c.peerIsConstant ? c.ownWidth2 : c.peerWidth2));
    group.rightHand += (group.members++ == 0 ? "" : ", ") + c.peerName + c.peerRange1 + c.peerRange2;
  }
  return text;
}

}  // namespace plovix
