// Implementation of the operand classes of CNX statement lines.
#include "cnx/CnxOperands.h"

#include <limits>

#include "base/TextHelpers.h"
#include "cnx/CnxLineReader.h"
#include "cnx/CnxMessages.h"

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

bool CnxOperands::fail(std::string_view message) {
  return description_.logError(ui_, std::string(message));
}

bool CnxOperands::identifier(std::string& out) {
  if (!take()) return fail(cnxmsg::kNoIdentifier);
  if (!isLetter(token().front())) return fail(cnxmsg::kIdentifierStart);
  out = token();
  return true;
}

bool CnxOperands::optionalIdentifier(std::string& out) {
  if (!take()) return true;
  if (!isLetter(token().front())) return fail(cnxmsg::kIdentifierStart);
  out = token();
  return true;
}

bool CnxOperands::portName(std::string& out) {
  if (!take()) return fail(cnxmsg::kNoIdentifier);
  out = token();
  return true;
}

bool CnxOperands::type(std::string& out) {
  take();
  if (token() != "NUMERIC" && token() != "STRING") return fail(cnxmsg::kNoType);
  out = token();
  return true;
}

bool CnxOperands::value(std::string& out) {
  if (!take()) return fail(cnxmsg::kNoValue);
  out = token();
  return true;
}

void CnxOperands::word(std::string& out) {
  take();
  out = token();
}

bool CnxOperands::portType(std::string& out) {
  take();
  if (token() != "INPUT" && token() != "OUTPUT" && token() != "BIDIR") return fail(cnxmsg::kNoPortType);
  out = token();
  return true;
}

bool CnxOperands::endOfLine() {
  if (take()) return fail(cnxmsg::kExtraTokens);
  return true;
}

bool CnxOperands::number(int32_t& out) {
  if (!take() || !isIntegerText(token())) return fail(cnxmsg::kNoNumber);
  out = cnxNumberValue(token());
  return true;
}

bool CnxOperands::keyword(std::string& out, std::initializer_list<std::string_view> allowed, bool optional,
                          std::string_view message) {
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
