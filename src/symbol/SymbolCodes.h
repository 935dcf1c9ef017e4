// Keyword to number: the drawing library's pin and text types, line looks and orientation (plovix_host.h
// names the numbers).
#pragma once

#include <string_view>

#include "plovix_host.h"

namespace plovix {

// The font a text gets when its element names none.
inline constexpr const char* kDefaultSymbolFont = "Arial,8";

// "INPUT", "OUTPUT", "BIDIR": the pin texts' types; anything else 0.
int pinTypeCode(std::string_view direction);

// "NEW_PROP_TEXT", "SYMBOL_TEXT", "MACRO_TEXT", "IN", "OUT", "BIDIR": their text types; anything else 0.
int textTypeCode(std::string_view textType);

// "DOTTED", "DENSE", "BROKEN", "DASHED", "BUS": their line styles; anything else solid.
int lineStyleCode(std::string_view style);

// "THICK" thick, anything else thin.
int lineWidthCode(std::string_view width);

// "VERT" vertical, anything else horizontal.
int orientationCode(std::string_view orientation);

}  // namespace plovix
