// Records of one drawing: creation, connection, walking and removal by handle.
#include "GioDrawing.h"

#include <algorithm>

namespace plovix::gio {

bool bodyOfType(int type, RecordBody& body) {
  switch (type) {
    case GIO_HORIZONTAL_LINE:
    case GIO_VERTICAL_LINE:
    case GIO_OTHER_LINE:
      body = LineBody{};
      return true;
    case GIO_ARC:
      body = ArcBody{};
      return true;
    case GIO_CIRCLE:
      body = CircleBody{};
      return true;
    case GIO_TEXT:
      body = TextBody{};
      return true;
    default:
      return false;
  }
}

void Drawing::setFileName(const std::string& fileName) {
  filePath = fileName;
  const size_t slash = fileName.find_last_of("/\\");
  std::string base = slash == std::string::npos ? fileName : fileName.substr(slash + 1);
  const size_t dot = base.rfind('.');
  if (dot != std::string::npos && dot > 0) base.erase(dot);
  name = base;
}

short Drawing::takeHandle() {
  if (lastHandle_ >= kMaxHandle) return 0;
  return static_cast<short>(++lastHandle_);
}

short Drawing::createRecord(int type) {
  RecordBody body;
  if (!bodyOfType(type, body)) return 0;
  const short handle = takeHandle();
  if (handle == 0) return 0;
  pending_.push_back(Record{handle, type, std::move(body)});
  return handle;
}

namespace {

auto byHandle(int type, short handle) {
  return [type, handle](const Record& r) { return r.handle == handle && r.type == type; };
}

}  // namespace

bool Drawing::connect(int type, short handle) {
  auto it = std::find_if(pending_.begin(), pending_.end(), byHandle(type, handle));
  if (it == pending_.end()) return false;
  connected_.push_back(std::move(*it));
  pending_.erase(it);
  return true;
}

bool Drawing::remove(int type, short handle) {
  for (std::vector<Record>* list : {&pending_, &connected_}) {
    auto it = std::find_if(list->begin(), list->end(), byHandle(type, handle));
    if (it != list->end()) {
      list->erase(it);
      return true;
    }
  }
  return false;
}

Record* Drawing::find(int type, short handle) {
  if (handle == 0) return nullptr;
  for (std::vector<Record>* list : {&pending_, &connected_}) {
    auto it = std::find_if(list->begin(), list->end(), byHandle(type, handle));
    if (it != list->end()) return &*it;
  }
  return nullptr;
}

short Drawing::first(int type) const {
  for (const Record& r : connected_)
    if (r.type == type) return r.handle;
  return 0;
}

short Drawing::next(int type, short handle) const {
  auto it = std::find_if(connected_.begin(), connected_.end(), byHandle(type, handle));
  if (it == connected_.end()) return 0;
  for (++it; it != connected_.end(); ++it)
    if (it->type == type) return it->handle;
  return 0;
}

Record& Drawing::append(int type, RecordBody body) {
  const short handle = takeHandle();
  connected_.push_back(Record{handle, type, std::move(body)});
  return connected_.back();
}

}  // namespace plovix::gio
