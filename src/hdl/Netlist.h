// The connection netlist of a description: the wires, connections and sub-module ports that the VHDL and
// Verilog writers print, built once per generation as an immutable value. A netlist borrows the names of the
// description it was built from (and an adjusted netlist those of the netlist it was made from): it must not
// outlive them. The texts it makes itself (wire names, keys, range texts) it owns.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
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
      : owned_(std::move(parts)), texts_(std::move(texts)) {}
  // A netlist adjusted from `base`: the lists given replace base's, the others are base's own lists,
  // borrowed like base's names (so `base` must outlive it and stay where it is). An adjusting step that
  // changes nothing copies nothing.
  Netlist(const Netlist& base, std::optional<std::vector<NetlistWire>> wires,
          std::optional<std::vector<NetlistConnection>> connections, std::unique_ptr<TextPool> texts);
  Netlist(Netlist&& other) noexcept { *this = std::move(other); }
  Netlist& operator=(Netlist&& other) noexcept;

  // The wires in the order they were made (their numbers ascending).
  const std::vector<NetlistWire>& wires() const { return wires_ ? *wires_ : owned_.wires; }
  // The connections in the order of the description's connection map.
  const std::vector<NetlistConnection>& connections() const {
    return connections_ ? *connections_ : owned_.connections;
  }
  // The ports of every instantiated module, in the order first used.
  const std::vector<SubModulePort>& subModulePorts() const {
    return subModulePorts_ ? *subModulePorts_ : owned_.subModulePorts;
  }
  // Some driven port is one row of a two-dimensional group: the rows travel packed on one wire.
  bool packsRows() const { return owned_.packsRows; }
  // The number the next "sub_wire" name takes (the VHDL conversion signals continue from it).
  int32_t nextWireNumber() const { return owned_.nextWireNumber; }

  // The first wire whose sourceKey is `key`, or null. It scans the wires: for checks and tests (the builder
  // finds wires through its own index of keys).
  const NetlistWire* findWire(std::string_view key) const;

  // A copy of the parts.
  Parts parts() const {
    return Parts{wires(), connections(), subModulePorts(), packsRows(), nextWireNumber()};
  }

 private:
  Parts owned_;
  // The lists borrowed from the netlist this one was adjusted from; null where the list is owned.
  const std::vector<NetlistWire>* wires_ = nullptr;
  const std::vector<NetlistConnection>* connections_ = nullptr;
  const std::vector<SubModulePort>* subModulePorts_ = nullptr;
  std::unique_ptr<TextPool> texts_;
};

// Builds the netlist of a description for the modulon `signatureName` (main-module ports are matched against
// it). The description is only read; the netlist keeps its names alive.
Netlist buildNetlist(const CnxDescription& description, std::string_view signatureName);

}  // namespace plovix
