// lpm_shiftreg: a shift register with optional parallel load, clear and serial output.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkShiftRegister(const SettingValues& values) {
  if (!isYes(values, "Q") && !isYes(values, "SHIFTOUT")) return noShiftOutputText();
  return std::nullopt;
}

void describeShiftRegister(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_shiftreg");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_DIRECTION", textValue(values, "LPM_DIRECTION"));
  cnx.stringConstant("LPM_TYPE", "LPM_SHIFTREG");

  cnx.usedPort("clock", bit, "INPUT");
  cnx.usedPort("shiftin", bit, "INPUT", "VCC");
  cnx.connect("@clock", bit, "clock", bit);
  cnx.connect("@shiftin", bit, "shiftin", bit);
  if (isYes(values, "LOAD")) {
    cnx.usedPort("load", bit, "INPUT", "GND");
    cnx.usedPort("data", bus, "INPUT");
    cnx.connect("@load", bit, "load", bit);
    cnx.connect("@data", bus, "data", bus);
  }
  if (isYes(values, "ACLR")) {
    cnx.usedPort("aclr", bit, "INPUT", "GND");
    cnx.connect("@aclr", bit, "aclr", bit);
  }
  if (isYes(values, "Q")) {
    cnx.usedPort("q", bus, "OUTPUT");
    cnx.connect("q", bus, "@q", bus);
  }
  if (isYes(values, "SHIFTOUT")) {
    cnx.usedPort("shiftout", bit, "OUTPUT");
    cnx.connect("shiftout", bit, "@shiftout", bit);
  }
}

}  // namespace

Modulon shiftRegisterModulon() {
  return Modulon{
      "lpm_shiftreg",
      "Shift register",
      {
          numberSetting("LPM_WIDTH", "Number of register bits", 1, 32, 8),
          choiceSetting("LPM_DIRECTION", "Shift direction", {"LEFT", "RIGHT"}, "LEFT"),
          yesNoSetting("LOAD", "Parallel load inputs load and data", false),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("Q", "Parallel output q", true),
          yesNoSetting("SHIFTOUT", "Serial output shiftout", false),
      },
      checkShiftRegister,
      describeShiftRegister,
  };
}

}  // namespace plovix::wizard
