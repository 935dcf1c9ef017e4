// lpm_rom: a read-only memory whose words come from an initialisation file, with registered or direct address
// and output.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkRom(const SettingValues& values) {
  const long long widthad = numberValue(values, "LPM_WIDTHAD");
  const long long words = numberValue(values, "LPM_NUMWORDS");
  if (words > (1LL << widthad)) return tooManyWordsText(words, widthad);
  const std::string file = textValue(values, "LPM_FILE");
  if (file.empty()) return missingFileText();
  // The name goes into HDL string literals, where a backslash starts an escape.
  if (file.find('\\') != std::string::npos) return badValueText("LPM_FILE", file, fileNameText());
  return std::nullopt;
}

void describeRom(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long widthad = numberValue(values, "LPM_WIDTHAD");
  const long long words =
      numberValue(values, "LPM_NUMWORDS") == 0 ? (1LL << widthad) : numberValue(values, "LPM_NUMWORDS");
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_rom");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_WIDTHAD", widthad);
  cnx.numericConstant("LPM_NUMWORDS", words);
  cnx.stringConstant("LPM_ADDRESS_CONTROL", textValue(values, "LPM_ADDRESS_CONTROL"));
  cnx.stringConstant("LPM_OUTDATA", textValue(values, "LPM_OUTDATA"));
  cnx.stringConstant("LPM_FILE", textValue(values, "LPM_FILE"));
  cnx.stringConstant("LPM_TYPE", "LPM_ROM");

  cnx.passedInput("address", Bounds::bus(widthad));
  if (textValue(values, "LPM_ADDRESS_CONTROL") == "REGISTERED") cnx.passedInput("inclock", bit);
  if (textValue(values, "LPM_OUTDATA") == "REGISTERED") cnx.passedInput("outclock", bit);
  cnx.passedOutput("q", Bounds::bus(width));
}

}  // namespace

Modulon romModulon() {
  const std::vector<std::string> timing = {"REGISTERED", "UNREGISTERED"};
  return Modulon{
      "lpm_rom",
      "ROM",
      {
          numberSetting("LPM_WIDTH", "Width of a memory word", 1, 64, 8),
          numberSetting("LPM_WIDTHAD", "Width of the address", 1, 16, 5),
          numberSetting("LPM_NUMWORDS", "Number of words (0: every address)", 0, 65536, 0),
          textSetting("LPM_FILE", "Initialisation file: Intel HEX, or plain hexadecimal words", "rom.hex"),
          choiceSetting("LPM_ADDRESS_CONTROL", "Address taken at the inclock edge", timing, "REGISTERED"),
          choiceSetting("LPM_OUTDATA", "Output q taken at the outclock edge", timing, "UNREGISTERED"),
      },
      checkRom,
      describeRom,
  };
}

}  // namespace plovix::wizard
