// lpm_bustri: a tri-state driver between a bidirectional bus and a data input and result output.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkBusDriver(const SettingValues& values) {
  if (!isYes(values, "ENABLEDT") && !isYes(values, "ENABLETR")) return noBusPathText();
  return std::nullopt;
}

void describeBusDriver(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();
  cnx.module("lpm_bustri");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_TYPE", "LPM_BUSTRI");

  if (isYes(values, "ENABLEDT")) {
    cnx.usedPort("data", bus, "INPUT");
    cnx.usedPort("enabledt", bit, "INPUT", "GND");
    cnx.connect("@data", bus, "data", bus);
    cnx.connect("@enabledt", bit, "enabledt", bit);
  }
  if (isYes(values, "ENABLETR")) {
    cnx.usedPort("enabletr", bit, "INPUT", "GND");
    cnx.connect("@enabletr", bit, "enabletr", bit);
  }
  // The bus is handed to the library module as it is, so that both directions pass through the port; an
  // output connection would go through a wire that carries one direction only.
  cnx.usedPort("tridata", bus, "BIDIR");
  cnx.connect("@tridata", bus, "tridata", bus);
  if (isYes(values, "ENABLETR")) {
    cnx.usedPort("result", bus, "OUTPUT");
    cnx.connect("result", bus, "@result", bus);
  }
}

}  // namespace

Modulon busDriverModulon() {
  return Modulon{
      "lpm_bustri",
      "Tri-state bus driver",
      {
          numberSetting("LPM_WIDTH", "Width of the buses", 1, 64, 8),
          yesNoSetting("ENABLEDT", "Drive input data onto tridata while enabledt is high", true),
          yesNoSetting("ENABLETR", "Pass tridata to output result while enabletr is high", true),
      },
      checkBusDriver,
      describeBusDriver,
  };
}

}  // namespace plovix::wizard
