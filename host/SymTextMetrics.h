// Text measuring on the stand-in display: a fixed resolution and fixed character metrics.
#pragma once

#include <string_view>

namespace plovix::sym {

inline constexpr int kPixelsPerInch = 96;

struct TextExtent {
  int cx = 0;
  int cy = 0;
};

// The character height (em) in pixels of a font made with `height`: a negative height is the character
// height, a positive one the cell height, 0 the default of 8 points.
int emOfHeight(int height);

// The cell height (one line) of a font made with `height`.
int lineHeightOf(int height);

// The font height of a "face,points" text: -((96 * points + 36) / 72); the points are the C integer reading
// of the part after the first comma (0 when there is none).
int heightOfFontString(std::string_view font);

// The size of a text on one line; an empty text is 1 wide and one line high.
TextExtent measureText(int height, std::string_view text);

}  // namespace plovix::sym
