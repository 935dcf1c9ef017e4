// The application object's lifetime and its project-directory handling.
#include "entry/ManagerApp.h"

#include <unistd.h>

#include "base/HostQueries.h"
#include "base/PathText.h"

namespace plovix {

ManagerApp& ManagerApp::instance() {
  static ManagerApp app;
  return app;
}

ManagerApp::~ManagerApp() {
  if (restoreDirectoryAtExit && !projectDirectory.empty() && chdir(projectDirectory.c_str()) != 0) {
    // The directory may be gone; the process keeps its working directory then.
  }
}

void ManagerApp::fetchProjectDirectory() {
  projectDirectory = toForwardSlashes(projectRoot(projectDirectory));
}

}  // namespace plovix
