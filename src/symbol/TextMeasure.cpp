// Measuring symbol texts through the host's display: the host measures at a fixed resolution with fixed
// character metrics (see its text metrics), so a symbol comes out the same on every machine.
#include "symbol/TextMeasure.h"

#include <algorithm>

#include "base/TextHelpers.h"
#include "plovix_host.h"

namespace plovix {

namespace {

constexpr long long kLargestPoints = 1000000;  // keeps the height arithmetic in range for absurd sizes

}  // namespace

int fontHeightOf(const std::string& font, int pixelsPerInch) {
  const size_t comma = font.find(',');
  const long long points = comma == std::string::npos ? 0
                                                      : std::clamp(atoiText(font.substr(comma + 1)),
                                                                   -kLargestPoints, kLargestPoints);
  return static_cast<int>(-((pixelsPerInch * points + 36) / 72));
}

TextSize measureSymbolText(const std::string& text, const std::string& font) {
  const std::string face = font.substr(0, font.find(','));
  const int height = fontHeightOf(font, sym_display_pixels_per_inch());
  TextSize size;
  sym_measure_text(face.c_str(), height, text.c_str(), &size.cx, &size.cy);
  return size;
}

}  // namespace plovix
