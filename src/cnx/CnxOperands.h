// The operand classes of CNX statement lines: each takes the next token, checks it and logs the first fault.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "base/Messages.h"
#include "cnx/CnxDescription.h"
#include "cnx/CnxLineReader.h"
#include "cnx/ErrorLog.h"

namespace plovix {

// Reads the operands of the current line. Every check returns false after logging its message (the line is
// then dropped); the checks that cannot fail return nothing. Taken texts are views of the line.
class CnxOperands {
 public:
  CnxOperands(CnxLine& line, CnxErrorLog& log) : line_(line), log_(log) {}

  // Takes the next token; true when there was one (the empty quoted token counts as none).
  bool take() { return line_.take(); }
  std::string_view token() const { return line_.token; }
  bool emptyQuoted() const { return line_.emptyQuoted; }

  // The physical line number of the current line, as the error log names it.
  int32_t lineNumber() const { return line_.counter - 1; }

  // Logs `message` against the current line; always false.
  bool fail(Msg message) { return log_.add(line_.counter, line_.rest, errorText(message)); }

  // Not empty, first character a letter.
  bool identifier(std::string_view& out);
  // Absent, or an identifier.
  bool optionalIdentifier(std::string_view& out);
  // Not empty.
  bool portName(std::string_view& out);
  // "NUMERIC" or "STRING".
  bool type(ValueType& out);
  // Not empty.
  bool value(std::string_view& out);
  // Any token, possibly absent.
  std::string_view word();
  // "INPUT", "OUTPUT" or "BIDIR".
  bool portType(PortDirection& out);
  // No further token.
  bool endOfLine();

  // An optional "-" and decimal digits (a lone "-" is 0), stored as a 32-bit integer.
  bool number(int32_t& out);
  // One of `allowed`; when `optional`, also absent (then `out` is empty).
  bool keyword(std::string_view& out, std::initializer_list<std::string_view> allowed, bool optional,
               Msg message);

 private:
  CnxLine& line_;
  CnxErrorLog& log_;
};

// The value of a number text as the C library's conversion reads it, limited to the 32-bit range.
int32_t cnxNumberValue(std::string_view text);

}  // namespace plovix
