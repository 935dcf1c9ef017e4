// One drawing of the drawing database: its header values and its records, pending and connected.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "plovix_host.h"

namespace plovix::gio {

inline constexpr int kMaxHandle = 32767;

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

struct LineBody {
  Point first, second;
  int firstDot = 0, secondDot = 0;
  int style = GIO_SOLID;  // a gio_line_style
  int width = GIO_THIN;   // a gio_line_width
};

struct ArcBody {
  Point centre;
  int radius = 0;
  int firstAngle = 0, secondAngle = 0;
  Point start, end;
  int firstDot = 0, secondDot = 0;
};

struct CircleBody {
  Point centre;
  int radius = 0;
  int filled = 0;
};

struct TextBody {
  Point start;  // top left corner of the horizontal text
  Point size;   // measured width and height
  int textType = 0;
  int font = 0;
  int display = 1;
  int edit = 0;
  int color = 0;
  int zoom = 0;
  int orientation = GIO_HORIZONTAL;  // a gio_orientation
  int visibleStatus = 0;
  std::string fontString;
  std::string text;
  std::string altText;
  bool isPin = false;
  Point pinPoint;

  bool shown() const { return display != 0 && visibleStatus == 0; }
};

using RecordBody = std::variant<LineBody, ArcBody, CircleBody, TextBody>;

struct Record {
  short handle = 0;
  int type = 0;
  RecordBody body;
};

// A pin that the automatic symbol lays out.
struct AutoPin {
  std::string altText;
  std::string name;
  int pinType = 0;
};

// The body a record of `type` starts with; false for an unknown type.
bool bodyOfType(int type, RecordBody& body);

class Drawing {
 public:
  int kind = 1;
  std::string filePath;  // where gio_write_drawing puts the drawing
  std::string name;      // the file name without directory and extension
  int fileVersion = 0, sheetName = 0, modified = 0, sourceType = 0, sourceId = 0, commandStatus = 0,
      unitMode = 0;
  Point sheetSize;
  bool automatic = false;
  std::vector<AutoPin> pins;

  // Sets the file path and the name derived from it.
  void setFileName(const std::string& fileName);

  // A new pending record of `type`; 0 when the type is unknown or the handles are used up.
  short createRecord(int type);
  // Moves a pending record of `type` to the end of the drawing; false when there is none.
  bool connect(int type, short handle);
  // Removes a record of `type`, pending or connected.
  bool remove(int type, short handle);
  // A record of `type`, pending or connected; null when there is none.
  Record* find(int type, short handle);
  // The connected records of `type` in connection order: the first, and the one after `handle`; 0 at the end.
  short first(int type) const;
  short next(int type, short handle) const;

  // Appends a connected record directly (layout and file reading).
  Record& append(int type, RecordBody body);

  const std::vector<Record>& records() const { return connected_; }

 private:
  short takeHandle();

  std::vector<Record> pending_;
  std::vector<Record> connected_;
  int lastHandle_ = 0;
};

}  // namespace plovix::gio
