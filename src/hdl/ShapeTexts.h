// Remembers the texts made from shapes and ranges, so that a text repeated for thousands of ports and
// connections (a type, a range) is formatted once per writer text.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>

#include "cnx/Bounds.h"

namespace plovix {

template <size_t kWords>
class BoundTexts {
 public:
  using Key = std::array<uint64_t, kWords>;

  // The text for `key`, made by `make` the first time.
  template <class Make>
  const std::string& get(const Key& key, Make&& make) {
    const auto [it, added] = texts_.try_emplace(key);
    if (added) it->second = make();
    return it->second;
  }

 private:
  struct KeyHash {
    size_t operator()(const Key& key) const {
      uint64_t h = 0;
      for (uint64_t word : key) h = (h ^ word) * 0x9E3779B97F4A7C15ull;
      return static_cast<size_t>(h ^ (h >> 29));
    }
  };
  std::unordered_map<Key, std::string, KeyHash> texts_;
};

// Texts of a shape (its four values) and of a range (width and low index). Equal keys mean equal values as
// written.
using ShapeTexts = BoundTexts<4>;
using RangeTexts = BoundTexts<2>;

inline ShapeTexts::Key keyOf(const Shape& shape) {
  return {shape.rows.width.raw(), shape.rows.low.raw(), shape.bits.width.raw(), shape.bits.low.raw()};
}
inline RangeTexts::Key keyOf(const Range& range) {
  return {range.width.raw(), range.low.raw()};
}

}  // namespace plovix
