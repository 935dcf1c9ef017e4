// The operand classes of CNX statement lines: each takes the next token, checks it and logs the first fault.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/Messages.h"
#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

namespace plovix {

// Reads the operands of the line in the description's `lineRest`. Every check returns false after logging
// its message (the line is then dropped); the checks that cannot fail return nothing.
class CnxOperands {
 public:
  CnxOperands(CnxDescription& description, UserInterface& ui) : description_(description), ui_(ui) {}

  CnxDescription& description() { return description_; }

  // Takes the next token; true when there was one (the empty quoted token counts as none).
  bool take();
  const std::string& token() const { return description_.token; }
  bool emptyQuoted() const { return description_.emptyQuoted; }

  // Logs `message` against the current line; always false.
  bool fail(Msg message);

  // Not empty, first character a letter.
  bool identifier(std::string& out);
  // Absent, or an identifier.
  bool optionalIdentifier(std::string& out);
  // Not empty.
  bool portName(std::string& out);
  // "NUMERIC" or "STRING".
  bool type(std::string& out);
  // Not empty.
  bool value(std::string& out);
  // Any token, possibly absent.
  void word(std::string& out);
  // "INPUT", "OUTPUT" or "BIDIR".
  bool portType(std::string& out);
  // No further token.
  bool endOfLine();

  // An optional "-" and decimal digits (a lone "-" is 0), stored as a 32-bit integer.
  bool number(int32_t& out);
  // One of `allowed`; when `optional`, also absent (then `out` is empty).
  bool keyword(std::string& out, std::initializer_list<std::string_view> allowed, bool optional, Msg message);

 private:
  CnxDescription& description_;
  UserInterface& ui_;
};

// The value of a number text as the C library's conversion reads it, limited to the 32-bit range.
int32_t cnxNumberValue(std::string_view text);

}  // namespace plovix
