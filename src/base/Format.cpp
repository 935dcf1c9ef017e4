// Implementation of the printf-style formatting helper.
#include "base/Format.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

namespace plovix {

std::string formatText(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list copy;
  va_copy(copy, args);
  char small[512];
  const int needed = std::vsnprintf(small, sizeof small, format, args);
  va_end(args);
  std::string result;
  if (needed < 0) {
    va_end(copy);
    return result;
  }
  if (static_cast<size_t>(needed) < sizeof small) {
    result.assign(small, static_cast<size_t>(needed));
  } else {
    std::vector<char> big(static_cast<size_t>(needed) + 1);
    std::vsnprintf(big.data(), big.size(), format, copy);
    result.assign(big.data(), static_cast<size_t>(needed));
  }
  va_end(copy);
  return result;
}

void appendFormatted(std::string& out, const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list copy;
  va_copy(copy, args);
  char small[512];
  const int needed = std::vsnprintf(small, sizeof small, format, args);
  va_end(args);
  if (needed >= 0 && static_cast<size_t>(needed) < sizeof small) {
    out.append(small, static_cast<size_t>(needed));
  } else if (needed >= 0) {
    const size_t start = out.size();
    out.resize(start + static_cast<size_t>(needed));
    std::vsnprintf(out.data() + start, static_cast<size_t>(needed) + 1, format, copy);
  }
  va_end(copy);
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
