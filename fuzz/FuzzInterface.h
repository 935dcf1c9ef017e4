// The user interface of the fuzz targets: shows nothing, answers OK, and only counts what it was given so
// that every message is still built.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/UserInterface.h"

namespace plovix::fuzz {

class SilentInterface : public UserInterface {
 public:
  void report(const std::string& text) override { shown += text.size(); }
  bool ask(const std::string& text) override {
    shown += text.size();
    return true;
  }
  size_t shown = 0;
};

// The parts of an input cut at every `separator` byte, at most `limit` of them (the last keeps the rest).
inline std::vector<std::string> inputParts(const uint8_t* data, size_t size, char separator, size_t limit) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> parts;
  size_t start = 0;
  while (parts.size() + 1 < limit) {
    const size_t end = input.find(separator, start);
    if (end == std::string_view::npos) break;
    parts.emplace_back(input.substr(start, end - start));
    start = end + 1;
  }
  parts.emplace_back(input.substr(start));
  return parts;
}

}  // namespace plovix::fuzz
