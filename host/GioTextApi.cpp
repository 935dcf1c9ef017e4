// The gio_text_ calls and gio_obj_set_visible_status: the attributes of text records, and pin stubs.
#include <string>

#include "GioAccess.h"
#include "plovix_host.h"

using namespace plovix::gio;

namespace {

// Sets one attribute of a text record; `apply` returns false when the value cannot be taken.
template <class Value, class Apply>
int setText(const char* function, short instance, int type, short rec, Value value, Apply apply) {
  Access access;
  TextBody* text = type == GIO_TEXT ? access.body<TextBody>(instance, type, rec) : nullptr;
  const int ok = text != nullptr && apply(*text, value) ? 1 : 0;
  TraceLine(function).arg(instance).arg(type).arg(rec).arg(value).result(ok);
  return ok;
}

int setNumber(const char* function, short instance, int type, short rec, int value, int TextBody::*field) {
  return setText(function, instance, type, rec, value, [field](TextBody& text, int v) {
    text.*field = v;
    return true;
  });
}

int setString(const char* function, short instance, int type, short rec, const char* value,
              std::string TextBody::*field) {
  return setText(function, instance, type, rec, value, [field](TextBody& text, const char* v) {
    if (v == nullptr) return false;
    text.*field = v;
    return true;
  });
}

int setPoint(const char* function, short instance, int type, short rec, const gio_point* value,
             Point TextBody::*field) {
  return setText(function, instance, type, rec, value, [field](TextBody& text, const gio_point* v) {
    if (v == nullptr) return false;
    text.*field = toPoint(*v);
    return true;
  });
}

}  // namespace

extern "C" int gio_text_set_start_point(short instance, int type, short rec, const gio_point* point) {
  return setPoint("gio_text_set_start_point", instance, type, rec, point, &TextBody::start);
}

extern "C" int gio_text_set_attr_type(short instance, int type, short rec, int textType) {
  return setNumber("gio_text_set_attr_type", instance, type, rec, textType, &TextBody::textType);
}

extern "C" int gio_text_set_attr_font(short instance, int type, short rec, int font) {
  return setNumber("gio_text_set_attr_font", instance, type, rec, font, &TextBody::font);
}

extern "C" int gio_text_set_attr_display(short instance, int type, short rec, int display) {
  return setNumber("gio_text_set_attr_display", instance, type, rec, display, &TextBody::display);
}

extern "C" int gio_text_set_attr_edit(short instance, int type, short rec, int edit) {
  return setNumber("gio_text_set_attr_edit", instance, type, rec, edit, &TextBody::edit);
}

extern "C" int gio_text_set_attr_color(short instance, int type, short rec, int color) {
  return setNumber("gio_text_set_attr_color", instance, type, rec, color, &TextBody::color);
}

extern "C" int gio_text_set_attr_zoom(short instance, int type, short rec, int zoom) {
  return setNumber("gio_text_set_attr_zoom", instance, type, rec, zoom, &TextBody::zoom);
}

extern "C" int gio_text_set_orientation(short instance, int type, short rec, int orientation) {
  return setNumber("gio_text_set_orientation", instance, type, rec, orientation, &TextBody::orientation);
}

extern "C" int gio_text_set_attr_font_string(short instance, int type, short rec, const char* font) {
  return setString("gio_text_set_attr_font_string", instance, type, rec, font, &TextBody::fontString);
}

extern "C" int gio_text_set_attr_size(short instance, int type, short rec, const gio_point* size) {
  return setPoint("gio_text_set_attr_size", instance, type, rec, size, &TextBody::size);
}

extern "C" int gio_text_set_text(short instance, int type, short rec, const char* text) {
  return setString("gio_text_set_text", instance, type, rec, text, &TextBody::text);
}

extern "C" int gio_text_set_alt_text(short instance, int type, short rec, const char* altText) {
  return setString("gio_text_set_alt_text", instance, type, rec, altText, &TextBody::altText);
}

extern "C" int gio_obj_set_visible_status(short instance, int type, short rec, int status) {
  return setNumber("gio_obj_set_visible_status", instance, type, rec, status, &TextBody::visibleStatus);
}

extern "C" int gio_text_get_attr_type(short instance, int type, short rec) {
  Access access;
  const TextBody* text = type == GIO_TEXT ? access.body<TextBody>(instance, type, rec) : nullptr;
  const int textType = text != nullptr ? text->textType : 0;
  TraceLine("gio_text_get_attr_type").arg(instance).arg(type).arg(rec).result(textType);
  return textType;
}

extern "C" int gio_text_create_pinstub(short instance, int type, short rec, const gio_point* point,
                                       int reserved) {
  Access access;
  TextBody* text = type == GIO_TEXT ? access.body<TextBody>(instance, type, rec) : nullptr;
  const int ok = text != nullptr && point != nullptr ? 1 : 0;
  if (ok) {
    text->isPin = true;
    text->pinPoint = toPoint(*point);
  }
  TraceLine("gio_text_create_pinstub").arg(instance).arg(type).arg(rec).arg(point).arg(reserved).result(ok);
  return ok;
}
