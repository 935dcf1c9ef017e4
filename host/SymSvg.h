// The SVG picture of a drawing.
#pragma once

#include <string>

#include "GioDrawing.h"

namespace plovix::sym {

// An SVG document showing the drawing's connected records: lines with their styles and widths, arcs,
// circles, shown texts (hidden ones are left out), pin points with their names and the parameter block.
std::string renderSvg(const gio::Drawing& drawing);

// A text as XML character data: markup characters escaped, bytes above 127 read as Latin-1, other control
// characters dropped.
std::string xmlText(const std::string& text);

}  // namespace plovix::sym
