// The call trace that PLOVIX_GIO_TRACE asks for: one line per gio_ call with its arguments and result.
#pragma once

#include <string>

#include "plovix_host.h"

namespace plovix::gio {

// Collects one call's line and appends it to the trace file when the result is given. Numbers are written in
// decimal, points as (x, y), texts in double quotes with C escapes, absent pointers as NULL and the error
// context as ctx.
class TraceLine {
 public:
  explicit TraceLine(const char* function);

  TraceLine& arg(long long value);
  TraceLine& arg(const char* text);
  TraceLine& arg(const gio_point* point);
  TraceLine& arg(const gio_error_context* context);

  void result(long long value);
  void result(const char* text);

 private:
  void next();
  void finish(const std::string& result);

  std::string line_;
  bool first_ = true;
};

// The quoted, escaped form of a text as the trace writes it.
std::string quotedText(const char* text);

}  // namespace plovix::gio
