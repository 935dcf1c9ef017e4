// The gio_line_, gio_arc_ and gio_circle_ calls: the geometry and look of line, arc and circle records.
#include "GioAccess.h"
#include "plovix_host.h"

using namespace plovix::gio;

namespace {

bool isLineType(int type) {
  return type == GIO_HORIZONTAL_LINE || type == GIO_VERTICAL_LINE || type == GIO_OTHER_LINE;
}

LineBody* lineBody(Access& access, short instance, int type, short rec) {
  return isLineType(type) ? access.body<LineBody>(instance, type, rec) : nullptr;
}

}  // namespace

extern "C" int gio_line_set_points(short instance, int type, short rec, const gio_point* first,
                                   const gio_point* second) {
  Access access;
  LineBody* line = lineBody(access, instance, type, rec);
  const int ok = line != nullptr && first != nullptr && second != nullptr ? 1 : 0;
  if (ok) {
    line->first = toPoint(*first);
    line->second = toPoint(*second);
  }
  TraceLine("gio_line_set_points").arg(instance).arg(type).arg(rec).arg(first).arg(second).result(ok);
  return ok;
}

// Lines and arcs both carry dots at their two ends.
extern "C" int gio_line_set_dots(short instance, int type, short rec, int firstDot, int secondDot) {
  Access access;
  int ok = 0;
  if (LineBody* line = lineBody(access, instance, type, rec)) {
    line->firstDot = firstDot;
    line->secondDot = secondDot;
    ok = 1;
  } else if (ArcBody* arc = type == GIO_ARC ? access.body<ArcBody>(instance, type, rec) : nullptr) {
    arc->firstDot = firstDot;
    arc->secondDot = secondDot;
    ok = 1;
  }
  TraceLine("gio_line_set_dots").arg(instance).arg(type).arg(rec).arg(firstDot).arg(secondDot).result(ok);
  return ok;
}

extern "C" int gio_line_set_style(short instance, int type, short rec, int style) {
  Access access;
  LineBody* line = lineBody(access, instance, type, rec);
  if (line != nullptr) line->style = style;
  const int ok = line != nullptr ? 1 : 0;
  TraceLine("gio_line_set_style").arg(instance).arg(type).arg(rec).arg(style).result(ok);
  return ok;
}

extern "C" int gio_line_set_width(short instance, int type, short rec, int width) {
  Access access;
  LineBody* line = lineBody(access, instance, type, rec);
  if (line != nullptr) line->width = width;
  const int ok = line != nullptr ? 1 : 0;
  TraceLine("gio_line_set_width").arg(instance).arg(type).arg(rec).arg(width).result(ok);
  return ok;
}

extern "C" int gio_circle_set_coordinates(short instance, short rec, const gio_point* centre, int radius) {
  Access access;
  CircleBody* circle = access.body<CircleBody>(instance, GIO_CIRCLE, rec);
  const int ok = circle != nullptr && centre != nullptr ? 1 : 0;
  if (ok) {
    circle->centre = toPoint(*centre);
    circle->radius = radius;
  }
  TraceLine("gio_circle_set_coordinates").arg(instance).arg(rec).arg(centre).arg(radius).result(ok);
  return ok;
}

extern "C" int gio_circle_set_attr_fill(short instance, short rec, int filled) {
  Access access;
  CircleBody* circle = access.body<CircleBody>(instance, GIO_CIRCLE, rec);
  if (circle != nullptr) circle->filled = filled;
  const int ok = circle != nullptr ? 1 : 0;
  TraceLine("gio_circle_set_attr_fill").arg(instance).arg(rec).arg(filled).result(ok);
  return ok;
}

extern "C" int gio_arc_set_coordinates(short instance, short rec, const gio_point* centre, int radius,
                                       int firstAngle, int secondAngle) {
  Access access;
  ArcBody* arc = access.body<ArcBody>(instance, GIO_ARC, rec);
  const int ok = arc != nullptr && centre != nullptr ? 1 : 0;
  if (ok) {
    arc->centre = toPoint(*centre);
    arc->radius = radius;
    arc->firstAngle = firstAngle;
    arc->secondAngle = secondAngle;
  }
  TraceLine("gio_arc_set_coordinates")
      .arg(instance)
      .arg(rec)
      .arg(centre)
      .arg(radius)
      .arg(firstAngle)
      .arg(secondAngle)
      .result(ok);
  return ok;
}

extern "C" int gio_arc_set_points(short instance, short rec, const gio_point* start, const gio_point* end) {
  Access access;
  ArcBody* arc = access.body<ArcBody>(instance, GIO_ARC, rec);
  const int ok = arc != nullptr && start != nullptr && end != nullptr ? 1 : 0;
  if (ok) {
    arc->start = toPoint(*start);
    arc->end = toPoint(*end);
  }
  TraceLine("gio_arc_set_points").arg(instance).arg(rec).arg(start).arg(end).result(ok);
  return ok;
}
