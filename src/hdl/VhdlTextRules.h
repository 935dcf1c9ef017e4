// The small text rules of the VHDL texts: directions, ranges, types, defaults, generics, labels, integers.
#pragma once

#include <string>

#include "cnx/CnxDescription.h"

namespace plovix {

// "INPUT" -> "IN", "OUTPUT" -> "OUT", "BIDIR" -> "INOUT"; any other text unchanged.
std::string vhdlDirectionWord(const std::string& direction);

// "(hi DOWNTO lo)" of the second pair when only it is present, "(hi1 DOWNTO lo1, hi2 DOWNTO lo2)" when the
// first is present, empty when both widths are "0".
std::string vhdlRangeText(const std::string& width1, const std::string& low1, const std::string& width2,
                          const std::string& low2);

// "STD_LOGIC_2D (..)", "STD_LOGIC_VECTOR (..)" or "STD_LOGIC " for a single bit.
std::string vhdlTypeText(const std::string& width1, const std::string& low1, const std::string& width2,
                         const std::string& low2);

// "BIT_VECTOR " and the range of the second pair alone.
std::string vhdlBitVectorTypeText(const std::string& width2, const std::string& low2);

// The " := value" of an input or bidirectional port with a default; empty otherwise.
std::string vhdlDefaultText(const CnxUsedPort& port);

// "NATURAL" for a NUMERIC constant, else "STRING".
std::string vhdlGenericType(const CnxConstant& constant);

// A NUMERIC constant's value as it stands, any other in double quotes.
std::string vhdlGenericValue(const CnxConstant& constant);

// instance + "_component", or the empty text for an empty instance.
std::string vhdlInstanceLabel(const std::string& instance);

// The value of a decimal text, held to the 32-bit range; 0 for a text that is not a decimal number.
long long vhdlIntegerOf(const std::string& text);

}  // namespace plovix
