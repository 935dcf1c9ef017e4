// Measuring a symbol text in its font on the display.
#pragma once

#include <string>

namespace plovix {

struct TextSize {
  int cx = 0;
  int cy = 0;
};

// The font height of a "face,points" text on a display of `pixelsPerInch`: -((dpi * points + 36) / 72), the
// points being the integer reading of the part after the first comma (0 without one).
int fontHeightOf(const std::string& font, int pixelsPerInch);

// The size of `text` in `font`: 1 wide and one line high when the text is empty. An empty font is measured
// with face and size empty, which gives the display's default font.
TextSize measureSymbolText(const std::string& text, const std::string& font);

}  // namespace plovix
