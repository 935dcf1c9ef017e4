// Loading the Qt front-end module from the install's private library folder.
#include <dlfcn.h>
#include <sys/stat.h>

#include "InstallLayout.h"
#include "platform/ModuleLocation.h"
#include "ui/QtModule.h"

namespace plovix {

namespace {

bool isFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

// The first candidate file that exists; empty when none does.
std::string installedModule() {
  for (const std::string& candidate : moduleCandidates(PLOVIX_QT_MODULE_FILE)) {
    if (isFile(candidate)) return candidate;
  }
  return {};
}

}  // namespace

bool qtModuleInstalled() {
  return !installedModule().empty();
}

QtModuleLoad loadQtFrontEnd(const FrontEndOptions& options) {
  QtModuleLoad load;
  const std::string module = installedModule();
  if (module.empty()) {
    load.failure = QtModuleLoad::Failure::kNotInstalled;
    for (const std::string& candidate : moduleCandidates(PLOVIX_QT_MODULE_FILE)) {
      if (!load.detail.empty()) load.detail += ", ";
      load.detail += candidate.substr(0, candidate.rfind('/'));
    }
    return load;
  }
  // Kept loaded for the rest of the process: Qt does not support being unloaded.
  void* handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
  const auto entry =
      handle == nullptr ? nullptr : reinterpret_cast<QtFrontEndEntry>(dlsym(handle, kQtFrontEndEntry));
  if (entry == nullptr) {
    load.failure = QtModuleLoad::Failure::kCannotLoad;
    load.detail = dlerror();
    return load;
  }
  load.frontEnd.reset(entry(PLOVIX_VERSION_TEXT, &options));
  load.detail = module;
  if (load.frontEnd == nullptr) load.failure = QtModuleLoad::Failure::kOtherVersion;
  return load;
}

}  // namespace plovix
