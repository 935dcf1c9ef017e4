// The state of one netlist build (used by buildNetlist only): the wires found by key, the variation ports
// widened for sub-modules, and the packing of the current port's rows.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "cnx/FlatMap.h"
#include "hdl/Netlist.h"

namespace plovix {

class NetlistBuilder {
 public:
  NetlistBuilder(const CnxDescription& description, std::string_view signatureName);

  Netlist build();

 private:
  // A connection while it is built: its driving end may still name an instance, be inverted or be a constant.
  struct Pending {
    NetlistConnection c;
    Name peerInstance;
    bool peerInverted = false;
    bool peerIsConstant = false;
  };

  // A variation port already given a wire of its full width for a sub-module port.
  struct WidenedPort {
    Name wire;
    Bound rowsWidth, bitsWidth;
  };

  // NetlistBuilder.cpp: the walk over the connection map, the choice of wiring, the packing of rows.
  void addEnd(Name instance, Name port, const CnxConnectionEnd& end);
  void chooseCase(Pending& p);
  void widenVariationPort(Pending& p);
  void packRow(size_t index, Name instance, Name port, const CnxConnectionEnd& e);
  void finishPort();

  // NetlistWires.cpp: range texts, wire keys, and the wires found or made for driving ends. A key is interned
  // in the netlist's pool, whose tag on it is the number of the first wire with that key plus 1.
  Name rangeText(Bound width, Bound low);
  Name keyOf(const Pending& p, bool inverted);
  NetlistWire* findWire(Name key);
  Name newWire(Name sourceText, Name key, Name drivingPort, Bound rowsWidth, Bound bitsWidth, bool inverted,
               bool constant);
  Name wireFor(const Pending& p);
  Name wireForBitToBus(const Pending& p);
  void markRewired(Pending& p, Name wire);

  // NetlistSubModulePorts.cpp: the merged ports of the instantiated modules.
  void buildSubModulePorts();

  const CnxDescription& description_;
  std::string_view signatureName_;
  std::unique_ptr<TextPool> texts_ = std::make_unique<TextPool>();
  Netlist::Parts parts_;
  // Range texts already made, by the raw words of (width, low): few distinct ranges recur everywhere.
  struct RangeKey {
    uint64_t width, low;
    friend bool operator==(const RangeKey&, const RangeKey&) = default;
  };
  struct RangeKeyHash {
    size_t operator()(const RangeKey& key) const { return key.width * 0x9E3779B97F4A7C15ull ^ key.low; }
  };
  FlatMap<RangeKey, Name, RangeKeyHash> rangeTexts_;
  FlatMap<Name, WidenedPort, NameHash> widened_;
  std::string buffer_;

  // The packing of the current port's rows: whether its first row was seen, the flat-side record and the
  // row wires it joins so far.
  bool rowsSeen_ = false;
  size_t flatSide_ = 0;
  std::string flatJoined_;
};

}  // namespace plovix
