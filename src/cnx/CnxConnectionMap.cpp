// Implementation of the connection map: lookups, and the builder that puts the filed ends in walking order.
#include "cnx/CnxConnectionMap.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/LargeTable.h"

namespace plovix {

namespace {

constexpr uint32_t kBuckets = 17;

// The bit position of an end, the key of its place in a port's list.
struct BitPosition {
  long long rowsLow, bitsLow;
  friend bool operator<(const BitPosition& a, const BitPosition& b) {
    return a.rowsLow != b.rowsLow ? a.rowsLow < b.rowsLow : a.bitsLow < b.bitsLow;
  }
};

BitPosition positionOf(const CnxConnectionEnd& end) {
  return {end.own.rows.low.value(), end.own.bits.low.value()};
}

// Puts the ends of one port in descending bit position, equal positions in file order. Ends filed from the
// highest bit down are already in order; ends filed from the lowest bit up only need reversing.
void orderByBitPosition(std::span<CnxConnectionEnd> ends) {
  if (ends.size() < 2) return;
  std::vector<BitPosition> positions;
  positions.reserve(ends.size());
  for (const CnxConnectionEnd& end : ends) positions.push_back(positionOf(end));
  bool descending = true, ascending = true;
  for (size_t i = 1; i < positions.size(); ++i) {
    if (positions[i - 1] < positions[i]) descending = false;
    if (!(positions[i - 1] < positions[i])) ascending = false;
  }
  if (descending) return;
  if (ascending) {
    std::reverse(ends.begin(), ends.end());
    return;
  }
  std::vector<size_t> order(ends.size());
  for (size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(),
                   [&positions](size_t a, size_t b) { return positions[b] < positions[a]; });
  std::vector<CnxConnectionEnd> sorted;
  sorted.reserve(ends.size());
  for (size_t i : order) sorted.push_back(ends[i]);
  std::copy(sorted.begin(), sorted.end(), ends.begin());
}

// Orders ids (given oldest first) by the bucket of their key, the newest first within a bucket.
template <class BucketOf>
void orderByBucket(std::span<uint32_t> ids, BucketOf bucketOf) {
  std::array<uint32_t, kBuckets + 1> start{};
  for (uint32_t id : ids) ++start[bucketOf(id) + 1];
  for (uint32_t b = 0; b < kBuckets; ++b) start[b + 1] += start[b];
  std::vector<uint32_t> ordered(ids.size());
  for (auto it = ids.rbegin(); it != ids.rend(); ++it) ordered[start[bucketOf(*it)]++] = *it;
  std::copy(ordered.begin(), ordered.end(), ids.begin());
}

}  // namespace

uint32_t CnxConnectionMap::bucketOf(std::string_view key) {
  uint32_t h = 0;
  for (char c : key) h = h * 33u + static_cast<uint32_t>(static_cast<int32_t>(static_cast<int8_t>(c)));
  return h % kBuckets;
}

const CnxConnectionMap::Instance* CnxConnectionMap::findInstance(Name name) const {
  const uint32_t* index = instanceIndex_.find(name);
  return index == nullptr ? nullptr : &instances_[*index];
}

std::span<const CnxConnectionEnd> CnxConnectionMap::find(std::string_view instance,
                                                         std::string_view port) const {
  for (const Instance& i : instances_) {
    if (i.name != instance) continue;
    for (const Port& p : portsOf(i)) {
      if (p.name == port) return endsOf(p);
    }
  }
  return {};
}

void CnxConnectionMapBuilder::reserve(size_t connections, size_t instances) {
  // Every line files two ends; variation ports count as one more instance.
  ends_.reserve(2 * connections);
  adviseHugePages(ends_.data(), ends_.capacity() * sizeof(CnxConnectionEnd));
  portOfEnd_.reserve(2 * connections);
  instanceNames_.reserve(instances + 1);
  instanceBuckets_.reserve(instances + 1);
  instanceOf_.reserve(instances + 1);
}

void CnxConnectionMapBuilder::file(Name instance, Name port, const CnxConnectionEnd& end) {
  const auto [instanceId, newInstance] =
      instanceOf_.tryEmplace(instance, static_cast<uint32_t>(instanceNames_.size()));
  if (newInstance) {
    instanceNames_.push_back(instance);
    instanceBuckets_.push_back(static_cast<uint8_t>(CnxConnectionMap::bucketOf(instance.view())));
  }
  const uint32_t portId = portOf(*instanceId, port);
  ++ports_[portId].endCount;
  ends_.push_back(end);
  portOfEnd_.push_back(portId);
}

// The list of (instance, port), made when missing. Most names are filed under one instance only: the tag of
// the name finds its first list without a lookup, and the map holds the others.
uint32_t CnxConnectionMapBuilder::portOf(uint32_t instance, Name port) {
  const uint32_t next = static_cast<uint32_t>(ports_.size());
  const uint32_t tag = names_->tag(port);
  if (tag != 0 && ports_[tag - 1].instance == instance) return tag - 1;
  if (tag == 0 && !port.empty()) {
    names_->setTag(port, next + 1);
  } else {
    const auto [found, added] = portOf_.tryEmplace(PortKey{instance, port}, next);
    if (!added) return *found;
  }
  ports_.push_back(
      FiledPort{instance, port, 0, static_cast<uint8_t>(CnxConnectionMap::bucketOf(port.view()))});
  return next;
}

CnxConnectionMap CnxConnectionMapBuilder::finish() {
  CnxConnectionMap map;
  portOf_ = {};
  map.instanceIndex_.reserve(instanceNames_.size());

  // Instances by bucket, the newest first within a bucket.
  std::vector<uint32_t> instanceOrder(instanceNames_.size());
  for (uint32_t i = 0; i < instanceOrder.size(); ++i) instanceOrder[i] = i;
  orderByBucket(instanceOrder, [this](uint32_t i) { return instanceBuckets_[i]; });

  // The ports of each instance, in the order first filed.
  std::vector<uint32_t> portStart(instanceNames_.size() + 1, 0);
  for (const FiledPort& port : ports_) ++portStart[port.instance + 1];
  for (size_t i = 1; i < portStart.size(); ++i) portStart[i] += portStart[i - 1];
  std::vector<uint32_t> portIds(ports_.size());
  {
    std::vector<uint32_t> next(portStart.begin(), portStart.end() - 1);
    for (uint32_t p = 0; p < ports_.size(); ++p) portIds[next[ports_[p].instance]++] = p;
  }
  std::vector<uint8_t> portBucket(ports_.size());
  for (uint32_t p = 0; p < ports_.size(); ++p) portBucket[p] = ports_[p].bucket;

  // Walking order of instances, then of each instance's ports; every port's ends get their place.
  map.instances_.reserve(instanceOrder.size());
  map.ports_.reserve(ports_.size());
  std::vector<uint32_t> endPlace(ports_.size());
  uint32_t nextEnd = 0;
  for (uint32_t i : instanceOrder) {
    std::span<uint32_t> ids(portIds.data() + portStart[i], portStart[i + 1] - portStart[i]);
    orderByBucket(ids, [&portBucket](uint32_t p) { return portBucket[p]; });
    map.instanceIndex_.tryEmplace(instanceNames_[i], static_cast<uint32_t>(map.instances_.size()));
    map.instances_.push_back(
        {instanceNames_[i], static_cast<uint32_t>(map.ports_.size()), static_cast<uint32_t>(ids.size())});
    for (uint32_t p : ids) {
      map.ports_.push_back({ports_[p].name, nextEnd, ports_[p].endCount});
      endPlace[p] = nextEnd;
      nextEnd += ports_[p].endCount;
    }
  }

  // The ends: file order within each port, then bit order. Each end is moved to its place in the list
  // itself, following the cycles of the permutation, so that the ends are not copied into a second list.
  std::vector<uint32_t>& place = portOfEnd_;
  for (uint32_t& end : place) end = endPlace[end]++;
  for (size_t e = 0; e < ends_.size(); ++e) {
    while (place[e] != e) {
      std::swap(ends_[e], ends_[place[e]]);
      std::swap(place[e], place[place[e]]);
    }
  }
  map.ends_ = std::move(ends_);
  for (const CnxConnectionMap::Port& port : map.ports_)
    orderByBitPosition(std::span<CnxConnectionEnd>(map.ends_).subspan(port.firstEnd, port.endCount));

  *this = CnxConnectionMapBuilder(*names_);
  return map;
}

}  // namespace plovix
