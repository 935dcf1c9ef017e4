// count_compare: a counter whose count feeds a comparator that flags one value, two library modules wired
// together.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkCountCompare(const SettingValues& values) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long match = numberValue(values, "MATCH_VALUE");
  if (width < 62 && match >= (1LL << width)) return valueTooWideText("MATCH_VALUE", match, width);
  return std::nullopt;
}

void describeCountCompare(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_counter", "counter");
  cnx.module("lpm_compare", "compare");
  // The width goes to both instances; every other value to its own.
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_DIRECTION", "UP", "counter");
  cnx.stringConstant("LPM_TYPE", "LPM_COUNTER", "counter");
  cnx.stringConstant("LPM_REPRESENTATION", "UNSIGNED", "compare");
  cnx.stringConstant("LPM_TYPE", "LPM_COMPARE", "compare");

  cnx.usedPort("clock", bit, "INPUT");
  cnx.connect("counter@clock", bit, "clock", bit);
  if (isYes(values, "ACLR")) {
    cnx.usedPort("aclr", bit, "INPUT", "GND");
    cnx.connect("counter@aclr", bit, "aclr", bit);
  }
  cnx.connect("compare@dataa", bus, "counter@q", bus);
  cnx.connect("compare@datab", bus, std::to_string(numberValue(values, "MATCH_VALUE")), bit);
  if (isYes(values, "Q")) {
    cnx.usedPort("q", bus, "OUTPUT");
    cnx.connect("q", bus, "counter@q", bus);
  }
  cnx.usedPort("match", bit, "OUTPUT");
  cnx.connect("match", bit, "compare@aeb", bit);
  cnx.usedPort("above", bit, "OUTPUT");
  cnx.connect("above", bit, "compare@agb", bit);
}

}  // namespace

Modulon countCompareModulon() {
  return Modulon{
      "count_compare",
      "Counter with a match output",
      {
          numberSetting("LPM_WIDTH", "Width of the count", 1, 32, 8),
          numberSetting("MATCH_VALUE", "Count value at which match is high", 0, 2147483647, 10),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("Q", "Count output q", true),
      },
      checkCountCompare,
      describeCountCompare,
  };
}

}  // namespace plovix::wizard
