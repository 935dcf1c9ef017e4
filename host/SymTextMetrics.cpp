// Text measuring without a real display.
//
// The display has 96 pixels per inch. Every face has the same metrics, those of a plain sans-serif:
// - the character height (em) is the font height's magnitude when it is negative, 100/115 of it when it is
//   positive (a cell height), and 11 pixels (8 points) when it is 0;
// - one line is (em * 115 + 50) / 100 pixels high;
// - each character advances by a fixed share of the em, in thousandths: 250 for i j l I . , : ; ! | ' `,
//   280 for the space, 333 for f r t ( ) [ ] { } - / \ ", 833 for m w M W, 556 for digits and the other
//   lower-case letters, 667 for the other capitals, 584 for every other character (also bytes above 127);
// - a text is (sum of the shares * em + 500) / 1000 pixels wide, on one line (line ends count as characters).
#include "SymTextMetrics.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "plovix_host.h"

namespace plovix::sym {

namespace {

constexpr int kDefaultEm = 11;
constexpr int kLargestEm = 100000;  // far beyond any real font; keeps the arithmetic in range

int shareOf(unsigned char c) {
  const std::string_view narrow = "ijlI.,:;!|'`";
  const std::string_view slim = "frt()[]{}-/\\\"";
  const std::string_view wide = "mwMW";
  if (narrow.find(static_cast<char>(c)) != std::string_view::npos) return 250;
  if (c == ' ') return 280;
  if (slim.find(static_cast<char>(c)) != std::string_view::npos) return 333;
  if (wide.find(static_cast<char>(c)) != std::string_view::npos) return 833;
  if ((c >= '0' && c <= '9') || (c >= 'a' && c <= 'z')) return 556;
  if (c >= 'A' && c <= 'Z') return 667;
  return 584;
}

}  // namespace

int emOfHeight(int height) {
  if (height < -kLargestEm || height > kLargestEm) return kLargestEm;
  if (height < 0) return -height;
  if (height > 0) return (height * 100 + 57) / 115;
  return kDefaultEm;
}

int lineHeightOf(int height) {
  return (emOfHeight(height) * 115 + 50) / 100;
}

int heightOfFontString(std::string_view font) {
  const size_t comma = font.find(',');
  const std::string size =
      comma == std::string_view::npos ? std::string() : std::string(font.substr(comma + 1));
  long points = std::strtol(size.c_str(), nullptr, 10);
  if (points > kLargestEm) points = kLargestEm;
  if (points < -kLargestEm) points = -kLargestEm;
  return -static_cast<int>((kPixelsPerInch * points + 36) / 72);
}

TextExtent measureText(int height, std::string_view text) {
  const int cy = lineHeightOf(height);
  if (text.empty()) return {1, cy};
  long long shares = 0;
  for (char c : text) shares += shareOf(static_cast<unsigned char>(c));
  // At most 833 shares a byte and an em of 100000: far within a long long, and capped to an int's range.
  return {static_cast<int>(std::min<long long>((shares * emOfHeight(height) + 500) / 1000, INT32_MAX)), cy};
}

}  // namespace plovix::sym

extern "C" int sym_display_pixels_per_inch(void) {
  return plovix::sym::kPixelsPerInch;
}

extern "C" void sym_measure_text(const char*, int height, const char* text, int* cx, int* cy) {
  const plovix::sym::TextExtent extent = plovix::sym::measureText(height, text == nullptr ? "" : text);
  if (cx != nullptr) *cx = extent.cx;
  if (cy != nullptr) *cy = extent.cy;
}
