// The connection netlist: wires, connections and the lookups that find or create the wire of a driving end.
#include <string>
#include <unordered_map>
#include <utility>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/HdlFileWriter.h"
#include "hdl/NetlistKeys.h"

namespace plovix {

NetlistWire* HdlFileWriter::findWire(const std::string& key) {
  return wireIndex_.find(wires, key);
}

std::string HdlFileWriter::newWire(const std::string& sourceText, const std::string& key,
                                   const std::string& drivingPort, const std::string& width1,
                                   const std::string& width2, bool inverted, bool constant) {
  if (sourceText.empty()) return {};
  wireIndex_.sync(wires);  // a list emptied since the last lookup is not mistaken for the indexed one
  NetlistWire wire;
  wire.sourceText = sourceText;
  wire.name = formatText("sub_wire%d", wireCounter++);
  wire.sourceKey = key;
  wire.drivingPort = drivingPort;
  wire.width1 = width1;
  wire.width2 = width2;
  wire.isConstant = constant;
  wire.isInverted = inverted;
  wires.push_back(std::move(wire));
  return wires.back().name;
}

namespace {

// The key of a connection's driving end followed by its two range texts.
std::string peerKey(const NetlistConnection& c, bool inverted) {
  return endKeyText(c.peerInstance, c.peerName, inverted) + c.peerRange1 + c.peerRange2;
}

}  // namespace

std::string HdlFileWriter::wireFor(const NetlistConnection& c) {
  const std::string key = peerKey(c, c.peerInverted);
  if (NetlistWire* found = findWire(key)) {
    ++found->useCount;
    return found->name;
  }
  if (c.peerIsConstant) return newWire(key, key, c.peerName, c.ownWidth1, c.ownWidth2, false, true);
  const std::string plainKey = peerKey(c, false);
  if (c.peerInverted) return newWire(plainKey, key, c.peerName, c.peerWidth1, c.peerWidth2, true, false);
  return newWire(plainKey, plainKey, c.peerName, c.peerWidth1, c.peerWidth2, false, false);
}

std::string HdlFileWriter::wireForBitToBus(const NetlistConnection& c) {
  const std::string key = peerKey(c, c.peerInverted);
  if (NetlistWire* found = findWire(key)) {
    ++found->useCount;
    return found->name;
  }
  if (c.peerIsConstant) return newWire(key, key, c.peerName, c.ownWidth1, c.ownWidth2, false, true);
  const std::string plainKey = peerKey(c, false);
  if (!c.peerInverted) return newWire(plainKey, plainKey, c.peerName, c.ownWidth1, c.ownWidth2, false, false);
  // The inverting wire is fed by the plain wire of the driving bit.
  std::string plainName;
  if (const NetlistWire* plain = findWire(plainKey)) {
    plainName = plain->name;
  } else {
    plainName = newWire(plainKey, plainKey, c.peerName, c.ownWidth1, c.ownWidth2, false, false);
  }
  return newWire(plainName + c.peerRange1 + c.peerRange2, key, plainName, c.peerWidth1, c.peerWidth2, true,
                 false);
}

bool HdlFileWriter::fixMainModuleWire(NetlistWire& wire) {
  const std::string cutKey = wire.sourceKey.substr(0, wire.sourceKey.find('['));
  for (const CnxUsedPort& port : description_.mainModulePorts) {
    if (toLowerText(signatureName_ + "_component" + "." + port.name) != cutKey) continue;
    wire.width1 = port.width1;
    wire.width2 = port.width2;
    wire.sourceKey = cutKey + rangeText(port.width1, "0") + rangeText(port.width2, "0");
    wire.sourceText = wire.sourceKey;
    wireIndex_.invalidate();
    return true;
  }
  return false;
}

}  // namespace plovix
