// The cpt stand-in: writes a native-language copy of a design text to the given path in text mode.
#include <cstdio>
#include <string>

#include "plovix_host.h"

extern "C" int cpt_zpip_write_file(const char* path, const char* text, int, int) {
  if (path == nullptr || text == nullptr) return 0;
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr) return 0;
  bool ok = true;
  for (const char* p = text; *p != '\0'; ++p) {
    if (*p == '\n' && std::fputc('\r', file) == EOF) ok = false;
    if (std::fputc(*p, file) == EOF) ok = false;
  }
  if (std::fclose(file) != 0) ok = false;
  return ok ? 1 : 0;
}
