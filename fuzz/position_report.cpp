// Fuzzer of the position report's parser: any datagram gives nothing or a corner within the 16-bit range,
// and a corner given is read back from its own report.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "plovix_position.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto report =
      plovix::parsePositionReport(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!report) return 0;
  for (const int value : {report->right, report->bottom}) {
    if (value < plovix::kPositionMinimum || value > plovix::kPositionMaximum) std::abort();
  }
  if (plovix::parsePositionReport(plovix::formatPositionReport(report->right, report->bottom)) != report)
    std::abort();
  return 0;
}
