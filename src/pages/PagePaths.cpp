// Implementation of the pages' path helpers.
#include "pages/PagePaths.h"

#include <sys/stat.h>

#include "base/FileSystem.h"
#include "base/PathText.h"

namespace plovix {

std::string absoluteDirectory(const std::string& directory) {
  std::string full = directory.empty() ? currentDirectory() : fullPath(directory);
  if (full.empty()) return directory;
  full = toForwardSlashes(full);
  if (full.back() != '/') full += '/';
  return full;
}

bool createOneDirectory(const std::string& directory) {
  std::string path = toForwardSlashes(directory);
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return !path.empty() && mkdir(path.c_str(), 0777) == 0;
}

}  // namespace plovix
