// lpm_decode: raises one output per input value.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkDecode(const SettingValues& values) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long decodes = numberValue(values, "LPM_DECODES");
  if (decodes > (1LL << width)) return tooManyDecodesText(decodes, width);
  return std::nullopt;
}

void describeDecode(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long decodes = numberValue(values, "LPM_DECODES");
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_decode");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_DECODES", decodes);
  cnx.stringConstant("LPM_TYPE", "LPM_DECODE");

  cnx.usedPort("data", Bounds::bus(width), "INPUT");
  cnx.connect("@data", Bounds::bus(width), "data", Bounds::bus(width));
  if (isYes(values, "ENABLE")) {
    cnx.usedPort("enable", bit, "INPUT", "VCC");
    cnx.connect("@enable", bit, "enable", bit);
  }
  cnx.usedPort("eq", Bounds::bus(decodes), "OUTPUT");
  cnx.connect("eq", Bounds::bus(decodes), "@eq", Bounds::bus(decodes));
}

}  // namespace

Modulon decodeModulon() {
  return Modulon{
      "lpm_decode",
      "Decoder",
      {
          numberSetting("LPM_WIDTH", "Width of the data input", 1, 10, 3),
          numberSetting("LPM_DECODES", "Number of decoded outputs", 1, 1024, 8),
          yesNoSetting("ENABLE", "Enable input enable", false),
      },
      checkDecode,
      describeDecode,
  };
}

}  // namespace plovix::wizard
