// The drawn symbol: a drawing made element by element from the description's symbol elements.
#include <cerrno>

#include "plovix_host.h"
#include "symbol/SymbolBuilder.h"
#include "symbol/SymbolCodes.h"

namespace plovix {

bool SymbolBuilder::buildDrawnSymbol(const std::string& fileName) {
  gio_error_context error{};
  const short made = gio_db_create_instance(1, &error, 0);
  keepInstance(made, error.code);
  gio_db_set_drawing_name(instance_, fileName.c_str());
  gio_db_set_file_version(instance_, 6);
  gio_db_set_sheet_name(instance_, 68);
  gio_db_set_modified_flag(instance_, 0);
  gio_db_set_source_type(instance_, 2);
  gio_db_set_source_id(instance_, 0);
  gio_db_set_command_status(instance_, 0);
  gio_db_set_unit_mode(instance_, 1);
  for (const SymbolElement& element : description_.symbolElements) drawElement(element);
  errno = 0;
  const bool written = gio_write_drawing(instance_) != 0;
  writeError_ = written ? 0 : errno;
  gio_db_delete_instance(instance_, 0);
  return written;
}

void SymbolBuilder::drawElement(const SymbolElement& element) {
  std::visit(
      [this](const auto& record) {
        using Record = std::decay_t<decltype(record)>;
        if constexpr (std::is_same_v<Record, SymbolLine>) drawLine(record);
        if constexpr (std::is_same_v<Record, SymbolArc>) drawArc(record);
        if constexpr (std::is_same_v<Record, SymbolCircle>) drawCircle(record);
        if constexpr (std::is_same_v<Record, SymbolText>) drawText(record);
        if constexpr (std::is_same_v<Record, SymbolPinStub>) drawPinStub(record);
        if constexpr (std::is_same_v<Record, SymbolParameter>) drawParameterBlock(record);
        if constexpr (std::is_same_v<Record, SymbolBox>) drawBox(record);
      },
      element.record);
}

// A line with equal ends is not drawn; a rectangle is its four sides, clockwise from (x1, y1).
void SymbolBuilder::drawLine(const SymbolLine& line) {
  if (line.x1 == line.x2 && line.y1 == line.y2) return;
  if (!line.isRect) {
    drawSegment(line.x1, line.y1, line.x2, line.y2, line);
    return;
  }
  drawSegment(line.x1, line.y1, line.x2, line.y1, line);
  drawSegment(line.x2, line.y1, line.x2, line.y2, line);
  drawSegment(line.x2, line.y2, line.x1, line.y2, line);
  drawSegment(line.x1, line.y2, line.x1, line.y1, line);
}

void SymbolBuilder::drawSegment(int a, int b, int c, int d, const SymbolLine& look) {
  const int type = a == c ? GIO_VERTICAL_LINE : b == d ? GIO_HORIZONTAL_LINE : GIO_OTHER_LINE;
  const gio_point first{a, b}, second{c, d};
  const short rec = gio_rec_create(instance_, type);
  gio_line_set_points(instance_, type, rec, &first, &second);
  gio_line_set_dots(instance_, type, rec, 0, 0);
  gio_line_set_style(instance_, type, rec, lineStyleCode(look.style));
  gio_line_set_width(instance_, type, rec, lineWidthCode(look.width));
  gio_rec_connect(instance_, type, rec, 0);
}

void SymbolBuilder::drawArc(const SymbolArc& arc) {
  const gio_point centre{arc.centerX, arc.centerY}, start{arc.startX, arc.startY}, end{arc.endX, arc.endY};
  const short rec = gio_rec_create(instance_, GIO_ARC);
  gio_arc_set_coordinates(instance_, rec, &centre, arc.radius, 0, 0);
  gio_arc_set_points(instance_, rec, &start, &end);
  gio_line_set_dots(instance_, GIO_ARC, rec, 0, 0);
  gio_rec_connect(instance_, GIO_ARC, rec, 0);
}

void SymbolBuilder::drawCircle(const SymbolCircle& circle) {
  const gio_point centre{circle.centerX, circle.centerY};
  const short rec = gio_rec_create(instance_, GIO_CIRCLE);
  gio_circle_set_coordinates(instance_, rec, &centre, circle.radius);
  gio_circle_set_attr_fill(instance_, rec, circle.filled ? 1 : 0);
  gio_rec_connect(instance_, GIO_CIRCLE, rec, 0);
}

}  // namespace plovix
