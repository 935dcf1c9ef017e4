// The drawing database: the drawings that the C interface hands out as instance handles.
#pragma once

#include <map>
#include <mutex>

#include "GioDrawing.h"

namespace plovix::gio {

// The C interface names drawings by number, so the library keeps one table of them for the whole process.
// Every gio_ call holds the lock while it works on the table.
class Database {
 public:
  static Database& shared();

  std::mutex& lock() { return mutex_; }

  // A new drawing under the lowest free handle; 0 when all handles are in use.
  short create();
  Drawing* find(short instance);
  bool remove(short instance);

 private:
  Database() = default;
  std::mutex mutex_;
  std::map<short, Drawing> drawings_;
};

}  // namespace plovix::gio
