// The element records of a drawn symbol, as SYMBOL: lines describe them.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace plovix {

struct SymbolLine {
  int32_t x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  std::string style;  // line style keyword, may be empty
  std::string width;  // line width keyword, may be empty
  bool isRect = false;
};

struct SymbolArc {
  int32_t centerX = 0, centerY = 0, startX = 0, startY = 0, endX = 0, endY = 0, radius = 0;
};

struct SymbolCircle {
  int32_t centerX = 0, centerY = 0, radius = 0;
  bool filled = false;
};

struct SymbolText {
  std::string text;
  std::string altText;  // empty for a TEXT line
  int32_t x = 0, y = 0;
  std::string orientation;  // "HORIZ", "VERT" or empty
  std::string font;
  std::string textType;  // empty for a TEXT line
};

struct SymbolPinStub {
  int32_t x = 0, y = 0;
  std::string stubType;  // "IN", "OUT" or "BIDIR"
  std::string pinName;
  int32_t textX = 0, textY = 0;
  std::string label;
  std::string orientation;
  std::string font;
};

struct SymbolParameter {
  std::string text;  // parameter lines separated by "/"
  std::string font;
};

struct SymbolBox {
  int32_t sheetWidth = 0, sheetHeight = 0, nameX = 0, nameY = 0;
  std::string font;
};

enum class SymbolKind : int32_t {
  kLine = 1,
  kArc = 2,
  kCircle = 3,
  kText = 4,
  kPinStub = 5,
  kParameter = 6,
  kBox = 7
};

struct SymbolElement {
  SymbolKind kind = SymbolKind::kLine;
  std::variant<SymbolLine, SymbolArc, SymbolCircle, SymbolText, SymbolPinStub, SymbolParameter, SymbolBox>
      record;
};

}  // namespace plovix
