// The VHDL concurrent assignments: constant and inverting wires, grouped connections, conversion signals and
// the call of the two-dimensional unpacking procedure.
#include <algorithm>
#include <string>
#include <unordered_set>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The assignment text built so far, with its lines kept in a set so that a repeated line is found without
// searching the text. As long as every line has its one tab at the start and its one line feed at the end,
// the text contains a line exactly when the set holds it; otherwise the text is searched.
class AssignmentText {
 public:
  void append(const std::string& line) {
    text_ += line;
    lines_.insert(line);
    if (!isPlainLine(line)) plain_ = false;
  }
  bool contains(const std::string& line) const {
    if (plain_ && isPlainLine(line)) return lines_.count(line) != 0;
    return text_.find(line) != std::string::npos;
  }
  const std::string& text() const { return text_; }

 private:
  static bool isPlainLine(const std::string& line) {
    return line.size() >= 2 && line.front() == '\t' && line.back() == '\n' &&
           line.find_first_of("\t\n", 1) == line.size() - 1;
  }

  std::string text_;
  std::unordered_set<std::string> lines_;
  bool plain_ = true;
};

// Bit strings longer than this are cut to it; no device has vectors anywhere near as wide.
constexpr long long kMaxBitStringLength = 1 << 20;

int bitStringLength(const std::string& width) {
  return static_cast<int>(std::clamp(vhdlIntegerOf(width), 0LL, kMaxBitStringLength));
}

std::string assignmentLine(const std::string& target, const std::string& value) {
  return formatText("\t%s    <= %s;\n", target.c_str(), value.c_str());
}

// Constant wires take their value; a vector constant goes through its bit-vector twin, and VCC is the
// inverse of all zeros. Inverting wires take the inverse of their driving port.
void appendWireAssignments(const std::vector<NetlistWire>& wires, AssignmentText& out) {
  for (const NetlistWire& wire : wires) {
    if (wire.isConstant && wire.width1 == "0" && wire.width2 == "0") {
      std::string value = wire.drivingPort;
      if (value == "VCC") {
        value = "'1'";
      } else if (value == "GND") {
        value = "'0'";
      }
      out.append(assignmentLine(wire.name, value));
    } else if (wire.isConstant) {
      const bool vcc = wire.drivingPort == "VCC";
      const std::string value = vcc ? "GND" : wire.drivingPort;
      std::string bits;
      if (wire.width2 == "0") {
        bits = value == "GND" ? "'0'" : value;
      } else if (value == "GND") {
        bits =
            formatText("\"%s\"", std::string(static_cast<size_t>(bitStringLength(wire.width2)), '0').c_str());
      } else {
        bits = formatText("\"%s\"", binaryLiteral(value, bitStringLength(wire.width2)).c_str());
      }
      out.append(formatText("\t%s_bv%s <= %s;\n", wire.name.c_str(),
                            vhdlRangeText(wire.width1, "0", wire.width2, "0").c_str(), bits.c_str()));
      out.append(formatText("\t%s    <= %s%sTo_stdlogicvector(%s_bv)%s;\n", wire.name.c_str(),
                            vcc ? "NOT" : "", vcc ? "(" : "", wire.name.c_str(), vcc ? ")" : ""));
    } else if (wire.isInverted) {
      out.append(assignmentLine(wire.name, "NOT(" + wire.drivingPort + ")"));
    }
  }
}

// Consecutive connections with the same target are joined with " & " into one assignment. The sentinel at
// the end of the list opens an empty target and so flushes the last group.
class GroupedAssignments {
 public:
  GroupedAssignments(const std::vector<NetlistWire>& wires, AssignmentText& out) : out_(out) {
    for (const NetlistWire& wire : wires) {
      if (wire.isConstant) constantWires_.insert(wire.name);
    }
  }

  void add(const NetlistConnection& c) {
    if (c.ownInstance.empty() && c.conversionRole == kConversionNone) {
      open(c.ownPort);
      if (c.peerWidth2 == "0" && c.ownWidth2 != "0") target_ += "(" + c.ownLow2 + ")";
      if (c.peerWidth2 != "0" && c.ownWidth2 == "0") {
        right_ += separator_ + c.peerName + "(" + c.peerLow2 + ")";
      } else {
        right_ += separator_ + c.peerName + vhdlRangeText(c.peerWidth1, c.peerLow1, c.peerWidth2, c.peerLow2);
      }
    } else if (c.ownInstance.empty() && c.conversionRole == kConversionFlatSide) {
      open(c.peerName);
      right_ += separator_ + c.ownPort;
    } else if (!c.ownInstance.empty()) {
      const bool constantPeer = constantWires_.count(c.peerName) != 0;
      const bool oneSideFlat = (c.ownWidth2 == "0") != (c.peerWidth2 == "0");
      if (oneSideFlat && !constantPeer) {
        if (c.conversionRole != kConversionNone) return;
        addBitSelection(c);
      } else {
        if (c.ownWidth1 != "0" || c.peerWidth1 == "0" || c.conversionRole != kConversionNone) return;
        open(c.peerName);
        target_ += vhdlRangeText(c.ownWidth1, "0", c.ownWidth2, "0");
        right_ += separator_ + c.ownPort;
      }
    } else {
      return;
    }
    previous_ = target_;
  }

 private:
  void addBitSelection(const NetlistConnection& c) {
    open(c.peerName);
    const bool peerBit = c.peerWidth2 == "0" && c.peerWidth1 == "0";
    const bool ownBit = c.ownWidth2 == "0" && c.ownWidth1 == "0";
    if (peerBit && !ownBit) {
      if (c.ownWidth2 != "0") {
        target_ += "(" + c.ownLow2 + ")";
      } else if (c.ownWidth1 != "0") {
        target_ += "(" + c.ownLow1 + ")";
      }
    } else {
      target_ += vhdlRangeText(c.ownWidth1, "0", c.ownWidth2, "0");
    }
    right_ += separator_ + c.ownPort;
  }

  void open(const std::string& target) {
    if (target != previous_) {
      flush();
      separator_.clear();
      right_.clear();
    } else {
      separator_ = " & ";
    }
    target_ = target;
  }

  void flush() {
    if (right_.empty()) return;
    const std::string line = assignmentLine(previous_, right_);
    if (!out_.contains(line)) out_.append(line);
  }

  AssignmentText& out_;
  std::unordered_set<std::string> constantWires_;
  std::string target_, previous_, right_, separator_;
};

}  // namespace

std::string VhdlFileWriter::concurrentAssignmentsText() const {
  AssignmentText out;
  appendWireAssignments(wires, out);
  GroupedAssignments grouped(wires, out);
  for (const NetlistConnection& connection : connections) grouped.add(connection);

  std::string text = out.text();
  for (const VhdlConversion& conversion : conversions)
    text += assignmentLine(conversion.name, conversion.sourceText);
  if (netlistFlag != 0) {
    std::string rowSide, flatSide;
    for (const NetlistConnection& connection : connections) {
      if (connection.conversionRole == kConversionRowSide) rowSide = connection.peerName;
      if (connection.conversionRole == kConversionFlatSide) flatSide = connection.peerName;
    }
    text += formatText("\n\tconv_2_2d(signal_out => %s, signal_in => %s);\n\n", rowSide.c_str(),
                       flatSide.c_str());
  }
  return text;
}

}  // namespace plovix
