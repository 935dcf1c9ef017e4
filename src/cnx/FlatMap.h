// A hash map in one flat open-addressing table, for the large maps of reading and netlist building: an entry
// is found with one probe into an array that keeps each key's hash, instead of a chain of separately
// allocated nodes.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "base/LargeTable.h"

namespace plovix {

// `Hash` gives a key's hash; keys are compared with == only when their hashes are equal.
template <class Key, class Value, class Hash>
class FlatMap {
 public:
  // The value of `key`, entered with `value` when the map does not hold the key yet; and whether it was.
  std::pair<Value*, bool> tryEmplace(const Key& key, Value value) {
    if ((count_ + 1) * 2 > slots_.size()) grow();
    const size_t hash = Hash{}(key);
    Slot& slot = slots_[position(key, hash)];
    if (slot.used) return {&slot.value, false};
    slot = Slot{key, std::move(value), hash, true};
    ++count_;
    return {&slot.value, true};
  }

  const Value* find(const Key& key) const {
    if (slots_.empty()) return nullptr;
    const Slot& slot = slots_[position(key, Hash{}(key))];
    return slot.used ? &slot.value : nullptr;
  }

  void reserve(size_t count) {
    size_t length = slots_.empty() ? 16 : slots_.size();
    while (count * 2 > length) length *= 2;
    if (length != slots_.size()) rebuild(length);
  }
  size_t size() const { return count_; }

 private:
  struct Slot {
    Key key{};
    Value value{};
    size_t hash = 0;
    bool used = false;
  };

  size_t position(const Key& key, size_t hash) const {
    const size_t mask = slots_.size() - 1;
    size_t i = hash & mask;
    while (slots_[i].used && !(slots_[i].hash == hash && slots_[i].key == key)) i = (i + 1) & mask;
    return i;
  }

  void grow() { rebuild(slots_.empty() ? 16 : slots_.size() * 2); }
  void rebuild(size_t length) {
    std::vector<Slot, LargeTableAllocator<Slot>> old = std::move(slots_);
    slots_.assign(length, Slot{});
    for (Slot& slot : old) {
      if (slot.used) slots_[position(slot.key, slot.hash)] = std::move(slot);
    }
  }

  std::vector<Slot, LargeTableAllocator<Slot>> slots_;  // a power of two long, at most half full
  size_t count_ = 0;
};

}  // namespace plovix
