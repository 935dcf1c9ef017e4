// The side index of wires by source key.
#include "hdl/NetlistWireIndex.h"

namespace plovix {

void NetlistWireIndex::rebuild(const std::vector<NetlistWire>& wires) {
  first_.clear();
  indexed_ = 0;
  valid_ = true;
  for (; indexed_ < wires.size(); ++indexed_) first_.try_emplace(wires[indexed_].sourceKey, indexed_);
}

void NetlistWireIndex::sync(const std::vector<NetlistWire>& wires) {
  if (!valid_ || wires.size() < indexed_) rebuild(wires);
  for (; indexed_ < wires.size(); ++indexed_) first_.try_emplace(wires[indexed_].sourceKey, indexed_);
}

NetlistWire* NetlistWireIndex::find(std::vector<NetlistWire>& wires, const std::string& key) {
  sync(wires);
  auto it = first_.find(key);
  if (it != first_.end() && wires[it->second].sourceKey != key) {
    // A key was changed behind the index's back: start again from the list itself.
    rebuild(wires);
    it = first_.find(key);
  }
  return it == first_.end() ? nullptr : &wires[it->second];
}

}  // namespace plovix
