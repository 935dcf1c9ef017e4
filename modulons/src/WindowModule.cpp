// Finding and loading the window dialog's module, relative to the plug-in program's own file.
#include "WindowModule.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include "InstallLayout.h"

namespace plovix::wizard {

namespace {

// The folder of the running program, with links resolved; empty when it cannot be read.
std::string programDirectory() {
  char resolved[PATH_MAX];
  if (realpath("/proc/self/exe", resolved) == nullptr) return {};
  const std::string path(resolved);
  return path.substr(0, path.rfind('/'));
}

// The module's places: the install's private library folder seen from the program's folder, and, for a
// program inside the build tree, the build tree's module folder.
std::vector<std::string> moduleCandidates() {
  const std::string directory = programDirectory();
  if (directory.empty()) return {};
  std::vector<std::string> candidates = {directory + "/" PLOVIX_PLUGINDIR_TO_MODULES
                                                     "/" PLOVIX_WINDOW_MODULE_FILE};
  if ((directory + "/").rfind(PLOVIX_BUILD_DIR "/", 0) == 0)
    candidates.emplace_back(PLOVIX_BUILD_MODULE_DIR "/" PLOVIX_WINDOW_MODULE_FILE);
  return candidates;
}

}  // namespace

std::unique_ptr<ValueDialog> loadWindowDialog() {
  for (const std::string& candidate : moduleCandidates()) {
    if (access(candidate.c_str(), R_OK) != 0) continue;
    // Kept loaded for the rest of the process: Qt does not support being unloaded.
    void* handle = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return nullptr;
    const auto entry = reinterpret_cast<WindowDialogEntry>(dlsym(handle, kWindowDialogEntry));
    return std::unique_ptr<ValueDialog>(entry == nullptr ? nullptr : entry(PLOVIX_VERSION_TEXT));
  }
  return nullptr;
}

}  // namespace plovix::wizard
