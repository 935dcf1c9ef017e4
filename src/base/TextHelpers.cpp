// Implementation of the small text operations.
#include "base/TextHelpers.h"

#include <cctype>
#include <cstdint>
#include <cstdlib>

#include "base/Format.h"

namespace plovix {

std::string trimLeft(std::string_view text) {
  const size_t first = text.find_first_not_of(kBlankCharacters);
  return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string trimRight(std::string_view text) {
  const size_t last = text.find_last_not_of(kBlankCharacters);
  return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string trimText(std::string_view text) {
  const size_t first = text.find_first_not_of(kBlankCharacters);
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(kBlankCharacters) - first + 1));
}

std::string toLowerText(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return out;
}

std::string toUpperText(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return out;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(text);
  std::string out;
  out.reserve(text.size());
  size_t pos = 0;
  for (;;) {
    const size_t hit = text.find(from, pos);
    if (hit == std::string_view::npos) break;
    out.append(text.substr(pos, hit - pos));
    out.append(to);
    pos = hit + from.size();
  }
  out.append(text.substr(pos));
  return out;
}

bool startsWith(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix;
}

bool endsWith(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return toLowerText(a) == toLowerText(b);
}

long long atoiText(std::string_view text) {
  size_t i = 0;
  while (i < text.size() && kBlankCharacters.find(text[i]) != std::string_view::npos) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  long long value = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    if (value < 100000000000000000LL) value = value * 10 + (text[i] - '0');
  }
  return negative ? -value : value;
}

std::string splitFirstToken(std::string& text, std::string_view separators) {
  size_t start = text.find_first_not_of(separators);
  if (start == std::string::npos) start = text.size();
  size_t end = text.find_first_of(separators, start);
  if (end == std::string::npos) end = text.size();
  std::string token = text.substr(start, end - start);
  size_t rest = text.find_first_not_of(separators, end);
  if (rest == std::string::npos) rest = text.size();
  text.erase(0, rest);
  return token;
}

bool isIntegerText(std::string_view text) {
  if (text.empty()) return false;
  if (text.front() == '-') text.remove_prefix(1);
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool isTrueText(std::string_view text) {
  return text == "TRUE";
}

namespace {

bool isNumericBound(std::string_view text) {
  return text.find_first_not_of("+-0123456789") == std::string_view::npos;
}

// The 32-bit value of a number as the C library's conversion reads it (too many digits wrap, never trap).
int32_t boundNumber(std::string_view text) {
  return static_cast<int32_t>(static_cast<uint32_t>(atoiText(text)));
}

// A sum in 32-bit arithmetic, wrapping like the host's integers instead of overflowing.
int32_t wrap32(long long value) {
  return static_cast<int32_t>(static_cast<uint32_t>(value));
}

}  // namespace

std::string upperBoundText(std::string_view widthIn, std::string_view lowIn) {
  const std::string width = trimText(widthIn);
  const std::string low = trimText(lowIn);
  const bool widthNumeric = isNumericBound(width);
  const bool lowNumeric = isNumericBound(low);
  if (widthNumeric && lowNumeric) {
    const int32_t w = boundNumber(width);
    const int32_t l = boundNumber(low);
    if (w > 0) return formatText("%d", wrap32(static_cast<long long>(w) + l - 1));
    if (w < 0) return formatText("%d", wrap32(static_cast<long long>(w) + l + 1));
    return low;
  }
  if (widthNumeric) {
    const int32_t w = boundNumber(width);
    if (w >= -1 && w <= 1) return low;
    if (w > 1) return formatText("%s+%d", low.c_str(), w - 1);
    return formatText("%s-%lld", low.c_str(), -(static_cast<long long>(w) + 1));
  }
  if (lowNumeric) {
    const int32_t l = boundNumber(low);
    if (l == 1) return width;
    return formatText("%s%+lld", width.c_str(), static_cast<long long>(l) - 1);
  }
  return low + "+" + width + "-1";
}

namespace {

std::string literalDigits(std::string_view valueIn, int digits, bool binary) {
  const std::string value(valueIn);
  const uint32_t number = static_cast<uint32_t>(atoiText(value));
  std::string printed;
  if (binary) {
    if (number == 0) printed = "0";
    for (uint32_t n = number; n != 0; n >>= 1) printed.insert(printed.begin(), (n & 1) ? '1' : '0');
  } else {
    printed = formatText("%X", number);
  }
  const size_t want = digits < 0 ? 0 : static_cast<size_t>(digits);
  if (want >= printed.size()) {
    const char pad = startsWith(value, "-") ? (binary ? '1' : 'F') : '0';
    return std::string(want - printed.size(), pad) + printed;
  }
  return printed.substr(printed.size() - want);
}

}  // namespace

std::string hexLiteral(std::string_view value, int bits) {
  return literalDigits(value, (bits + 3) / 4, false);
}

std::string binaryLiteral(std::string_view value, int bits) {
  return literalDigits(value, bits, true);
}

}  // namespace plovix
