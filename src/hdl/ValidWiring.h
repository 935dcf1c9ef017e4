// The netlist rewired for the valid text: sub-module outputs that the standard text leaves unconnected or
// connects twice get one wire on their pin.
#pragma once

#include <memory>
#include <unordered_map>

#include "hdl/Netlist.h"

namespace plovix {

// A copy of `netlist` (built from `description`) in which every inverted sub-module output inverts a wire
// connected to its pin, and a sub-module output read in several slices drives one wire as wide as the bits
// read, of which each reader reads its slice, and a single-bit sub-module input fed by one bit of a variation
// bus reads that bit of the port. Null when nothing changes. The copy borrows the names of
// `netlist`, which must outlive it.
std::unique_ptr<Netlist> validWiring(const Netlist& netlist, const CnxDescription& description);

// The valid text's sub-module inputs read the slice they use of a wire that is wider or starts lower (the one
// wire on a pin read in several slices or above bit 0).
class WireSlices {
 public:
  explicit WireSlices(const Netlist& netlist);
  // The connection reads part of a plain wire: the range to write after the wire's name.
  bool readsPart(const NetlistConnection& connection) const;

 private:
  std::unordered_map<Name, const NetlistWire*> wires_;
};

}  // namespace plovix
