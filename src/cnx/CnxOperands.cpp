// Implementation of the operand classes of CNX statement lines.
#include "cnx/CnxOperands.h"
#include "base/Messages.h"

#include <limits>

#include "base/TextHelpers.h"

namespace plovix {

namespace {

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

int32_t cnxNumberValue(std::string_view text) {
  const long long value = atoiText(text);
  if (value > std::numeric_limits<int32_t>::max()) return std::numeric_limits<int32_t>::max();
  if (value < std::numeric_limits<int32_t>::min()) return std::numeric_limits<int32_t>::min();
  return static_cast<int32_t>(value);
}

bool CnxOperands::identifier(std::string_view& out) {
  if (!take()) return fail(Msg::kCnxNoIdentifier);
  if (!isLetter(token().front())) return fail(Msg::kCnxIdentifierStart);
  out = token();
  return true;
}

bool CnxOperands::optionalIdentifier(std::string_view& out) {
  if (!take()) return true;
  if (!isLetter(token().front())) return fail(Msg::kCnxIdentifierStart);
  out = token();
  return true;
}

bool CnxOperands::portName(std::string_view& out) {
  if (!take()) return fail(Msg::kCnxNoIdentifier);
  out = token();
  return true;
}

bool CnxOperands::type(ValueType& out) {
  take();
  if (token() == "NUMERIC") {
    out = ValueType::kNumeric;
  } else if (token() == "STRING") {
    out = ValueType::kString;
  } else {
    return fail(Msg::kCnxNoType);
  }
  return true;
}

bool CnxOperands::value(std::string_view& out) {
  if (!take()) return fail(Msg::kCnxNoValue);
  out = token();
  return true;
}

std::string_view CnxOperands::word() {
  take();
  return token();
}

bool CnxOperands::portType(PortDirection& out) {
  take();
  if (token() == "INPUT") {
    out = PortDirection::kInput;
  } else if (token() == "OUTPUT") {
    out = PortDirection::kOutput;
  } else if (token() == "BIDIR") {
    out = PortDirection::kBidir;
  } else {
    return fail(Msg::kCnxNoPortType);
  }
  return true;
}

bool CnxOperands::endOfLine() {
  if (take()) return fail(Msg::kCnxExtraTokens);
  return true;
}

bool CnxOperands::number(int32_t& out) {
  if (!take() || !isIntegerText(token())) return fail(Msg::kCnxNoNumber);
  out = cnxNumberValue(token());
  return true;
}

bool CnxOperands::keyword(std::string_view& out, std::initializer_list<std::string_view> allowed,
                          bool optional, Msg message) {
  if (!take()) {
    if (!optional) return fail(message);
    out = {};
    return true;
  }
  for (std::string_view candidate : allowed) {
    if (token() == candidate) {
      out = token();
      return true;
    }
  }
  return fail(message);
}

}  // namespace plovix
