// The gio_rec_ calls: creating, connecting, walking and deleting the records of a drawing.
#include "GioAccess.h"
#include "plovix_host.h"

using namespace plovix::gio;

extern "C" short gio_rec_create(short instance, int type) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const short rec = drawing != nullptr ? drawing->createRecord(type) : 0;
  TraceLine("gio_rec_create").arg(instance).arg(type).result(rec);
  return rec;
}

extern "C" int gio_rec_connect(short instance, int type, short rec, int reserved) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const int ok = drawing != nullptr && drawing->connect(type, rec) ? 1 : 0;
  TraceLine("gio_rec_connect").arg(instance).arg(type).arg(rec).arg(reserved).result(ok);
  return ok;
}

extern "C" short gio_rec_first(short instance, int type) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const short rec = drawing != nullptr ? drawing->first(type) : 0;
  TraceLine("gio_rec_first").arg(instance).arg(type).result(rec);
  return rec;
}

extern "C" short gio_rec_next(short instance, int type, short rec) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const short next = drawing != nullptr ? drawing->next(type, rec) : 0;
  TraceLine("gio_rec_next").arg(instance).arg(type).arg(rec).result(next);
  return next;
}

extern "C" int gio_rec_delete(short instance, int type, short rec) {
  Access access;
  Drawing* drawing = access.drawing(instance);
  const int ok = drawing != nullptr && drawing->remove(type, rec) ? 1 : 0;
  TraceLine("gio_rec_delete").arg(instance).arg(type).arg(rec).result(ok);
  return ok;
}
