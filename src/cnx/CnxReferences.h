// References of USED_PORT: and CONNECT: lines ([!][instance@]port) and the constants a connection may name.
#pragma once

#include <string>
#include <string_view>

namespace plovix {

struct CnxReference {
  std::string instance;   // empty without "@"; the main module's name for a reference that starts with "@"
  std::string port;       // the text after the first "@", or the whole text
  bool inverted = false;  // the reference started with "!"
};

// Splits a reference; a leading "!" is removed first and noted.
CnxReference splitCnxReference(std::string_view text, const std::string& mainModuleName);

// Whether the text, without a leading "!", is "VCC", "GND" or a number (an optional "-" and decimal digits).
bool isCnxConstant(std::string_view text);

// The constant that a "!" in front of `constant` stands for: VCC and GND swap, a number n gives the decimal
// text of its 32-bit complement.
std::string invertedCnxConstant(std::string_view constant);

}  // namespace plovix
