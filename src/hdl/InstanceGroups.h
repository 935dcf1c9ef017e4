// The connections of each instance, found without scanning the whole list for every instance.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "cnx/FlatMap.h"
#include "hdl/NetlistRecords.h"

namespace plovix {

// The positions of the connections whose ownInstance is a given name, in list order, gathered in two passes
// over the list.
class InstanceGroups {
 public:
  explicit InstanceGroups(const std::vector<NetlistConnection>& connections);

  // The positions of the instance's connections; empty when it has none.
  std::span<const uint32_t> of(Name instance) const;

 private:
  FlatMap<Name, uint32_t, NameHash> groupOf_;
  std::vector<uint32_t> start_;      // per group, where its positions begin; one more at the end
  std::vector<uint32_t> positions_;  // grouped by instance
};

}  // namespace plovix
