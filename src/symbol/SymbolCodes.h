// The numbers the drawing library takes for record types, pin and text types, line looks and orientation.
#pragma once

#include <string_view>

namespace plovix {

// Record types of the drawing library.
inline constexpr int kHorizontalLineRecord = 2;
inline constexpr int kVerticalLineRecord = 3;
inline constexpr int kOtherLineRecord = 4;
inline constexpr int kArcRecord = 5;
inline constexpr int kCircleRecord = 6;
inline constexpr int kTextRecord = 7;

// Text types the builder looks for or sets itself.
inline constexpr int kSymbolTextType = 1;
inline constexpr int kMacroTextType = 19;
inline constexpr int kNewPropTextType = 55;

// The font a text gets when its element names none.
inline constexpr const char* kDefaultSymbolFont = "Arial,8";

// "INPUT" 2, "OUTPUT" 3, "BIDIR" 4, anything else 0.
int pinTypeCode(std::string_view direction);

// "NEW_PROP_TEXT" 55, "SYMBOL_TEXT" 1, "MACRO_TEXT" 19, "IN" 2, "OUT" 3, "BIDIR" 4, anything else 0.
int textTypeCode(std::string_view textType);

// "DOTTED" 1, "DENSE" 2, "BROKEN" 3, "DASHED" 4, "BUS" 5, anything else (solid) 0.
int lineStyleCode(std::string_view style);

// "THICK" 1, anything else (thin) 0.
int lineWidthCode(std::string_view width);

// "VERT" 1, anything else (horizontal) 0.
int orientationCode(std::string_view orientation);

}  // namespace plovix
