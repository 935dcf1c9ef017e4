// Test helper: points PLOVIX_GIO_TRACE at a fresh file for one test and hands back the traced lines.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "TempDir.h"

namespace plovix::testing {

class GioTraceCapture {
 public:
  GioTraceCapture() { setenv("PLOVIX_GIO_TRACE", traceFile().c_str(), 1); }
  ~GioTraceCapture() { unsetenv("PLOVIX_GIO_TRACE"); }
  GioTraceCapture(const GioTraceCapture&) = delete;
  GioTraceCapture& operator=(const GioTraceCapture&) = delete;

  // A directory for the test's symbol files, with a trailing "/".
  std::string dir() const { return temp_.dir(); }
  std::string read(const std::string& name) const { return temp_.read(name); }

  // The lines traced so far; taking them starts a new trace.
  std::vector<std::string> take() {
    std::vector<std::string> lines;
    const std::string text = TempDir::readFile(traceFile());
    size_t start = 0;
    while (start < text.size()) {
      const size_t stop = text.find('\n', start);
      lines.push_back(text.substr(start, stop - start));
      start = stop == std::string::npos ? text.size() : stop + 1;
    }
    std::remove(traceFile().c_str());
    return lines;
  }

 private:
  std::string traceFile() const { return temp_.path("gio.trace"); }
  TempDir temp_;
};

}  // namespace plovix::testing
