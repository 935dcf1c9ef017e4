// A set of Names in one open-addressing table: finding a name is one probe into a flat array, with the
// hash each Name carries.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/LargeTable.h"
#include "cnx/TextPool.h"

namespace plovix {

class NameSet {
 public:
  // Adds `name`; false when the set held a name of the same text.
  bool insert(Name name) {
    if ((count_ + 1) * 2 > slots_.size()) grow();
    Slot* slot = find(name.view(), name.hash());
    if (slot->used) return false;
    *slot = Slot{name, true};
    ++count_;
    return true;
  }
  bool contains(std::string_view text) const {
    return !slots_.empty() && const_cast<NameSet*>(this)->find(text, hashText(text))->used;
  }
  size_t size() const { return count_; }

 private:
  struct Slot {
    Name name;
    bool used = false;
  };

  Slot* find(std::string_view text, size_t hash) {
    const size_t mask = slots_.size() - 1;
    size_t i = hash & mask;
    while (slots_[i].used && !(slots_[i].name.hash() == hash && slots_[i].name.view() == text))
      i = (i + 1) & mask;
    return &slots_[i];
  }

  void grow() {
    std::vector<Slot, LargeTableAllocator<Slot>> old = std::move(slots_);
    slots_.assign(old.empty() ? 16 : old.size() * 2, Slot{});
    for (const Slot& slot : old) {
      if (slot.used) *find(slot.name.view(), slot.name.hash()) = slot;
    }
  }

  std::vector<Slot, LargeTableAllocator<Slot>> slots_;  // a power of two long, at most half full
  size_t count_ = 0;
};

}  // namespace plovix
