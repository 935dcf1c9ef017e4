// Builds the connection netlist (wires and connections) from a description's connection map.
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/TextHelpers.h"
#include "hdl/HdlFileWriter.h"
#include "hdl/NetlistKeys.h"

namespace plovix {

namespace {

// A variation port already widened to its full width for a sub-module port: its wire and widths.
struct WidenedPort {
  std::string wireName, width1, width2;
};

NetlistConnection connectionOf(const std::string& instance, const std::string& port,
                               const CnxConnectionEnd& e) {
  NetlistConnection c;
  c.ownInstance = instance;
  c.ownPort = port;
  c.ownWidth1 = e.ownWidth1;
  c.ownLow1 = e.ownLow1;
  c.ownRange1 = rangeText(e.ownWidth1, e.ownLow1);
  c.ownWidth2 = e.ownWidth2;
  c.ownLow2 = e.ownLow2;
  c.ownRange2 = rangeText(e.ownWidth2, e.ownLow2);
  c.peerInverted = e.peerInverted;
  c.peerIsConstant = e.peerIsConstant;
  c.peerInstance = e.peerInstance;
  c.peerName = e.peerPort;
  c.peerWidth1 = e.peerWidth1;
  c.peerLow1 = e.peerLow1;
  c.peerRange1 = rangeText(e.peerWidth1, e.peerLow1);
  c.peerWidth2 = e.peerWidth2;
  c.peerLow2 = e.peerLow2;
  c.peerRange2 = rangeText(e.peerWidth2, e.peerLow2);
  return c;
}

// After the driving end was replaced by a wire or a variation port: ranges from low 0, flags cleared.
void markRewired(NetlistConnection& c, std::string wireName) {
  c.peerName = std::move(wireName);
  c.peerInstance.clear();
  c.peerRange1 = rangeText(c.peerWidth1, "0");
  c.peerRange2 = rangeText(c.peerWidth2, "0");
  c.peerInverted = false;
  c.peerIsConstant = false;
}

// The per-build state: the scratch list of widened variation ports and the current port's row packing.
class NetlistBuild {
 public:
  explicit NetlistBuild(HdlFileWriter& writer, const CnxDescription& description)
      : w_(writer), description_(description) {}

  void addEnd(const std::string& instance, const std::string& port, CnxConnectionEnd& e);
  void startPort() {
    rowsSeen_ = false;
    flatSide_ = 0;
  }

 private:
  void chooseCase(NetlistConnection& c);
  void widenVariationPort(NetlistConnection& c);
  void packRow(size_t cIndex, const std::string& instance, const std::string& port,
               const CnxConnectionEnd& e);

  HdlFileWriter& w_;
  const CnxDescription& description_;
  std::unordered_map<std::string, WidenedPort> widened_;
  bool rowsSeen_ = false;
  size_t flatSide_ = 0;  // index in connections of the flat-side record of the current port
};

void NetlistBuild::chooseCase(NetlistConnection& c) {
  if (!c.peerInstance.empty() || c.peerIsConstant || c.peerInverted) {
    markRewired(c, w_.wireFor(c));
  } else if (c.ownWidth2 != "0" && c.ownWidth1 == "0" && c.peerWidth2 == "0" && c.peerWidth1 == "0") {
    markRewired(c, w_.wireForBitToBus(c));
  } else if (!c.ownInstance.empty()) {
    if (c.peerWidth2 == c.ownWidth2 && c.peerWidth1 == c.ownWidth1) return;
    if (c.ownWidth1 == "1" && c.peerWidth1 == "0") {
      const bool noSecond = c.peerWidth2 == "0";
      if (noSecond) c.peerWidth2 = "1";
      const std::string name = w_.wireFor(c);
      markRewired(c, name);
      if (noSecond) c.peerWidth2 = "0";
      return;
    }
    if (c.peerWidth2 != c.ownWidth2 && c.peerWidth1 != c.ownWidth1) return;
    widenVariationPort(c);
  }
}

// A variation port that drives part of a sub-module port travels on one wire of the port's full width.
void NetlistBuild::widenVariationPort(NetlistConnection& c) {
  const std::string scratchKey = c.peerInstance + '\0' + c.peerName;
  if (const auto it = widened_.find(scratchKey); it != widened_.end()) {
    c.peerName = it->second.wireName;
    c.peerWidth1 = it->second.width1;
    c.peerWidth2 = it->second.width2;
  } else {
    for (const CnxUsedPort& input : description_.inputPorts) {
      if (input.name != c.peerName) continue;
      c.peerWidth1 = input.width1;
      c.peerWidth2 = input.width2;
      break;
    }
    c.peerName = w_.wireFor(c);
    widened_.emplace(scratchKey, WidenedPort{c.peerName, c.peerWidth1, c.peerWidth2});
  }
  if (c.peerWidth2 != "0" && c.peerWidth1 == "0" && c.peerLow1 != "0" && c.peerLow2 == "0")
    c.peerLow2 = c.peerLow1;
  if (c.peerWidth2 == "0" && c.peerWidth1 != "0" && c.peerLow1 == "0" && c.peerLow2 != "0")
    c.peerLow1 = c.peerLow2;
  markRewired(c, c.peerName);
}

// The driven port is one row of a two-dimensional group: its rows are joined into one flat wire (the flat
// side) that feeds the row-side record.
void NetlistBuild::packRow(size_t cIndex, const std::string& instance, const std::string& port,
                           const CnxConnectionEnd& e) {
  std::vector<NetlistConnection>& list = w_.connections;
  if (!rowsSeen_) {
    w_.netlistFlag = 1;
    const std::string flatWidth =
        decimalText(wrappingProduct(atoiText(e.ownWidth2), atoiText(e.ownLow1) + 1));
    const std::string flatRange = "[" + flatWidth + ":0]";
    NetlistConnection x;
    x.conversionRole = kConversionFlatSide;
    x.ownPort = list[cIndex].peerName;
    x.ownWidth2 = flatWidth;
    x.ownRange2 = flatRange;
    x.peerInstance = e.peerInstance;
    x.peerName.assign(1, ' ');
    x.peerRange1 = "[0:0]";
    x.peerWidth2 = flatWidth;
    x.peerRange2 = flatRange;
    x.peerInverted = e.peerInverted;
    x.peerIsConstant = e.peerIsConstant;
    x.peerName = w_.wireFor(x);
    x.peerInstance.clear();
    x.peerInverted = false;
    x.peerIsConstant = false;
    const std::string flatWire = x.peerName;
    list.push_back(std::move(x));
    flatSide_ = list.size() - 1;
    list[cIndex].ownInstance.clear();

    NetlistConnection y;
    y.conversionRole = kConversionRowSide;
    y.ownInstance = instance;
    y.ownPort = port;
    y.ownWidth1 = e.peerWidth1;
    y.ownLow1 = e.peerLow1;
    y.ownRange1 = "[" + e.peerWidth1 + ":0]";
    y.ownWidth2 = e.ownWidth2;
    y.ownLow2 = e.ownLow2;
    y.ownRange2 = rangeText(e.ownWidth2, e.ownLow2);
    y.peerInstance = e.peerInstance;
    y.peerName = flatWire;
    y.peerWidth1 = e.ownWidth1;
    y.peerLow1 = e.ownLow1;
    y.peerWidth2 = e.peerWidth2;
    y.peerLow2 = e.peerLow2;
    y.peerRange2 = rangeText(e.peerWidth2, e.peerLow2);
    y.peerInverted = e.peerInverted;
    y.peerIsConstant = e.peerIsConstant;
    y.peerWidth1 = decimalText(atoiText(y.peerLow1) + 1);
    markRewired(y, w_.wireFor(y));
    std::swap(y.ownWidth1, y.peerWidth1);
    list.push_back(std::move(y));
    rowsSeen_ = true;
  } else {
    list[flatSide_].ownPort += " & " + list[cIndex].peerName;
  }
  NetlistConnection& c = list[cIndex];
  c.ownInstance.clear();
  c.ownPort = c.peerName;
  c.peerName = e.peerPort;
}

void NetlistBuild::addEnd(const std::string& instance, const std::string& port, CnxConnectionEnd& e) {
  if (!e.peerIsSource) return;
  if (e.peerIsConstant) {
    // A constant takes the shape of the port it drives.
    e.peerWidth1 = e.ownWidth1;
    e.peerLow1 = e.ownLow1;
    e.peerWidth2 = e.ownWidth2;
    e.peerLow2 = e.ownLow2;
  }
  NetlistConnection c = connectionOf(instance, port, e);
  chooseCase(c);
  w_.connections.push_back(std::move(c));
  if (e.ownWidth1 == "1") packRow(w_.connections.size() - 1, instance, port, e);
}

}  // namespace

void HdlFileWriter::buildNetlist() {
  NetlistBuild build(*this, description_);
  CnxConnectionMap& map = description_.connectionMap;
  // One connection (and at most one wire) per driven end, plus the sentinel: reserving them once keeps large
  // descriptions from moving the lists again and again while they grow.
  size_t drivenEnds = 0;
  map.forEach([&drivenEnds](const std::string&, const CnxPortMap& ports) {
    ports.forEach([&drivenEnds](const std::string&, const CnxEndList& ends) {
      for (const CnxConnectionEnd& end : ends) drivenEnds += end.peerIsSource ? 1 : 0;
    });
  });
  connections.reserve(connections.size() + drivenEnds + 1);
  wires.reserve(wires.size() + drivenEnds);
  for (const std::string& instance : map.keys()) {
    CnxPortMap& ports = *map.find(instance);
    for (const std::string& port : ports.keys()) {
      build.startPort();
      for (CnxConnectionEnd& end : *ports.find(port)) build.addEnd(instance, port, end);
    }
  }
  connections.emplace_back();  // the sentinel that closes the writers' last group
}

}  // namespace plovix
