// lpm_latch: a latch that follows data while gate is high, with optional asynchronous clear and set.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkLatch(const SettingValues& values) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long value = numberValue(values, "LPM_AVALUE");
  if (width < 62 && value >= (1LL << width)) return setValueTooWideText("LPM_AVALUE", value, width);
  return std::nullopt;
}

void describeLatch(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_latch");
  cnx.numericConstant("LPM_WIDTH", width);
  if (isYes(values, "ASET") && numberValue(values, "LPM_AVALUE") >= 0)
    cnx.numericConstant("LPM_AVALUE", numberValue(values, "LPM_AVALUE"));
  cnx.stringConstant("LPM_TYPE", "LPM_LATCH");

  cnx.passedInput("data", bus);
  cnx.passedInput("gate", bit);
  if (isYes(values, "ACLR")) cnx.passedInput("aclr", bit, "GND");
  if (isYes(values, "ASET")) cnx.passedInput("aset", bit, "GND");
  cnx.passedOutput("q", bus);
}

}  // namespace

Modulon latchModulon() {
  return Modulon{
      "lpm_latch",
      "Latch",
      {
          numberSetting("LPM_WIDTH", "Width of data and q", 1, 64, 8),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("ASET", "Asynchronous set input aset", false),
          numberSetting("LPM_AVALUE", "Value aset gives (-1: all ones)", -1, 2147483647, -1),
      },
      checkLatch,
      describeLatch,
  };
}

}  // namespace plovix::wizard
