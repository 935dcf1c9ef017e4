// Rewiring for the valid text: one wire per pin for sub-module outputs read in several slices, a plain wire
// under every inverted output, and single bits of variation buses read where they are.
#include "hdl/ValidWiring.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/Format.h"
#include "hdl/NetlistKeys.h"

namespace plovix {

namespace {

// The sub-module port a wire's source names ("inst_component.port"), empty for a variation port, a constant
// or a port of the main module declared with "@" (its wires are widened to the whole port anyway).
std::string_view pinOf(const NetlistWire& wire, const CnxDescription& description) {
  if (wire.isConstant) return {};
  const std::string_view source = wire.sourceText.view();
  const size_t dot = source.find("_component.");
  if (dot == std::string_view::npos) return {};
  const std::string_view pin = source.substr(0, source.find('['));
  const std::string_view instance = source.substr(0, dot);
  const std::string_view port = pin.substr(dot + 11);
  if (instance == description.mainModuleName.view()) {
    for (const CnxUsedPort& declared : description.mainModulePorts)
      if (declared.name == port) return {};
  }
  return pin;
}

long long integerOf(Bound bound) {
  return bound.isInteger() ? bound.value() : 0;
}

// Merges the wires of a pin read in several slices into its first wire, and widens the wire of a pin read in
// one slice above bit 0 to reach that slice; true when some pin changed.
bool joinSlicedPins(Netlist::Parts& parts, const CnxDescription& description, TextPool& texts) {
  std::unordered_map<std::string_view, std::vector<size_t>> wiresOfPin;
  for (size_t w = 0; w < parts.wires.size(); ++w) {
    if (parts.wires[w].isInverted) continue;
    const std::string_view pin = pinOf(parts.wires[w], description);
    if (!pin.empty()) wiresOfPin[pin].push_back(w);
  }
  std::unordered_map<Name, bool> readAboveZero;
  std::unordered_map<Name, Bound> lowRead;  // a wire -> the low bit its first reader with a range reads
  for (const NetlistConnection& c : parts.connections) {
    if (!c.peer.bits.present()) continue;
    if (integerOf(c.peer.bits.low) != 0) readAboveZero[c.peerName] = true;
    lowRead.emplace(c.peerName, c.peer.bits.low);
  }
  // An inverting wire on a pin (wireInvertedPins gave it a plain wire to invert) reads the pin like the
  // others.
  std::unordered_map<Name, std::vector<size_t>> invertersOf;
  for (size_t w = 0; w < parts.wires.size(); ++w) {
    const NetlistWire& wire = parts.wires[w];
    if (!wire.isInverted || pinOf(wire, description).empty()) continue;
    invertersOf[wire.drivingPort].push_back(w);
    if (readAboveZero[wire.name]) readAboveZero[wire.drivingPort] = true;
  }
  std::unordered_map<Name, Name> joinedInto;  // a wire of a joined pin -> the pin's wire
  std::vector<bool> dropped(parts.wires.size(), false);
  for (const auto& [pin, list] : wiresOfPin) {
    const bool aboveZero =
        std::any_of(list.begin(), list.end(), [&](size_t w) { return readAboveZero[parts.wires[w].name]; });
    if (list.size() < 2 && !aboveZero) continue;
    NetlistWire& kept = parts.wires[list.front()];
    for (size_t w : list) {
      joinedInto.emplace(parts.wires[w].name, kept.name);
      if (w != list.front()) dropped[w] = true;
    }
  }
  if (joinedInto.empty()) return false;

  // Each reader reads its own slice of the pin's wire, which is as wide as the highest bit read.
  std::unordered_map<Name, long long> widthOf;
  for (NetlistConnection& c : parts.connections) {
    const auto joined = joinedInto.find(c.peerName);
    if (joined == joinedInto.end()) continue;
    c.peerName = joined->second;
    c.peerBitsRange = texts.intern(rangeText(c.peer.bits));
    const long long top =
        c.peer.bits.present() ? integerOf(c.peer.bits.low) + integerOf(c.peer.bits.width) : 1;
    long long& width = widthOf[joined->second];
    width = std::max(width, top);
  }
  // An inverting wire inverts its slice of the pin's wire, and its readers read it from bit 0.
  std::unordered_map<Name, Range> invertedSlice;
  for (const auto& [plain, inverters] : invertersOf) {
    const auto joined = joinedInto.find(plain);
    if (joined == joinedInto.end()) continue;
    for (size_t w : inverters) {
      NetlistWire& inverter = parts.wires[w];
      const auto low = lowRead.find(inverter.name);
      const Range slice{inverter.bitsWidth, low == lowRead.end() ? Bound() : low->second};
      inverter.drivingPort = joined->second;
      if (slice.present()) inverter.drivingBits = slice;
      invertedSlice.emplace(inverter.name, slice);
      long long& width = widthOf[joined->second];
      width = std::max(width, slice.present() ? integerOf(slice.low) + integerOf(slice.width) : 1);
    }
  }
  for (NetlistConnection& c : parts.connections)
    if (invertedSlice.contains(c.peerName)) c.peer.bits.low = Bound();
  std::vector<NetlistWire> wires;
  for (size_t w = 0; w < parts.wires.size(); ++w) {
    if (dropped[w]) continue;
    NetlistWire wire = parts.wires[w];
    if (const auto width = widthOf.find(wire.name); width != widthOf.end()) {
      if (width->second <= integerOf(wire.bitsWidth)) {
        wires.push_back(wire);
        continue;
      }
      wire.bitsWidth = Bound::ofNumber(width->second, texts);
      // The component declares the pin as wide as its wire, and the wire is as wide as the component's pin,
      // which another instance of the module may use wider.
      const std::string_view pin = pinOf(wire, description);
      const std::string_view port = pin.substr(pin.find("_component.") + 11);
      const std::string_view instance = pin.substr(0, pin.find("_component."));
      for (const CnxModule& module : description.modules) {
        if (module.instanceName != instance) continue;
        for (SubModulePort& merged : parts.subModulePorts) {
          if (merged.moduleName != module.moduleName || merged.portName != port) continue;
          if (integerOf(merged.shape.bits.width) < width->second) {
            merged.shape.bits = Range{wire.bitsWidth, Bound()};
          } else if (merged.shape.bits.width.isInteger()) {
            wire.bitsWidth = merged.shape.bits.width;
          }
        }
      }
    }
    wires.push_back(wire);
  }
  parts.wires = std::move(wires);
  return true;
}

// Gives every inverted sub-module output a plain wire on its pin to invert; true when some output needed one.
bool wireInvertedPins(Netlist::Parts& parts, const CnxDescription& description, TextPool& texts) {
  bool changed = false;
  std::vector<NetlistWire> wires;
  for (const NetlistWire& wire : parts.wires) {
    if (!wire.isInverted || pinOf(wire, description).empty()) {
      wires.push_back(wire);
      continue;
    }
    const auto plain = std::find_if(parts.wires.begin(), parts.wires.end(), [&](const NetlistWire& other) {
      return !other.isInverted && !other.isConstant && other.sourceText == wire.sourceText;
    });
    NetlistWire inverted = wire;
    if (plain != parts.wires.end()) {
      inverted.drivingPort = plain->name;
    } else {
      NetlistWire pinWire = wire;
      pinWire.name = texts.intern(formatText("sub_wire%d", parts.nextWireNumber++));
      pinWire.sourceKey = wire.sourceText;
      pinWire.isInverted = false;
      pinWire.useCount = 0;
      inverted.drivingPort = pinWire.name;
      wires.push_back(pinWire);
    }
    wires.push_back(inverted);
    changed = true;
  }
  if (changed) parts.wires = std::move(wires);
  return changed;
}

const CnxUsedPort* variationPort(const CnxDescription& description, Name name) {
  for (const CnxUsedPort& port : description.inputPorts)
    if (port.name == name) return &port;
  return nullptr;
}

// One bit of a variation bus feeding a single-bit sub-module input reads the bit itself, not a wire as wide
// as the port that nothing drives; a wire left without readers goes. True when some connection changed.
bool readPortBitsDirectly(Netlist::Parts& parts, const CnxDescription& description, TextPool& texts) {
  std::unordered_map<Name, size_t> wireOf;
  for (size_t w = 0; w < parts.wires.size(); ++w) wireOf.emplace(parts.wires[w].name, w);
  std::vector<bool> rewiredFrom(parts.wires.size(), false);
  for (NetlistConnection& c : parts.connections) {
    if (c.ownInstance.empty() || c.role != ConversionRole::kNone || !c.own.isSingleBit() ||
        !c.peer.bits.present() || c.peer.rows.present())
      continue;
    const auto found = wireOf.find(c.peerName);
    if (found == wireOf.end()) continue;
    const NetlistWire& wire = parts.wires[found->second];
    if (wire.isConstant || wire.isInverted ||
        wire.sourceText.view().find("_component.") != std::string::npos ||
        variationPort(description, wire.drivingPort) == nullptr)
      continue;
    rewiredFrom[found->second] = true;
    c.peerName = wire.drivingPort;
    c.peer.bits.width = Bound::ofValue(1);
    c.peerBitsRange = texts.intern(rangeText(c.peer.bits));
  }
  if (std::none_of(rewiredFrom.begin(), rewiredFrom.end(), [](bool b) { return b; })) return false;
  std::vector<bool> read(parts.wires.size(), false);
  for (const NetlistConnection& c : parts.connections)
    if (const auto found = wireOf.find(c.peerName); found != wireOf.end()) read[found->second] = true;
  std::vector<NetlistWire> wires;
  for (size_t w = 0; w < parts.wires.size(); ++w)
    if (!rewiredFrom[w] || read[w]) wires.push_back(parts.wires[w]);
  parts.wires = std::move(wires);
  return true;
}

// An inverted slice of a variation port inverts that slice, not the whole port, and its readers read the
// wire from bit 0. True when some wire changed.
bool invertPortSlices(Netlist::Parts& parts, const CnxDescription& description) {
  std::unordered_map<Name, size_t> wireOf;
  for (size_t w = 0; w < parts.wires.size(); ++w) wireOf.emplace(parts.wires[w].name, w);
  bool changed = false;
  for (NetlistConnection& c : parts.connections) {
    if (c.role != ConversionRole::kNone || !c.peer.bits.present() || c.peer.rows.present()) continue;
    const auto found = wireOf.find(c.peerName);
    if (found == wireOf.end()) continue;
    NetlistWire& wire = parts.wires[found->second];
    if (!wire.isInverted || wire.sourceText.view().find("_component.") != std::string::npos) continue;
    const CnxUsedPort* port = variationPort(description, wire.drivingPort);
    if (port == nullptr || port->shape.rows.present() ||
        port->shape.bits == Range{c.peer.bits.width, c.peer.bits.low})
      continue;
    wire.drivingBits = c.peer.bits;
    c.peer.bits.low = Bound();
    changed = true;
  }
  return changed;
}

}  // namespace

std::unique_ptr<Netlist> validWiring(const Netlist& netlist, const CnxDescription& description) {
  auto texts = std::make_unique<TextPool>();
  Netlist::Parts parts = netlist.parts();
  const bool inverted = wireInvertedPins(parts, description, *texts);
  const bool joined = joinSlicedPins(parts, description, *texts);
  const bool portBits = readPortBitsDirectly(parts, description, *texts);
  const bool slices = invertPortSlices(parts, description);
  if (!joined && !inverted && !portBits && !slices) return nullptr;
  return std::make_unique<Netlist>(std::move(parts), std::move(texts));
}

WireSlices::WireSlices(const Netlist& netlist) {
  for (const NetlistWire& wire : netlist.wires())
    if (!wire.isConstant) wires_.emplace(wire.name, &wire);
}

bool WireSlices::readsPart(const NetlistConnection& connection) const {
  if (connection.ownInstance.empty() || !connection.peer.bits.present() || connection.peer.rows.present() ||
      connection.role != ConversionRole::kNone)
    return false;
  const auto found = wires_.find(connection.peerName);
  if (found == wires_.end() || !found->second->rowsWidth.isZero()) return false;
  return !connection.peer.bits.low.isZero() || !(connection.peer.bits.width == found->second->bitsWidth);
}

}  // namespace plovix
