// A map from text keys whose iteration order is that of a 17-bucket chained hash table: bucket h mod 17 with
// h = h * 33 + c over the key's bytes as signed 8-bit values, buckets 0 to 16, newest key first in a bucket.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace plovix {

template <class Value>
class BucketMap {
 public:
  static constexpr uint32_t kBuckets = 17;

  static uint32_t bucketOf(std::string_view key) {
    uint32_t h = 0;
    for (char c : key) h = h * 33u + static_cast<uint32_t>(static_cast<int32_t>(static_cast<int8_t>(c)));
    return h % kBuckets;
  }

  Value* find(const std::string& key) {
    const auto it = index_.find(key);
    return it == index_.end() ? nullptr : &slots_[it->second].value;
  }
  const Value* find(const std::string& key) const {
    const auto it = index_.find(key);
    return it == index_.end() ? nullptr : &slots_[it->second].value;
  }

  // Enters a key that is not in the map yet and returns its value.
  Value& insert(const std::string& key, Value value) {
    const size_t slot = slots_.size();
    slots_.push_back(Slot{key, std::move(value)});
    index_.emplace(key, slot);
    buckets_[bucketOf(key)].push_back(slot);
    return slots_.back().value;
  }

  // Calls f(key, value) for every entry in iteration order.
  template <class F>
  void forEach(F&& f) const {
    for (const std::vector<size_t>& bucket : buckets_) {
      for (auto it = bucket.rbegin(); it != bucket.rend(); ++it) f(slots_[*it].key, slots_[*it].value);
    }
  }

  // The keys in iteration order.
  std::vector<std::string> keys() const {
    std::vector<std::string> out;
    out.reserve(slots_.size());
    forEach([&out](const std::string& key, const Value&) { out.push_back(key); });
    return out;
  }

  size_t size() const { return slots_.size(); }
  bool empty() const { return slots_.empty(); }

 private:
  struct Slot {
    std::string key;
    Value value;
  };
  std::array<std::vector<size_t>, kBuckets> buckets_;  // slot numbers, oldest first
  std::deque<Slot> slots_;                             // stable addresses, insertion order
  std::unordered_map<std::string, size_t> index_;
};

}  // namespace plovix
