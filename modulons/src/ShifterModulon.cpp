// lpm_clshift: a combinational shifter, logical, arithmetic or rotating, with overflow and underflow flags.
#include <utility>

#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkShifter(const SettingValues& values) {
  const std::string type = textValue(values, "LPM_SHIFTTYPE");
  const std::string direction = textValue(values, "DIRECTION");
  for (const char* flag : {"OVERFLOW", "UNDERFLOW"}) {
    if (isYes(values, flag) && type == "ROTATE") return rotateHasNoFlagText(flag);
  }
  if (isYes(values, "OVERFLOW") && direction == "RIGHT")
    return flagNeedsDirectionText("OVERFLOW", "LEFT or INPUT");
  if (isYes(values, "UNDERFLOW") && direction == "LEFT")
    return flagNeedsDirectionText("UNDERFLOW", "RIGHT or INPUT");
  return std::nullopt;
}

void describeShifter(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long distanceWidth = numberValue(values, "LPM_WIDTHDIST");
  const std::string direction = textValue(values, "DIRECTION");
  const Bounds bus = Bounds::bus(width);
  const Bounds distance = Bounds::bus(distanceWidth);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_clshift");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_WIDTHDIST", distanceWidth);
  cnx.stringConstant("LPM_SHIFTTYPE", textValue(values, "LPM_SHIFTTYPE"));
  cnx.stringConstant("LPM_TYPE", "LPM_CLSHIFT");

  cnx.usedPort("data", bus, "INPUT");
  cnx.usedPort("distance", distance, "INPUT");
  cnx.connect("@data", bus, "data", bus);
  cnx.connect("@distance", distance, "distance", distance);
  if (direction == "INPUT") {
    cnx.usedPort("direction", bit, "INPUT", "GND");
    cnx.connect("@direction", bit, "direction", bit);
  } else {
    // The library module shifts left while its direction input is low.
    cnx.connect("@direction", bit, direction == "RIGHT" ? "VCC" : "GND", bit);
  }
  cnx.usedPort("result", bus, "OUTPUT");
  cnx.connect("result", bus, "@result", bus);
  for (const auto& [setting, port] :
       {std::pair{"OVERFLOW", "overflow"}, std::pair{"UNDERFLOW", "underflow"}}) {
    if (!isYes(values, setting)) continue;
    cnx.usedPort(port, bit, "OUTPUT");
    cnx.connect(port, bit, std::string("@") + port, bit);
  }
}

}  // namespace

Modulon shifterModulon() {
  return Modulon{
      "lpm_clshift",
      "Combinational shifter",
      {
          numberSetting("LPM_WIDTH", "Width of the data input and the result", 1, 64, 8),
          numberSetting("LPM_WIDTHDIST", "Width of the distance input (shift by 0 to 2^width - 1 places)", 1,
                        8, 3),
          choiceSetting("LPM_SHIFTTYPE", "Kind of shift (ARITHMETIC fills with the sign on right shifts)",
                        {"LOGICAL", "ARITHMETIC", "ROTATE"}, "LOGICAL"),
          choiceSetting("DIRECTION", "Shift direction (INPUT: a direction input chooses, high shifts right)",
                        {"LEFT", "RIGHT", "INPUT"}, "LEFT"),
          yesNoSetting("OVERFLOW", "Output overflow: a left shift lost significant bits", false),
          yesNoSetting("UNDERFLOW", "Output underflow: a right shift lost every significant bit", false),
      },
      checkShifter,
      describeShifter,
  };
}

}  // namespace plovix::wizard
