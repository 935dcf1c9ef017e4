// Writing a drawing as .sym text and storing it in its file.
#include <cerrno>
#include <string>

#include "GioTrace.h"
#include "SymFormat.h"
#include "base/SafeWrite.h"

namespace plovix::sym {

namespace {

using gio::Point;

std::string pointText(const Point& p) {
  return std::to_string(p.x) + "," + std::to_string(p.y);
}

std::string field(const char* key, int value) {
  return std::string(" ") + key + "=" + std::to_string(value);
}
std::string field(const char* key, const Point& value) {
  return std::string(" ") + key + "=" + pointText(value);
}
std::string field(const char* key, const std::string& value) {
  return std::string(" ") + key + "=" + gio::quotedText(value.c_str());
}

std::string headerLine(const gio::Drawing& d) {
  return "drawing" + field("kind", d.kind) + field("name", d.name) + field("version", d.fileVersion) +
         field("sheet-name", d.sheetName) + field("modified", d.modified) +
         field("source-type", d.sourceType) + field("source-id", d.sourceId) +
         field("command-status", d.commandStatus) + field("unit-mode", d.unitMode) +
         field("sheet-size", d.sheetSize) + "\n";
}

std::string lineLine(int type, const gio::LineBody& b) {
  return "line" + field("type", type) + field("from", b.first) + field("to", b.second) +
         field("dots", Point{b.firstDot, b.secondDot}) + field("style", b.style) + field("width", b.width) +
         "\n";
}

std::string arcLine(const gio::ArcBody& b) {
  return "arc" + field("centre", b.centre) + field("radius", b.radius) +
         field("angles", Point{b.firstAngle, b.secondAngle}) + field("start", b.start) + field("end", b.end) +
         field("dots", Point{b.firstDot, b.secondDot}) + "\n";
}

std::string circleLine(const gio::CircleBody& b) {
  return "circle" + field("centre", b.centre) + field("radius", b.radius) + field("filled", b.filled) + "\n";
}

std::string textLine(const gio::TextBody& b) {
  std::string line = "text" + field("start", b.start) + field("size", b.size) + field("type", b.textType) +
                     field("font", b.font) + field("display", b.display) + field("edit", b.edit) +
                     field("color", b.color) + field("zoom", b.zoom) + field("orientation", b.orientation) +
                     field("visible-status", b.visibleStatus) + field("font-string", b.fontString) +
                     field("text", b.text) + field("alt-text", b.altText);
  if (b.isPin) line += field("pin", b.pinPoint);
  return line + "\n";
}

std::string recordLine(const gio::Record& record) {
  if (const auto* line = std::get_if<gio::LineBody>(&record.body)) return lineLine(record.type, *line);
  if (const auto* arc = std::get_if<gio::ArcBody>(&record.body)) return arcLine(*arc);
  if (const auto* circle = std::get_if<gio::CircleBody>(&record.body)) return circleLine(*circle);
  return textLine(std::get<gio::TextBody>(record.body));
}

}  // namespace

std::string formatSymText(const gio::Drawing& drawing) {
  std::string text = "PLOVIX-SYM 1\n" + headerLine(drawing);
  for (const gio::Record& record : drawing.records()) text += recordLine(record);
  return text + "end\n";
}

bool writeSymFile(const gio::Drawing& drawing) {
  if (drawing.filePath.empty()) {
    errno = ENOENT;
    return false;
  }
  const int errorNumber = replaceFile(drawing.filePath, formatSymText(drawing));
  errno = errorNumber;
  return errorNumber == 0;
}

}  // namespace plovix::sym
