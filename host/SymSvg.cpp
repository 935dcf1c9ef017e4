// Drawing a symbol as SVG: one element per record, in the order the records were connected.
#include "SymSvg.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "SymTextMetrics.h"

namespace plovix::sym {

namespace {

using gio::Point;

constexpr int kMargin = 8;
constexpr int kScale = 2;  // the picture is shown at twice the drawing's size
constexpr const char* kPinColour = "#b00000";
constexpr const char* kParameterColour = "#1f4e8c";
// Named before the drawing's own face: it has the metrics of Arial, which the measuring follows, and Debian
// ships it (fonts-liberation), so the texts take the room they were measured for.
constexpr const char* kFirstFace = "Liberation Sans";

std::string num(double value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%g", value);
  return buffer;
}

std::string attr(const char* name, double value) {
  return std::string(" ") + name + "=\"" + num(value) + "\"";
}
std::string attr(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + xmlText(value) + "\"";
}

class Bounds {
 public:
  void add(long long x, long long y) {
    minX_ = std::min(minX_, x), minY_ = std::min(minY_, y);
    maxX_ = std::max(maxX_, x), maxY_ = std::max(maxY_, y);
  }
  void add(Point p, long long grow = 0) {
    add(p.x - grow, p.y - grow);
    add(p.x + grow, p.y + grow);
  }
  bool empty() const { return minX_ > maxX_; }
  long long minX() const { return minX_; }
  long long minY() const { return minY_; }
  long long width() const { return maxX_ - minX_; }
  long long height() const { return maxY_ - minY_; }

 private:
  long long minX_ = LLONG_MAX, minY_ = LLONG_MAX, maxX_ = LLONG_MIN, maxY_ = LLONG_MIN;
};

// The text's box on the sheet: the horizontal box, or for a vertical text that box turned about its centre.
void addTextBox(Bounds& b, const gio::TextBody& t) {
  if (t.orientation == GIO_VERTICAL) {
    const long long cx = t.start.x + t.size.x / 2LL, cy = t.start.y + t.size.y / 2LL;
    b.add(cx - t.size.y / 2LL, cy - t.size.x / 2LL);
    b.add(cx + t.size.y / 2LL, cy + t.size.x / 2LL);
  } else {
    b.add(t.start);
    b.add(static_cast<long long>(t.start.x) + t.size.x, static_cast<long long>(t.start.y) + t.size.y);
  }
}

Bounds boundsOf(const gio::Drawing& d) {
  Bounds b;
  if (d.sheetSize.x > 0 && d.sheetSize.y > 0) {
    b.add(0, 0);
    b.add(d.sheetSize);
  }
  for (const gio::Record& r : d.records()) {
    if (const auto* line = std::get_if<gio::LineBody>(&r.body)) {
      b.add(line->first);
      b.add(line->second);
    } else if (const auto* arc = std::get_if<gio::ArcBody>(&r.body)) {
      b.add(arc->start);
      b.add(arc->end);
      b.add(arc->centre, std::llabs(arc->radius));
    } else if (const auto* circle = std::get_if<gio::CircleBody>(&r.body)) {
      b.add(circle->centre, std::llabs(circle->radius));
    } else if (const auto* text = std::get_if<gio::TextBody>(&r.body)) {
      if (text->shown()) addTextBox(b, *text);
      if (text->isPin) b.add(text->pinPoint, 3);
    }
  }
  if (b.empty()) b.add(0, 0);
  return b;
}

std::string dashesOf(int style) {
  switch (style) {
    case 1:
      return " stroke-dasharray=\"1 2\"";
    case 2:
      return " stroke-dasharray=\"1 1\"";
    case 3:
      return " stroke-dasharray=\"6 2 1 2\"";
    case 4:
      return " stroke-dasharray=\"5 3\"";
    default:
      return "";
  }
}

std::string lineElement(const gio::LineBody& l) {
  const double width = l.style == GIO_BUS ? 3 : l.width == GIO_THICK ? 2 : 1;
  return "<line" + attr("x1", l.first.x) + attr("y1", l.first.y) + attr("x2", l.second.x) +
         attr("y2", l.second.y) + attr("stroke-width", width) + dashesOf(l.style) + "/>\n";
}

// Arcs run counterclockwise on the sheet from the start to the end point; equal points make a full circle.
std::string arcElement(const gio::ArcBody& a) {
  const double r = std::fabs(static_cast<double>(a.radius));
  if (a.start == a.end)
    return "<circle" + attr("cx", a.centre.x) + attr("cy", a.centre.y) + attr("r", r) + " fill=\"none\"/>\n";
  // Differences of any two coordinates fit a double, never an int.
  const auto delta = [](int to, int from) { return static_cast<double>(to) - static_cast<double>(from); };
  const double from = std::atan2(-delta(a.start.y, a.centre.y), delta(a.start.x, a.centre.x));
  const double to = std::atan2(-delta(a.end.y, a.centre.y), delta(a.end.x, a.centre.x));
  double sweep = to - from;
  while (sweep < 0) sweep += 2 * M_PI;
  const std::string path = "M " + num(a.start.x) + " " + num(a.start.y) + " A " + num(r) + " " + num(r) +
                           " 0 " + (sweep > M_PI ? "1" : "0") + " 0 " + num(a.end.x) + " " + num(a.end.y);
  return "<path" + attr("d", path) + " fill=\"none\"/>\n";
}

std::string circleElement(const gio::CircleBody& c) {
  return "<circle" + attr("cx", c.centre.x) + attr("cy", c.centre.y) +
         attr("r", std::fabs(static_cast<double>(c.radius))) +
         (c.filled ? " fill=\"black\"" : " fill=\"none\"") + "/>\n";
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start < text.size()) {
    const size_t stop = std::min(text.find('\n', start), text.size());
    lines.push_back(text.substr(start, stop - start));
    start = stop + 1;
  }
  return lines;
}

// A pin's name whose pin lies at its right ends at the box's edge: it is anchored at its end, so that a face
// wider than the measured one grows away from the edge instead of across it.
bool anchoredAtEnd(const gio::TextBody& t) {
  return t.isPin && t.orientation != GIO_VERTICAL &&
         t.pinPoint.x >= static_cast<long long>(t.start.x) + t.size.x;
}

std::string textElement(const gio::TextBody& t) {
  const std::string font = t.fontString.empty() ? "Arial,8" : t.fontString;
  const int height = heightOfFontString(font);
  const int em = emOfHeight(height), lineHeight = lineHeightOf(height);
  const std::string face = font.substr(0, font.find(','));
  std::string families = kFirstFace;
  if (!face.empty() && face != kFirstFace) families += ", " + face;
  const bool atEnd = anchoredAtEnd(t);
  const double x = atEnd ? static_cast<double>(t.start.x) + t.size.x : t.start.x;
  std::string out = "<text" + attr("x", x) + attr("y", t.start.y + 0.9 * em) + attr("font-size", em) +
                    attr("font-family", families + ", sans-serif");
  if (atEnd) out += " text-anchor=\"end\"";
  if (t.textType == GIO_NEW_PROP_TEXT) out += attr("fill", std::string(kParameterColour));
  if (t.textType == GIO_MACRO_TEXT) out += " font-weight=\"bold\"";
  if (t.orientation == GIO_VERTICAL) {
    const double cx = t.start.x + t.size.x / 2.0, cy = t.start.y + t.size.y / 2.0;
    out += attr("transform", "rotate(-90 " + num(cx) + " " + num(cy) + ")");
  }
  out += ">";
  const std::vector<std::string> lines = linesOf(t.text);
  if (lines.size() == 1) {
    out += xmlText(lines[0]);
  } else {
    for (size_t i = 0; i < lines.size(); ++i)
      out += "<tspan" + attr("x", x) + attr("dy", i == 0 ? 0 : lineHeight) + ">" + xmlText(lines[i]) +
             "</tspan>";
  }
  return out + "</text>\n";
}

std::string pinElement(const Point& p) {
  return "<rect" + attr("x", p.x - 2.0) + attr("y", p.y - 2.0) + attr("width", 4) + attr("height", 4) +
         attr("stroke", std::string(kPinColour)) + " fill=\"none\"/>\n";
}

}  // namespace

std::string xmlText(const std::string& text) {
  std::string out;
  for (char ch : text) {
    const unsigned char c = static_cast<unsigned char>(ch);
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\'':
        out += "&apos;";
        break;
      case '\t':
        out += ' ';
        break;
      default:
        if (c >= 0x80) {
          char ref[16];
          std::snprintf(ref, sizeof ref, "&#x%X;", c);
          out += ref;
        } else if (c >= 0x20 && c != 0x7f) {
          out += ch;
        }
    }
  }
  return out;
}

std::string renderSvg(const gio::Drawing& d) {
  const Bounds b = boundsOf(d);
  const double x = b.minX() - kMargin, y = b.minY() - kMargin;
  const double w = b.width() + 2 * kMargin, h = b.height() + 2 * kMargin;
  std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  svg += "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attr("width", w * kScale) +
         attr("height", h * kScale) + attr("viewBox", num(x) + " " + num(y) + " " + num(w) + " " + num(h)) +
         ">\n";
  svg += "<title>" + xmlText(d.name) + "</title>\n";
  svg += "<rect" + attr("x", x) + attr("y", y) + attr("width", w) + attr("height", h) + " fill=\"white\"/>\n";
  if (d.sheetSize.x > 0 && d.sheetSize.y > 0)
    svg += "<rect x=\"0\" y=\"0\"" + attr("width", d.sheetSize.x) + attr("height", d.sheetSize.y) +
           " fill=\"none\" stroke=\"#d0d0d0\" stroke-width=\"0.5\" stroke-dasharray=\"2 2\"/>\n";
  svg += "<g stroke=\"black\" stroke-linecap=\"square\">\n";
  for (const gio::Record& r : d.records()) {
    if (const auto* line = std::get_if<gio::LineBody>(&r.body)) svg += lineElement(*line);
    if (const auto* arc = std::get_if<gio::ArcBody>(&r.body)) svg += arcElement(*arc);
    if (const auto* circle = std::get_if<gio::CircleBody>(&r.body)) svg += circleElement(*circle);
  }
  svg += "</g>\n<g stroke=\"none\" fill=\"black\">\n";
  for (const gio::Record& r : d.records()) {
    const auto* text = std::get_if<gio::TextBody>(&r.body);
    if (text == nullptr) continue;
    if (text->isPin) svg += pinElement(text->pinPoint);
    if (text->shown()) svg += textElement(*text);
  }
  return svg + "</g>\n</svg>\n";
}

}  // namespace plovix::sym
