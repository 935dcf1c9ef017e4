// A side index of a writer's wires by source key, so that finding a wire does not scan the list.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "hdl/NetlistRecords.h"

namespace plovix {

// Gives the first wire of a list with a given source key, as a scan from the front would. Wires appended to
// the list are picked up on the next lookup and a shortened list is indexed anew; a change of a wire's source
// key must be announced with invalidate().
class NetlistWireIndex {
 public:
  NetlistWire* find(std::vector<NetlistWire>& wires, const std::string& key);
  // Brings the index up to the list as it stands.
  void sync(const std::vector<NetlistWire>& wires);
  void invalidate() { valid_ = false; }

 private:
  void rebuild(const std::vector<NetlistWire>& wires);

  std::unordered_map<std::string, size_t> first_;
  size_t indexed_ = 0;
  bool valid_ = true;
};

}  // namespace plovix
