// Implementation of the filing of connection ends.
#include "cnx/CnxConnectionMap.h"

#include <algorithm>

#include "base/TextHelpers.h"

namespace plovix {

bool standsBefore(const CnxConnectionEnd& a, const CnxConnectionEnd& b) {
  const long long aLow1 = atoiText(a.ownLow1);
  const long long bLow1 = atoiText(b.ownLow1);
  if (aLow1 != bLow1) return aLow1 > bLow1;
  return atoiText(a.ownLow2) > atoiText(b.ownLow2);
}

CnxEndList& connectionEndList(CnxConnectionMap& map, const std::string& instance, const std::string& port) {
  CnxPortMap* ports = map.find(instance);
  if (ports == nullptr) ports = &map.insert(instance, CnxPortMap());
  CnxEndList* ends = ports->find(port);
  if (ends == nullptr) ends = &ports->insert(port, CnxEndList());
  return *ends;
}

void CnxDescription::addConnectionEnd(const std::string& instance, const std::string& port,
                                      CnxConnectionEnd end) {
  CnxEndList& ends = connectionEndList(connectionMap, instance, port);
  // The list is always in order, so the place before the first entry that the new end stands before is found
  // by bisection.
  const auto place = std::upper_bound(ends.begin(), ends.end(), end, standsBefore);
  ends.insert(place, std::move(end));
}

void CnxEndFiler::file(const std::string& instance, const std::string& port, CnxConnectionEnd end) {
  CnxEndList& ends = connectionEndList(map_, instance, port);
  if (!ends.empty() && standsBefore(end, ends.back()) && marked_.insert(&ends).second)
    unordered_.push_back(&ends);
  ends.push_back(std::move(end));
}

namespace {

// Sorts a list by its bit positions, reading each end's position once and moving each end once.
void sortByBitPosition(CnxEndList& ends) {
  struct Position {
    long long low1, low2;
    size_t index;
  };
  std::vector<Position> positions;
  positions.reserve(ends.size());
  for (size_t i = 0; i < ends.size(); ++i) {
    positions.push_back({atoiText(ends[i].ownLow1), atoiText(ends[i].ownLow2), i});
  }
  std::stable_sort(positions.begin(), positions.end(), [](const Position& a, const Position& b) {
    return a.low1 != b.low1 ? a.low1 > b.low1 : a.low2 > b.low2;
  });
  CnxEndList sorted;
  sorted.reserve(ends.size());
  for (const Position& position : positions) sorted.push_back(std::move(ends[position.index]));
  ends = std::move(sorted);
}

}  // namespace

void CnxEndFiler::finish() {
  for (CnxEndList* ends : unordered_) sortByBitPosition(*ends);
  unordered_.clear();
  marked_.clear();
}

}  // namespace plovix
