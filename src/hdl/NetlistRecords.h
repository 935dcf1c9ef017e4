// The records the connection netlist builder fills for a writer: wires, connections, sub-module ports.
#pragma once

#include <cstdint>
#include <string>

namespace plovix {

struct NetlistWire {
  std::string sourceText;  // the driving end's key without inversion
  std::string name;        // "sub_wire%d"
  std::string sourceKey;   // how the wire is found again
  std::string drivingPort;
  std::string width1 = "0", width2 = "0";
  bool isConstant = false;
  bool isInverted = false;
  int32_t useCount = 1;
};

enum ConversionRole : int32_t { kConversionNone = 0, kConversionRowSide = 1, kConversionFlatSide = 2 };

struct NetlistConnection {
  std::string ownInstance, ownPort;
  std::string ownWidth1 = "0", ownLow1 = "0", ownRange1;
  std::string ownWidth2 = "0", ownLow2 = "0", ownRange2;
  bool peerInverted = false;
  bool peerIsConstant = false;
  std::string peerInstance, peerName;
  std::string peerWidth1 = "0", peerLow1 = "0", peerRange1;
  std::string peerWidth2 = "0", peerLow2 = "0", peerRange2;
  int32_t conversionRole = kConversionNone;
};

struct SubModulePort {
  std::string moduleName, portName;
  std::string width1 = "0", low1 = "0", width2 = "0", low2 = "0";
  bool scalar = false;
  std::string directionWord;  // "IN", "OUT" or "INOUT"
};

}  // namespace plovix
