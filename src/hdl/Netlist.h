// The connection netlist of a description: the wires, connections and sub-module ports that the VHDL and
// Verilog writers print, built once per generation as an immutable value. A netlist borrows the names of the
// description it was built from (and an adjusted netlist those of the netlist it was made from): it must not
// outlive them. The texts it makes itself (wire names, keys, range texts) it owns.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "cnx/CnxDescription.h"
#include "hdl/NetlistRecords.h"

namespace plovix {

class Netlist {
 public:
  // The parts of a netlist, as a builder or an adjusting step makes them.
  struct Parts {
    std::vector<NetlistWire> wires;
    std::vector<NetlistConnection> connections;
    std::vector<SubModulePort> subModulePorts;
    bool packsRows = false;
    int32_t nextWireNumber = 0;
  };

  Netlist() = default;
  // A netlist of `parts`, owning `texts`, the pool of the texts it made.
  explicit Netlist(Parts parts, std::unique_ptr<TextPool> texts = nullptr)
      : parts_(std::move(parts)), texts_(std::move(texts)) {}

  // The wires in the order they were made (their numbers ascending).
  const std::vector<NetlistWire>& wires() const { return parts_.wires; }
  // The connections in the order of the description's connection map.
  const std::vector<NetlistConnection>& connections() const { return parts_.connections; }
  // The ports of every instantiated module, in the order first used.
  const std::vector<SubModulePort>& subModulePorts() const { return parts_.subModulePorts; }
  // Some driven port is one row of a two-dimensional group: the rows travel packed on one wire.
  bool packsRows() const { return parts_.packsRows; }
  // The number the next "sub_wire" name takes (the VHDL conversion signals continue from it).
  int32_t nextWireNumber() const { return parts_.nextWireNumber; }

  // The first wire whose sourceKey is `key`, or null. It scans the wires: for checks and tests (the builder
  // finds wires through its own index of keys).
  const NetlistWire* findWire(std::string_view key) const;

  // A copy of the parts, to make an adjusted netlist from.
  Parts parts() const { return parts_; }

 private:
  Parts parts_;
  std::unique_ptr<TextPool> texts_;
};

// Builds the netlist of a description for the modulon `signatureName` (main-module ports are matched against
// it). The description is only read; the netlist keeps its names alive.
Netlist buildNetlist(const CnxDescription& description, std::string_view signatureName);

}  // namespace plovix
