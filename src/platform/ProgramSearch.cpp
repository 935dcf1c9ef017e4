// The program search of process start: names with a directory, the search path and the ".exe" rule.
#include "platform/ProgramSearch.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace plovix {

namespace {

bool exists(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0;
}

bool isExecutableFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) && access(path.c_str(), X_OK) == 0;
}

std::string searchPathFor(const std::string& name, const std::string& searchPath) {
  size_t start = 0;
  while (start <= searchPath.size()) {
    const size_t end = std::min(searchPath.find(':', start), searchPath.size());
    // An empty entry of the search path means the working directory.
    std::string directory = end > start ? searchPath.substr(start, end - start) : std::string(".");
    start = end + 1;
    if (directory.back() != '/') directory += '/';
    for (const std::string& candidate : {directory + name, directory + name + ".exe"}) {
      if (isExecutableFile(candidate)) return candidate;
    }
  }
  return {};
}

}  // namespace

std::string findProgram(const std::string& name, const std::string& searchPath) {
  if (name.empty()) return {};
  if (name.find('/') != std::string::npos) {
    if (!exists(name) && exists(name + ".exe")) return name + ".exe";
    return name;
  }
  std::string found = searchPathFor(name, searchPath);
  if (found.empty() && name == "javaw") found = searchPathFor("java", searchPath);
  return found;
}

std::string findProgramOnPath(const std::string& name) {
  const char* searchPath = std::getenv("PATH");
  return findProgram(name, searchPath == nullptr ? "/usr/bin:/bin" : searchPath);
}

}  // namespace plovix
