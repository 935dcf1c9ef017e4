// The graphic environment stand-in: the user library path and the host library path, whose default is the
// bundled modulon library found relative to this library's own file.
#include <dlfcn.h>
#include <sys/stat.h>

#include <climits>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "InstallLayout.h"
#include "plovix_host.h"

namespace {

bool isDirectory(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

// The folder of this library's file, with links resolved; empty when the loader cannot say.
std::string ownDirectory() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&ge_get_bundled_lib_candidates), &info) == 0 ||
      info.dli_fname == nullptr)
    return {};
  char resolved[PATH_MAX];
  if (realpath(info.dli_fname, resolved) == nullptr) return {};
  const std::string path(resolved);
  return path.substr(0, path.rfind('/'));
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

// The places of the bundled library, in the order they are tried: beside an install of this library, and,
// for the library of a build tree, that build tree's copy.
struct BundledLibrary {
  std::string candidates;  // ";"-separated
  std::string found;       // the first that is a folder; empty when none is
};

BundledLibrary locateBundledLibrary() {
  const std::string own = ownDirectory();
  std::vector<std::string> places;
  if (!own.empty()) places.push_back(joinRelative(own, PLOVIX_LIBDIR_TO_MODULONS));
  const std::string buildTree = PLOVIX_BUILD_DIR "/";
  if (!own.empty() && (own + "/").rfind(buildTree, 0) == 0) places.emplace_back(PLOVIX_BUILD_LIB_DIR);

  BundledLibrary library;
  for (const std::string& place : places) {
    if (!library.candidates.empty()) library.candidates += ';';
    library.candidates += place;
    if (library.found.empty() && isDirectory(place)) library.found = place;
  }
  return library;
}

const BundledLibrary& bundledLibrary() {
  static const BundledLibrary library = locateBundledLibrary();
  return library;
}

}  // namespace

extern "C" const char* ge_get_user_lib_path(void) {
  return std::getenv("PLOVIX_USER_LIB_PATH");
}

extern "C" const char* ge_get_qelvix_lib_path(void) {
  const char* configured = std::getenv("PLOVIX_LIB_PATH");
  if (configured != nullptr) return configured;
  const std::string& found = bundledLibrary().found;
  return found.empty() ? nullptr : found.c_str();
}

extern "C" const char* ge_get_bundled_lib_candidates(void) {
  return bundledLibrary().candidates.c_str();
}
