// lpm_compare: compares two buses, or a bus with a fixed value.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

const char* const kOutputs[] = {"ALB", "AEB", "AGB", "AGEB", "ANEB", "ALEB"};

std::optional<std::string> checkCompare(const SettingValues& values) {
  bool anyOutput = false;
  for (const char* output : kOutputs) anyOutput = anyOutput || isYes(values, output);
  if (!anyOutput) return noCompareOutputText();
  const long long width = numberValue(values, "LPM_WIDTH");
  if (textValue(values, "DATAB") == "CONSTANT" && width < 62 &&
      numberValue(values, "DATAB_VALUE") >= (1LL << width))
    return valueTooWideText("DATAB_VALUE", numberValue(values, "DATAB_VALUE"), width);
  return std::nullopt;
}

void describeCompare(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_compare");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_REPRESENTATION", textValue(values, "LPM_REPRESENTATION"));
  cnx.stringConstant("LPM_TYPE", "LPM_COMPARE");

  cnx.usedPort("dataa", bus, "INPUT");
  cnx.connect("@dataa", bus, "dataa", bus);
  if (textValue(values, "DATAB") == "CONSTANT") {
    cnx.connect("@datab", bus, std::to_string(numberValue(values, "DATAB_VALUE")), bit);
  } else {
    cnx.usedPort("datab", bus, "INPUT");
    cnx.connect("@datab", bus, "datab", bus);
  }
  for (const char* output : kOutputs) {
    if (!isYes(values, output)) continue;
    std::string port = output;
    for (char& c : port) c = static_cast<char>(c - 'A' + 'a');
    cnx.usedPort(port, bit, "OUTPUT");
    cnx.connect(port, bit, "@" + port, bit);
  }
}

}  // namespace

Modulon compareModulon() {
  return Modulon{
      "lpm_compare",
      "Magnitude comparator",
      {
          numberSetting("LPM_WIDTH", "Width of the compared buses", 1, 32, 8),
          choiceSetting("LPM_REPRESENTATION", "Number representation", {"UNSIGNED", "SIGNED"}, "UNSIGNED"),
          choiceSetting("DATAB", "Second operand: an input datab or a fixed value", {"INPUT", "CONSTANT"},
                        "INPUT"),
          numberSetting("DATAB_VALUE", "Fixed value of the second operand (bit pattern)", 0, 2147483647, 0),
          yesNoSetting("ALB", "Output alb (dataa < datab)", true),
          yesNoSetting("AEB", "Output aeb (dataa = datab)", true),
          yesNoSetting("AGB", "Output agb (dataa > datab)", true),
          yesNoSetting("AGEB", "Output ageb (dataa >= datab)", false),
          yesNoSetting("ANEB", "Output aneb (dataa /= datab)", false),
          yesNoSetting("ALEB", "Output aleb (dataa <= datab)", false),
      },
      checkCompare,
      describeCompare,
  };
}

}  // namespace plovix::wizard
