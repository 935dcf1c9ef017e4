// The cpt stand-in: writes a native-language copy of a design text to the given path in text mode, through
// the safe writer; on failure it gives 0 with errno saying why.
#include <cerrno>
#include <string>

#include "base/SafeWrite.h"
#include "plovix_host.h"

extern "C" int cpt_zpip_write_file(const char* path, const char* text, int, int) {
  if (path == nullptr || text == nullptr) {
    errno = EINVAL;
    return 0;
  }
  std::string bytes;
  for (const char* p = text; *p != '\0'; ++p) {
    if (*p == '\n') bytes += '\r';
    bytes += *p;
  }
  const int errorNumber = plovix::replaceFile(path, bytes);
  errno = errorNumber;
  return errorNumber == 0 ? 1 : 0;
}
