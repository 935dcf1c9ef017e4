// Running commands for the end-to-end tests.
#include "BatchRun.h"

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>

namespace plovix::testing {

std::string modulonLibrary() {
  return std::string(PLOVIX_BINARY_DIR) + "/modulons/lib";
}

ToolRun plovixBatch(const TempDir& project, const std::string& modulon, const std::string& language,
                    const std::string& pluginArgs, const std::string& designFile) {
  std::string command =
      "env -u PLOVIX_LIB_PATH -u PLOVIX_USER_LIB_PATH -u PLOVIX_MODULON -u PLOVIX_LANGUAGE -u PLOVIX_ANSWER "
      "-u PLOVIX_UI -u DISPLAY -u WAYLAND_DISPLAY " +
      quoted(std::string(PLOVIX_BINARY_DIR) + "/cli/plovix") + " --batch --project " + quoted(project.dir());
  if (!modulon.empty()) command += " --modulon " + quoted(modulon);
  if (!language.empty()) command += " --language " + quoted(language);
  if (!pluginArgs.empty()) command += " --plugin-args " + quoted(pluginArgs);
  command += " " + quoted(designFile);
  return runIn(project.dir(), command);
}

}  // namespace plovix::testing
