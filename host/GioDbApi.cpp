// The gio_db_ calls: making, naming, describing, writing and deleting drawings.
#include <cerrno>
#include <cstdio>

#include "GioAccess.h"
#include "SymFormat.h"
#include "plovix_host.h"

using namespace plovix::gio;

namespace {

constexpr int kSymbolKind = 1;

void clearError(gio_error_context* error) {
  if (error == nullptr) return;
  error->code = 0;
  error->message[0] = '\0';
}

int setDrawingValue(const char* function, short instance, int value, int Drawing::*field) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  if (drawing != nullptr) drawing->*field = value;
  const int ok = drawing != nullptr ? 1 : 0;
  TraceLine(function).arg(instance).arg(value).result(ok);
  return ok;
}

}  // namespace

namespace plovix::gio {

void reportGioError(gio_error_context* error, int code, const char* message) {
  if (error == nullptr) return;
  error->code = code;
  std::snprintf(error->message, sizeof error->message, "%s", message);
}

short makeInstance(Access& access, int kind, gio_error_context* error) {
  clearError(error);
  if (kind != kSymbolKind) {
    reportGioError(error, 1, "Unknown drawing kind");
    return 0;
  }
  const short instance = access.database().create();
  if (instance == 0) reportGioError(error, 2, "Too many open drawings");
  return instance;
}

}  // namespace plovix::gio

extern "C" short gio_db_create_instance(int kind, gio_error_context* error, int reserved) {
  Access access;
  const short instance = makeInstance(access, kind, error);
  TraceLine("gio_db_create_instance").arg(kind).arg(error).arg(reserved).result(instance);
  return instance;
}

extern "C" int gio_db_set_drawing_name(short instance, const char* fileName) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const int ok = drawing != nullptr && fileName != nullptr ? 1 : 0;
  if (ok) drawing->setFileName(fileName);
  TraceLine("gio_db_set_drawing_name").arg(instance).arg(fileName).result(ok);
  return ok;
}

extern "C" int gio_db_set_file_version(short instance, int version) {
  return setDrawingValue("gio_db_set_file_version", instance, version, &Drawing::fileVersion);
}

extern "C" int gio_db_set_sheet_name(short instance, int sheetName) {
  return setDrawingValue("gio_db_set_sheet_name", instance, sheetName, &Drawing::sheetName);
}

extern "C" int gio_db_set_modified_flag(short instance, int modified) {
  return setDrawingValue("gio_db_set_modified_flag", instance, modified, &Drawing::modified);
}

extern "C" int gio_db_set_source_type(short instance, int sourceType) {
  return setDrawingValue("gio_db_set_source_type", instance, sourceType, &Drawing::sourceType);
}

extern "C" int gio_db_set_source_id(short instance, int sourceId) {
  return setDrawingValue("gio_db_set_source_id", instance, sourceId, &Drawing::sourceId);
}

extern "C" int gio_db_set_command_status(short instance, int status) {
  return setDrawingValue("gio_db_set_command_status", instance, status, &Drawing::commandStatus);
}

extern "C" int gio_db_set_unit_mode(short instance, int unitMode) {
  return setDrawingValue("gio_db_set_unit_mode", instance, unitMode, &Drawing::unitMode);
}

extern "C" int gio_db_set_sheet_size(short instance, const gio_point* size) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const int ok = drawing != nullptr && size != nullptr ? 1 : 0;
  if (ok) drawing->sheetSize = toPoint(*size);
  TraceLine("gio_db_set_sheet_size").arg(instance).arg(size).result(ok);
  return ok;
}

extern "C" const char* gio_db_get_drawing_name(short instance) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const char* name = drawing != nullptr ? drawing->name.c_str() : "";
  TraceLine("gio_db_get_drawing_name").arg(instance).result(name);
  return name;
}

extern "C" int gio_write_drawing(short instance) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  errno = ENOENT;  // no drawing to write
  const int ok = drawing != nullptr && plovix::sym::writeSymFile(*drawing) ? 1 : 0;
  const int cause = errno;
  TraceLine("gio_write_drawing").arg(instance).result(ok);
  errno = cause;
  return ok;
}

extern "C" int gio_db_delete_instance(short instance, int reserved) {
  Access access;
  const int ok = access.database().remove(instance) ? 1 : 0;
  TraceLine("gio_db_delete_instance").arg(instance).arg(reserved).result(ok);
  return ok;
}
