// Implementation of the connections grouped by instance.
#include "hdl/InstanceGroups.h"

namespace plovix {

InstanceGroups::InstanceGroups(const std::vector<NetlistConnection>& connections) {
  std::vector<uint32_t> groups(connections.size());
  for (size_t i = 0; i < connections.size(); ++i) {
    const uint32_t next = static_cast<uint32_t>(start_.size());
    const auto [group, added] = groupOf_.tryEmplace(connections[i].ownInstance, next);
    if (added) start_.push_back(0);
    ++start_[*group];
    groups[i] = *group;
  }
  // Counts to starting places.
  uint32_t place = 0;
  for (uint32_t& start : start_) {
    const uint32_t count = start;
    start = place;
    place += count;
  }
  start_.push_back(place);
  std::vector<uint32_t> next(start_.begin(), start_.end() - 1);
  positions_.resize(connections.size());
  for (size_t i = 0; i < connections.size(); ++i) positions_[next[groups[i]]++] = static_cast<uint32_t>(i);
}

std::span<const uint32_t> InstanceGroups::of(Name instance) const {
  const uint32_t* group = groupOf_.find(instance);
  if (group == nullptr) return {};
  return std::span<const uint32_t>(positions_).subspan(start_[*group], start_[*group + 1] - start_[*group]);
}

}  // namespace plovix
