// References of USED_PORT: and CONNECT: lines ([!][instance@]port) and the constants a connection may name.
#pragma once

#include <string>
#include <string_view>

namespace plovix {

struct CnxReference {
  std::string_view instance;  // empty without "@"; see splitCnxReference for "@" at the start
  std::string_view port;      // the text after the first "@", or the whole text
  bool startsWithAt = false;  // the instance is the main module's
  bool inverted = false;      // the reference started with "!"
};

// Splits a reference; a leading "!" is removed first and noted. A reference that starts with "@" names the
// main module's instance, which the caller fills in.
CnxReference splitCnxReference(std::string_view text);

// Whether the text, without a leading "!", is "VCC", "GND" or a number (an optional "-" and decimal digits).
bool isCnxConstant(std::string_view text);

// The constant that a "!" in front of `constant` stands for: VCC and GND swap, a number n gives the decimal
// text of its 32-bit complement.
std::string invertedCnxConstant(std::string_view constant);

}  // namespace plovix
