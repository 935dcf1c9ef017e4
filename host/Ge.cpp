// The graphic environment stand-in: the user library path and the host library path.
#include <sys/stat.h>

#include <cstdlib>
#include <string>

#include "plovix_host.h"

namespace {

bool isDirectory(const char* path) {
  struct stat st {};
  return stat(path, &st) == 0 && S_ISDIR(st.st_mode);
}

// The bundled modulon library: the installed copy, else the one in the build tree.
const char* bundledLibrary() {
  if (isDirectory(PLOVIX_INSTALL_LIB_DIR)) return PLOVIX_INSTALL_LIB_DIR;
  if (isDirectory(PLOVIX_BUILD_LIB_DIR)) return PLOVIX_BUILD_LIB_DIR;
  return nullptr;
}

}  // namespace

extern "C" const char* ge_get_user_lib_path(void) {
  return std::getenv("PLOVIX_USER_LIB_PATH");
}

extern "C" const char* ge_get_qelvix_lib_path(void) {
  const char* configured = std::getenv("PLOVIX_LIB_PATH");
  if (configured != nullptr) return configured;
  return bundledLibrary();
}
