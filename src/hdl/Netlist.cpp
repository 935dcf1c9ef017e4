// The netlist value: finding a wire by its key, and the direction words of sub-module ports.
#include "hdl/Netlist.h"

namespace plovix {

const NetlistWire* Netlist::findWire(std::string_view key) const {
  for (const NetlistWire& wire : parts_.wires) {
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
