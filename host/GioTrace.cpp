// Writing the gio_ call trace to the file that PLOVIX_GIO_TRACE names.
#include "GioTrace.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "base/SafeWrite.h"

namespace plovix::gio {

std::string quotedText(const char* text) {
  if (text == nullptr) return "NULL";
  std::string out = "\"";
  for (const char* p = text; *p != '\0'; ++p) {
    const unsigned char c = static_cast<unsigned char>(*p);
    switch (c) {
      case '\\':
        out += "\\\\";
        break;
      case '"':
        out += "\\\"";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (c < 0x20 || c == 0x7f) {
          char hex[8];
          std::snprintf(hex, sizeof hex, "\\x%02X", c);
          out += hex;
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  return out + "\"";
}

TraceLine::TraceLine(const char* function) : line_(function) {
  line_ += '(';
}

void TraceLine::next() {
  if (!first_) line_ += ", ";
  first_ = false;
}

TraceLine& TraceLine::arg(long long value) {
  next();
  line_ += std::to_string(value);
  return *this;
}

TraceLine& TraceLine::arg(const char* text) {
  next();
  line_ += quotedText(text);
  return *this;
}

TraceLine& TraceLine::arg(const gio_point* point) {
  next();
  line_ += point == nullptr ? "NULL" : "(" + std::to_string(point->x) + ", " + std::to_string(point->y) + ")";
  return *this;
}

TraceLine& TraceLine::arg(const gio_error_context* context) {
  next();
  line_ += context == nullptr ? "NULL" : "ctx";
  return *this;
}

void TraceLine::result(long long value) {
  finish(std::to_string(value));
}

void TraceLine::result(const char* text) {
  finish(quotedText(text));
}

void TraceLine::finish(const std::string& result) {
  const char* path = std::getenv("PLOVIX_GIO_TRACE");
  if (path == nullptr || *path == '\0') return;
  line_ += ") -> " + result + "\n";
  const int cause = errno;  // a call's errno outlives its trace line
  appendToFile(path, line_);
  errno = cause;
}

}  // namespace plovix::gio
