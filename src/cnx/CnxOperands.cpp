// Implementation of the operand classes of CNX statement lines.
#include "cnx/CnxOperands.h"

#include <limits>

#include "base/Messages.h"
#include "base/TextHelpers.h"
#include "cnx/CnxLineReader.h"

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

bool CnxOperands::take() {
  return takeCnxToken(description_);
}

bool CnxOperands::fail(Msg message) {
  return description_.logError(ui_, std::string(errorText(message)));
}

bool CnxOperands::identifier(std::string& out) {
  if (!take()) return fail(Msg::kCnxNoIdentifier);
  if (!isLetter(token().front())) return fail(Msg::kCnxIdentifierStart);
  out = token();
  return true;
}

bool CnxOperands::optionalIdentifier(std::string& out) {
  if (!take()) return true;
  if (!isLetter(token().front())) return fail(Msg::kCnxIdentifierStart);
  out = token();
  return true;
}

bool CnxOperands::portName(std::string& out) {
  if (!take()) return fail(Msg::kCnxNoIdentifier);
  out = token();
  return true;
}

bool CnxOperands::type(std::string& out) {
  take();
  if (token() != "NUMERIC" && token() != "STRING") return fail(Msg::kCnxNoType);
  out = token();
  return true;
}

bool CnxOperands::value(std::string& out) {
  if (!take()) return fail(Msg::kCnxNoValue);
  out = token();
  return true;
}

void CnxOperands::word(std::string& out) {
  take();
  out = token();
}

bool CnxOperands::portType(std::string& out) {
  take();
  if (token() != "INPUT" && token() != "OUTPUT" && token() != "BIDIR") return fail(Msg::kCnxNoPortType);
  out = token();
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

bool CnxOperands::keyword(std::string& out, std::initializer_list<std::string_view> allowed, bool optional,
                          Msg message) {
  if (!take()) {
    if (!optional) return fail(message);
    out.clear();
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
