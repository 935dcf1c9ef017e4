// Looking up the drawing and record that one gio_ call works on, under the database lock.
#pragma once

#include <mutex>
#include <variant>

#include "GioDatabase.h"
#include "GioTrace.h"

namespace plovix::gio {

class Access {
 public:
  Access() : guard_(Database::shared().lock()) {}

  Database& database() { return Database::shared(); }
  Drawing* drawing(short instance) { return Database::shared().find(instance); }

  // The body of record `rec` of `type` in `instance` when it holds a `Body`; null otherwise.
  template <class Body>
  Body* body(short instance, int type, short rec) {
    Drawing* d = drawing(instance);
    Record* r = d == nullptr ? nullptr : d->find(type, rec);
    return r == nullptr ? nullptr : std::get_if<Body>(&r->body);
  }

 private:
  std::lock_guard<std::mutex> guard_;
};

// Makes a drawing of `kind` (1, a symbol); a failure is reported through `error`. 0 when none was made.
short makeInstance(Access& access, int kind, gio_error_context* error);

// Fills the error context (when there is one) with a code and its text.
void reportGioError(gio_error_context* error, int code, const char* message);

inline Point toPoint(const gio_point& p) {
  return Point{p.x, p.y};
}

}  // namespace plovix::gio
