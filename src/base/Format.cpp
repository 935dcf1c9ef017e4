// Implementation of the printf-style formatting helper. The format is walked here, conversion by conversion:
// texts ("%s") are copied with size_t arithmetic, whatever their length, and only the numbers, whose output
// is short, go through snprintf (plain decimal ones are written directly). So no text is ever too long to
// format, and nothing fails silently.
#include "base/Format.h"

#include <charconv>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <type_traits>

namespace plovix {

namespace {

// One conversion directive: "%" flags width precision length conversion. The flags and the length are
// views into the format.
struct Conversion {
  std::string_view flags;
  bool left = false;   // "-" among the flags, or a negative width given by "*"
  int width = -1;      // -1 when none
  int precision = -1;  // -1 when none
  std::string_view length;
  char kind = '\0';
  bool plain() const { return flags.empty() && !left && width < 0 && precision < 0; }
};

// Reads a decimal field of a format, which the compiler has checked; at most a few digits.
int readNumber(const char*& p) {
  int value = 0;
  while (*p >= '0' && *p <= '9' && value < 100000) value = value * 10 + (*p++ - '0');
  return value;
}

// The directive as snprintf reads it, with the widths fetched for "*" written out.
std::string directiveText(const Conversion& c) {
  std::string directive = "%";
  directive += c.flags;
  if (c.left) directive += '-';
  if (c.width >= 0) directive += std::to_string(c.width);
  if (c.precision >= 0) directive += "." + std::to_string(c.precision);
  directive += c.length;
  return directive + c.kind;
}

// One number. A plain decimal one is written directly; the others go through snprintf, whose output is
// bounded by the width and precision, both ints.
template <typename T>
void appendNumber(std::string& out, const Conversion& c, T value) {
  if constexpr (std::is_integral_v<T>) {
    if (c.plain() && c.kind != 'X' && c.kind != 'c') {
      char digits[64];
      const int base = c.kind == 'x' ? 16 : c.kind == 'o' ? 8 : 10;
      const std::to_chars_result written = std::to_chars(digits, digits + sizeof digits, value, base);
      out.append(digits, static_cast<size_t>(written.ptr - digits));
      return;
    }
  }
  const std::string directive = directiveText(c);
  char small[128];
  const int needed = std::snprintf(small, sizeof small, directive.c_str(), value);
  if (needed < 0) throw std::length_error("formatText: a number cannot be formatted with " + directive);
  if (static_cast<size_t>(needed) < sizeof small) {
    out.append(small, static_cast<size_t>(needed));
    return;
  }
  std::string big(static_cast<size_t>(needed) + 1, '\0');
  std::snprintf(big.data(), big.size(), directive.c_str(), value);
  out.append(big.data(), static_cast<size_t>(needed));
}

// A text, with the precision cutting it and the width padding it ("-" pads on the right).
void appendText(std::string& out, const Conversion& c, const char* text) {
  if (text == nullptr) text = "(null)";
  const size_t length =
      c.precision >= 0 ? strnlen(text, static_cast<size_t>(c.precision)) : std::strlen(text);
  const size_t width = c.width > 0 ? static_cast<size_t>(c.width) : 0;
  const size_t padding = width > length ? width - length : 0;
  if (!c.left) out.append(padding, ' ');
  out.append(text, length);
  if (c.left) out.append(padding, ' ');
}

// Reads the directive after a "%"; the arguments for "*" are fetched from `args`.
Conversion readConversion(const char*& p, va_list& args) {
  Conversion c;
  const char* flags = p;
  while (*p != '\0' && std::strchr("-+ #0'", *p) != nullptr) c.left = *p++ == '-' || c.left;
  c.flags = std::string_view(flags, static_cast<size_t>(p - flags));
  if (*p == '*') {
    ++p;
    c.width = va_arg(args, int);
    if (c.width < 0) {
      c.left = true;
      c.width = c.width == INT32_MIN ? INT32_MAX : -c.width;
    }
  } else if (*p >= '0' && *p <= '9') {
    c.width = readNumber(p);
  }
  if (*p == '.') {
    ++p;
    if (*p == '*') {
      ++p;
      c.precision = va_arg(args, int);
      if (c.precision < 0) c.precision = -1;
    } else {
      c.precision = readNumber(p);
    }
  }
  const char* length = p;
  while (*p != '\0' && std::strchr("hlLqjzt", *p) != nullptr) ++p;
  c.length = std::string_view(length, static_cast<size_t>(p - length));
  c.kind = *p;
  if (*p != '\0') ++p;
  return c;
}

// A signed or unsigned integer argument of the conversion's length.
template <bool kSigned>
void appendInteger(std::string& out, const Conversion& c, va_list& args) {
  // The argument types of each length, named first: va_arg takes no commas.
  using Int = std::conditional_t<kSigned, int, unsigned>;
  using Long = std::conditional_t<kSigned, long, unsigned long>;
  using LongLong = std::conditional_t<kSigned, long long, unsigned long long>;
  using Size = std::conditional_t<kSigned, std::make_signed_t<size_t>, size_t>;
  using Max = std::conditional_t<kSigned, intmax_t, uintmax_t>;
  using Difference = std::conditional_t<kSigned, ptrdiff_t, std::make_unsigned_t<ptrdiff_t>>;
  using Char = std::conditional_t<kSigned, signed char, unsigned char>;
  using Short = std::conditional_t<kSigned, short, unsigned short>;
  const std::string_view length = c.length;
  if (length == "ll" || length == "q") {
    appendNumber(out, c, va_arg(args, LongLong));
  } else if (length == "l") {
    appendNumber(out, c, va_arg(args, Long));
  } else if (length == "z") {
    appendNumber(out, c, va_arg(args, Size));
  } else if (length == "j") {
    appendNumber(out, c, va_arg(args, Max));
  } else if (length == "t") {
    appendNumber(out, c, va_arg(args, Difference));
  } else if (length == "hh") {
    // Arrives promoted to int; printf shows it converted back.
    appendNumber(out, c, static_cast<Char>(va_arg(args, int)));
  } else if (length == "h") {
    appendNumber(out, c, static_cast<Short>(va_arg(args, int)));
  } else {
    appendNumber(out, c, va_arg(args, Int));
  }
}

void appendConversion(std::string& out, const Conversion& c, va_list& args) {
  switch (c.kind) {
    case 's':
      if (c.plain()) {
        const char* text = va_arg(args, const char*);
        out.append(text != nullptr ? text : "(null)");
      } else {
        appendText(out, c, va_arg(args, const char*));
      }
      return;
    case '%':
      out += '%';
      return;
    case 'c':
      appendNumber(out, c, va_arg(args, int));
      return;
    case 'p':
      appendNumber(out, c, va_arg(args, void*));
      return;
    case 'd':
    case 'i':
      appendInteger<true>(out, c, args);
      return;
    case 'u':
    case 'x':
    case 'X':
    case 'o':
      appendInteger<false>(out, c, args);
      return;
    case 'f':
    case 'F':
    case 'e':
    case 'E':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
      if (c.length == "L") {
        appendNumber(out, c, va_arg(args, long double));
      } else {
        appendNumber(out, c, va_arg(args, double));
      }
      return;
    default:
      throw std::invalid_argument(std::string("formatText: unsupported conversion ") + directiveText(c));
  }
}

// Appends the formatted text to `out`, walking the format once.
void appendFormattedList(std::string& out, const char* format, va_list arguments) {
  va_list args;
  va_copy(args, arguments);
  try {
    const char* p = format;
    while (*p != '\0') {
      const char* percent = std::strchr(p, '%');
      if (percent == nullptr) {
        out.append(p);
        break;
      }
      out.append(p, static_cast<size_t>(percent - p));
      p = percent + 1;
      const Conversion c = readConversion(p, args);
      appendConversion(out, c, args);
    }
  } catch (...) {
    va_end(args);
    throw;
  }
  va_end(args);
}

}  // namespace

std::string formatText(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string out;
  try {
    appendFormattedList(out, format, args);
  } catch (...) {
    va_end(args);
    throw;
  }
  va_end(args);
  return out;
}

void appendFormatted(std::string& out, const char* format, ...) {
  va_list args;
  va_start(args, format);
  try {
    appendFormattedList(out, format, args);
  } catch (...) {
    va_end(args);
    throw;
  }
  va_end(args);
}

void TemplatePart::appendTo(std::string& out) const {
  if (!append_) {
    out += text_.substr(0, text_.find('\0'));
    return;
  }
  const size_t start = out.size();
  append_(out);
  const size_t nul = out.find('\0', start);
  if (nul != std::string::npos) out.resize(nul);
}

std::string fillTemplate(std::string_view format, std::initializer_list<TemplatePart> parts) {
  std::string result;
  appendTemplate(result, format, parts);
  return result;
}

void appendTemplate(std::string& result, std::string_view format, std::initializer_list<TemplatePart> parts) {
  auto next = parts.begin();
  for (size_t i = 0; i < format.size(); ++i) {
    if (format[i] != '%' || i + 1 == format.size()) {
      result += format[i];
    } else if (format[++i] == 's') {
      if (next != parts.end()) (next++)->appendTo(result);
    } else {
      result += format[i];
    }
  }
}

std::string formatInt(long long value) {
  return formatText("%lld", value);
}

std::string formatChar(char c) {
  return std::string(1, c);
}

}  // namespace plovix
