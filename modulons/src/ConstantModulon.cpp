// lpm_constant: a fixed value on a bus; draws its own symbol and can be made as a symbol alone.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkConstant(const SettingValues& values) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long value = numberValue(values, "LPM_CVALUE");
  if (width < 62 && value >= (1LL << width)) return valueTooWideText("LPM_CVALUE", value, width);
  return std::nullopt;
}

// A box with the value written in it and one output pin on its right side. The parameter block stands at the
// sheet's top left corner (two lines of "Arial,6", 18 pixels), so the name starts below it; the pin's name
// starts where even the widest one, result[31..0], ends inside the box.
void drawConstantSymbol(long long width, long long value, DescriptionText& cnx) {
  const std::string pin = pinText("result", Bounds::bus(width));
  cnx.symbol("BOX 192 112 16 20 \"Arial,8\"");
  cnx.symbol("RECT 16 40 168 100 SOLID THIN");
  cnx.symbol("TEXT \"CONSTANT\" 28 48 HORIZ \"Arial,8\"");
  cnx.symbol("TEXT \"" + std::to_string(value) + "\" 28 76 HORIZ \"Arial,10\"");
  cnx.symbol("PINSTUB 184 64 OUT result 100 58 \"" + pin + "\" HORIZ \"Arial,8\"");
  cnx.symbol("LINE 168 64 184 64 " + std::string(width > 1 ? "BUS" : "SOLID") + " THIN");
  cnx.symbol("PARAMETER \"LPM_WIDTH=" + std::to_string(width) + "/LPM_CVALUE=" + std::to_string(value) +
             "\" \"Arial,6\"");
}

void describeConstant(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long value = numberValue(values, "LPM_CVALUE");

  cnx.module("lpm_constant");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_CVALUE", value);
  cnx.stringConstant("LPM_TYPE", "LPM_CONSTANT");
  // Kept with the variation for its users; not passed to the library module.
  cnx.stringParameter("CVALUE_TEXT", std::to_string(value), "variation");
  cnx.usedPort("result", Bounds::bus(width), "OUTPUT");
  cnx.connect("result", Bounds::bus(width), "@result", Bounds::bus(width));
  drawConstantSymbol(width, value, cnx);
}

}  // namespace

Modulon constantModulon() {
  return Modulon{
      "lpm_constant",
      "Constant value",
      {
          numberSetting("LPM_WIDTH", "Width of the result", 1, 32, 8),
          numberSetting("LPM_CVALUE", "The value (unsigned)", 0, 2147483647, 0),
          yesNoSetting("SYMBOL_ONLY", "Make the symbol only, no design files", false),
      },
      checkConstant,
      describeConstant,
  };
}

}  // namespace plovix::wizard
