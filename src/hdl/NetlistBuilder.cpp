// Builds the connection netlist from a description's connection map: one connection per driven end, its
// driving end replaced by a wire where the writers need one, and the rows of two-dimensional ports packed.
#include "hdl/NetlistBuilder.h"

#include <utility>

#include "hdl/NetlistKeys.h"

namespace plovix {

namespace {

// A connection from the end filed under (instance, port) that describes what drives it.
NetlistConnection connectionOf(Name instance, Name port, const CnxConnectionEnd& e) {
  NetlistConnection c;
  c.ownInstance = instance;
  c.ownPort = port;
  c.own = e.own;
  c.peerName = e.peerPort;
  c.peer = e.peer;
  return c;
}

}  // namespace

NetlistBuilder::NetlistBuilder(const CnxDescription& description, std::string_view signatureName)
    : description_(description), signatureName_(signatureName) {}

Netlist NetlistBuilder::build() {
  const CnxConnectionMap& map = description_.connectionMap;
  // At most one connection and one wire per driven end.
  parts_.connections.reserve(map.endCount() / 2 + 1);
  parts_.wires.reserve(map.endCount() / 2 + 1);
  for (const CnxConnectionMap::Instance& instance : map.instances()) {
    for (const CnxConnectionMap::Port& port : map.portsOf(instance)) {
      rowsSeen_ = false;
      for (const CnxConnectionEnd& end : map.endsOf(port)) addEnd(instance.name, port.name, end);
      finishPort();
    }
  }
  buildSubModulePorts();
  return Netlist(std::move(parts_), std::move(texts_));
}

// Only ends that describe what drives their port make connections; a constant takes the shape of the port
// it drives.
void NetlistBuilder::addEnd(Name instance, Name port, const CnxConnectionEnd& filed) {
  if (!filed.peerIsSource) return;
  CnxConnectionEnd e = filed;
  if (e.peerIsConstant) e.peer = e.own;
  Pending p{connectionOf(instance, port, e), e.peerInstance, e.peerInverted, e.peerIsConstant};
  p.c.peerRowsRange = rangeText(e.peer.rows.width, e.peer.rows.low);
  p.c.peerBitsRange = rangeText(e.peer.bits.width, e.peer.bits.low);
  chooseCase(p);
  parts_.connections.push_back(p.c);
  if (e.own.rows.width.isOne()) packRow(parts_.connections.size() - 1, instance, port, e);
}

// Whether the driving end gets a wire: always for a sub-module output, a constant or an inverted end, for
// one bit driving a bus, and for a variation port that drives part of a sub-module port.
void NetlistBuilder::chooseCase(Pending& p) {
  NetlistConnection& c = p.c;
  if (!p.peerInstance.empty() || p.peerIsConstant || p.peerInverted) {
    markRewired(p, wireFor(p));
  } else if (c.own.bits.present() && !c.own.rows.present() && !c.peer.bits.present() &&
             !c.peer.rows.present()) {
    markRewired(p, wireForBitToBus(p));
  } else if (!c.ownInstance.empty()) {
    if (c.peer.bits.width == c.own.bits.width && c.peer.rows.width == c.own.rows.width) return;
    if (c.own.rows.width.isOne() && !c.peer.rows.present()) {
      // One bit into a row: the wire is keyed and ranged as one bit wide.
      const bool noBits = !c.peer.bits.present();
      if (noBits) c.peer.bits.width = Bound::ofValue(1);
      markRewired(p, wireFor(p));
      if (noBits) c.peer.bits.width = Bound();
      return;
    }
    if (c.peer.bits.width != c.own.bits.width && c.peer.rows.width != c.own.rows.width) return;
    widenVariationPort(p);
  }
}

// A variation port that drives part of a sub-module port travels on one wire of the port's full width; the
// low index follows the range in use.
void NetlistBuilder::widenVariationPort(Pending& p) {
  NetlistConnection& c = p.c;
  if (const WidenedPort* widened = widened_.find(c.peerName)) {
    c.peerName = widened->wire;
    c.peer.rows.width = widened->rowsWidth;
    c.peer.bits.width = widened->bitsWidth;
  } else {
    for (const CnxUsedPort& input : description_.inputPorts) {
      if (input.name != c.peerName) continue;
      c.peer.rows.width = input.shape.rows.width;
      c.peer.bits.width = input.shape.bits.width;
      break;
    }
    const Name port = c.peerName;
    c.peerName = wireFor(p);
    widened_.tryEmplace(port, WidenedPort{c.peerName, c.peer.rows.width, c.peer.bits.width});
  }
  if (c.peer.bits.present() && !c.peer.rows.present() && !c.peer.rows.low.isZero() &&
      c.peer.bits.low.isZero())
    c.peer.bits.low = c.peer.rows.low;
  if (!c.peer.bits.present() && c.peer.rows.present() && c.peer.rows.low.isZero() &&
      !c.peer.bits.low.isZero())
    c.peer.rows.low = c.peer.bits.low;
  markRewired(p, c.peerName);
}

// The driven port is one row of a two-dimensional group. The port's first row makes a flat-side record,
// whose wire joins all rows of the port, and a row-side record that feeds the port from it; every row
// record then assigns its row wire from the variation port that drives it.
void NetlistBuilder::packRow(size_t index, Name instance, Name port, const CnxConnectionEnd& e) {
  std::vector<NetlistConnection>& list = parts_.connections;
  if (!rowsSeen_) {
    parts_.packsRows = true;
    TextPool& texts = *texts_;
    const long long flat = wrappingProduct(e.own.bits.width.value(), e.own.rows.low.value() + 1);
    const Bound flatWidth = Bound::ofNumber(flat, texts);
    const Name flatRange = texts.intern("[" + decimalText(flat) + ":0]");

    Pending x;
    x.c.role = ConversionRole::kFlatSide;
    x.c.own.bits.width = flatWidth;
    x.c.peerName = texts.intern(" ");
    x.c.peerRowsRange = texts.intern("[0:0]");
    x.c.peer.bits.width = flatWidth;
    x.c.peerBitsRange = flatRange;
    x.peerInstance = e.peerInstance;
    x.peerInverted = e.peerInverted;
    x.peerIsConstant = e.peerIsConstant;
    x.c.peerName = wireFor(x);
    const Name flatWire = x.c.peerName;
    flatJoined_ = list[index].peerName.view();
    list.push_back(x.c);
    flatSide_ = list.size() - 1;
    list[index].ownInstance = Name();

    Pending y;
    y.c.role = ConversionRole::kRowSide;
    y.c.ownInstance = instance;
    y.c.ownPort = port;
    y.c.own.rows = e.peer.rows;
    y.c.own.bits = e.own.bits;
    y.c.peerName = flatWire;
    y.c.peer.rows = e.own.rows;
    y.c.peer.bits = e.peer.bits;
    y.c.peerBitsRange = rangeText(e.peer.bits.width, e.peer.bits.low);
    y.peerInstance = e.peerInstance;
    y.peerInverted = e.peerInverted;
    y.peerIsConstant = e.peerIsConstant;
    y.c.peer.rows.width = Bound::ofNumber(y.c.peer.rows.low.value() + 1, texts);
    markRewired(y, wireFor(y));
    std::swap(y.c.own.rows.width, y.c.peer.rows.width);
    list.push_back(y.c);
    rowsSeen_ = true;
  } else {
    flatJoined_ += " & ";
    flatJoined_ += list[index].peerName.view();
  }
  NetlistConnection& c = list[index];
  c.ownInstance = Name();
  c.ownPort = c.peerName;
  c.peerName = e.peerPort;
}

// The flat-side record of the port's rows names all row wires.
void NetlistBuilder::finishPort() {
  if (!rowsSeen_) return;
  parts_.connections[flatSide_].ownPort = texts_->intern(flatJoined_);
  rowsSeen_ = false;
}

Netlist buildNetlist(const CnxDescription& description, std::string_view signatureName) {
  return NetlistBuilder(description, signatureName).build();
}

}  // namespace plovix
