// Implementation of the widening of main-module wires.
#include "hdl/MainModuleWires.h"

#include "base/TextHelpers.h"
#include "hdl/NetlistKeys.h"

namespace plovix {

MainModuleWidening::MainModuleWidening(const CnxDescription& description, std::string_view signatureName) {
  const std::string prefix = std::string(signatureName) + "_component" + ".";
  for (const CnxUsedPort& port : description.mainModulePorts)
    portOfKey_.try_emplace(toLowerText(prefix + port.name.str()), &port);
}

bool MainModuleWidening::widen(NetlistWire& wire, TextPool& texts) const {
  if (portOfKey_.empty()) return false;
  const std::string_view key = wire.sourceKey.view();
  const std::string cutKey(key.substr(0, key.find('[')));
  const auto it = portOfKey_.find(cutKey);
  if (it == portOfKey_.end()) return false;
  const Shape& shape = it->second->shape;
  wire.rowsWidth = shape.rows.width;
  wire.bitsWidth = shape.bits.width;
  wire.sourceKey =
      texts.intern(cutKey + rangeText(shape.rows.width, Bound()) + rangeText(shape.bits.width, Bound()));
  wire.sourceText = wire.sourceKey;
  return true;
}

}  // namespace plovix
