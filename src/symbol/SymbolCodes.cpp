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
  static constexpr std::pair<std::string_view, int> kTable[] = {
      {"INPUT", GIO_INPUT_TEXT}, {"OUTPUT", GIO_OUTPUT_TEXT}, {"BIDIR", GIO_BIDIR_TEXT}};
  return codeOf(direction, kTable);
}

int textTypeCode(std::string_view textType) {
  static constexpr std::pair<std::string_view, int> kTable[] = {{"NEW_PROP_TEXT", GIO_NEW_PROP_TEXT},
                                                                {"SYMBOL_TEXT", GIO_SYMBOL_TEXT},
                                                                {"MACRO_TEXT", GIO_MACRO_TEXT},
                                                                {"IN", GIO_INPUT_TEXT},
                                                                {"OUT", GIO_OUTPUT_TEXT},
                                                                {"BIDIR", GIO_BIDIR_TEXT}};
  return codeOf(textType, kTable);
}

int lineStyleCode(std::string_view style) {
  static constexpr std::pair<std::string_view, int> kTable[] = {{"DOTTED", GIO_DOTTED},
                                                                {"DENSE", GIO_DENSE},
                                                                {"BROKEN", GIO_BROKEN},
                                                                {"DASHED", GIO_DASHED},
                                                                {"BUS", GIO_BUS}};
  return codeOf(style, kTable);
}

int lineWidthCode(std::string_view width) {
  return width == "THICK" ? GIO_THICK : GIO_THIN;
}

int orientationCode(std::string_view orientation) {
  return orientation == "VERT" ? GIO_VERTICAL : GIO_HORIZONTAL;
}

}  // namespace plovix
