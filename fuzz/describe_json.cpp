// Fuzzer of the JSON reader and the describe protocol's settings: any bytes are read or refused cleanly, what
// is read writes back as text that reads to the same value, and settings taken from it write back unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/Json.h"
#include "entry/ModulonSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  plovix::JsonValue value;
  plovix::JsonError error;
  if (!plovix::parseJson(text, value, error)) {
    if (error.line == 0 || error.column == 0) std::abort();
    return 0;
  }
  const std::string written = plovix::writeJson(value);
  plovix::JsonValue again;
  if (!plovix::parseJson(written, again, error) || plovix::writeJson(again) != written) std::abort();
  if (!plovix::parseJson(plovix::writeJson(value, true), again, error) || plovix::writeJson(again) != written)
    std::abort();

  plovix::ModulonSettings settings;
  std::string badField;
  if (plovix::settingsFromJson(value, settings, badField)) {
    plovix::ModulonSettings back;
    if (!plovix::settingsFromJson(plovix::settingsToJson(settings), back, badField)) std::abort();
    if (plovix::writeJson(plovix::settingsToJson(back)) !=
        plovix::writeJson(plovix::settingsToJson(settings)))
      std::abort();
  }
  return 0;
}
