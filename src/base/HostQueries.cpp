// Implementation of the host queries over libplovixhost.
#include "base/HostQueries.h"

#include <cstring>

#include "base/PathText.h"
#include "plovix_host.h"

namespace plovix {

std::string libraryPath(bool user) {
  const char* text = user ? ge_get_user_lib_path() : ge_get_qelvix_lib_path();
  return text == nullptr ? std::string() : std::string(text);
}

std::string projectRoot(const std::string& previous) {
  char buffer[1024] = {};
  std::strncpy(buffer, previous.c_str(), sizeof buffer - 1);
  hrw_get_root_dir(hrw_get_project_tree_id(), buffer, sizeof buffer);
  buffer[sizeof buffer - 1] = '\0';
  return buffer;
}

std::string projectTopFileName() {
  char buffer[1024] = "null";
  hrw_get_full_path_name(hrw_get_project_tree_id(), buffer, sizeof buffer);
  buffer[sizeof buffer - 1] = '\0';
  return nameWithExtension(buffer);
}

std::string platformName() {
  return "linux";
}

std::string deviceFamily() {
  return "null";
}

}  // namespace plovix
