// The small text rules of the VHDL texts.
#include "hdl/VhdlTextRules.h"

#include <algorithm>
#include <cstdint>

#include "base/Format.h"
#include "base/TextHelpers.h"

namespace plovix {

const char* vhdlDirectionWord(PortDirection direction) {
  switch (direction) {
    case PortDirection::kInput:
      return "IN";
    case PortDirection::kOutput:
      return "OUT";
    case PortDirection::kBidir:
      return "INOUT";
  }
  return "";
}

std::string vhdlRangeText(const Shape& shape) {
  if (!shape.rows.present() && shape.bits.present()) {
    return formatText("(%s DOWNTO %s)", shape.bits.upperText().c_str(), shape.bits.low.text().c_str());
  }
  if (shape.rows.present()) {
    return formatText("(%s DOWNTO %s, %s DOWNTO %s)", shape.rows.upperText().c_str(),
                      shape.rows.low.text().c_str(), shape.bits.upperText().c_str(),
                      shape.bits.low.text().c_str());
  }
  return {};
}

std::string vhdlTypeText(const Shape& shape) {
  std::string suffix;
  std::string range;
  if (shape.rows.present()) {
    suffix = "_2D";
    range = vhdlRangeText(shape);
  } else if (shape.bits.present()) {
    suffix = "_VECTOR";
    range = vhdlRangeText(Shape{{}, shape.bits});
  }
  return formatText("STD_LOGIC%s %s", suffix.c_str(), range.c_str());
}

std::string vhdlBitVectorTypeText(const Range& bits) {
  return formatText("BIT_VECTOR %s", vhdlRangeText(Shape{{}, bits}).c_str());
}

std::string vhdlBitOfNumber(Name number) {
  return binaryLiteral(number.view(), 1) == "1" ? "'1'" : "'0'";
}

std::string vhdlDefaultText(const CnxUsedPort& port, HdlTextMode mode) {
  if (port.direction != PortDirection::kInput && port.direction != PortDirection::kBidir) return {};
  std::string value;
  switch (port.defaultValue.kind) {
    case DefaultKind::kNone:
      return {};
    case DefaultKind::kGround:
      value = "'0'";
      break;
    case DefaultKind::kPower:
      value = "'1'";
      break;
    case DefaultKind::kOther:
      if (mode == HdlTextMode::kValid && port.shape.isSingleBit())
        return " := " + vhdlBitOfNumber(port.defaultValue.text);
      if (mode == HdlTextMode::kValid && !port.shape.rows.present()) {
        const int bits = static_cast<int>(std::clamp(vhdlIntegerOf(port.shape.bits.width), 0LL, 1LL << 20));
        return " := \"" + binaryLiteral(port.defaultValue.text.view(), bits) + "\"";
      }
      value = port.defaultValue.text.str();
      break;
  }
  if (port.shape.isSingleBit()) return " := " + value;
  return " := " + (" (OTHERS => " + value + ")");
}

const char* vhdlGenericType(const CnxConstant& constant) {
  return constant.type == ValueType::kNumeric ? "NATURAL" : "STRING";
}

std::string vhdlGenericValue(const CnxConstant& constant) {
  if (constant.type == ValueType::kNumeric) return constant.value.str();
  return "\"" + constant.value.str() + "\"";
}

std::string vhdlInstanceLabel(Name instance) {
  if (instance.empty()) return {};
  return instance.str() + "_component";
}

long long vhdlIntegerOf(Bound bound) {
  if (!bound.isInteger()) return 0;
  return std::clamp<long long>(bound.value(), INT32_MIN, INT32_MAX);
}

}  // namespace plovix
