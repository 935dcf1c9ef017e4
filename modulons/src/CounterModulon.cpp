// lpm_counter: a binary counter with optional clear, load, enable and carry out.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkCounter(const SettingValues& values) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long modulus = numberValue(values, "LPM_MODULUS");
  if (modulus > (1LL << width)) return modulusTooLargeText(modulus, width);
  return std::nullopt;
}

void describeCounter(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const std::string direction = textValue(values, "LPM_DIRECTION");
  const std::string enable = textValue(values, "CNT_EN");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_counter");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_DIRECTION", direction);
  if (numberValue(values, "LPM_MODULUS") != 0)
    cnx.numericConstant("LPM_MODULUS", numberValue(values, "LPM_MODULUS"));
  cnx.stringConstant("LPM_TYPE", "LPM_COUNTER");

  cnx.usedPort("clock", bit, "INPUT");
  cnx.connect("@clock", bit, "clock", bit);
  if (direction == "UNUSED") {
    cnx.usedPort("updown", bit, "INPUT", "VCC");
    cnx.connect("@updown", bit, "updown", bit);
  }
  if (isYes(values, "ACLR")) {
    cnx.usedPort("aclr", bit, "INPUT", "GND");
    cnx.connect("@aclr", bit, "aclr", bit);
  }
  if (isYes(values, "SLOAD")) {
    cnx.usedPort("sload", bit, "INPUT", "GND");
    cnx.usedPort("data", bus, "INPUT");
    cnx.connect("@sload", bit, "sload", bit);
    cnx.connect("@data", bus, "data", bus);
  }
  if (enable == "HIGH") {
    cnx.usedPort("cnt_en", bit, "INPUT", "VCC");
    cnx.connect("@cnt_en", bit, "cnt_en", bit);
  } else if (enable == "LOW") {
    // An active-low enable input drives the counter's enable through an inverter.
    cnx.usedPort("cnt_en_n", bit, "INPUT", "GND");
    cnx.connect("@cnt_en", bit, "!cnt_en_n", bit);
  }
  cnx.usedPort("q", bus, "OUTPUT");
  cnx.connect("q", bus, "@q", bus);
  if (isYes(values, "COUT")) {
    cnx.usedPort("cout", bit, "OUTPUT");
    cnx.connect("cout", bit, "@cout", bit);
  }
}

}  // namespace

Modulon counterModulon() {
  return Modulon{
      "lpm_counter",
      "Binary counter",
      {
          numberSetting("LPM_WIDTH", "Width of the count output q", 1, 32, 8),
          choiceSetting("LPM_DIRECTION", "Counting direction (UNUSED: an updown input chooses)",
                        {"UP", "DOWN", "UNUSED"}, "UP"),
          numberSetting("LPM_MODULUS", "Modulus (0: the full range of the width)", 0, 2147483647, 0),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("SLOAD", "Synchronous load inputs sload and data", false),
          choiceSetting("CNT_EN", "Count enable input (HIGH: cnt_en, LOW: active-low cnt_en_n)",
                        {"NONE", "HIGH", "LOW"}, "NONE"),
          yesNoSetting("COUT", "Carry output cout", false),
      },
      checkCounter,
      describeCounter,
  };
}

}  // namespace plovix::wizard
