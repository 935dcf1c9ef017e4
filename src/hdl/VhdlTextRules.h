// The small text rules of the VHDL texts: directions, ranges, types, defaults, generics, labels, integers.
#pragma once

#include <string>

#include "cnx/CnxDescription.h"
#include "hdl/HdlTextMode.h"

namespace plovix {

// INPUT -> "IN", OUTPUT -> "OUT", BIDIR -> "INOUT".
const char* vhdlDirectionWord(PortDirection direction);

// "(hi DOWNTO lo)" of `bits` when only it is present, "(hi1 DOWNTO lo1, hi2 DOWNTO lo2)" when `rows` is
// present, empty when both widths are "0".
std::string vhdlRangeText(const Shape& shape);

// "STD_LOGIC_2D (..)", "STD_LOGIC_VECTOR (..)" or "STD_LOGIC " for a single bit.
std::string vhdlTypeText(const Shape& shape);

// "BIT_VECTOR " and the range of `bits` alone.
std::string vhdlBitVectorTypeText(const Range& bits);

// The " := value" of an input or bidirectional port with a default; empty otherwise. A numeric default is
// written as it stands in the standard text, as the bits of the number in the valid one.
std::string vhdlDefaultText(const CnxUsedPort& port, HdlTextMode mode = HdlTextMode::kStandard);

// A number's lowest bit as a VHDL bit literal, '0' or '1'.
std::string vhdlBitOfNumber(Name number);

// "NATURAL" for a NUMERIC constant, else "STRING".
const char* vhdlGenericType(const CnxConstant& constant);

// A NUMERIC constant's value as it stands, any other in double quotes.
std::string vhdlGenericValue(const CnxConstant& constant);

// instance + "_component", or the empty text for an empty instance.
std::string vhdlInstanceLabel(Name instance);

// The value of a decimal text, held to the 32-bit range; 0 for a text that is not a decimal number.
long long vhdlIntegerOf(Bound bound);

}  // namespace plovix
