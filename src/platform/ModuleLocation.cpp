// Finding the running binary's own file and the install's module folder beside it.
#include "platform/ModuleLocation.h"

#include <dlfcn.h>
#include <link.h>

#include <climits>
#include <cstdlib>
#include <string_view>

#include "InstallLayout.h"
#include "base/FileSystem.h"

namespace plovix {

namespace {

// The file of the executable or shared library that holds this code, with links resolved, and whether it is
// the executable; an empty path when the loader cannot say.
std::string ownBinary(bool& isExecutable) {
  Dl_info info{};
  link_map* map = nullptr;
  isExecutable = false;
  if (dladdr1(reinterpret_cast<void*>(&moduleCandidates), &info, reinterpret_cast<void**>(&map),
              RTLD_DL_LINKMAP) == 0 ||
      map == nullptr)
    return {};
  // The loader names every object by its path but the executable, whose name it leaves empty.
  isExecutable = map->l_name == nullptr || map->l_name[0] == '\0';
  const std::string path = isExecutable ? programPath() : std::string(map->l_name);
  char resolved[PATH_MAX];
  return realpath(path.c_str(), resolved) == nullptr ? std::string() : std::string(resolved);
}

// `directory` (absolute, without links) followed by `relative`, each leading "../" taking off a last part.
std::string joinRelative(const std::string& directory, std::string_view relative) {
  std::string_view base = directory;
  while (relative.substr(0, 3) == "../") {
    base = base.substr(0, base.find_last_of('/'));
    relative.remove_prefix(3);
  }
  std::string joined(base);
  if (relative != ".") joined.append("/").append(relative);
  return joined.empty() ? std::string("/") : joined;
}

}  // namespace

std::vector<std::string> moduleCandidates(const std::string& fileName) {
  bool isExecutable = false;
  const std::string own = ownBinary(isExecutable);
  std::vector<std::string> candidates;
  if (own.empty()) return candidates;
  const std::string directory = own.substr(0, own.rfind('/'));
  const char* toModules = isExecutable ? PLOVIX_BINDIR_TO_MODULES : PLOVIX_LIBDIR_TO_MODULES;
  candidates.push_back(joinRelative(directory, toModules) + "/" + fileName);
  if (own.rfind(PLOVIX_BUILD_DIR "/", 0) == 0) candidates.push_back(PLOVIX_BUILD_MODULE_DIR "/" + fileName);
  return candidates;
}

}  // namespace plovix
