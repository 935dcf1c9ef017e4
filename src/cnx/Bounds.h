// The bounds of port ranges: Bound (one width or low index), Range (a width and a low index) and Shape (the
// two ranges of a port or connection end).
//
// A description gives every port and every connection end four values, written in this order on its line:
// width1 low1 width2 low2. They are two ranges: the first pair is `rows` (the rows of a two-dimensional
// group), the second pair `bits` (the bits of a bus). A width of "0" means that the range is absent: both
// absent is a single bit, only `bits` a bus, both present a two-dimensional group. The last index of a range
// is low + width - 1 for numbers, and a short expression when a value is symbolic (upperBoundText).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cnx/TextPool.h"

namespace plovix {

// One value of a range as the description writes it. Most values are plain numbers (the decimal text of a
// 32-bit integer, such as 0, 8 or -3) and are kept as that integer. Any other text is kept exactly as
// written, because the generated files repeat it: a parameter name such as WIDTH, an expression such as
// N+1, and numbers written in another way (08, +3, " 4", -0, or beyond 32 bits). All the tests the writers
// make on a value are tests of its text: a width is absent only when its text is exactly "0".
class Bound {
 public:
  // The plain number 0.
  constexpr Bound() = default;

  // A plain number.
  static Bound ofValue(int32_t value);
  // Any integer: a plain number, or beyond 32 bits its decimal text, kept in `pool`.
  static Bound ofNumber(long long value, TextPool& pool);
  // A value as written; texts other than plain numbers are kept in `pool`.
  static Bound fromText(std::string_view text, TextPool& pool);

  // The text is the decimal text of a 32-bit integer.
  bool isPlain() const { return (bits_ & 1) != 0; }
  // The text is exactly "0" (for a width: the range is absent) or exactly "1".
  bool isZero() const { return bits_ == 1; }
  bool isOne() const { return bits_ == plainBits(1); }

  // The value as the C library's decimal conversion reads the text: leading blanks, a sign, digits; 0 when
  // there are none.
  long long value() const;
  // The text is an optional "-" followed by decimal digits only (a lone "-" passes).
  bool isInteger() const;
  // The text as written.
  std::string text() const;
  // Appends the text as written to `out`.
  void appendTo(std::string& out) const;

  friend bool operator==(Bound a, Bound b);

  // The stored word: a plain number, or the address of the pooled text. Equal words mean equal texts (not
  // the other way round), which is enough to cache what is computed from a bound.
  uint64_t raw() const { return bits_; }

 private:
  // A plain number is kept in the upper half of the word with the lowest bit set; any other text as the
  // address of its pooled text, whose lowest bit is clear.
  static constexpr uint64_t plainBits(int32_t value) {
    return (static_cast<uint64_t>(static_cast<uint32_t>(value)) << 32) | 1;
  }
  int32_t plainValue() const { return static_cast<int32_t>(static_cast<uint32_t>(bits_ >> 32)); }
  Name written() const;

  uint64_t bits_ = 1;
};

// `width` elements from `low` up.
struct Range {
  Bound width;
  Bound low;

  // The width is not "0".
  bool present() const { return !width.isZero(); }
  // The last index: low + width - 1 for plain numbers, an expression otherwise (see upperBoundText).
  std::string upperText() const;

  friend bool operator==(const Range& a, const Range& b) = default;
};

// The two ranges of a port or a connection end: `rows` (width1, low1) and `bits` (width2, low2).
struct Shape {
  Range rows;
  Range bits;

  // Both widths are "0".
  bool isSingleBit() const { return !rows.present() && !bits.present(); }
  // Both widths are other than "0".
  bool isTwoDimensional() const { return rows.present() && bits.present(); }

  friend bool operator==(const Shape& a, const Shape& b) = default;
};

}  // namespace plovix
