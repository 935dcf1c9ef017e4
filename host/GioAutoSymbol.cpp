// The automatic symbol: collecting pins, laying out box, name, pins and parameter text, and writing the file.
//
// Layout, in display pixels: the name (text type 19) above the box; inputs and pins of unknown type on the
// left, outputs and then bidirectional pins on the right, one row every 16 pixels; each pin is a 24-pixel
// stub (drawn as a bus when its name has an index range) ending at the pin's point, with its name inside the
// box; the parameter text (text type 55), one line per parameter, below the box. All texts use "Arial,8".
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "GioAccess.h"
#include "SymFormat.h"
#include "SymTextMetrics.h"
#include "plovix_host.h"

using namespace plovix::gio;

namespace {

constexpr const char* kFont = "Arial,8";
constexpr int kMargin = 8;
constexpr int kStub = 24;
constexpr int kPitch = 16;
constexpr int kPad = 6;
constexpr int kGap = 16;
constexpr int kMinBoxWidth = 64;
constexpr int kMinBoxHeight = 32;

// True when the directory part of `fileName` (the working directory when it has none) is a directory.
bool directoryExists(const std::string& fileName) {
  const size_t slash = fileName.find_last_of('/');
  const std::string directory = slash == std::string::npos ? "." : fileName.substr(0, slash + 1);
  struct stat info {};
  return stat(directory.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

int roundUp(int value, int step) {
  return (value + step - 1) / step * step;
}

struct Metrics {
  int height = plovix::sym::heightOfFontString(kFont);
  int line = plovix::sym::lineHeightOf(height);
  int width(const std::string& text) const { return plovix::sym::measureText(height, text).cx; }
};

TextBody makeText(const Metrics& m, Point start, int textType, const std::string& text) {
  TextBody body;
  body.start = start;
  body.size = Point{m.width(text), m.line};
  body.textType = textType;
  body.font = 4;
  body.fontString = kFont;
  body.text = text;
  return body;
}

void addLine(Drawing& d, Point from, Point to, int style, int width) {
  LineBody line;
  line.first = from;
  line.second = to;
  line.style = style;
  line.width = width;
  const int type = from.x == to.x ? GIO_VERTICAL_LINE : from.y == to.y ? GIO_HORIZONTAL_LINE : GIO_OTHER_LINE;
  d.append(type, line);
}

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start <= text.size()) {
    const size_t stop = std::min(text.find('\n', start), text.size());
    lines.push_back(text.substr(start, stop - start));
    start = stop + 1;
  }
  return lines;
}

int widestOf(const Metrics& m, const std::vector<const AutoPin*>& pins) {
  int widest = 0;
  for (const AutoPin* pin : pins) widest = std::max(widest, m.width(pin->name));
  return widest;
}

void addPin(Drawing& d, const Metrics& m, const AutoPin& pin, Point point, Point boxEdge, Point textStart) {
  const int style = pin.name.find('[') != std::string::npos ? GIO_BUS : GIO_SOLID;
  addLine(d, point, boxEdge, style, GIO_THIN);
  TextBody text = makeText(m, textStart, pin.pinType, pin.name);
  text.altText = pin.altText;
  text.isPin = true;
  text.pinPoint = point;
  d.append(GIO_TEXT, text);
}

// Lays the collected pins and the parameter text out as records of `d`.
void layOut(Drawing& d, const std::string& parameters) {
  const Metrics m;
  std::vector<const AutoPin*> left, right;
  for (const AutoPin& pin : d.pins)
    if (pin.pinType != GIO_OUTPUT_TEXT && pin.pinType != GIO_BIDIR_TEXT) left.push_back(&pin);
  for (int type : {GIO_OUTPUT_TEXT, GIO_BIDIR_TEXT})
    for (const AutoPin& pin : d.pins)
      if (pin.pinType == type) right.push_back(&pin);

  const int leftWidth = widestOf(m, left), rightWidth = widestOf(m, right);
  const int boxWidth = roundUp(
      std::max({kMinBoxWidth, leftWidth + rightWidth + 2 * kPad + kGap, m.width(d.name) + 2 * kPad}), 8);
  const int rows = static_cast<int>(std::max(left.size(), right.size()));
  const int boxHeight = std::max(kMinBoxHeight, kPitch * (rows + 1));
  const int boxLeft = kMargin + kStub, boxTop = roundUp(kMargin + m.line + 4, 8);
  const int boxRight = boxLeft + boxWidth, boxBottom = boxTop + boxHeight;

  d.append(GIO_TEXT, makeText(m, Point{boxLeft, boxTop - m.line - 4}, GIO_MACRO_TEXT, d.name));
  const Point corners[] = {
      {boxLeft, boxTop}, {boxRight, boxTop}, {boxRight, boxBottom}, {boxLeft, boxBottom}};
  for (int i = 0; i < 4; ++i) addLine(d, corners[i], corners[(i + 1) % 4], 0, 1);

  for (size_t i = 0; i < left.size(); ++i) {
    const int y = boxTop + kPitch * static_cast<int>(i + 1);
    addPin(d, m, *left[i], Point{kMargin, y}, Point{boxLeft, y}, Point{boxLeft + kPad, y - m.line / 2});
  }
  for (size_t i = 0; i < right.size(); ++i) {
    const int y = boxTop + kPitch * static_cast<int>(i + 1);
    const Point textStart{boxRight - kPad - m.width(right[i]->name), y - m.line / 2};
    addPin(d, m, *right[i], Point{boxRight + kStub, y}, Point{boxRight, y}, textStart);
  }

  int bottom = boxBottom, rightmost = boxRight + kStub;
  if (!parameters.empty()) {
    const std::vector<std::string> lines = splitLines(parameters);
    int widest = 0;
    for (const std::string& line : lines) widest = std::max(widest, m.width(line));
    TextBody block = makeText(m, Point{boxLeft, boxBottom + 8}, GIO_NEW_PROP_TEXT, parameters);
    block.size = Point{widest, m.line * static_cast<int>(lines.size())};
    block.edit = 1;
    d.append(GIO_TEXT, block);
    bottom = block.start.y + block.size.y;
    rightmost = std::max(rightmost, boxLeft + widest);
  }
  d.sheetSize = Point{rightmost + kMargin, bottom + kMargin};
}

}  // namespace

extern "C" short gio_sym_auto_gen_begin(gio_error_context* error, const char* fileName, int reserved) {
  Access access;
  const short instance = makeInstance(access, 1, error);
  if (Drawing* d = access.drawing(instance)) {
    d->automatic = true;
    d->fileVersion = 6;
    d->sheetName = 68;
    d->sourceType = 2;
    d->unitMode = 1;
    if (fileName == nullptr || *fileName == '\0')
      reportGioError(error, 3, "No file name for the symbol");
    else if (!directoryExists(fileName))
      reportGioError(error, 4, "The symbol's directory does not exist");
    else
      d->setFileName(fileName);
  }
  TraceLine("gio_sym_auto_gen_begin").arg(error).arg(fileName).arg(reserved).result(instance);
  return instance;
}

extern "C" int gio_sym_add_pin_stub_w_alt_text(const char* altText, const char* pinName, int pinType,
                                               short instance) {
  Access access;
  Drawing* d = access.drawing(instance);
  const int ok = d != nullptr && d->automatic && pinName != nullptr ? 1 : 0;
  if (ok) d->pins.push_back(AutoPin{altText != nullptr ? altText : "", pinName, pinType});
  TraceLine("gio_sym_add_pin_stub_w_alt_text")
      .arg(altText)
      .arg(pinName)
      .arg(pinType)
      .arg(instance)
      .result(ok);
  return ok;
}

extern "C" int gio_sym_auto_gen_sym_w_params_w_alt_text(short instance, const char* parameterText) {
  Access access;
  Drawing* d = access.drawing(instance);
  int ok = 0;
  int cause = ENOENT;  // no drawing to write: made with a missing directory or none at all
  if (d != nullptr && d->automatic) {
    layOut(*d, parameterText != nullptr ? parameterText : "");
    ok = plovix::sym::writeSymFile(*d) ? 1 : 0;
    cause = errno;
    access.database().remove(instance);
  }
  TraceLine("gio_sym_auto_gen_sym_w_params_w_alt_text").arg(instance).arg(parameterText).result(ok);
  errno = cause;
  return ok;
}
