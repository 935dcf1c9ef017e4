// The table of drawings behind the instance handles.
#include "GioDatabase.h"

namespace plovix::gio {

Database& Database::shared() {
  static Database database;
  return database;
}

short Database::create() {
  int handle = 1;
  for (const auto& [used, drawing] : drawings_) {
    if (used != handle) break;
    ++handle;
  }
  if (handle > kMaxHandle) return 0;
  drawings_.emplace(static_cast<short>(handle), Drawing{});
  return static_cast<short>(handle);
}

Drawing* Database::find(short instance) {
  auto it = drawings_.find(instance);
  return it == drawings_.end() ? nullptr : &it->second;
}

bool Database::remove(short instance) {
  return drawings_.erase(instance) > 0;
}

}  // namespace plovix::gio
