// The library's single application object: the values kept from one call to the next, and the run.
#pragma once

#include <string>

#include "base/WindowCorner.h"
#include "entry/ManagerRun.h"

namespace plovix {

class ManagerApp {
 public:
  // The one object of a process, created when the library is loaded.
  static ManagerApp& instance();

  ManagerApp() = default;
  ManagerApp(const ManagerApp&) = delete;
  ManagerApp& operator=(const ManagerApp&) = delete;
  // Unloading makes the project directory the working directory.
  ~ManagerApp();

  // Asks the host for the project root, kept with forward slashes.
  void fetchProjectDirectory();

  std::string projectDirectory = "C:/";
  std::string lastOutputPath;
  WindowCorner corner;
  ManagerRun run;
  // Set by hosts that restore the working directory themselves (tests) to leave it alone at unload.
  bool restoreDirectoryAtExit = true;
};

}  // namespace plovix
