// The .sym text format of a drawing (docs/sym-format.md): writing and reading.
#pragma once

#include <string>

#include "GioDrawing.h"

namespace plovix::sym {

// The drawing's connected records as .sym text.
std::string formatSymText(const gio::Drawing& drawing);

// Writes the drawing to its file path through the safe writer, so an existing file is replaced whole or not
// at all. False with errno set when there is no path or the file cannot be written.
bool writeSymFile(const gio::Drawing& drawing);

// Reads .sym text into `drawing`. False with the number of the first bad line (or the line after the last
// when the end line is missing).
bool parseSymText(const std::string& text, gio::Drawing& drawing, int& errorLine);

}  // namespace plovix::sym
