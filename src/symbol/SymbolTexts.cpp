// The texts of a drawn symbol: the text routine, pin stubs, the parameter block and the box with its name.
#include <algorithm>
#include <cstdint>
#include <vector>

#include "plovix_host.h"
#include "symbol/SymbolBuilder.h"
#include "symbol/SymbolCodes.h"
#include "symbol/TextMeasure.h"

namespace plovix {

namespace {

std::string fontOrDefault(const std::string& font) {
  return font.empty() ? kDefaultSymbolFont : font;
}

// The non-empty pieces of a text between "/" characters.
std::vector<std::string> parameterLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start <= text.size()) {
    const size_t stop = std::min(text.find('/', start), text.size());
    if (stop > start) lines.push_back(text.substr(start, stop - start));
    start = stop + 1;
  }
  return lines;
}

// Coordinates and sizes are ints on the sheet: what an absurd description makes of them is capped there,
// computed without overflow.
int capped(long long value) {
  return static_cast<int>(std::clamp<long long>(value, INT32_MIN, INT32_MAX));
}

}  // namespace

// The text is measured in its own font (an empty one stays empty), placed so that a vertical text's turned
// box starts at (x, y), shown when it has characters and otherwise kept hidden with its alternative text (or
// "$") as its content.
short SymbolBuilder::drawText(const SymbolText& text) {
  const TextSize size = measureSymbolText(text.text, text.font);
  gio_point start{text.x, text.y};
  if (text.orientation == "VERT") {
    start.x = capped(text.x - static_cast<long long>(size.cx - size.cy) / 2);
    start.y = capped(text.y - static_cast<long long>(size.cy - size.cx) / 2);
  }
  const gio_point extent{size.cx, size.cy};
  const short rec = gio_rec_create(instance_, GIO_TEXT);
  gio_text_set_start_point(instance_, GIO_TEXT, rec, &start);
  gio_text_set_attr_type(instance_, GIO_TEXT, rec, textTypeCode(text.textType));
  gio_text_set_attr_font(instance_, GIO_TEXT, rec, 4);
  gio_text_set_attr_display(instance_, GIO_TEXT, rec, 1);
  gio_text_set_attr_edit(instance_, GIO_TEXT, rec, 0);
  gio_text_set_attr_color(instance_, GIO_TEXT, rec, 0);
  gio_text_set_attr_zoom(instance_, GIO_TEXT, rec, 0);
  gio_text_set_orientation(instance_, GIO_TEXT, rec, orientationCode(text.orientation));
  gio_text_set_attr_font_string(instance_, GIO_TEXT, rec, fontOrDefault(text.font).c_str());
  gio_text_set_attr_size(instance_, GIO_TEXT, rec, &extent);
  if (!text.text.empty()) {
    gio_text_set_text(instance_, GIO_TEXT, rec, text.text.c_str());
    gio_obj_set_visible_status(instance_, GIO_TEXT, rec, 0);
  } else {
    gio_text_set_text(instance_, GIO_TEXT, rec, text.altText.empty() ? "$" : text.altText.c_str());
    gio_text_set_attr_display(instance_, GIO_TEXT, rec, 0);
  }
  if (!text.altText.empty()) gio_text_set_alt_text(instance_, GIO_TEXT, rec, text.altText.c_str());
  gio_rec_connect(instance_, GIO_TEXT, rec, 0);
  return rec;
}

void SymbolBuilder::drawPinStub(const SymbolPinStub& stub) {
  const short rec = drawText(SymbolText{stub.label, stub.pinName, stub.textX, stub.textY, stub.orientation,
                                        stub.font, stub.stubType});
  const gio_point point{stub.x, stub.y};
  gio_text_create_pinstub(instance_, GIO_TEXT, rec, &point, 0);
}

// One text holding every parameter line, each followed by a line end; its width is counted in characters and
// its height is one line of the block's font text per parameter line.
void SymbolBuilder::drawParameterBlock(const SymbolParameter& parameter) {
  if (parameter.text.empty()) return;
  const std::string font = fontOrDefault(parameter.font);
  const short rec = gio_rec_create(instance_, GIO_TEXT);
  const gio_point origin{0, 0};
  gio_text_set_start_point(instance_, GIO_TEXT, rec, &origin);
  gio_text_set_attr_type(instance_, GIO_TEXT, rec, GIO_NEW_PROP_TEXT);
  gio_text_set_attr_font(instance_, GIO_TEXT, rec, 4);
  gio_text_set_attr_edit(instance_, GIO_TEXT, rec, 1);
  gio_text_set_attr_color(instance_, GIO_TEXT, rec, 0);
  gio_text_set_attr_display(instance_, GIO_TEXT, rec, 1);
  gio_text_set_attr_zoom(instance_, GIO_TEXT, rec, 0);
  gio_text_set_orientation(instance_, GIO_TEXT, rec, 0);
  gio_text_set_attr_font_string(instance_, GIO_TEXT, rec, font.c_str());
  const std::vector<std::string> lines = parameterLines(parameter.text);
  std::string block;
  size_t longest = 0;
  for (const std::string& line : lines) {
    block += line + "\n";
    longest = std::max(longest, line.size());
  }
  const long long height = static_cast<long long>(measureSymbolText(block, font).cy) *
                           static_cast<long long>(std::min<size_t>(lines.size(), INT32_MAX));
  const gio_point size{capped(static_cast<long long>(std::min<size_t>(longest, INT32_MAX))), capped(height)};
  gio_text_set_attr_size(instance_, GIO_TEXT, rec, &size);
  if (!block.empty()) gio_text_set_text(instance_, GIO_TEXT, rec, block.c_str());
  gio_rec_connect(instance_, GIO_TEXT, rec, 0);
}

// The box sets the sheet and replaces the first name or symbol text with the drawing's name.
void SymbolBuilder::drawBox(const SymbolBox& box) {
  const gio_point sheet{box.sheetWidth, box.sheetHeight};
  gio_db_set_sheet_size(instance_, &sheet);
  for (short rec = gio_rec_first(instance_, GIO_TEXT); rec != 0;
       rec = gio_rec_next(instance_, GIO_TEXT, rec)) {
    const int type = gio_text_get_attr_type(instance_, GIO_TEXT, rec);
    if (type == GIO_MACRO_TEXT || type == GIO_SYMBOL_TEXT) {
      gio_rec_delete(instance_, GIO_TEXT, rec);
      break;
    }
  }
  const char* drawingName = gio_db_get_drawing_name(instance_);
  const std::string name = drawingName != nullptr && *drawingName != '\0' ? drawingName : "SYM_NAME";
  drawText(SymbolText{name, "", box.nameX, box.nameY, "HORIZ", fontOrDefault(box.font), "MACRO_TEXT"});
}

}  // namespace plovix
