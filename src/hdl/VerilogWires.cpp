// The first part of the Verilog body: the internal wires with their values, then the variation's outputs
// assigned from the wires and ports that feed them.
#include <optional>
#include <string>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/NetlistKeys.h"
#include "hdl/ShapeTexts.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {

namespace {

std::string wireLine(RangeTexts& ranges, const NetlistWire& wire, const std::string& value) {
  const Range rows{wire.rowsWidth, Bound()};
  const Range bits{wire.bitsWidth, Bound()};
  return formatText(
      "\twire %s%s %s%s;\n", ranges.get(keyOf(rows), [&rows] { return rangeText(rows); }).c_str(),
      ranges.get(keyOf(bits), [&bits] { return rangeText(bits); }).c_str(), wire.name.c_str(), value.c_str());
}

// The value a plain wire is declared with: the inverted port (or slice), the port itself, or none.
std::string plainWireValue(const NetlistWire& wire) {
  if (wire.isInverted) return " = ~" + wire.drivingPort.str() + rangeText(wire.drivingBits);
  if (wire.sourceText == wire.drivingPort && wire.drivingPort == wire.sourceKey)
    return " = " + wire.drivingPort.str();
  return {};
}

// "[high:low]" of a summed width and a low index as written; empty for the width 0.
std::string groupRange(long long width, Bound low) {
  if (width == 0) return {};
  const std::string lowText = low.text();
  return "[" + upperBoundText(decimalText(width), lowText) + ":" + lowText + "]";
}

// The ranges of the variation port `name` as its declaration gives them (empty for a single bit); none for an
// unknown port.
std::optional<std::string> declaredRanges(const CnxDescription& description, Name name) {
  for (const CnxUsedPort& port : description.outputPorts) {
    if (port.name == name) return rangeText(port.shape.rows) + rangeText(port.shape.bits);
  }
  return std::nullopt;
}

// One group of consecutive connections that drive the same variation port.
struct OutputGroup {
  Name port;
  Bound rowsLow, bitsLow;
  std::string rightHand;
  long long rowsWidth = 0, bitsWidth = 0;
  int members = 0;
  // The valid text declares the output with its port's own ranges; none: from the group's widths.
  std::optional<std::string> portRanges;

  std::string text() const {
    if (rightHand.empty()) return {};
    const std::string value = members == 1 ? rightHand + ";\n" : "{" + rightHand + "};\n";
    const std::string ranges =
        portRanges ? *portRanges : groupRange(rowsWidth, rowsLow) + groupRange(bitsWidth, bitsLow);
    return "\twire " + ranges + " " + port.str() + " = " + value;
  }
};

}  // namespace

// Constant wires with their values, the declared plain wires, then the variation's outputs assigned from
// the wires and ports that feed them, groups of consecutive connections to one output joined in braces. The
// last group is written unless its output has an empty name (possible only for a "@" reference before the
// first MODULE: line), which has always been left out.
std::string VerilogFileWriter::wireText(const VerilogNetlist& declaration) const {
  std::string text;
  appendWires(text, declaration);
  return text;
}

void VerilogFileWriter::appendWires(std::string& text, const VerilogNetlist& declaration) const {
  const Netlist& netlist = declaration.netlist;
  RangeTexts ranges;
  for (size_t w = 0; w < netlist.wires().size(); ++w) {
    const NetlistWire& wire = netlist.wires()[w];
    if (wire.isConstant) {
      text += toLowerText(
          wireLine(ranges, wire, " = " + verilogConstantValue(wire.drivingPort, wire.bitsWidth, mode_)));
    } else if (declaration.declared[w]) {
      text += toLowerText(wireLine(ranges, wire, plainWireValue(wire)));
    }
  }

  OutputGroup group;
  bool open = false;
  for (const NetlistConnection& c : netlist.connections()) {
    if (!c.ownInstance.empty()) continue;
    if (open && c.ownPort != group.port) {
      text += toLowerText(group.text());
      open = false;
    }
    if (!open) {
      group = OutputGroup{};
      group.port = c.ownPort;
      group.rowsLow = c.own.rows.low;
      group.bitsLow = c.own.bits.low;
      if (mode_ == HdlTextMode::kValid) group.portRanges = declaredRanges(description_, c.ownPort);
      open = true;
    }
    group.rowsWidth = wrappingSum(group.rowsWidth, verilogWidthNumber(c.peer.rows.width));
    group.bitsWidth = wrappingSum(group.bitsWidth, verilogWidthNumber(c.peer.bits.width));
    group.rightHand += group.members++ == 0 ? "" : ", ";
    group.rightHand += c.peerName.view();
    group.rightHand += c.peerRowsRange.view();
    group.rightHand += c.peerBitsRange.view();
  }
  if (open && !group.port.empty()) text += toLowerText(group.text());
}

}  // namespace plovix
