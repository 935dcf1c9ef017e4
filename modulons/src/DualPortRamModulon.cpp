// lpm_ram_dp: a memory written at one clock and read at its own address, registered at a second clock or
// direct.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

bool readRegistered(const SettingValues& values) {
  return textValue(values, "LPM_RDADDRESS_CONTROL") == "REGISTERED" ||
         textValue(values, "LPM_OUTDATA") == "REGISTERED";
}

std::optional<std::string> checkDualPortRam(const SettingValues& values) {
  const long long widthad = numberValue(values, "LPM_WIDTHAD");
  const long long words = numberValue(values, "LPM_NUMWORDS");
  if (words > (1LL << widthad)) return tooManyWordsText(words, widthad);
  if ((isYes(values, "RDEN") || isYes(values, "RDCLKEN")) && !readRegistered(values))
    return readEnableNeedsClockText();
  return std::nullopt;
}

void describeDualPortRam(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long widthad = numberValue(values, "LPM_WIDTHAD");
  const long long words =
      numberValue(values, "LPM_NUMWORDS") == 0 ? (1LL << widthad) : numberValue(values, "LPM_NUMWORDS");
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_ram_dp");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_WIDTHAD", widthad);
  cnx.numericConstant("LPM_NUMWORDS", words);
  cnx.stringConstant("LPM_RDADDRESS_CONTROL", textValue(values, "LPM_RDADDRESS_CONTROL"));
  cnx.stringConstant("LPM_OUTDATA", textValue(values, "LPM_OUTDATA"));
  cnx.stringConstant("LPM_TYPE", "LPM_RAM_DP");

  cnx.passedInput("data", Bounds::bus(width));
  cnx.passedInput("wraddress", Bounds::bus(widthad));
  cnx.passedInput("wren", bit, "GND");
  cnx.passedInput("wrclock", bit);
  if (isYes(values, "WRCLKEN")) cnx.passedInput("wrclken", bit, "VCC");
  cnx.passedInput("rdaddress", Bounds::bus(widthad));
  if (readRegistered(values)) cnx.passedInput("rdclock", bit);
  if (isYes(values, "RDEN")) cnx.passedInput("rden", bit, "VCC");
  if (isYes(values, "RDCLKEN")) cnx.passedInput("rdclken", bit, "VCC");
  cnx.passedOutput("q", Bounds::bus(width));
}

}  // namespace

Modulon dualPortRamModulon() {
  const std::vector<std::string> timing = {"REGISTERED", "UNREGISTERED"};
  return Modulon{
      "lpm_ram_dp",
      "Dual-port RAM",
      {
          numberSetting("LPM_WIDTH", "Width of a memory word", 1, 64, 8),
          numberSetting("LPM_WIDTHAD", "Width of the read and write addresses", 1, 16, 5),
          numberSetting("LPM_NUMWORDS", "Number of words (0: every address)", 0, 65536, 0),
          choiceSetting("LPM_RDADDRESS_CONTROL", "Read address taken at the rdclock edge", timing,
                        "REGISTERED"),
          choiceSetting("LPM_OUTDATA", "Output q taken at the rdclock edge", timing, "UNREGISTERED"),
          yesNoSetting("WRCLKEN", "Write clock enable input wrclken", false),
          yesNoSetting("RDEN", "Read enable input rden", false),
          yesNoSetting("RDCLKEN", "Read clock enable input rdclken", false),
      },
      checkDualPortRam,
      describeDualPortRam,
  };
}

}  // namespace plovix::wizard
