// The netlist value: finding a wire by its key, and the direction words of sub-module ports.
#include "hdl/Netlist.h"

#include <utility>

namespace plovix {

Netlist::Netlist(const Netlist& base, std::optional<std::vector<NetlistWire>> wires,
                 std::optional<std::vector<NetlistConnection>> connections, std::unique_ptr<TextPool> texts)
    : texts_(std::move(texts)) {
  owned_.packsRows = base.packsRows();
  owned_.nextWireNumber = base.nextWireNumber();
  if (wires) {
    owned_.wires = std::move(*wires);
  } else {
    wires_ = &base.wires();
  }
  if (connections) {
    owned_.connections = std::move(*connections);
  } else {
    connections_ = &base.connections();
  }
  subModulePorts_ = &base.subModulePorts();
}

Netlist& Netlist::operator=(Netlist&& other) noexcept {
  owned_ = std::move(other.owned_);
  wires_ = other.wires_;
  connections_ = other.connections_;
  subModulePorts_ = other.subModulePorts_;
  texts_ = std::move(other.texts_);
  return *this;
}

const NetlistWire* Netlist::findWire(std::string_view key) const {
  for (const NetlistWire& wire : wires()) {
    if (wire.sourceKey == key) return &wire;
  }
  return nullptr;
}

const char* subModuleDirectionWord(SubModuleDirection direction) {
  switch (direction) {
    case SubModuleDirection::kIn:
      return "IN";
    case SubModuleDirection::kOut:
      return "OUT";
    case SubModuleDirection::kInOut:
      return "INOUT";
  }
  return "";
}

}  // namespace plovix
