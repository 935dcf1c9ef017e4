// Keyword to number tables for the drawing library.
#include "symbol/SymbolCodes.h"

#include <utility>

namespace plovix {

namespace {

template <size_t N>
int codeOf(std::string_view keyword, const std::pair<std::string_view, int> (&table)[N]) {
  for (const auto& [name, code] : table)
    if (name == keyword) return code;
  return 0;
}

}  // namespace

int pinTypeCode(std::string_view direction) {
  static constexpr std::pair<std::string_view, int> kTable[] = {{"INPUT", 2}, {"OUTPUT", 3}, {"BIDIR", 4}};
  return codeOf(direction, kTable);
}

int textTypeCode(std::string_view textType) {
  static constexpr std::pair<std::string_view, int> kTable[] = {{"NEW_PROP_TEXT", kNewPropTextType},
                                                                {"SYMBOL_TEXT", kSymbolTextType},
                                                                {"MACRO_TEXT", kMacroTextType},
                                                                {"IN", 2},
                                                                {"OUT", 3},
                                                                {"BIDIR", 4}};
  return codeOf(textType, kTable);
}

int lineStyleCode(std::string_view style) {
  static constexpr std::pair<std::string_view, int> kTable[] = {
      {"DOTTED", 1}, {"DENSE", 2}, {"BROKEN", 3}, {"DASHED", 4}, {"BUS", 5}};
  return codeOf(style, kTable);
}

int lineWidthCode(std::string_view width) {
  return width == "THICK" ? 1 : 0;
}

int orientationCode(std::string_view orientation) {
  return orientation == "VERT" ? 1 : 0;
}

}  // namespace plovix
