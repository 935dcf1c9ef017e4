// The small text rules of the VHDL texts.
#include "hdl/VhdlTextRules.h"

#include <algorithm>
#include <cstdint>

#include "base/Format.h"
#include "base/TextHelpers.h"

namespace plovix {

std::string vhdlDirectionWord(const std::string& direction) {
  if (direction == "INPUT") return "IN";
  if (direction == "OUTPUT") return "OUT";
  if (direction == "BIDIR") return "INOUT";
  return direction;
}

std::string vhdlRangeText(const std::string& width1, const std::string& low1, const std::string& width2,
                          const std::string& low2) {
  if (width1 == "0" && width2 != "0") {
    return formatText("(%s DOWNTO %s)", upperBoundText(width2, low2).c_str(), low2.c_str());
  }
  if (width1 != "0") {
    return formatText("(%s DOWNTO %s, %s DOWNTO %s)", upperBoundText(width1, low1).c_str(), low1.c_str(),
                      upperBoundText(width2, low2).c_str(), low2.c_str());
  }
  return {};
}

std::string vhdlTypeText(const std::string& width1, const std::string& low1, const std::string& width2,
                         const std::string& low2) {
  std::string suffix;
  std::string range;
  if (width1 != "0") {
    suffix = "_2D";
    range = vhdlRangeText(width1, low1, width2, low2);
  } else if (width2 != "0") {
    suffix = "_VECTOR";
    range = vhdlRangeText("0", "0", width2, low2);
  }
  return formatText("STD_LOGIC%s %s", suffix.c_str(), range.c_str());
}

std::string vhdlBitVectorTypeText(const std::string& width2, const std::string& low2) {
  return formatText("BIT_VECTOR %s", vhdlRangeText("0", "0", width2, low2).c_str());
}

std::string vhdlDefaultText(const CnxUsedPort& port) {
  if (port.direction != "INPUT" && port.direction != "BIDIR") return {};
  if (port.defaultValue == "NODEFVAL") return {};
  std::string value = port.defaultValue;
  if (value == "GND") {
    value = "'0'";
  } else if (value == "VCC") {
    value = "'1'";
  }
  if (port.width1 == "0" && port.width2 == "0") return " := " + value;
  return " := " + (" (OTHERS => " + value + ")");
}

std::string vhdlGenericType(const CnxConstant& constant) {
  return constant.type == "NUMERIC" ? "NATURAL" : "STRING";
}

std::string vhdlGenericValue(const CnxConstant& constant) {
  if (constant.type == "NUMERIC") return constant.value;
  return "\"" + constant.value + "\"";
}

std::string vhdlInstanceLabel(const std::string& instance) {
  if (instance.empty()) return instance;
  return instance + "_component";
}

long long vhdlIntegerOf(const std::string& text) {
  if (!isIntegerText(text)) return 0;
  return std::clamp<long long>(atoiText(text), INT32_MIN, INT32_MAX);
}

}  // namespace plovix
