// Implementation of the bounds of port ranges.
#include "cnx/Bounds.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>

#include "base/Format.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

// The value of a text that is the decimal text of a 32-bit integer: an optional "-", then digits without
// leading zeros ("0" alone, never "-0").
std::optional<int32_t> plainNumber(std::string_view text) {
  size_t i = text.empty() || text.front() != '-' ? 0 : 1;
  const size_t digits = text.size() - i;
  if (digits == 0 || digits > 10) return std::nullopt;
  if (text[i] == '0' && (digits > 1 || i == 1)) return std::nullopt;
  long long value = 0;
  for (; i < text.size(); ++i) {
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    value = value * 10 + (text[i] - '0');
  }
  if (text.front() == '-') value = -value;
  if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())
    return std::nullopt;
  return static_cast<int32_t>(value);
}

// The 32-bit result of a sum, wrapping like the host's integers instead of overflowing.
int32_t wrap32(long long value) {
  return static_cast<int32_t>(static_cast<uint32_t>(value));
}

}  // namespace

Bound Bound::ofValue(int32_t value) {
  Bound bound;
  bound.bits_ = plainBits(value);
  return bound;
}

Bound Bound::ofNumber(long long value, TextPool& pool) {
  if (value >= std::numeric_limits<int32_t>::min() && value <= std::numeric_limits<int32_t>::max())
    return ofValue(static_cast<int32_t>(value));
  return fromText(formatInt(value), pool);
}

Bound Bound::fromText(std::string_view text, TextPool& pool) {
  if (const std::optional<int32_t> value = plainNumber(text)) return ofValue(*value);
  Bound bound;
  bound.bits_ = reinterpret_cast<uintptr_t>(pool.intern(text).entry_);
  return bound;
}

Name Bound::written() const {
  return Name(reinterpret_cast<const detail::PooledText*>(static_cast<uintptr_t>(bits_)));
}

long long Bound::value() const {
  return isPlain() ? plainValue() : atoiText(written().view());
}

bool Bound::isInteger() const {
  return isPlain() || isIntegerText(written().view());
}

std::string Bound::text() const {
  std::string out;
  appendTo(out);
  return out;
}

void Bound::appendTo(std::string& out) const {
  if (!isPlain()) {
    out += written().view();
    return;
  }
  char digits[16];
  const auto result = std::to_chars(digits, digits + sizeof digits, plainValue());
  out.append(digits, result.ptr);
}

bool operator==(Bound a, Bound b) {
  if (a.isPlain() || b.isPlain()) return a.bits_ == b.bits_;
  return a.written() == b.written();
}

std::string Range::upperText() const {
  if (!width.isPlain() || !low.isPlain()) return upperBoundText(width.text(), low.text());
  // Both plain: the arithmetic of upperBoundText without reading texts.
  const long long w = width.value();
  const long long l = low.value();
  if (w == 0) return low.text();
  return formatInt(wrap32(w > 0 ? w + l - 1 : w + l + 1));
}

}  // namespace plovix
