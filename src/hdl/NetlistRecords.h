// The records of a connection netlist: wires, connections, sub-module ports and the VHDL conversion signals.
#pragma once

#include <cstdint>
#include <string>

#include "cnx/Bounds.h"
#include "cnx/TextPool.h"

namespace plovix {

// An internal signal, named "sub_wire<n>", that carries one driving end (a sub-module output, an inverted
// port, a constant, a variation port widened for a sub-module, or packed rows).
struct NetlistWire {
  Name name;
  // The driving end's key without inversion: instance + "_component." + port (or the port alone) followed
  // by its range texts; for the inverting wire of one bit driving a bus, the plain wire's name and ranges.
  Name sourceText;
  // The key the wire is found by: sourceText, or for an inverting wire "!" in front of the end's key.
  Name sourceKey;
  // The driving port's name; for a constant wire the constant ("VCC", "GND" or a number); for the inverting
  // wire of one bit driving a bus the plain wire's name.
  Name drivingPort;
  // The widths of the wire's two ranges (width1, width2); its low indices are always 0.
  Bound rowsWidth;
  Bound bitsWidth;
  // The valid text's inverting wire of a slice of a variation port: the slice it inverts (absent: the whole
  // port, as the standard text always inverts it).
  Range drivingBits;
  bool isConstant = false;
  bool isInverted = false;
  int32_t useCount = 1;  // the connections it carries
};

// The shape of a wire: its two widths, both ranges from 0.
inline Shape shapeOf(const NetlistWire& wire) {
  return Shape{{wire.rowsWidth, Bound()}, {wire.bitsWidth, Bound()}};
}

// What a connection record stands for in the packing of two-dimensional rows.
enum class ConversionRole : uint8_t {
  kNone = 0,
  kRowSide = 1,   // feeds the two-dimensional port from the packed rows
  kFlatSide = 2,  // joins the rows into one flat wire
};

// One driven end and what drives it. The driven end is a port of a sub-module instance, or a variation port
// when `ownInstance` is empty (for packed rows: a row wire). After the build every driving end is a variation
// port or a wire, named by `peerName`.
struct NetlistConnection {
  Name ownInstance;
  Name ownPort;  // for the flat side of packed rows: the row wires joined with " & "
  Shape own;
  Name peerName;
  Shape peer;
  // The range texts "[high:low]" of the driving end's two ranges (empty for an absent range), as the wire
  // keys and the Verilog text use them.
  Name peerRowsRange;
  Name peerBitsRange;
  ConversionRole role = ConversionRole::kNone;
};

// The direction in which a sub-module port is used.
enum class SubModuleDirection : uint8_t { kIn, kOut, kInOut };

// "IN", "OUT" or "INOUT".
const char* subModuleDirectionWord(SubModuleDirection direction);

// A port of an instantiated module with the bounds merged over every instance of that module.
struct SubModulePort {
  Name moduleName;
  Name portName;
  Shape shape;          // rows.width is the highest index + 1 of the first range
  bool scalar = false;  // the first end seen had all four own values "0"
  SubModuleDirection direction = SubModuleDirection::kIn;
};

// A VHDL conversion signal: one sub-module port fed by several connections, whose parts are joined with
// " & " into one signal.
struct NetlistConversion {
  Name name;               // "sub_wire<n>", numbered after the wires
  std::string joinedText;  // the parts, each peer name with its range, joined with " & "
  std::string key;         // instance + "." + port
  Name port;
  Bound rowsWidth;  // the sums of the parts' widths
  Bound bitsWidth;
};

}  // namespace plovix
