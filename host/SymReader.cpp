// Reading .sym text back into a drawing, for pictures and tests.
#include <cctype>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

#include "SymFormat.h"

namespace plovix::sym {

namespace {

using gio::Point;
using Fields = std::map<std::string, std::string, std::less<>>;

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Reads a quoted text at `pos` (just after the opening quote) up to its closing quote.
bool readQuoted(std::string_view line, size_t& pos, std::string& out) {
  while (pos < line.size()) {
    const char c = line[pos++];
    if (c == '"') return true;
    if (c != '\\') {
      out += c;
      continue;
    }
    if (pos >= line.size()) return false;
    const char e = line[pos++];
    switch (e) {
      case '\\':
        out += '\\';
        break;
      case '"':
        out += '"';
        break;
      case 'n':
        out += '\n';
        break;
      case 'r':
        out += '\r';
        break;
      case 't':
        out += '\t';
        break;
      case 'x': {
        if (pos + 2 > line.size() || hexDigit(line[pos]) < 0 || hexDigit(line[pos + 1]) < 0) return false;
        out += static_cast<char>(hexDigit(line[pos]) * 16 + hexDigit(line[pos + 1]));
        pos += 2;
        break;
      }
      default:
        return false;
    }
  }
  return false;
}

// Splits "keyword key=value key="text" ..." into the keyword and its fields.
bool splitLine(std::string_view line, std::string& keyword, Fields& fields) {
  size_t pos = 0;
  auto skipBlanks = [&] {
    while (pos < line.size() && (line[pos] == ' ' || line[pos] == '\t')) ++pos;
  };
  skipBlanks();
  while (pos < line.size() && line[pos] != ' ' && line[pos] != '\t') keyword += line[pos++];
  for (skipBlanks(); pos < line.size(); skipBlanks()) {
    const size_t equals = line.find('=', pos);
    if (equals == std::string_view::npos) return false;
    std::string key(line.substr(pos, equals - pos));
    if (key.empty() || key.find_first_of(" \t") != std::string::npos) return false;
    pos = equals + 1;
    std::string value;
    if (pos < line.size() && line[pos] == '"') {
      ++pos;
      if (!readQuoted(line, pos, value)) return false;
      if (pos < line.size() && line[pos] != ' ' && line[pos] != '\t') return false;
    } else {
      while (pos < line.size() && line[pos] != ' ' && line[pos] != '\t') value += line[pos++];
    }
    fields[key] = value;
  }
  return true;
}

bool parseInt(std::string_view text, int& out) {
  if (text.empty() || text.size() > 11) return false;
  size_t i = text[0] == '-' ? 1 : 0;
  if (i == text.size()) return false;
  for (size_t k = i; k < text.size(); ++k)
    if (!std::isdigit(static_cast<unsigned char>(text[k]))) return false;
  const long long value = std::strtoll(std::string(text).c_str(), nullptr, 10);
  if (value < -2147483647LL - 1 || value > 2147483647LL) return false;
  out = static_cast<int>(value);
  return true;
}

// Field readers: an absent field keeps the default, a malformed one fails.
bool get(const Fields& f, std::string_view key, int& out) {
  auto it = f.find(key);
  return it == f.end() || parseInt(it->second, out);
}

bool get(const Fields& f, std::string_view key, Point& out) {
  auto it = f.find(key);
  if (it == f.end()) return true;
  const size_t comma = it->second.find(',');
  if (comma == std::string::npos) return false;
  return parseInt(std::string_view(it->second).substr(0, comma), out.x) &&
         parseInt(std::string_view(it->second).substr(comma + 1), out.y);
}

bool get(const Fields& f, std::string_view key, std::string& out) {
  auto it = f.find(key);
  if (it != f.end()) out = it->second;
  return true;
}

bool readHeader(const Fields& f, gio::Drawing& d) {
  return get(f, "kind", d.kind) && get(f, "name", d.name) && get(f, "version", d.fileVersion) &&
         get(f, "sheet-name", d.sheetName) && get(f, "modified", d.modified) &&
         get(f, "source-type", d.sourceType) && get(f, "source-id", d.sourceId) &&
         get(f, "command-status", d.commandStatus) && get(f, "unit-mode", d.unitMode) &&
         get(f, "sheet-size", d.sheetSize);
}

bool readLine(const Fields& f, gio::Drawing& d) {
  int type = GIO_OTHER_LINE;
  gio::LineBody b;
  Point dots;
  if (!(get(f, "type", type) && get(f, "from", b.first) && get(f, "to", b.second) && get(f, "dots", dots) &&
        get(f, "style", b.style) && get(f, "width", b.width)))
    return false;
  if (type != GIO_HORIZONTAL_LINE && type != GIO_VERTICAL_LINE && type != GIO_OTHER_LINE) return false;
  b.firstDot = dots.x;
  b.secondDot = dots.y;
  d.append(type, b);
  return true;
}

bool readArc(const Fields& f, gio::Drawing& d) {
  gio::ArcBody b;
  Point angles, dots;
  if (!(get(f, "centre", b.centre) && get(f, "radius", b.radius) && get(f, "angles", angles) &&
        get(f, "start", b.start) && get(f, "end", b.end) && get(f, "dots", dots)))
    return false;
  b.firstAngle = angles.x;
  b.secondAngle = angles.y;
  b.firstDot = dots.x;
  b.secondDot = dots.y;
  d.append(GIO_ARC, b);
  return true;
}

bool readCircle(const Fields& f, gio::Drawing& d) {
  gio::CircleBody b;
  if (!(get(f, "centre", b.centre) && get(f, "radius", b.radius) && get(f, "filled", b.filled))) return false;
  d.append(GIO_CIRCLE, b);
  return true;
}

bool readText(const Fields& f, gio::Drawing& d) {
  gio::TextBody b;
  if (!(get(f, "start", b.start) && get(f, "size", b.size) && get(f, "type", b.textType) &&
        get(f, "font", b.font) && get(f, "display", b.display) && get(f, "edit", b.edit) &&
        get(f, "color", b.color) && get(f, "zoom", b.zoom) && get(f, "orientation", b.orientation) &&
        get(f, "visible-status", b.visibleStatus) && get(f, "font-string", b.fontString) &&
        get(f, "text", b.text) && get(f, "alt-text", b.altText) && get(f, "pin", b.pinPoint)))
    return false;
  b.isPin = f.count("pin") > 0;
  d.append(GIO_TEXT, b);
  return true;
}

bool readRecord(const std::string& keyword, const Fields& f, gio::Drawing& d) {
  if (keyword == "drawing") return readHeader(f, d);
  if (keyword == "line") return readLine(f, d);
  if (keyword == "arc") return readArc(f, d);
  if (keyword == "circle") return readCircle(f, d);
  if (keyword == "text") return readText(f, d);
  return false;
}

}  // namespace

bool parseSymText(const std::string& text, gio::Drawing& drawing, int& errorLine) {
  int number = 0;
  size_t start = 0;
  bool sawEnd = false;
  bool bad = false;
  while (!bad && start < text.size()) {
    size_t stop = text.find('\n', start);
    if (stop == std::string::npos) stop = text.size();
    std::string_view line(text.data() + start, stop - start);
    start = stop + 1;
    ++number;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (number == 1) {
      bad = line != "PLOVIX-SYM 1";
      continue;
    }
    if (sawEnd) {
      bad = line.find_first_not_of(" \t") != std::string_view::npos;
      continue;
    }
    std::string keyword;
    Fields fields;
    if (line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#') continue;
    if (!splitLine(line, keyword, fields)) {
      bad = true;
      continue;
    }
    if (keyword == "end" && fields.empty()) {
      sawEnd = true;
      continue;
    }
    bad = !readRecord(keyword, fields, drawing);
  }
  if (!bad && sawEnd) return true;
  errorLine = bad ? number : number + 1;
  return false;
}

}  // namespace plovix::sym
