// The project database stand-in: project id, project root directory and project top file.
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "plovix_host.h"

namespace {

// The working directory when the host library was loaded, the project root when none is configured.
std::string startDirectory() {
  static const std::string dir = [] {
    char buffer[4096];
    if (getcwd(buffer, sizeof buffer) == nullptr) return std::string("/");
    return std::string(buffer);
  }();
  return dir;
}

[[gnu::constructor]] void rememberStartDirectory() {
  startDirectory();
}

int copyOut(const std::string& text, char* buffer, int capacity) {
  if (buffer == nullptr || capacity <= 0) return 0;
  const size_t n = std::min(text.size(), static_cast<size_t>(capacity - 1));
  std::memcpy(buffer, text.data(), n);
  buffer[n] = '\0';
  return 1;
}

}  // namespace

extern "C" int hrw_get_project_tree_id(void) {
  return 1;
}

extern "C" int hrw_get_root_dir(int, char* buffer, int capacity) {
  const char* configured = std::getenv("PLOVIX_PROJECT_DIR");
  std::string dir = (configured != nullptr && *configured != '\0') ? configured : startDirectory();
  if (dir.empty() || (dir.back() != '/' && dir.back() != '\\')) dir += '/';
  return copyOut(dir, buffer, capacity);
}

extern "C" int hrw_get_full_path_name(int, char* buffer, int capacity) {
  const char* top = std::getenv("PLOVIX_TOP_FILE");
  if (top == nullptr || *top == '\0') return 0;
  std::string path = top;
  if (path.front() != '/') {
    char root[4096];
    hrw_get_root_dir(1, root, sizeof root);
    path = std::string(root) + path;
  }
  return copyOut(path, buffer, capacity);
}
