// The VHDL concurrent assignments: constant and inverting wires, grouped connections, conversion signals and
// the call of the two-dimensional unpacking procedure.
#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/Format.h"
#include "base/LargeTable.h"
#include "base/TextHelpers.h"
#include "cnx/NameSet.h"
#include "hdl/ShapeTexts.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The assignment text built so far (at the end of `out`, from where it started), with its lines indexed so
// that a repeated line is found without searching the text. As long as every line has its one tab at the
// start and its one line feed at the end, the text contains a line exactly when the index holds it;
// otherwise the text is searched. The index keeps each line's place, in an open-addressing table.
class AssignmentText {
 public:
  explicit AssignmentText(std::string& out) : out_(out), start_(out.size()) {}

  void append(const std::string& line) {
    if (!isPlainLine(line)) plain_ = false;
    if (plain_) index(line);
    out_ += line;
  }
  bool contains(const std::string& line) const {
    if (!plain_ || !isPlainLine(line)) return text().find(line) != std::string_view::npos;
    if (slots_.empty()) return false;
    const size_t hash = std::hash<std::string_view>{}(line);
    for (size_t i = hash & (slots_.size() - 1);; i = (i + 1) & (slots_.size() - 1)) {
      const Slot& slot = slots_[i];
      if (slot.length == 0) return false;
      if (slot.hash == hash && lineAt(slot) == line) return true;
    }
  }
  std::string_view text() const { return std::string_view(out_).substr(start_); }

 private:
  struct Slot {
    size_t hash = 0;
    uint32_t length = 0;  // 0: empty (a plain line is at least two characters)
    size_t offset = 0;
  };

  static bool isPlainLine(const std::string& line) {
    return line.size() >= 2 && line.front() == '\t' && line.back() == '\n' &&
           line.find_first_of("\t\n", 1) == line.size() - 1;
  }
  std::string_view lineAt(const Slot& slot) const {
    return std::string_view(out_).substr(slot.offset, slot.length);
  }

  // Adds the line that is about to be appended at the end of the text.
  void index(const std::string& line) {
    if (line.size() > UINT32_MAX) {
      plain_ = false;
      return;
    }
    if ((count_ + 1) * 2 > slots_.size()) grow();
    place(Slot{std::hash<std::string_view>{}(line), static_cast<uint32_t>(line.size()), out_.size()});
    ++count_;
  }
  void place(const Slot& slot) {
    size_t i = slot.hash & (slots_.size() - 1);
    while (slots_[i].length != 0) i = (i + 1) & (slots_.size() - 1);
    slots_[i] = slot;
  }
  void grow() {
    std::vector<Slot, LargeTableAllocator<Slot>> old = std::move(slots_);
    slots_.assign(old.empty() ? 64 : old.size() * 2, Slot{});
    for (const Slot& slot : old) {
      if (slot.length != 0) place(slot);
    }
  }

  std::string& out_;
  size_t start_;
  std::vector<Slot, LargeTableAllocator<Slot>> slots_;  // a power of two long, at most half full
  size_t count_ = 0;
  bool plain_ = true;
};

// Bit strings longer than this are cut to it; no device has vectors anywhere near as wide.
constexpr long long kMaxBitStringLength = 1 << 20;

int bitStringLength(Bound width) {
  return static_cast<int>(std::clamp(vhdlIntegerOf(width), 0LL, kMaxBitStringLength));
}

std::string assignmentLine(std::string_view target, std::string_view value) {
  return formatText("\t%s    <= %s;\n", std::string(target).c_str(), std::string(value).c_str());
}

// Constant wires take their value; a vector constant goes through its bit-vector twin, and VCC is the
// inverse of all zeros. Inverting wires take the inverse of their driving port (in the valid text, of the
// slice they invert).
// A number driving a single bit is written as it stands in the standard text, as its lowest bit in the valid
// one.
void appendWireAssignments(const std::vector<NetlistWire>& wires, AssignmentText& out, HdlTextMode mode) {
  for (const NetlistWire& wire : wires) {
    const Shape shape = shapeOf(wire);
    if (wire.isConstant && shape.isSingleBit()) {
      std::string value = wire.drivingPort.str();
      if (value == "VCC") {
        value = "'1'";
      } else if (value == "GND") {
        value = "'0'";
      } else if (mode == HdlTextMode::kValid) {
        value = vhdlBitOfNumber(wire.drivingPort);
      }
      out.append(assignmentLine(wire.name.view(), value));
    } else if (wire.isConstant) {
      const bool vcc = wire.drivingPort == "VCC";
      const std::string value = vcc ? "GND" : wire.drivingPort.str();
      std::string bits;
      if (!shape.bits.present()) {
        bits = value == "GND" ? "'0'" : value;
      } else if (value == "GND") {
        bits = formatText("\"%s\"",
                          std::string(static_cast<size_t>(bitStringLength(wire.bitsWidth)), '0').c_str());
      } else {
        bits = formatText("\"%s\"", binaryLiteral(value, bitStringLength(wire.bitsWidth)).c_str());
      }
      out.append(
          formatText("\t%s_bv%s <= %s;\n", wire.name.c_str(), vhdlRangeText(shape).c_str(), bits.c_str()));
      out.append(formatText("\t%s    <= %s%sTo_stdlogicvector(%s_bv)%s;\n", wire.name.c_str(),
                            vcc ? "NOT" : "", vcc ? "(" : "", wire.name.c_str(), vcc ? ")" : ""));
    } else if (wire.isInverted) {
      const std::string slice = wire.drivingBits.present() ? vhdlRangeText(Shape{{}, wire.drivingBits}) : "";
      out.append(assignmentLine(wire.name.view(), "NOT(" + wire.drivingPort.str() + slice + ")"));
    }
  }
}

// Consecutive connections with the same target are joined with " & " into one assignment; a group is
// written when the next one opens. The last group is written at the end unless its target is empty (a
// variation port without a name, possible only for a "@" reference before the first MODULE: line), which
// has always been left out.
class GroupedAssignments {
 public:
  // The valid text assigns a variation port's bit to the one-bit wire that carries it into a slice, and
  // reads a constant's wire from bit 0 whatever slice of a variation output it drives.
  GroupedAssignments(const std::vector<NetlistWire>& wires, AssignmentText& out, HdlTextMode mode)
      : out_(out), valid_(mode == HdlTextMode::kValid) {
    for (const NetlistWire& wire : wires) {
      if (wire.isConstant) constantWires_.insert(wire.name);
      if (mode == HdlTextMode::kValid && wire.isConstant) constantShapes_.emplace(wire.name, shapeOf(wire));
      if (mode == HdlTextMode::kValid) wireNames_.insert(wire.name);
      const bool carriesPortBit = !wire.isConstant && !wire.isInverted &&
                                  wire.sourceText == wire.drivingPort && wire.sourceKey == wire.drivingPort;
      if (mode == HdlTextMode::kValid && carriesPortBit) portBitWires_.emplace(wire.name, wire.drivingPort);
    }
  }

  void add(const NetlistConnection& c) {
    const bool variationPort = c.ownInstance.empty();
    if (variationPort && c.role == ConversionRole::kNone) {
      open(c.ownPort.view());
      if (!c.peer.bits.present() && c.own.bits.present()) appendLow(target_, c.own.bits.low);
      right_ += separator_;
      right_ += c.peerName.view();
      const auto constant = constantShapes_.find(c.peerName);
      if (c.peer.bits.present() && !c.own.bits.present()) {
        appendLow(right_, c.peer.bits.low);
      } else {
        right_ += rangeOf(constant == constantShapes_.end() ? c.peer : constant->second);
      }
    } else if (variationPort && c.role == ConversionRole::kFlatSide) {
      open(c.peerName.view());
      right_ += separator_;
      right_ += c.ownPort.view();
    } else if (!variationPort) {
      const bool constantPeer = constantWires_.contains(c.peerName.view());
      const bool oneSideFlat = c.own.bits.present() != c.peer.bits.present();
      if (oneSideFlat && !constantPeer) {
        if (c.role != ConversionRole::kNone) return;
        // The valid text's instance reads a variation port's bit itself, and a single-bit input reads its bit
        // of a wire that something else drives.
        if (valid_ && (!wireNames_.contains(c.peerName.view()) || !c.own.bits.present())) return;
        const auto port = portBitWires_.find(c.peerName);
        if (port != portBitWires_.end() && c.own.bits.width.isOne()) {
          open(c.peerName.view());
          target_ += "(0)";
          right_ += separator_;
          right_ += port->second.view();
        } else {
          addBitSelection(c);
        }
      } else {
        if (c.own.rows.present() || !c.peer.rows.present() || c.role != ConversionRole::kNone) return;
        open(c.peerName.view());
        target_ += rangeOf(wireRanges(c.own));
        right_ += separator_;
        right_ += c.ownPort.view();
      }
    } else {
      return;
    }
    previous_ = target_;
  }

  void finish() {
    if (!previous_.empty()) flush();
  }

 private:
  static void appendLow(std::string& text, Bound low) {
    text += '(';
    low.appendTo(text);
    text += ')';
  }

  const std::string& rangeOf(const Shape& shape) {
    return ranges_.get(keyOf(shape), [&shape] { return vhdlRangeText(shape); });
  }

  // The widths of a shape with both low indices 0.
  static Shape wireRanges(const Shape& shape) {
    return Shape{{shape.rows.width, Bound()}, {shape.bits.width, Bound()}};
  }

  void addBitSelection(const NetlistConnection& c) {
    open(c.peerName.view());
    if (c.peer.isSingleBit() && !c.own.isSingleBit()) {
      if (c.own.bits.present()) {
        appendLow(target_, c.own.bits.low);
      } else if (c.own.rows.present()) {
        appendLow(target_, c.own.rows.low);
      }
    } else {
      target_ += rangeOf(wireRanges(c.own));
    }
    right_ += separator_;
    right_ += c.ownPort.view();
  }

  void open(std::string_view target) {
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
  bool valid_;
  NameSet constantWires_;
  NameSet wireNames_;                               // valid text: every wire
  std::unordered_map<Name, Name> portBitWires_;     // wire -> the variation port whose bit it carries
  std::unordered_map<Name, Shape> constantShapes_;  // valid text: a constant wire -> its bits, from bit 0
  ShapeTexts ranges_;
  std::string target_, previous_, right_, separator_;
};

}  // namespace

std::string VhdlFileWriter::concurrentAssignmentsText(const VhdlNetlist& signals) const {
  std::string text;
  appendConcurrentAssignments(text, signals);
  return text;
}

void VhdlFileWriter::appendConcurrentAssignments(std::string& text, const VhdlNetlist& signals) const {
  const Netlist& netlist = signals.netlist;
  AssignmentText out(text);
  appendWireAssignments(netlist.wires(), out, mode_);
  GroupedAssignments grouped(netlist.wires(), out, mode_);
  for (const NetlistConnection& connection : netlist.connections()) grouped.add(connection);
  grouped.finish();

  for (const NetlistConversion& conversion : signals.conversions)
    text += assignmentLine(conversion.name.view(), conversion.joinedText);
  if (netlist.packsRows()) {
    Name rowSide, flatSide;
    for (const NetlistConnection& connection : netlist.connections()) {
      if (connection.role == ConversionRole::kRowSide) rowSide = connection.peerName;
      if (connection.role == ConversionRole::kFlatSide) flatSide = connection.peerName;
    }
    appendFormatted(text, "\n\tconv_2_2d(signal_out => %s, signal_in => %s);\n\n", rowSide.c_str(),
                    flatSide.c_str());
  }
}

}  // namespace plovix
