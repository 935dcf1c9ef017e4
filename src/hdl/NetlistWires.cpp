// The wires of a netlist build: range texts and keys of driving ends, and the wire found or made for each.
#include "base/Format.h"
#include "hdl/NetlistBuilder.h"
#include "hdl/NetlistKeys.h"

namespace plovix {

Name NetlistBuilder::rangeText(Bound width, Bound low) {
  if (width.isZero()) return Name();
  const auto [text, added] = rangeTexts_.tryEmplace(RangeKey{width.raw(), low.raw()}, Name());
  if (added) *text = texts_->intern(plovix::rangeText(width, low));
  return *text;
}

// The key of a connection's driving end followed by its two range texts.
Name NetlistBuilder::keyOf(const Pending& p, bool inverted) {
  buffer_.clear();
  appendEndKey(buffer_, p.peerInstance.view(), p.c.peerName.view(), inverted);
  buffer_ += p.c.peerRowsRange.view();
  buffer_ += p.c.peerBitsRange.view();
  return texts_->intern(buffer_);
}

NetlistWire* NetlistBuilder::findWire(Name key) {
  const uint32_t tag = texts_->tag(key);
  return tag == 0 ? nullptr : &parts_.wires[tag - 1];
}

// A wire with the next "sub_wire" number; nothing, and the empty name, for an empty source text.
Name NetlistBuilder::newWire(Name sourceText, Name key, Name drivingPort, Bound rowsWidth, Bound bitsWidth,
                             bool inverted, bool constant) {
  if (sourceText.empty()) return Name();
  NetlistWire wire;
  wire.name = texts_->add(formatText("sub_wire%d", parts_.nextWireNumber++));
  wire.sourceText = sourceText;
  wire.sourceKey = key;
  wire.drivingPort = drivingPort;
  wire.rowsWidth = rowsWidth;
  wire.bitsWidth = bitsWidth;
  wire.isConstant = constant;
  wire.isInverted = inverted;
  if (texts_->tag(key) == 0) texts_->setTag(key, static_cast<uint32_t>(parts_.wires.size()) + 1);
  parts_.wires.push_back(wire);
  return wire.name;
}

// The wire of a driving end, shared by every connection with the same key. A constant wire takes the driven
// end's widths; an inverting wire is found by the inverted key but carries the plain one as its source.
Name NetlistBuilder::wireFor(const Pending& p) {
  const NetlistConnection& c = p.c;
  const Name key = keyOf(p, p.peerInverted);
  if (NetlistWire* found = findWire(key)) {
    ++found->useCount;
    return found->name;
  }
  if (p.peerIsConstant) return newWire(key, key, c.peerName, c.own.rows.width, c.own.bits.width, false, true);
  const Name plainKey = p.peerInverted ? keyOf(p, false) : key;
  return newWire(plainKey, key, c.peerName, c.peer.rows.width, c.peer.bits.width, p.peerInverted, false);
}

// The same for one bit of a variation port driving a bus: a new wire takes the driven end's widths. (Only a
// plain variation port comes here: sub-module outputs, constants and inverted ends were wired before.)
Name NetlistBuilder::wireForBitToBus(const Pending& p) {
  const NetlistConnection& c = p.c;
  const Name key = keyOf(p, false);
  if (NetlistWire* found = findWire(key)) {
    ++found->useCount;
    return found->name;
  }
  return newWire(key, key, c.peerName, c.own.rows.width, c.own.bits.width, false, false);
}

// After the driving end was replaced by a wire or a variation port: ranges from low 0, flags cleared.
void NetlistBuilder::markRewired(Pending& p, Name wire) {
  NetlistConnection& c = p.c;
  c.peerName = wire;
  c.peerRowsRange = rangeText(c.peer.rows.width, Bound());
  c.peerBitsRange = rangeText(c.peer.bits.width, Bound());
  p.peerInstance = Name();
  p.peerInverted = false;
  p.peerIsConstant = false;
}

}  // namespace plovix
